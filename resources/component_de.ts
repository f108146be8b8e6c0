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
    <message>
        <source>Full file name</source>
        <translation>Vollständiger Dateiname</translation>
    </message>
    <message>
        <source>Choose a category.</source>
        <translation>Wählen Sie eine Kategorie.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>A name cannot be one or two dots alone.</source>
        <translation>Ein Name kann nicht nur aus einem oder zwei Punkten bestehen.</translation>
    </message>
    <message>
        <source>A name cannot contain a slash or a backslash.</source>
        <translation>Ein Name kann weder / noch \ enthalten.</translation>
    </message>
    <message>
        <source>The name contains a character that no file name can have.</source>
        <translation>Der Name enthält ein Zeichen, das in keinem Dateinamen stehen kann.</translation>
    </message>
    <message>
        <source>The name is too long for a file.</source>
        <translation>Der Name ist zu lang für eine Datei.</translation>
    </message>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 ist schon vorhanden.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>User-Defined Data Item:</source>
        <translation>Benutzerdefiniertes Datenelement:</translation>
    </message>
    <message>
        <source>Display Name:</source>
        <translation>Anzeigename:</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>(*) Indicates user-defined data item</source>
        <translation>(*) Benutzerdefiniertes Datenelement</translation>
    </message>
    <message>
        <source>The file of this template could only be read in part. Saving it drops what could not be read. Save?</source>
        <translation>Die Datei dieser Vorlage konnte nur teilweise gelesen werden. Beim Speichern geht verloren, was nicht gelesen werden konnte. Speichern?</translation>
    </message>
    <message>
        <source>The file of this template was changed after it had been read. Saving it drops that change. Save?</source>
        <translation>Die Datei dieser Vorlage wurde geändert, nachdem sie gelesen worden war. Beim Speichern geht diese Änderung verloren. Speichern?</translation>
    </message>
    <message>
        <source>A file in the template folder cannot have this name.</source>
        <translation>Eine Datei im Vorlagenordner kann diesen Namen nicht haben.</translation>
    </message>
    <message>
        <source>There is a template of this name already, in a file of another name.</source>
        <translation>Es gibt bereits eine Vorlage dieses Namens in einer Datei mit einem anderen Namen.</translation>
    </message>
    <message>
        <source>A text of the template has a character that cannot be saved.</source>
        <translation>Ein Text der Vorlage enthält ein Zeichen, das nicht gespeichert werden kann.</translation>
    </message>
</context>
</TS>
