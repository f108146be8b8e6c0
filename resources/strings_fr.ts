<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
Texts that are asked for by number. Numbers that code names stand in src/common/StringNumbers.h, those of controls in
src/common/CResEnum.h; every language has them all. The source is the English text.
-->
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name></name>
    <message id="1014">
        <source>Save template</source>
        <extracomment>Title of the box that shows 3074.</extracomment>
        <translation>Enregistrer le modèle</translation>
    </message>
    <message id="1017">
        <source>Choose the groups and data items of the schedule</source>
        <extracomment>Tooltip of the Customize button.</extracomment>
        <translation>Choisir les groupes et les données de la nomenclature</translation>
    </message>
    <message id="1025">
        <source>&amp;Apply</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>A&amp;ppliquer</translation>
    </message>
    <message id="1026">
        <source>Cancel</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>Annuler</translation>
    </message>
    <message id="1027">
        <source>OK</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="1028">
        <source>Up</source>
        <extracomment>Button below the data items; keep it short.</extracomment>
        <translation>Monter</translation>
    </message>
    <message id="1029">
        <source>Move the data item up</source>
        <translation>Déplacer la donnée vers le haut</translation>
    </message>
    <message id="1030">
        <source>Down</source>
        <extracomment>Button below the data items; keep it short.</extracomment>
        <translation>Descendre</translation>
    </message>
    <message id="1031">
        <source>Move the data item down</source>
        <translation>Déplacer la donnée vers le bas</translation>
    </message>
    <message id="1032">
        <source>Down</source>
        <extracomment>Button below the groups; keep it short.</extracomment>
        <translation>Descendre</translation>
    </message>
    <message id="1033">
        <source>Move the group down</source>
        <translation>Déplacer le groupe vers le bas</translation>
    </message>
    <message id="1034">
        <source>Show &amp;group name</source>
        <translation>Afficher le nom du &amp;groupe</translation>
    </message>
    <message id="1035">
        <source>Up</source>
        <extracomment>Button below the groups; keep it short.</extracomment>
        <translation>Monter</translation>
    </message>
    <message id="1036">
        <source>Move the group up</source>
        <translation>Déplacer le groupe vers le haut</translation>
    </message>
    <message id="1037">
        <source>Data &amp;items:</source>
        <extracomment>Label of a list.</extracomment>
        <translation>&amp;Données&#160;:</translation>
    </message>
    <message id="1038">
        <source>G&amp;roups:</source>
        <extracomment>Label of a list.</extracomment>
        <translation>G&amp;roupes&#160;:</translation>
    </message>
    <message id="1039">
        <source>Group name:</source>
        <translation>Nom du groupe&#160;:</translation>
    </message>
    <message id="1040">
        <source>Group</source>
        <extracomment>Frame of a group's settings while no group is selected.</extracomment>
        <translation>Groupe</translation>
    </message>
    <message id="1041">
        <source>&amp;Save as…</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>&amp;Enregistrer sous…</translation>
    </message>
    <message id="1042">
        <source>&amp;Delete</source>
        <extracomment>Button of the options editor.</extracomment>
        <translation>&amp;Supprimer</translation>
    </message>
    <message id="1043">
        <source>Check the groups and data items that the schedule shows.</source>
        <extracomment>Hint above the lists.</extracomment>
        <translation>Cochez les groupes et les données que la nomenclature doit afficher.</translation>
    </message>
    <message id="1044">
        <source>Template file name:</source>
        <translation>Nom du fichier du modèle&#160;:</translation>
    </message>
    <message id="1045">
        <source>&amp;Template:</source>
        <extracomment>Label of the list of templates.</extracomment>
        <translation>&amp;Modèle&#160;:</translation>
    </message>
    <message id="1046">
        <source>&amp;Same as template name</source>
        <extracomment>Check box beside the caption of a new template.</extracomment>
        <translation>Identique au nom du m&amp;odèle</translation>
    </message>
    <message id="1048">
        <source>Ca&amp;tegory:</source>
        <translation>&amp;Catégorie&#160;:</translation>
    </message>
    <message id="1049">
        <source>Ca&amp;ption (display name):</source>
        <translation>&amp;Libellé (nom affiché)&#160;:</translation>
    </message>
    <message id="1050">
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#160;:</translation>
    </message>
    <message id="1051">
        <source>Suggested &amp;file name:</source>
        <translation>Nom de &amp;fichier proposé&#160;:</translation>
    </message>
    <message id="1052">
        <source>Properties of the new template</source>
        <extracomment>Frame around the fields of the dialog.</extracomment>
        <translation>Propriétés du nouveau modèle</translation>
    </message>
    <message id="1053">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="1054">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="1055">
        <source>Save as (new template)</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Enregistrer sous (nouveau modèle)</translation>
    </message>
    <message id="1057">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="1058">
        <source>Continue</source>
        <extracomment>A button and also a box's title, so it has no access key.</extracomment>
        <translation>Continuer</translation>
    </message>
    <message id="1059">
        <source>&amp;Workbook (Excel 97)…</source>
        <extracomment>Menu entry.</extracomment>
        <translation>&amp;Classeur (Excel 97)…</translation>
    </message>
    <message id="1060">
        <source>Web &amp;page…</source>
        <extracomment>Menu entry.</extracomment>
        <translation>&amp;Page web…</translation>
    </message>
    <message id="1061">
        <source>Export</source>
        <extracomment>A menu and also a tooltip and a dialog's title, so it has no access key.</extracomment>
        <translation>Exporter</translation>
    </message>
    <message id="1062">
        <source>The list of schedule templates could not be read.</source>
        <translation>La liste des modèles n’a pas pu être lue.</translation>
    </message>
    <message id="1064">
        <source>The schedule data could not be loaded.</source>
        <translation>Les données de la nomenclature n’ont pas pu être chargées.</translation>
    </message>
    <message id="1065">
        <source>The schedule data is empty.</source>
        <translation>Les données de la nomenclature sont vides.</translation>
    </message>
    <message id="1066">
        <source>The schedule data contains no table rows.</source>
        <translation>Les données de la nomenclature ne contiennent aucune ligne de tableau.</translation>
    </message>
    <message id="1067">
        <source>A file with this name already exists in the template folder.</source>
        <extracomment>First of the four lines 1067 to 1070.</extracomment>
        <translation>Un fichier portant ce nom existe déjà dans le dossier des modèles.</translation>
    </message>
    <message id="1068">
        <source>The new template has not been saved.</source>
        <translation>Le nouveau modèle n’a pas été enregistré.</translation>
    </message>
    <message id="1069">
        <source>Existing template files are never overwritten.</source>
        <translation>Les fichiers de modèle existants ne sont jamais remplacés.</translation>
    </message>
    <message id="1070">
        <source>Enter a different name, or choose “Cancel”.</source>
        <translation>Saisissez un autre nom ou choisissez «&#160;Annuler&#160;».</translation>
    </message>
    <message id="1071">
        <source>Export schedule to a workbook</source>
        <extracomment>Title of a save dialog.</extracomment>
        <translation>Exporter la nomenclature vers un classeur</translation>
    </message>
    <message id="3022">
        <source>A data item in the template has no name.</source>
        <translation>Une donnée du modèle n’a pas de nom.</translation>
    </message>
    <message id="3023">
        <source>A group in the template has no name.</source>
        <translation>Un groupe du modèle n’a pas de nom.</translation>
    </message>
    <message id="3024">
        <source>Equipment schedule</source>
        <extracomment>Heading on paper and name of an exported sheet: at most 31 characters.</extracomment>
        <translation>Nomenclature des équipements</translation>
    </message>
    <message id="3038">
        <source>System error</source>
        <extracomment>A blank, the error's code and the system's text follow.</extracomment>
        <translation>Erreur système</translation>
    </message>
    <message id="3039">
        <source>The selection cannot be shown.</source>
        <translation>La sélection ne peut pas être affichée.</translation>
    </message>
    <message id="3040">
        <source>The schedule cannot be shown.</source>
        <translation>La nomenclature ne peut pas être affichée.</translation>
    </message>
    <message id="3042">
        <source>Unsaved changes</source>
        <extracomment>Title of the box that asks whether to save.</extracomment>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message id="3043">
        <source>No tag is selected.</source>
        <extracomment>An empty line and 3044 follow.</extracomment>
        <translation>Aucun repère n’est sélectionné.</translation>
    </message>
    <message id="3044">
        <source>Select at least one tag, then choose “Continue”.</source>
        <translation>Sélectionnez au moins un repère, puis cliquez sur «&#160;Continuer&#160;».</translation>
    </message>
    <message id="3045">
        <source>Swap rows and columns</source>
        <extracomment>Tooltip of the Transpose button.</extracomment>
        <translation>Permuter les lignes et les colonnes</translation>
    </message>
    <message id="3046">
        <source>Save the edited tag data</source>
        <extracomment>Tooltip of the Save button.</extracomment>
        <translation>Enregistrer les données de repères modifiées</translation>
    </message>
    <message id="3047">
        <source>Print the schedule</source>
        <extracomment>Tooltip of the Print button.</extracomment>
        <translation>Imprimer la nomenclature</translation>
    </message>
    <message id="3048">
        <source>Show help</source>
        <extracomment>Tooltip of the Help button.</extracomment>
        <translation>Afficher l’aide</translation>
    </message>
    <message id="3049">
        <source>&amp;Close</source>
        <extracomment>Button below the schedule.</extracomment>
        <translation>&amp;Fermer</translation>
    </message>
    <message id="3050">
        <source>Print the selected tags</source>
        <extracomment>Tooltip of the Print button.</extracomment>
        <translation>Imprimer les repères sélectionnés</translation>
    </message>
    <message id="3053">
        <source>The selection data could not be loaded.</source>
        <translation>Les données de la sélection n’ont pas pu être chargées.</translation>
    </message>
    <message id="3054">
        <source>The schedule could not be loaded.</source>
        <translation>La nomenclature n’a pas pu être chargée.</translation>
    </message>
    <message id="3056">
        <source>The schedule has been exported.</source>
        <extracomment>An empty line and 3057 follow.</extracomment>
        <translation>La nomenclature a été exportée.</translation>
    </message>
    <message id="3057">
        <source>Web page:</source>
        <extracomment>A blank and the file's name follow.</extracomment>
        <translation>Page web&#160;:</translation>
    </message>
    <message id="3058">
        <source>Export as web page</source>
        <extracomment>Title of the boxes that tell how the export ended.</extracomment>
        <translation>Exporter en page web</translation>
    </message>
    <message id="3059">
        <source>The schedule could not be exported.</source>
        <extracomment>An empty line and 3060 follow.</extracomment>
        <translation>La nomenclature n’a pas pu être exportée.</translation>
    </message>
    <message id="3060">
        <source>For details see the log file:</source>
        <extracomment>A blank and the file's name follow.</extracomment>
        <translation>Pour plus de détails, consultez le fichier journal&#160;:</translation>
    </message>
    <message id="3061">
        <source>There is nothing to print, because no tag is selected.</source>
        <extracomment>An empty line and 3062 follow.</extracomment>
        <translation>Il n’y a rien à imprimer, car aucun repère n’est sélectionné.</translation>
    </message>
    <message id="3062">
        <source>Select at least one tag.</source>
        <extracomment>A blank and 3063 follow.</extracomment>
        <translation>Sélectionnez au moins un repère.</translation>
    </message>
    <message id="3063">
        <source>Then print again.</source>
        <translation>Relancez ensuite l’impression.</translation>
    </message>
    <message id="3064">
        <source>Print selected tags</source>
        <extracomment>Title of the box that shows 3061.</extracomment>
        <translation>Imprimer les repères sélectionnés</translation>
    </message>
    <message id="3066">
        <source>This template is the default template of its category.</source>
        <extracomment>Told before 3068 asks.</extracomment>
        <translation>Ce modèle est le modèle par défaut de sa catégorie.</translation>
    </message>
    <message id="3067">
        <source>Delete template</source>
        <extracomment>Title of the boxes that show 3066 and 3068.</extracomment>
        <translation>Supprimer le modèle</translation>
    </message>
    <message id="3068">
        <source>Do you want to delete this template? Its file is deleted as well.</source>
        <extracomment>Answered with Yes or No.</extracomment>
        <translation>Voulez-vous supprimer ce modèle&#160;? Son fichier sera également supprimé.</translation>
    </message>
    <message id="3069">
        <source>Save template as</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Enregistrer le modèle sous</translation>
    </message>
    <message id="3070">
        <source>– data items</source>
        <extracomment>Stands after a group's name and a blank.</extracomment>
        <translation>– données</translation>
    </message>
    <message id="3071">
        <source>There is no current template to save.</source>
        <translation>Aucun modèle à enregistrer n’est sélectionné.</translation>
    </message>
    <message id="3072">
        <source>The template cannot be saved: its name, display name, category or file name is missing.</source>
        <translation>Le modèle ne peut pas être enregistré&#160;: son nom, son nom affiché, sa catégorie ou son nom de fichier manque.</translation>
    </message>
    <message id="3073">
        <source>The template cannot be saved: the template folder is not known.</source>
        <translation>Le modèle ne peut pas être enregistré&#160;: le dossier des modèles est inconnu.</translation>
    </message>
    <message id="3074">
        <source>This template is protected and cannot be replaced. Save it under a different name.</source>
        <translation>Ce modèle est protégé et ne peut pas être remplacé. Enregistrez-le sous un autre nom.</translation>
    </message>
    <message id="3075">
        <source>The template cannot be saved: its content is not well-formed XML.</source>
        <translation>Le modèle ne peut pas être enregistré&#160;: son contenu n’est pas du XML bien formé.</translation>
    </message>
    <message id="3076">
        <source>The existing template file could not be deleted.</source>
        <translation>Le fichier de modèle existant n’a pas pu être supprimé.</translation>
    </message>
    <message id="3077">
        <source>Current template:</source>
        <extracomment>Two blanks and the template's name follow.</extracomment>
        <translation>Modèle actuel&#160;:</translation>
    </message>
</context>
</TS>
