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
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier:</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Als PDF speichern...</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Seite %1 von %2 wird gedruckt</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>A file name cannot contain * or ?.</source>
        <translation>Ein Dateiname kann weder * noch ? enthalten.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Es gibt keinen Ordner %1.</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 ist schon vorhanden. Ersetzen?</translation>
    </message>
</context>
</TS>
