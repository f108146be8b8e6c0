<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
Texts that are asked for by number. Numbers that code names stand in src/common/StringNumbers.h, those of controls in
src/common/CResEnum.h; every language has them all. The source is the English text.
-->
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name></name>
    <message id="1014">
        <source>Save template</source>
        <extracomment>Title of the box that shows 3074.</extracomment>
        <translation>Vorlage speichern</translation>
    </message>
    <message id="1017">
        <source>Choose the groups and data items of the schedule</source>
        <extracomment>Tooltip of the Customize button.</extracomment>
        <translation>Gruppen und Datenelemente der Liste auswählen</translation>
    </message>
    <message id="1025">
        <source>&amp;Apply</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message id="1026">
        <source>Cancel</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="1027">
        <source>OK</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="1028">
        <source>Up</source>
        <extracomment>Button below the data items; keep it short.</extracomment>
        <translation>Auf</translation>
    </message>
    <message id="1029">
        <source>Move the data item up</source>
        <translation>Datenelement nach oben verschieben</translation>
    </message>
    <message id="1030">
        <source>Down</source>
        <extracomment>Button below the data items; keep it short.</extracomment>
        <translation>Ab</translation>
    </message>
    <message id="1031">
        <source>Move the data item down</source>
        <translation>Datenelement nach unten verschieben</translation>
    </message>
    <message id="1032">
        <source>Down</source>
        <extracomment>Button below the groups; keep it short.</extracomment>
        <translation>Ab</translation>
    </message>
    <message id="1033">
        <source>Move the group down</source>
        <translation>Gruppe nach unten verschieben</translation>
    </message>
    <message id="1034">
        <source>Show &amp;group name</source>
        <translation>&amp;Gruppenname anzeigen</translation>
    </message>
    <message id="1035">
        <source>Up</source>
        <extracomment>Button below the groups; keep it short.</extracomment>
        <translation>Auf</translation>
    </message>
    <message id="1036">
        <source>Move the group up</source>
        <translation>Gruppe nach oben verschieben</translation>
    </message>
    <message id="1037">
        <source>Data &amp;items:</source>
        <extracomment>Label of a list.</extracomment>
        <translation>&amp;Datenelemente:</translation>
    </message>
    <message id="1038">
        <source>G&amp;roups:</source>
        <extracomment>Label of a list.</extracomment>
        <translation>G&amp;ruppen:</translation>
    </message>
    <message id="1039">
        <source>Group name:</source>
        <translation>Gruppenname:</translation>
    </message>
    <message id="1040">
        <source>Group</source>
        <extracomment>Frame of a group's settings while no group is selected.</extracomment>
        <translation>Gruppe</translation>
    </message>
    <message id="1041">
        <source>&amp;Save as…</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>&amp;Speichern unter…</translation>
    </message>
    <message id="1042">
        <source>&amp;Delete</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>&amp;Löschen</translation>
    </message>
    <message id="1043">
        <source>Check the groups and data items that the schedule shows.</source>
        <extracomment>Hint above the lists.</extracomment>
        <translation>Aktivieren Sie die Gruppen und Datenelemente, die die Liste anzeigen soll.</translation>
    </message>
    <message id="1044">
        <source>Template file name:</source>
        <translation>Dateiname der Vorlage:</translation>
    </message>
    <message id="1045">
        <source>&amp;Template:</source>
        <extracomment>Label of the list of templates.</extracomment>
        <translation>&amp;Vorlage:</translation>
    </message>
    <message id="1046">
        <source>&amp;Same as template name</source>
        <extracomment>Check box beside the caption of a new template.</extracomment>
        <translation>Wie &amp;Vorlagenname</translation>
    </message>
    <message id="1048">
        <source>Ca&amp;tegory:</source>
        <translation>&amp;Kategorie:</translation>
    </message>
    <message id="1049">
        <source>Ca&amp;ption (display name):</source>
        <translation>&amp;Beschriftung (Anzeigename):</translation>
    </message>
    <message id="1050">
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message id="1051">
        <source>Suggested &amp;file name:</source>
        <translation>Vorgeschlagener &amp;Dateiname:</translation>
    </message>
    <message id="1052">
        <source>Properties of the new template</source>
        <extracomment>Frame around the fields of the dialog.</extracomment>
        <translation>Eigenschaften der neuen Vorlage</translation>
    </message>
    <message id="1053">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="1054">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="1055">
        <source>Save as (new template)</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Speichern unter (neue Vorlage)</translation>
    </message>
    <message id="1057">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="1058">
        <source>Continue</source>
        <extracomment>A button and also a box's title, so it has no access key.</extracomment>
        <translation>Weiter</translation>
    </message>
    <message id="1059">
        <source>&amp;Workbook (Excel 97)…</source>
        <extracomment>Menu entry.</extracomment>
        <translation>&amp;Arbeitsmappe (Excel 97)…</translation>
    </message>
    <message id="1060">
        <source>Web &amp;page…</source>
        <extracomment>Menu entry.</extracomment>
        <translation>&amp;Webseite…</translation>
    </message>
    <message id="1061">
        <source>Export</source>
        <extracomment>A menu and also a tooltip and a dialog's title, so it has no access key.</extracomment>
        <translation>Exportieren</translation>
    </message>
    <message id="1062">
        <source>The list of schedule templates could not be read.</source>
        <translation>Die Liste der Vorlagen konnte nicht gelesen werden.</translation>
    </message>
    <message id="1064">
        <source>The schedule data could not be loaded.</source>
        <translation>Die Daten der Liste konnten nicht geladen werden.</translation>
    </message>
    <message id="1065">
        <source>The schedule data is empty.</source>
        <translation>Die Daten der Liste sind leer.</translation>
    </message>
    <message id="1066">
        <source>The schedule data contains no table rows.</source>
        <translation>Die Daten der Liste enthalten keine Tabellenzeilen.</translation>
    </message>
    <message id="1067">
        <source>A file with this name already exists in the template folder.</source>
        <extracomment>First of the four lines 1067 to 1070.</extracomment>
        <translation>Im Vorlagenordner ist bereits eine Datei mit diesem Namen vorhanden.</translation>
    </message>
    <message id="1068">
        <source>The new template has not been saved.</source>
        <translation>Die neue Vorlage wurde nicht gespeichert.</translation>
    </message>
    <message id="1069">
        <source>Existing template files are never overwritten.</source>
        <translation>Vorhandene Vorlagendateien werden nicht überschrieben.</translation>
    </message>
    <message id="1070">
        <source>Enter a different name, or choose “Cancel”.</source>
        <translation>Geben Sie einen anderen Namen ein, oder wählen Sie „Abbrechen“.</translation>
    </message>
    <message id="1071">
        <source>Export schedule to a workbook</source>
        <extracomment>Title of a save dialog.</extracomment>
        <translation>Liste in eine Arbeitsmappe exportieren</translation>
    </message>
    <message id="3022">
        <source>A data item in the template has no name.</source>
        <translation>Ein Datenelement in der Vorlage hat keinen Namen.</translation>
    </message>
    <message id="3023">
        <source>A group in the template has no name.</source>
        <translation>Eine Gruppe in der Vorlage hat keinen Namen.</translation>
    </message>
    <message id="3024">
        <source>Equipment schedule</source>
        <extracomment>Heading on paper and name of an exported sheet: at most 31 characters.</extracomment>
        <translation>Ausrüstungsliste</translation>
    </message>
    <message id="3038">
        <source>System error</source>
        <extracomment>A blank, the error's code and the system's text follow.</extracomment>
        <translation>Systemfehler</translation>
    </message>
    <message id="3039">
        <source>The selection cannot be shown.</source>
        <translation>Die Auswahl kann nicht angezeigt werden.</translation>
    </message>
    <message id="3040">
        <source>The schedule cannot be shown.</source>
        <translation>Die Liste kann nicht angezeigt werden.</translation>
    </message>
    <message id="3042">
        <source>Unsaved changes</source>
        <extracomment>Title of the box that asks whether to save.</extracomment>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message id="3043">
        <source>No tag is selected.</source>
        <extracomment>An empty line and 3044 follow.</extracomment>
        <translation>Es ist kein Kennzeichen ausgewählt.</translation>
    </message>
    <message id="3044">
        <source>Select at least one tag, then choose “Continue”.</source>
        <translation>Wählen Sie mindestens ein Kennzeichen aus, und klicken Sie dann auf „Weiter“.</translation>
    </message>
    <message id="3045">
        <source>Swap rows and columns</source>
        <extracomment>Tooltip of the Transpose button.</extracomment>
        <translation>Zeilen und Spalten vertauschen</translation>
    </message>
    <message id="3046">
        <source>Save the edited tag data</source>
        <extracomment>Tooltip of the Save button.</extracomment>
        <translation>Geänderte Kennzeichendaten speichern</translation>
    </message>
    <message id="3047">
        <source>Print the schedule</source>
        <extracomment>Tooltip of the Print button.</extracomment>
        <translation>Liste drucken</translation>
    </message>
    <message id="3048">
        <source>Show help</source>
        <extracomment>Tooltip of the Help button.</extracomment>
        <translation>Hilfe anzeigen</translation>
    </message>
    <message id="3049">
        <source>&amp;Close</source>
        <extracomment>Button below the schedule.</extracomment>
        <translation>&amp;Schließen</translation>
    </message>
    <message id="3050">
        <source>Print the selected tags</source>
        <extracomment>Tooltip of the Print button.</extracomment>
        <translation>Ausgewählte Kennzeichen drucken</translation>
    </message>
    <message id="3053">
        <source>The selection data could not be loaded.</source>
        <translation>Die Daten der Auswahl konnten nicht geladen werden.</translation>
    </message>
    <message id="3054">
        <source>The schedule could not be loaded.</source>
        <translation>Die Liste konnte nicht geladen werden.</translation>
    </message>
    <message id="3056">
        <source>The schedule has been exported.</source>
        <extracomment>An empty line and 3057 follow.</extracomment>
        <translation>Die Liste wurde exportiert.</translation>
    </message>
    <message id="3057">
        <source>Web page:</source>
        <extracomment>A blank and the file's name follow.</extracomment>
        <translation>Webseite:</translation>
    </message>
    <message id="3058">
        <source>Export as web page</source>
        <extracomment>Title of the boxes that tell how the export ended.</extracomment>
        <translation>Als Webseite exportieren</translation>
    </message>
    <message id="3059">
        <source>The schedule could not be exported.</source>
        <extracomment>An empty line and 3060 follow.</extracomment>
        <translation>Die Liste konnte nicht exportiert werden.</translation>
    </message>
    <message id="3060">
        <source>For details see the log file:</source>
        <extracomment>A blank and the file's name follow.</extracomment>
        <translation>Einzelheiten finden Sie in der Protokolldatei:</translation>
    </message>
    <message id="3061">
        <source>There is nothing to print, because no tag is selected.</source>
        <extracomment>An empty line and 3062 follow.</extracomment>
        <translation>Es gibt nichts zu drucken, da kein Kennzeichen ausgewählt ist.</translation>
    </message>
    <message id="3062">
        <source>Select at least one tag.</source>
        <extracomment>A blank and 3063 follow.</extracomment>
        <translation>Wählen Sie mindestens ein Kennzeichen aus.</translation>
    </message>
    <message id="3063">
        <source>Then print again.</source>
        <translation>Drucken Sie dann erneut.</translation>
    </message>
    <message id="3064">
        <source>Print selected tags</source>
        <extracomment>Title of the box that shows 3061.</extracomment>
        <translation>Ausgewählte Kennzeichen drucken</translation>
    </message>
    <message id="3066">
        <source>This template is the default template of its category.</source>
        <extracomment>Told before 3068 asks.</extracomment>
        <translation>Diese Vorlage ist die Standardvorlage ihrer Kategorie.</translation>
    </message>
    <message id="3067">
        <source>Delete template</source>
        <extracomment>Title of the boxes that show 3066 and 3068.</extracomment>
        <translation>Vorlage löschen</translation>
    </message>
    <message id="3068">
        <source>Do you want to delete this template? Its file is deleted as well.</source>
        <extracomment>Answered with Yes or No.</extracomment>
        <translation>Möchten Sie diese Vorlage löschen? Die Vorlagendatei wird ebenfalls gelöscht.</translation>
    </message>
    <message id="3069">
        <source>Save template as</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Vorlage speichern unter</translation>
    </message>
    <message id="3070">
        <source>– data items</source>
        <extracomment>Stands after a group's name and a blank.</extracomment>
        <translation>– Datenelemente</translation>
    </message>
    <message id="3071">
        <source>There is no current template to save.</source>
        <translation>Es ist keine Vorlage zum Speichern ausgewählt.</translation>
    </message>
    <message id="3072">
        <source>The template cannot be saved: its name, display name, category or file name is missing.</source>
        <translation>Die Vorlage kann nicht gespeichert werden: Name, Anzeigename, Kategorie oder Dateiname fehlt.</translation>
    </message>
    <message id="3073">
        <source>The template cannot be saved: the template folder is not known.</source>
        <translation>Die Vorlage kann nicht gespeichert werden: Der Vorlagenordner ist nicht bekannt.</translation>
    </message>
    <message id="3074">
        <source>This template is protected and cannot be replaced. Save it under a different name.</source>
        <translation>Diese Vorlage ist geschützt und kann nicht ersetzt werden. Speichern Sie sie unter einem anderen Namen.</translation>
    </message>
    <message id="3075">
        <source>The template cannot be saved: its content is not well-formed XML.</source>
        <translation>Die Vorlage kann nicht gespeichert werden: Ihr Inhalt ist kein wohlgeformtes XML.</translation>
    </message>
    <message id="3076">
        <source>The existing template file could not be deleted.</source>
        <translation>Die vorhandene Vorlagendatei konnte nicht gelöscht werden.</translation>
    </message>
    <message id="3077">
        <source>Current template:</source>
        <extracomment>Two blanks and the template's name follow.</extracomment>
        <translation>Aktuelle Vorlage:</translation>
    </message>
</context>
</TS>
