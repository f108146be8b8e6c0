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
    <message>
        <source>Full file name</source>
        <translation>Nom complet du fichier</translation>
    </message>
    <message>
        <source>Choose a category.</source>
        <translation>Choisissez une catégorie.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Saisissez un nom.</translation>
    </message>
    <message>
        <source>A name cannot be one or two dots alone.</source>
        <translation>Un nom ne peut se réduire à un ou deux points.</translation>
    </message>
    <message>
        <source>A name cannot contain a slash or a backslash.</source>
        <translation>Un nom ne peut contenir ni / ni \.</translation>
    </message>
    <message>
        <source>The name contains a character that no file name can have.</source>
        <translation>Le nom contient un caractère interdit dans un nom de fichier.</translation>
    </message>
    <message>
        <source>The name is too long for a file.</source>
        <translation>Le nom est trop long pour un fichier.</translation>
    </message>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 existe déjà.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>User-Defined Data Item:</source>
        <translation>Élément de données personnalisé&#160;:</translation>
    </message>
    <message>
        <source>Display Name:</source>
        <translation>Nom affiché&#160;:</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>(*) Indicates user-defined data item</source>
        <translation>(*) Élément de données personnalisé</translation>
    </message>
    <message>
        <source>The file of this template could only be read in part. Saving it drops what could not be read. Save?</source>
        <translation>Le fichier de ce modèle n’a pu être lu qu’en partie. L’enregistrer supprime ce qui n’a pas pu être lu. Enregistrer ?</translation>
    </message>
    <message>
        <source>The file of this template was changed after it had been read. Saving it drops that change. Save?</source>
        <translation>Le fichier de ce modèle a été modifié après avoir été lu. L’enregistrer supprime cette modification. Enregistrer ?</translation>
    </message>
    <message>
        <source>A file in the template folder cannot have this name.</source>
        <translation>Un fichier du dossier des modèles ne peut pas porter ce nom.</translation>
    </message>
    <message>
        <source>There is a template of this name already, in a file of another name.</source>
        <translation>Il existe déjà un modèle de ce nom, dans un fichier d’un autre nom.</translation>
    </message>
    <message>
        <source>A text of the template has a character that cannot be saved.</source>
        <translation>Un texte du modèle contient un caractère qui ne peut pas être enregistré.</translation>
    </message>
</context>
</TS>
