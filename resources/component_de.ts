<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
The component's own texts, which bear no number. To add one, write ComponentText("The English text") in code, or
QT_TRANSLATE_NOOP("Schedules", "The English text") where it stands in a table, and a message with this source here and in
the other component_*.ts files; English itself needs none.
-->
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Schedules</name>
    <message>
        <source>Schedule</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Equipment schedule</source>
        <translation>Ausrüstungsliste</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>More tools</source>
        <translation>Weitere Werkzeuge</translation>
    </message>
    <message>
        <source>checked</source>
        <translation>aktiviert</translation>
    </message>
    <message>
        <source>unchecked</source>
        <translation>nicht aktiviert</translation>
    </message>
    <message>
        <source>Row headers</source>
        <translation>Zeilenköpfe</translation>
    </message>
    <message>
        <source>Column headers</source>
        <translation>Spaltenköpfe</translation>
    </message>
    <message>
        <source>Changed, not saved</source>
        <translation>Geändert, nicht gespeichert</translation>
    </message>
    <message>
        <source>Sort Ascending</source>
        <translation>Aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort Descending</source>
        <translation>Absteigend sortieren</translation>
    </message>
    <message>
        <source>Document Order</source>
        <translation>Reihenfolge des Dokuments</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Keine auswählen</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>Edit value</source>
        <translation>Wert bearbeiten</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
</TS>
