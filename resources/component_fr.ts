<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
The component's own texts, which bear no number. To add one, write ComponentText("The English text") in code, or
QT_TRANSLATE_NOOP("Schedules", "The English text") where it stands in a table, and a message with this source here and in
the other component_*.ts files; English itself needs none.
-->
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Schedules</name>
    <message>
        <source>Schedule</source>
        <translation>Nomenclature</translation>
    </message>
    <message>
        <source>Equipment schedule</source>
        <translation>Nomenclature des équipements</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>More tools</source>
        <translation>Autres outils</translation>
    </message>
    <message>
        <source>checked</source>
        <translation>coché</translation>
    </message>
    <message>
        <source>unchecked</source>
        <translation>non coché</translation>
    </message>
    <message>
        <source>Row headers</source>
        <translation>En-têtes de ligne</translation>
    </message>
    <message>
        <source>Column headers</source>
        <translation>En-têtes de colonne</translation>
    </message>
    <message>
        <source>Changed, not saved</source>
        <translation>Modifié, non enregistré</translation>
    </message>
    <message>
        <source>Sort Ascending</source>
        <translation>Trier par ordre croissant</translation>
    </message>
    <message>
        <source>Sort Descending</source>
        <translation>Trier par ordre décroissant</translation>
    </message>
    <message>
        <source>Document Order</source>
        <translation>Ordre du document</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Ne rien sélectionner</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Inverser la sélection</translation>
    </message>
    <message>
        <source>Edit value</source>
        <translation>Modifier la valeur</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
</TS>
