<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
    <context>
        <name>UnsavedValues</name>
        <message>
            <source>%1 has edits that are not saved.</source>
            <translation>%1 : des modifications ne sont pas enregistrées.</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::CategoryDock</name>
        <message>
            <source>Equipment</source>
            <translation>Équipements</translation>
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
            <translation>Valeurs modifiées par d’autres</translation>
        </message>
        <message>
            <source>These values were changed since they were shown. Everything else has been saved. Cancel leaves yours unsaved in the schedule.</source>
            <translation>Ces valeurs ont été modifiées depuis leur affichage. Tout le reste est enregistré. Annuler laisse les vôtres non enregistrées dans la nomenclature.</translation>
        </message>
        <message>
            <source>All theirs</source>
            <translation>Toutes les leurs</translation>
        </message>
        <message>
            <source>All mine</source>
            <translation>Toutes les miennes</translation>
        </message>
        <message>
            <source>Tag</source>
            <translation>Repère</translation>
        </message>
        <message>
            <source>Data item</source>
            <translation>Donnée</translation>
        </message>
        <message>
            <source>Theirs</source>
            <translation>La leur</translation>
        </message>
        <message>
            <source>Mine</source>
            <translation>La mienne</translation>
        </message>
        <message>
            <source>Keep</source>
            <translation>Conserver</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::HelpWindow</name>
        <message>
            <source>Equipment Schedules Help</source>
            <translation>Aide des nomenclatures</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::MainWindow</name>
        <message>
            <source>1 tag was picked</source>
            <translation>1 repère a été choisi</translation>
        </message>
        <message>
            <source>%1 tags were picked</source>
            <translation>%1 repères ont été choisis</translation>
        </message>
        <message>
            <source>%1 to be printed</source>
            <translation>%1, pour impression</translation>
        </message>
        <message>
            <source>Equipment Schedules</source>
            <translation>Nomenclatures d’équipements</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Fichier</translation>
        </message>
        <message>
            <source>&amp;Open...</source>
            <translation>&amp;Ouvrir…</translation>
        </message>
        <message>
            <source>&amp;Reload</source>
            <translation>&amp;Recharger</translation>
        </message>
        <message>
            <source>&amp;Quit</source>
            <translation>&amp;Quitter</translation>
        </message>
        <message>
            <source>&amp;View</source>
            <translation>&amp;Affichage</translation>
        </message>
        <message>
            <source>&amp;Schedule</source>
            <translation>&amp;Nomenclature</translation>
        </message>
        <message>
            <source>Se&amp;lector</source>
            <translation>Sé&amp;lecteur</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>&amp;Aide</translation>
        </message>
        <message>
            <source>&amp;About</source>
            <translation>À &amp;propos</translation>
        </message>
        <message>
            <source>%1 - Equipment Schedules</source>
            <translation>%1 - Nomenclatures d’équipements</translation>
        </message>
        <message>
            <source>Saved 1 changed cell to %1</source>
            <translation>1 cellule modifiée enregistrée dans %1</translation>
        </message>
        <message>
            <source>Saved %1 changed cells to %2</source>
            <translation>%1 cellules modifiées enregistrées dans %2</translation>
        </message>
        <message>
            <source>Open a schedule</source>
            <translation>Ouvrir une nomenclature</translation>
        </message>
        <message>
            <source>Schedule tables (*.xml);;All files (*)</source>
            <translation>Nomenclatures (*.xml);;Tous les fichiers (*)</translation>
        </message>
        <message>
            <source>About Equipment Schedules</source>
            <translation>À propos des nomenclatures d’équipements</translation>
        </message>
        <message>
            <source>&lt;h3&gt;Equipment Schedules %1&lt;/h3&gt;&lt;p&gt;The reference host of the schedule component: it shows a table of equipment and lists what the component and its host say to each other.&lt;/p&gt;</source>
            <translation>&lt;h3&gt;Nomenclatures d’équipements %1&lt;/h3&gt;&lt;p&gt;Le programme de référence du composant : il affiche un tableau d’équipements et liste ce que le composant et son hôte se disent.&lt;/p&gt;</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::MessageBar</name>
        <message>
            <source>Close</source>
            <translation>Fermer</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::MessageDock</name>
        <message>
            <source>Messages</source>
            <translation>Messages</translation>
        </message>
        <message>
            <source>All messages</source>
            <translation>Tous les messages</translation>
        </message>
        <message>
            <source>Requests</source>
            <translation>Requêtes</translation>
        </message>
        <message>
            <source>Events</source>
            <translation>Événements</translation>
        </message>
        <message>
            <source>Errors</source>
            <translation>Erreurs</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::MessageModel</name>
        <message>
            <source>Request</source>
            <translation>Requête</translation>
        </message>
        <message>
            <source>Event</source>
            <translation>Événement</translation>
        </message>
        <message>
            <source>(not a message)</source>
            <translation>(pas un message)</translation>
        </message>
        <message>
            <source>failed: %1</source>
            <translation>échec : %1</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Heure</translation>
        </message>
        <message>
            <source>From and to</source>
            <translation>De et à</translation>
        </message>
        <message>
            <source>Kind</source>
            <translation>Genre</translation>
        </message>
        <message>
            <source>Message</source>
            <translation>Message</translation>
        </message>
        <message>
            <source>Parameters</source>
            <translation>Paramètres</translation>
        </message>
        <message>
            <source>Reply</source>
            <translation>Réponse</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::OptionsWindow</name>
        <message>
            <source>The schedule uses %1</source>
            <translation>La nomenclature utilise %1</translation>
        </message>
        <message>
            <source>Took %1 from the list of templates</source>
            <translation>%1 retiré de la liste des modèles</translation>
        </message>
        <message>
            <source>Saved the list of templates</source>
            <translation>Liste des modèles enregistrée</translation>
        </message>
        <message>
            <source>Schedule templates – %1</source>
            <translation>Modèles de nomenclatures – %1</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Fichier</translation>
        </message>
        <message>
            <source>&amp;Quit</source>
            <translation>&amp;Quitter</translation>
        </message>
        <message>
            <source>&amp;View</source>
            <translation>&amp;Affichage</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectAnswers</name>
        <message numerus="yes">
            <source>%n value(s) changed by someone else were not saved.</source>
            <translation>
                <numerusform>%n valeur modifiée par d’autres n’a pas été enregistrée.</numerusform>
                <numerusform>%n valeurs modifiées par d’autres n’ont pas été enregistrées.</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectDialogs</name>
        <message>
            <source>%1
Password:</source>
            <translation>%1
Mot de passe :</translation>
        </message>
        <message>
            <source>Projects (*%1);;All files (*)</source>
            <translation>Projets (*%1);;Tous les fichiers (*)</translation>
        </message>
        <message>
            <source>New project</source>
            <translation>Nouveau projet</translation>
        </message>
        <message>
            <source>Open a project</source>
            <translation>Ouvrir un projet</translation>
        </message>
        <message>
            <source>Open from a server</source>
            <translation>Ouvrir depuis un serveur</translation>
        </message>
        <message>
            <source>Address of the project:</source>
            <translation>Adresse du projet :</translation>
        </message>
        <message>
            <source>Import a table</source>
            <translation>Importer un tableau</translation>
        </message>
        <message>
            <source>Tables (*.csv *.txt);;All files (*)</source>
            <translation>Tableaux (*.csv *.txt);;Tous les fichiers (*)</translation>
        </message>
        <message>
            <source>About Equipment Schedules</source>
            <translation>À propos des nomenclatures d’équipements</translation>
        </message>
        <message>
            <source>&lt;h3&gt;Equipment Schedules %1&lt;/h3&gt;&lt;p&gt;The reference host of the schedule component: it shows the equipment of a project, and lists what the component and its host say to each other.&lt;/p&gt;</source>
            <translation>&lt;h3&gt;Nomenclatures d’équipements %1&lt;/h3&gt;&lt;p&gt;Le programme de référence du composant : il affiche les équipements d’un projet et liste ce que le composant et son hôte se disent.&lt;/p&gt;</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectMenus</name>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Fichier</translation>
        </message>
        <message>
            <source>&amp;New Project...</source>
            <translation>&amp;Nouveau projet…</translation>
        </message>
        <message>
            <source>&amp;Open Project...</source>
            <translation>&amp;Ouvrir un projet…</translation>
        </message>
        <message>
            <source>Open from &amp;Server...</source>
            <translation>Ouvrir depuis un &amp;serveur…</translation>
        </message>
        <message>
            <source>&amp;Recent Projects</source>
            <translation>Projets &amp;récents</translation>
        </message>
        <message>
            <source>&amp;Import Table...</source>
            <translation>&amp;Importer un tableau…</translation>
        </message>
        <message>
            <source>Re&amp;fresh</source>
            <translation>Ac&amp;tualiser</translation>
        </message>
        <message>
            <source>&amp;Quit</source>
            <translation>&amp;Quitter</translation>
        </message>
        <message>
            <source>&amp;View</source>
            <translation>&amp;Affichage</translation>
        </message>
        <message>
            <source>&amp;Language</source>
            <translation>&amp;Langue</translation>
        </message>
        <message>
            <source>&amp;Colours</source>
            <translation>&amp;Couleurs</translation>
        </message>
        <message>
            <source>Desktop</source>
            <translation>Bureau</translation>
        </message>
        <message>
            <source>Light</source>
            <translation>Clair</translation>
        </message>
        <message>
            <source>Dark</source>
            <translation>Sombre</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>&amp;Aide</translation>
        </message>
        <message>
            <source>&amp;Contents</source>
            <translation>&amp;Sommaire</translation>
        </message>
        <message>
            <source>&amp;About</source>
            <translation>À &amp;propos</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectViews</name>
        <message>
            <source>The schedule</source>
            <translation>La nomenclature</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N°</translation>
        </message>
        <message>
            <source>Tag</source>
            <translation>Repère</translation>
        </message>
        <message>
            <source>Select</source>
            <translation>Choix</translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectWindow</name>
        <message>
            <source>Templates that are in no list were found: %1</source>
            <translation>Des modèles absents de toute liste ont été trouvés : %1</translation>
        </message>
        <message>
            <source>Add them</source>
            <translation>Les ajouter</translation>
        </message>
        <message>
            <source>Template</source>
            <translation>Modèle</translation>
        </message>
        <message>
            <source>Equipment Schedules</source>
            <translation>Nomenclatures d’équipements</translation>
        </message>
        <message>
            <source>%1 - Equipment Schedules</source>
            <translation>%1 - Nomenclatures d’équipements</translation>
        </message>
        <message>
            <source>This project has no categories yet. Import a table of them.</source>
            <translation>Ce projet n’a pas encore de catégories. Importez-en un tableau.</translation>
        </message>
        <message>
            <source>Choose a category at the left.</source>
            <translation>Choisissez une catégorie à gauche.</translation>
        </message>
        <message>
            <source>Imported %1 tags and %2 values</source>
            <translation>%1 repères et %2 valeurs importés</translation>
        </message>
        <message>
            <source>The schedule shows the former template until its values are saved or discarded.</source>
            <translation>La nomenclature montre l’ancien modèle tant que ses valeurs ne sont ni enregistrées ni abandonnées.</translation>
        </message>
        <message numerus="yes">
            <source>%n value(s) saved</source>
            <translation>
                <numerusform>%n valeur enregistrée</numerusform>
                <numerusform>%n valeurs enregistrées</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n value(s) were changed by someone else and are shown now.</source>
            <translation>
                <numerusform>%n valeur a été modifiée par d’autres et est affichée à présent.</numerusform>
                <numerusform>%n valeurs ont été modifiées par d’autres et sont affichées à présent.</numerusform>
            </translation>
        </message>
        <message>
            <source>Someone else has changed this template as well. Theirs is kept as %1.</source>
            <translation>Quelqu’un d’autre a aussi modifié ce modèle. Sa version est conservée sous %1.</translation>
        </message>
    </context>
</TS>
