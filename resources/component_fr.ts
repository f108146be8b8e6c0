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
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier :</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer...</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Enregistrer en PDF...</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Impression de la page %1 sur %2</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>A file name cannot contain * or ?.</source>
        <translation>Un nom de fichier ne peut contenir ni * ni ?.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Il n’y a pas de dossier %1.</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 existe déjà. Le remplacer ?</translation>
    </message>
</context>
</TS>
