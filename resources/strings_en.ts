<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
Texts that are asked for by number. Numbers that code names stand in src/common/StringNumbers.h, those of controls in
src/common/CResEnum.h; every language has them all. The source is the English text.
-->
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name></name>
    <message id="1014">
        <source>Save template</source>
        <extracomment>Title of the box that shows 3074.</extracomment>
        <translation>Save template</translation>
    </message>
    <message id="1017">
        <source>Choose the groups and data items of the schedule</source>
        <extracomment>Tooltip of the Customize button.</extracomment>
        <translation>Choose the groups and data items of the schedule</translation>
    </message>
    <message id="1025">
        <source>&amp;Apply</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>&amp;Apply</translation>
    </message>
    <message id="1026">
        <source>Cancel</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="1027">
        <source>OK</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="1028">
        <source>Up</source>
        <extracomment>Button below the data items; keep it short.</extracomment>
        <translation>Up</translation>
    </message>
    <message id="1029">
        <source>Move the data item up</source>
        <translation>Move the data item up</translation>
    </message>
    <message id="1030">
        <source>Down</source>
        <extracomment>Button below the data items; keep it short.</extracomment>
        <translation>Down</translation>
    </message>
    <message id="1031">
        <source>Move the data item down</source>
        <translation>Move the data item down</translation>
    </message>
    <message id="1032">
        <source>Down</source>
        <extracomment>Button below the groups; keep it short.</extracomment>
        <translation>Down</translation>
    </message>
    <message id="1033">
        <source>Move the group down</source>
        <translation>Move the group down</translation>
    </message>
    <message id="1034">
        <source>Show &amp;group name</source>
        <translation>Show &amp;group name</translation>
    </message>
    <message id="1035">
        <source>Up</source>
        <extracomment>Button below the groups; keep it short.</extracomment>
        <translation>Up</translation>
    </message>
    <message id="1036">
        <source>Move the group up</source>
        <translation>Move the group up</translation>
    </message>
    <message id="1037">
        <source>Data &amp;items:</source>
        <extracomment>Label of a list.</extracomment>
        <translation>Data &amp;items:</translation>
    </message>
    <message id="1038">
        <source>G&amp;roups:</source>
        <extracomment>Label of a list.</extracomment>
        <translation>G&amp;roups:</translation>
    </message>
    <message id="1039">
        <source>Group name:</source>
        <translation>Group name:</translation>
    </message>
    <message id="1040">
        <source>Group</source>
        <extracomment>Frame of a group's settings while no group is selected.</extracomment>
        <translation>Group</translation>
    </message>
    <message id="1041">
        <source>&amp;Save as…</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>&amp;Save as…</translation>
    </message>
    <message id="1042">
        <source>&amp;Delete</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>&amp;Delete</translation>
    </message>
    <message id="1043">
        <source>Check the groups and data items that the schedule shows.</source>
        <extracomment>Hint above the lists.</extracomment>
        <translation>Check the groups and data items that the schedule shows.</translation>
    </message>
    <message id="1044">
        <source>Template file name:</source>
        <translation>Template file name:</translation>
    </message>
    <message id="1045">
        <source>&amp;Template:</source>
        <extracomment>Label of the list of templates.</extracomment>
        <translation>&amp;Template:</translation>
    </message>
    <message id="1046">
        <source>&amp;Same as template name</source>
        <extracomment>Check box beside the caption of a new template.</extracomment>
        <translation>&amp;Same as template name</translation>
    </message>
    <message id="1048">
        <source>Ca&amp;tegory:</source>
        <translation>Ca&amp;tegory:</translation>
    </message>
    <message id="1049">
        <source>Ca&amp;ption (display name):</source>
        <translation>Ca&amp;ption (display name):</translation>
    </message>
    <message id="1050">
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message id="1051">
        <source>Suggested &amp;file name:</source>
        <translation>Suggested &amp;file name:</translation>
    </message>
    <message id="1052">
        <source>Properties of the new template</source>
        <extracomment>Frame around the fields of the dialog.</extracomment>
        <translation>Properties of the new template</translation>
    </message>
    <message id="1053">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="1054">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="1055">
        <source>Save as (new template)</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Save as (new template)</translation>
    </message>
    <message id="1057">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="1058">
        <source>Continue</source>
        <extracomment>A button and also a box's title, so it has no access key.</extracomment>
        <translation>Continue</translation>
    </message>
    <message id="1059">
        <source>&amp;Workbook (Excel 97)…</source>
        <extracomment>Menu entry.</extracomment>
        <translation>&amp;Workbook (Excel 97)…</translation>
    </message>
    <message id="1060">
        <source>Web &amp;page…</source>
        <extracomment>Menu entry.</extracomment>
        <translation>Web &amp;page…</translation>
    </message>
    <message id="1061">
        <source>Export</source>
        <extracomment>A menu and also a tooltip and a dialog's title, so it has no access key.</extracomment>
        <translation>Export</translation>
    </message>
    <message id="1062">
        <source>The list of schedule templates could not be read.</source>
        <translation>The list of schedule templates could not be read.</translation>
    </message>
    <message id="1064">
        <source>The schedule data could not be loaded.</source>
        <translation>The schedule data could not be loaded.</translation>
    </message>
    <message id="1065">
        <source>The schedule data is empty.</source>
        <translation>The schedule data is empty.</translation>
    </message>
    <message id="1066">
        <source>The schedule data contains no table rows.</source>
        <translation>The schedule data contains no table rows.</translation>
    </message>
    <message id="1067">
        <source>A file with this name already exists in the template folder.</source>
        <extracomment>First of the four lines 1067 to 1070.</extracomment>
        <translation>A file with this name already exists in the template folder.</translation>
    </message>
    <message id="1068">
        <source>The new template has not been saved.</source>
        <translation>The new template has not been saved.</translation>
    </message>
    <message id="1069">
        <source>Existing template files are never overwritten.</source>
        <translation>Existing template files are never overwritten.</translation>
    </message>
    <message id="1070">
        <source>Enter a different name, or choose “Cancel”.</source>
        <translation>Enter a different name, or choose “Cancel”.</translation>
    </message>
    <message id="1071">
        <source>Export schedule to a workbook</source>
        <extracomment>Title of a save dialog.</extracomment>
        <translation>Export schedule to a workbook</translation>
    </message>
    <message id="3022">
        <source>A data item in the template has no name.</source>
        <translation>A data item in the template has no name.</translation>
    </message>
    <message id="3023">
        <source>A group in the template has no name.</source>
        <translation>A group in the template has no name.</translation>
    </message>
    <message id="3024">
        <source>Equipment schedule</source>
        <extracomment>Heading on paper and name of an exported sheet: at most 31 characters.</extracomment>
        <translation>Equipment schedule</translation>
    </message>
    <message id="3038">
        <source>System error</source>
        <extracomment>A blank, the error's code and the system's text follow.</extracomment>
        <translation>System error</translation>
    </message>
    <message id="3039">
        <source>The selection cannot be shown.</source>
        <translation>The selection cannot be shown.</translation>
    </message>
    <message id="3040">
        <source>The schedule cannot be shown.</source>
        <translation>The schedule cannot be shown.</translation>
    </message>
    <message id="3042">
        <source>Unsaved changes</source>
        <extracomment>Title of the box that asks whether to save.</extracomment>
        <translation>Unsaved changes</translation>
    </message>
    <message id="3043">
        <source>No tag is selected.</source>
        <extracomment>An empty line and 3044 follow.</extracomment>
        <translation>No tag is selected.</translation>
    </message>
    <message id="3044">
        <source>Select at least one tag, then choose “Continue”.</source>
        <translation>Select at least one tag, then choose “Continue”.</translation>
    </message>
    <message id="3045">
        <source>Swap rows and columns</source>
        <extracomment>Tooltip of the Transpose button.</extracomment>
        <translation>Swap rows and columns</translation>
    </message>
    <message id="3046">
        <source>Save the edited tag data</source>
        <extracomment>Tooltip of the Save button.</extracomment>
        <translation>Save the edited tag data</translation>
    </message>
    <message id="3047">
        <source>Print the schedule</source>
        <extracomment>Tooltip of the Print button.</extracomment>
        <translation>Print the schedule</translation>
    </message>
    <message id="3048">
        <source>Show help</source>
        <extracomment>Tooltip of the Help button.</extracomment>
        <translation>Show help</translation>
    </message>
    <message id="3049">
        <source>&amp;Close</source>
        <extracomment>Button below the schedule.</extracomment>
        <translation>&amp;Close</translation>
    </message>
    <message id="3050">
        <source>Print the selected tags</source>
        <extracomment>Tooltip of the Print button.</extracomment>
        <translation>Print the selected tags</translation>
    </message>
    <message id="3053">
        <source>The selection data could not be loaded.</source>
        <translation>The selection data could not be loaded.</translation>
    </message>
    <message id="3054">
        <source>The schedule could not be loaded.</source>
        <translation>The schedule could not be loaded.</translation>
    </message>
    <message id="3056">
        <source>The schedule has been exported.</source>
        <extracomment>An empty line and 3057 follow.</extracomment>
        <translation>The schedule has been exported.</translation>
    </message>
    <message id="3057">
        <source>Web page:</source>
        <extracomment>A blank and the file's name follow.</extracomment>
        <translation>Web page:</translation>
    </message>
    <message id="3058">
        <source>Export as web page</source>
        <extracomment>Title of the boxes that tell how the export ended.</extracomment>
        <translation>Export as web page</translation>
    </message>
    <message id="3059">
        <source>The schedule could not be exported.</source>
        <extracomment>An empty line and 3060 follow.</extracomment>
        <translation>The schedule could not be exported.</translation>
    </message>
    <message id="3060">
        <source>For details see the log file:</source>
        <extracomment>A blank and the file's name follow.</extracomment>
        <translation>For details see the log file:</translation>
    </message>
    <message id="3061">
        <source>There is nothing to print, because no tag is selected.</source>
        <extracomment>An empty line and 3062 follow.</extracomment>
        <translation>There is nothing to print, because no tag is selected.</translation>
    </message>
    <message id="3062">
        <source>Select at least one tag.</source>
        <extracomment>A blank and 3063 follow.</extracomment>
        <translation>Select at least one tag.</translation>
    </message>
    <message id="3063">
        <source>Then print again.</source>
        <translation>Then print again.</translation>
    </message>
    <message id="3064">
        <source>Print selected tags</source>
        <extracomment>Title of the box that shows 3061.</extracomment>
        <translation>Print selected tags</translation>
    </message>
    <message id="3066">
        <source>This template is the default template of its category.</source>
        <extracomment>Told before 3068 asks.</extracomment>
        <translation>This template is the default template of its category.</translation>
    </message>
    <message id="3067">
        <source>Delete template</source>
        <extracomment>Title of the boxes that show 3066 and 3068.</extracomment>
        <translation>Delete template</translation>
    </message>
    <message id="3068">
        <source>Do you want to delete this template? Its file is deleted as well.</source>
        <extracomment>Answered with Yes or No.</extracomment>
        <translation>Do you want to delete this template? Its file is deleted as well.</translation>
    </message>
    <message id="3069">
        <source>Save template as</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Save template as</translation>
    </message>
    <message id="3070">
        <source>– data items</source>
        <extracomment>Stands after a group's name and a blank.</extracomment>
        <translation>– data items</translation>
    </message>
    <message id="3071">
        <source>There is no current template to save.</source>
        <translation>There is no current template to save.</translation>
    </message>
    <message id="3072">
        <source>The template cannot be saved: its name, display name, category or file name is missing.</source>
        <translation>The template cannot be saved: its name, display name, category or file name is missing.</translation>
    </message>
    <message id="3073">
        <source>The template cannot be saved: the template folder is not known.</source>
        <translation>The template cannot be saved: the template folder is not known.</translation>
    </message>
    <message id="3074">
        <source>This template is protected and cannot be replaced. Save it under a different name.</source>
        <translation>This template is protected and cannot be replaced. Save it under a different name.</translation>
    </message>
    <message id="3075">
        <source>The template cannot be saved: its content is not well-formed XML.</source>
        <translation>The template cannot be saved: its content is not well-formed XML.</translation>
    </message>
    <message id="3076">
        <source>The existing template file could not be deleted.</source>
        <translation>The existing template file could not be deleted.</translation>
    </message>
    <message id="3077">
        <source>Current template:</source>
        <extracomment>Two blanks and the template's name follow.</extracomment>
        <translation>Current template:</translation>
    </message>
</context>
</TS>
