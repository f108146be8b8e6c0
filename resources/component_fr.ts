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
</context>
</TS>
