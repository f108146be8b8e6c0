<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
    <context>
        <name>UnsavedValues</name>
        <message>
            <source>%1 has edits that are not saved.</source>
            <translation>%1: Änderungen sind nicht gespeichert.</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::CategoryDock</name>
        <message>
            <source>Equipment</source>
            <translation>Anlagenteile</translation>
        </message>
        <message>
            <source>%1 (%2)</source>
            <translation>%1 (%2)</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ConflictDialog</name>
        <message>
            <source>Values changed by someone else</source>
            <translation>Von anderen geänderte Werte</translation>
        </message>
        <message>
            <source>These values were changed since they were shown. Everything else has been saved. Cancel leaves yours unsaved in the schedule.</source>
            <translation>Diese Werte wurden geändert, seit sie angezeigt wurden. Alles andere ist gespeichert. Abbrechen lässt Ihre Werte ungespeichert in der Liste.</translation>
        </message>
        <message>
            <source>All theirs</source>
            <translation>Alle fremden</translation>
        </message>
        <message>
            <source>All mine</source>
            <translation>Alle eigenen</translation>
        </message>
        <message>
            <source>Tag</source>
            <translation>Kennzeichen</translation>
        </message>
        <message>
            <source>Data item</source>
            <translation>Merkmal</translation>
        </message>
        <message>
            <source>Theirs</source>
            <translation>Fremder Wert</translation>
        </message>
        <message>
            <source>Mine</source>
            <translation>Eigener Wert</translation>
        </message>
        <message>
            <source>Keep</source>
            <translation>Behalten</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::HelpWindow</name>
        <message>
            <source>Equipment Schedules Help</source>
            <translation>Hilfe zu Anlagenlisten</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::MainWindow</name>
        <message>
            <source>1 tag was picked</source>
            <translation>1 Kennzeichen wurde gewählt</translation>
        </message>
        <message>
            <source>%1 tags were picked</source>
            <translation>%1 Kennzeichen wurden gewählt</translation>
        </message>
        <message>
            <source>%1 to be printed</source>
            <translation>%1, zum Drucken</translation>
        </message>
        <message>
            <source>Equipment Schedules</source>
            <translation>Anlagenlisten</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Datei</translation>
        </message>
        <message>
            <source>&amp;Open...</source>
            <translation>Ö&amp;ffnen …</translation>
        </message>
        <message>
            <source>&amp;Reload</source>
            <translation>&amp;Neu laden</translation>
        </message>
        <message>
            <source>&amp;Quit</source>
            <translation>&amp;Beenden</translation>
        </message>
        <message>
            <source>&amp;View</source>
            <translation>&amp;Ansicht</translation>
        </message>
        <message>
            <source>&amp;Schedule</source>
            <translation>&amp;Liste</translation>
        </message>
        <message>
            <source>Se&amp;lector</source>
            <translation>Aus&amp;wahl</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>&amp;Hilfe</translation>
        </message>
        <message>
            <source>&amp;About</source>
            <translation>Ü&amp;ber</translation>
        </message>
        <message>
            <source>%1 - Equipment Schedules</source>
            <translation>%1 - Anlagenlisten</translation>
        </message>
        <message>
            <source>Saved 1 changed cell to %1</source>
            <translation>1 geänderte Zelle in %1 gespeichert</translation>
        </message>
        <message>
            <source>Saved %1 changed cells to %2</source>
            <translation>%1 geänderte Zellen in %2 gespeichert</translation>
        </message>
        <message>
            <source>Open a schedule</source>
            <translation>Liste öffnen</translation>
        </message>
        <message>
            <source>Schedule tables (*.xml);;All files (*)</source>
            <translation>Listen (*.xml);;Alle Dateien (*)</translation>
        </message>
        <message>
            <source>About Equipment Schedules</source>
            <translation>Über Anlagenlisten</translation>
        </message>
        <message>
            <source>&lt;h3&gt;Equipment Schedules %1&lt;/h3&gt;&lt;p&gt;The reference host of the schedule component: it shows a table of equipment and lists what the component and its host say to each other.&lt;/p&gt;</source>
            <translation>&lt;h3&gt;Anlagenlisten %1&lt;/h3&gt;&lt;p&gt;Das Referenzprogramm der Listen-Komponente: Es zeigt eine Tabelle von Anlagenteilen und führt auf, was Komponente und Programm einander mitteilen.&lt;/p&gt;</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::MessageBar</name>
        <message>
            <source>Close</source>
            <translation>Schließen</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::MessageDock</name>
        <message>
            <source>Messages</source>
            <translation>Nachrichten</translation>
        </message>
        <message>
            <source>All messages</source>
            <translation>Alle Nachrichten</translation>
        </message>
        <message>
            <source>Requests</source>
            <translation>Anfragen</translation>
        </message>
        <message>
            <source>Events</source>
            <translation>Ereignisse</translation>
        </message>
        <message>
            <source>Errors</source>
            <translation>Fehler</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::MessageModel</name>
        <message>
            <source>Request</source>
            <translation>Anfrage</translation>
        </message>
        <message>
            <source>Event</source>
            <translation>Ereignis</translation>
        </message>
        <message>
            <source>(not a message)</source>
            <translation>(keine Nachricht)</translation>
        </message>
        <message>
            <source>failed: %1</source>
            <translation>fehlgeschlagen: %1</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Zeit</translation>
        </message>
        <message>
            <source>From and to</source>
            <translation>Von und an</translation>
        </message>
        <message>
            <source>Kind</source>
            <translation>Art</translation>
        </message>
        <message>
            <source>Message</source>
            <translation>Nachricht</translation>
        </message>
        <message>
            <source>Parameters</source>
            <translation>Parameter</translation>
        </message>
        <message>
            <source>Reply</source>
            <translation>Antwort</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::OptionsWindow</name>
        <message>
            <source>The schedule uses %1</source>
            <translation>Die Liste verwendet %1</translation>
        </message>
        <message>
            <source>Took %1 from the list of templates</source>
            <translation>%1 aus der Liste der Vorlagen genommen</translation>
        </message>
        <message>
            <source>Saved the list of templates</source>
            <translation>Liste der Vorlagen gespeichert</translation>
        </message>
        <message>
            <source>Schedule templates – %1</source>
            <translation>Listenvorlagen – %1</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Datei</translation>
        </message>
        <message>
            <source>&amp;Quit</source>
            <translation>&amp;Beenden</translation>
        </message>
        <message>
            <source>&amp;View</source>
            <translation>&amp;Ansicht</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectAnswers</name>
        <message numerus="yes">
            <source>%n value(s) changed by someone else were not saved.</source>
            <translation>
                <numerusform>%n von anderen geänderter Wert wurde nicht gespeichert.</numerusform>
                <numerusform>%n von anderen geänderte Werte wurden nicht gespeichert.</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectDialogs</name>
        <message>
            <source>%1
Password:</source>
            <translation>%1
Kennwort:</translation>
        </message>
        <message>
            <source>Projects (*%1);;All files (*)</source>
            <translation>Projekte (*%1);;Alle Dateien (*)</translation>
        </message>
        <message>
            <source>New project</source>
            <translation>Neues Projekt</translation>
        </message>
        <message>
            <source>Open a project</source>
            <translation>Projekt öffnen</translation>
        </message>
        <message>
            <source>Open from a server</source>
            <translation>Vom Server öffnen</translation>
        </message>
        <message>
            <source>Address of the project:</source>
            <translation>Adresse des Projekts:</translation>
        </message>
        <message>
            <source>Import a table</source>
            <translation>Tabelle importieren</translation>
        </message>
        <message>
            <source>Tables (*.csv *.txt);;All files (*)</source>
            <translation>Tabellen (*.csv *.txt);;Alle Dateien (*)</translation>
        </message>
        <message>
            <source>About Equipment Schedules</source>
            <translation>Über Anlagenlisten</translation>
        </message>
        <message>
            <source>&lt;h3&gt;Equipment Schedules %1&lt;/h3&gt;&lt;p&gt;The reference host of the schedule component: it shows the equipment of a project, and lists what the component and its host say to each other.&lt;/p&gt;</source>
            <translation>&lt;h3&gt;Anlagenlisten %1&lt;/h3&gt;&lt;p&gt;Das Referenzprogramm der Listen-Komponente: Es zeigt die Anlagenteile eines Projekts und führt auf, was Komponente und Programm einander mitteilen.&lt;/p&gt;</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectMenus</name>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Datei</translation>
        </message>
        <message>
            <source>&amp;New Project...</source>
            <translation>&amp;Neues Projekt …</translation>
        </message>
        <message>
            <source>&amp;Open Project...</source>
            <translation>Projekt ö&amp;ffnen …</translation>
        </message>
        <message>
            <source>Open from &amp;Server...</source>
            <translation>Vom &amp;Server öffnen …</translation>
        </message>
        <message>
            <source>&amp;Recent Projects</source>
            <translation>&amp;Zuletzt geöffnet</translation>
        </message>
        <message>
            <source>&amp;Import Table...</source>
            <translation>Tabelle &amp;importieren …</translation>
        </message>
        <message>
            <source>Re&amp;fresh</source>
            <translation>&amp;Aktualisieren</translation>
        </message>
        <message>
            <source>&amp;Quit</source>
            <translation>&amp;Beenden</translation>
        </message>
        <message>
            <source>&amp;View</source>
            <translation>&amp;Ansicht</translation>
        </message>
        <message>
            <source>&amp;Language</source>
            <translation>&amp;Sprache</translation>
        </message>
        <message>
            <source>&amp;Colours</source>
            <translation>&amp;Farben</translation>
        </message>
        <message>
            <source>Desktop</source>
            <translation>Wie Arbeitsplatz</translation>
        </message>
        <message>
            <source>Light</source>
            <translation>Hell</translation>
        </message>
        <message>
            <source>Dark</source>
            <translation>Dunkel</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>&amp;Hilfe</translation>
        </message>
        <message>
            <source>&amp;Contents</source>
            <translation>&amp;Inhalt</translation>
        </message>
        <message>
            <source>&amp;About</source>
            <translation>Ü&amp;ber</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectViews</name>
        <message>
            <source>The schedule</source>
            <translation>Die Liste</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>Nr.</translation>
        </message>
        <message>
            <source>Tag</source>
            <translation>Kennzeichen</translation>
        </message>
        <message>
            <source>Select</source>
            <translation>Auswahl</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectWindow</name>
        <message>
            <source>Templates that are in no list were found: %1</source>
            <translation>Vorlagen, die in keiner Liste stehen, wurden gefunden: %1</translation>
        </message>
        <message>
            <source>Add them</source>
            <translation>Aufnehmen</translation>
        </message>
        <message>
            <source>Template</source>
            <translation>Vorlage</translation>
        </message>
        <message>
            <source>Equipment Schedules</source>
            <translation>Anlagenlisten</translation>
        </message>
        <message>
            <source>%1 - Equipment Schedules</source>
            <translation>%1 - Anlagenlisten</translation>
        </message>
        <message>
            <source>This project has no categories yet. Import a table of them.</source>
            <translation>Dieses Projekt hat noch keine Kategorien. Importieren Sie eine Tabelle davon.</translation>
        </message>
        <message>
            <source>Choose a category at the left.</source>
            <translation>Wählen Sie links eine Kategorie.</translation>
        </message>
        <message>
            <source>Imported %1 tags and %2 values</source>
            <translation>%1 Kennzeichen und %2 Werte importiert</translation>
        </message>
        <message>
            <source>The schedule shows the former template until its values are saved or discarded.</source>
            <translation>Die Liste zeigt die frühere Vorlage, bis ihre Werte gespeichert oder verworfen sind.</translation>
        </message>
        <message numerus="yes">
            <source>%n value(s) saved</source>
            <translation>
                <numerusform>%n Wert gespeichert</numerusform>
                <numerusform>%n Werte gespeichert</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n value(s) were changed by someone else and are shown now.</source>
            <translation>
                <numerusform>%n Wert wurde von anderen geändert und ist nun zu sehen.</numerusform>
                <numerusform>%n Werte wurden von anderen geändert und sind nun zu sehen.</numerusform>
            </translation>
        </message>
        <message>
            <source>Someone else has changed this template as well. Theirs is kept as %1.</source>
            <translation>Auch jemand anderes hat diese Vorlage geändert. Die fremde Fassung bleibt als %1 erhalten.</translation>
        </message>
    </context>
</TS>
