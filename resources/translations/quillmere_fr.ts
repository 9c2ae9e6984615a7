<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>BRAboutViewController</name>
    <message>
        <source>Contact Support</source>
        <translation>Contacter le support</translation>
    </message>
    <message>
        <source>Terms of Use</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>More Apps from Brackenhale</source>
        <translation>Autres applications de Brackenhale</translation>
    </message>
    <message>
        <source>Quillmere icon</source>
        <translation>Icône de Quillmere</translation>
    </message>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Version %1 (%2)</translation>
    </message>
</context>
<context>
    <name>BRAboutWindowController</name>
    <message>
        <source>About Quillmere</source>
        <translation>À propos de Quillmere</translation>
    </message>
</context>
<context>
    <name>BRAddTextViewController</name>
    <message>
        <source>Add Text</source>
        <translation>Ajouter du texte</translation>
    </message>
    <message>
        <source>Where the text goes</source>
        <translation>Où placer le texte</translation>
    </message>
</context>
<context>
    <name>BRChangeFileNameViewController</name>
    <message>
        <source>Enter New Name</source>
        <translation>Saisir le nouveau nom</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Numéro de départ</translation>
    </message>
    <message>
        <source>Where the number goes</source>
        <translation>Où placer le numéro</translation>
    </message>
    <message>
        <source>starting at</source>
        <translation>à partir de</translation>
    </message>
</context>
<context>
    <name>BRDragAndDropImageView</name>
    <message>
        <source>Drop files here</source>
        <translation>Déposez les fichiers ici</translation>
    </message>
</context>
<context>
    <name>BRDragAndDropView</name>
    <message>
        <source>Drop files and folders here to rename them</source>
        <translation>Déposez ici les fichiers et dossiers à renommer</translation>
    </message>
    <message>
        <source>You see every new name before anything on disk changes.</source>
        <translation>Vous voyez chaque nouveau nom avant que quoi que ce soit ne change sur le disque.</translation>
    </message>
    <message>
        <source>Choose Files…</source>
        <translation>Choisir des fichiers…</translation>
    </message>
    <message>
        <source>Choose files to rename</source>
        <translation>Choisir les fichiers à renommer</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
</context>
<context>
    <name>BRDuplicateCancelViewController</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Scan progress</source>
        <translation>Progression de l’analyse</translation>
    </message>
    <message numerus="yes">
        <source>%1 item scanned</source>
        <translation>
            <numerusform>%1 élément analysé</numerusform>
            <numerusform>%1 éléments analysés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items scanned</source>
        <translation>
            <numerusform>%1 élément analysé</numerusform>
            <numerusform>%1 éléments analysés</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 copies checked</source>
        <translation>%1 copies sur %2 vérifiées</translation>
    </message>
</context>
<context>
    <name>BRDuplicateFilePreviewTableViewCell</name>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Vérification…</translation>
    </message>
    <message>
        <source>Same file as %1.</source>
        <translation>Même fichier que %1.</translation>
    </message>
</context>
<context>
    <name>BRDuplicateFilePreviewViewController</name>
    <message>
        <source>this group</source>
        <translation>ce groupe</translation>
    </message>
    <message>
        <source>Modified:%1</source>
        <translation>Modifié&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not Available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source>Copy %1: %2</source>
        <translation>Copie %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>BRDuplicateFilesViewController</name>
    <message>
        <source>Duplicate files</source>
        <translation>Fichiers en double</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <translation>Récupérable</translation>
    </message>
    <message>
        <source>Scanned folder</source>
        <translation>Dossier analysé</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Rechercher par nom</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>each group listed</source>
        <translation>chaque groupe affiché</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Duplicate files scan complete.</source>
        <translation>Recherche de fichiers en double terminée.</translation>
    </message>
    <message>
        <source>Stop duplicate files scan?</source>
        <translation>Arrêter la recherche de fichiers en double&#xa0;?</translation>
    </message>
    <message>
        <source>Duplicate files scan is in progress. Are you sure you want to stop the scan?</source>
        <translation>Une recherche de fichiers en double est en cours. Voulez-vous vraiment l’arrêter&#xa0;?</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Start a new scan?</source>
        <translation>Lancer une nouvelle recherche&#xa0;?</translation>
    </message>
    <message>
        <source>The current list of the duplicate search results will be lost. Are you sure you want to start a new scan?</source>
        <translation>La liste actuelle des doublons trouvés sera perdue. Voulez-vous vraiment lancer une nouvelle recherche&#xa0;?</translation>
    </message>
    <message>
        <source>New scan</source>
        <translation>Nouvelle recherche</translation>
    </message>
    <message>
        <source>Could not remove some files</source>
        <translation>Impossible de supprimer certains fichiers</translation>
    </message>
    <message>
        <source>Choose the folder whose copies to keep</source>
        <translation>Choisir le dossier dont garder les copies</translation>
    </message>
    <message>
        <source>No files to move to the Trash</source>
        <translation>Aucun fichier à mettre à la corbeille</translation>
    </message>
    <message>
        <source>No group listed has a copy in “%1”.</source>
        <translation>Aucun groupe affiché n’a de copie dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Every group listed has one copy only.</source>
        <translation>Chaque groupe affiché n’a qu’une seule copie.</translation>
    </message>
    <message numerus="yes">
        <source>One copy of each of %n group stays: %1.</source>
        <translation>
            <numerusform>Dans %n groupe, une copie reste&#xa0;: %1.</numerusform>
            <numerusform>Dans chacun des %n groupes, une copie reste&#xa0;: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>One copy of each of %n groups stays: %1.</source>
        <translation>
            <numerusform>Dans %n groupe, une copie reste&#xa0;: %1.</numerusform>
            <numerusform>Dans chacun des %n groupes, une copie reste&#xa0;: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file goes to the Trash and frees %1.</source>
        <translation>
            <numerusform>%n fichier va à la corbeille et libère %1.</numerusform>
            <numerusform>%n fichiers vont à la corbeille et libèrent %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files go to the Trash and free %1.</source>
        <translation>
            <numerusform>%n fichier va à la corbeille et libère %1.</numerusform>
            <numerusform>%n fichiers vont à la corbeille et libèrent %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Each is compared with the copy that stays before it goes.</source>
        <translation>Chacun est comparé à la copie conservée avant d’être déplacé.</translation>
    </message>
    <message numerus="yes">
        <source>Move %n file to the Trash?</source>
        <translation>
            <numerusform>Mettre %n fichier à la corbeille&#xa0;?</numerusform>
            <numerusform>Mettre %n fichiers à la corbeille&#xa0;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n files to the Trash?</source>
        <translation>
            <numerusform>Mettre %n fichier à la corbeille&#xa0;?</numerusform>
            <numerusform>Mettre %n fichiers à la corbeille&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>It frees %1.</source>
        <translation>Cela libère %1.</translation>
    </message>
    <message>
        <source>They free %1.</source>
        <translation>Cela libère %1.</translation>
    </message>
    <message>
        <source>1 file was kept: it had changed since the scan.</source>
        <translation>1 fichier a été conservé&#xa0;: il a changé depuis la recherche.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: they had changed since the scan.</source>
        <translation>
            <numerusform>%n fichier a été conservé&#xa0;: il a changé depuis la recherche.</numerusform>
            <numerusform>%n fichiers ont été conservés&#xa0;: ils ont changé depuis la recherche.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file was kept: it is not an exact copy of the one that stays.</source>
        <translation>1 fichier a été conservé&#xa0;: ce n’est pas une copie exacte de celui qui reste.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: they are not exact copies of the ones that stay.</source>
        <translation>
            <numerusform>%n fichier a été conservé&#xa0;: ce n’est pas une copie exacte de celui qui reste.</numerusform>
            <numerusform>%n fichiers ont été conservés&#xa0;: ce ne sont pas des copies exactes de ceux qui restent.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file was kept: the copy meant to stay is gone.</source>
        <translation>1 fichier a été conservé&#xa0;: la copie censée rester a disparu.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: the copies meant to stay are gone.</source>
        <translation>
            <numerusform>%n fichier a été conservé&#xa0;: la copie censée rester a disparu.</numerusform>
            <numerusform>%n fichiers ont été conservés&#xa0;: les copies censées rester ont disparu.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file was kept: it could not be compared.</source>
        <translation>1 fichier a été conservé&#xa0;: il n’a pas pu être comparé.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: they could not be compared.</source>
        <translation>
            <numerusform>%n fichier a été conservé&#xa0;: il n’a pas pu être comparé.</numerusform>
            <numerusform>%n fichiers ont été conservés&#xa0;: ils n’ont pas pu être comparés.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file was kept: %1</source>
        <translation>1 fichier a été conservé&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept. The first: </source>
        <translation>
            <numerusform>%n fichier a été conservé. Le premier&#xa0;: </numerusform>
            <numerusform>%n fichiers ont été conservés. Le premier&#xa0;: </numerusform>
        </translation>
    </message>
    <message>
        <source>1 file was gone already.</source>
        <translation>1 fichier avait déjà disparu.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were gone already.</source>
        <translation>
            <numerusform>%n fichier avait déjà disparu.</numerusform>
            <numerusform>%n fichiers avaient déjà disparu.</numerusform>
        </translation>
    </message>
    <message>
        <source>No files were moved to the Trash</source>
        <translation>Aucun fichier n’a été mis à la corbeille</translation>
    </message>
    <message>
        <source>1 file was moved to the Trash</source>
        <translation>1 fichier a été mis à la corbeille</translation>
    </message>
    <message>
        <source>File does not exist</source>
        <translation>Le fichier n’existe pas</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 n’existe pas</translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate files found.</source>
        <translation>
            <numerusform>%n fichier en double trouvé.</numerusform>
            <numerusform>%n fichiers en double trouvés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group has no copy in “%1” and is left whole.</source>
        <translation>
            <numerusform>%n groupe n’a pas de copie dans «&#xa0;%1&#xa0;» et reste entier.</numerusform>
            <numerusform>%n groupes n’ont pas de copie dans «&#xa0;%1&#xa0;» et restent entiers.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n groups have no copy in “%1” and are left whole.</source>
        <translation>
            <numerusform>%n groupe n’a pas de copie dans «&#xa0;%1&#xa0;» et reste entier.</numerusform>
            <numerusform>%n groupes n’ont pas de copie dans «&#xa0;%1&#xa0;» et restent entiers.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group had no copy in “%1” and was left whole.</source>
        <translation>
            <numerusform>%n groupe n’avait pas de copie dans «&#xa0;%1&#xa0;» et est resté entier.</numerusform>
            <numerusform>%n groupes n’avaient pas de copie dans «&#xa0;%1&#xa0;» et sont restés entiers.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n groups had no copy in “%1” and were left whole.</source>
        <translation>
            <numerusform>%n groupe n’avait pas de copie dans «&#xa0;%1&#xa0;» et est resté entier.</numerusform>
            <numerusform>%n groupes n’avaient pas de copie dans «&#xa0;%1&#xa0;» et sont restés entiers.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped: %n file was not checked and stayed.</source>
        <translation>
            <numerusform>Arrêté&#xa0;: %n fichier n’a pas été vérifié et est resté.</numerusform>
            <numerusform>Arrêté&#xa0;: %n fichiers n’ont pas été vérifiés et sont restés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped: %n files were not checked and stayed.</source>
        <translation>
            <numerusform>Arrêté&#xa0;: %n fichier n’a pas été vérifié et est resté.</numerusform>
            <numerusform>Arrêté&#xa0;: %n fichiers n’ont pas été vérifiés et sont restés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files were moved to the Trash</source>
        <translation>
            <numerusform>%n fichier a été mis à la corbeille</numerusform>
            <numerusform>%n fichiers ont été mis à la corbeille</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep Copies Here</source>
        <translation>Garder les copies ici</translation>
    </message>
</context>
<context>
    <name>BRDuplicatePopOverTableView</name>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
</context>
<context>
    <name>BRDuplicateScanStartViewController</name>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Chosen folder</source>
        <translation>Dossier choisi</translation>
    </message>
    <message>
        <source>Start Scan</source>
        <translation>Lancer la recherche</translation>
    </message>
    <message>
        <source>Choose a folder to scan</source>
        <comment>Open panel title to select folder to scan duplicate files</comment>
        <translation>Choisir le dossier à analyser</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
</context>
<context>
    <name>BRDuplicateScanStatusViewController</name>
    <message>
        <source>No duplicate files found</source>
        <translation>Aucun fichier en double trouvé</translation>
    </message>
    <message>
        <source>New Scan</source>
        <translation>Nouvelle recherche</translation>
    </message>
    <message>
        <source>in &quot;%1&quot;</source>
        <translation>dans «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>BRDuplicateSortViewController</name>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Music &amp; Videos</source>
        <translation>Musique et vidéos</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouvelle</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
</context>
<context>
    <name>BRDuplicateTableViewCell</name>
    <message>
        <source>Each copy</source>
        <translation>Chaque copie</translation>
    </message>
    <message>
        <source>All copies</source>
        <translation>Toutes les copies</translation>
    </message>
</context>
<context>
    <name>BRFilePreviewPopoverViewController</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>Nouveau nom</translation>
    </message>
    <message>
        <source>Current name</source>
        <translation>Nom actuel</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nouveau nom</translation>
    </message>
</context>
<context>
    <name>BRIntroViewController</name>
    <message>
        <source>Got it!</source>
        <translation>Compris&#xa0;!</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Bienvenue dans Quillmere</translation>
    </message>
    <message>
        <source>Duplicates finds equal files and folders in one pass and moves the copies you choose to the Trash.
Rename renames many files at once, and never overwrites a file.</source>
        <translation>Doublons trouve en une passe les fichiers et dossiers identiques et met à la corbeille les copies choisies.
Renommer renomme de nombreux fichiers à la fois, sans jamais écraser un fichier.</translation>
    </message>
</context>
<context>
    <name>BRMainViewController</name>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Stop duplicate files scan &amp; switch to rename?</source>
        <translation>Arrêter la recherche de doublons et passer au renommage&#xa0;?</translation>
    </message>
    <message>
        <source>Duplicate files scanning is in progress. Do you want to stop the scan and switch to renaming files?</source>
        <translation>Une recherche de fichiers en double est en cours. Voulez-vous l’arrêter et passer au renommage de fichiers&#xa0;?</translation>
    </message>
    <message>
        <source>Stop scan</source>
        <translation>Arrêter la recherche</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>BRNoSearchResultCell</name>
    <message>
        <source>No duplicate files match your search</source>
        <translation>Aucun fichier en double ne correspond à votre recherche</translation>
    </message>
</context>
<context>
    <name>BRNoSubTypeFoundCell</name>
    <message>
        <source>Music &amp; Videos</source>
        <translation>Musique et vidéos</translation>
    </message>
    <message>
        <source>No duplicate %1</source>
        <translation>Aucun doublon&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>BRRenameCompleteView</name>
    <message>
        <source>Renaming done</source>
        <translation>Renommage terminé</translation>
    </message>
    <message>
        <source>Show failed files</source>
        <translation>Voir les échecs</translation>
    </message>
    <message>
        <source>Undo Rename</source>
        <translation>Annuler le renommage</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Give every renamed file its old name again</source>
        <translation>Rendre à chaque fichier renommé son ancien nom</translation>
    </message>
    <message>
        <source>Rename undone</source>
        <translation>Renommage annulé</translation>
    </message>
    <message numerus="yes">
        <source>%n files renamed</source>
        <translation>
            <numerusform>%n fichier renommé</numerusform>
            <numerusform>%n fichiers renommés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n failed</source>
        <translation>
            <numerusform>, %n échec</numerusform>
            <numerusform>, %n échecs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files have their old names again</source>
        <translation>
            <numerusform>%n fichier a retrouvé son ancien nom</numerusform>
            <numerusform>%n fichiers ont retrouvé leur ancien nom</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n could not go back</source>
        <translation>
            <numerusform>, %n n’a pas pu revenir</numerusform>
            <numerusform>, %n n’ont pas pu revenir</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BRRenameTableView</name>
    <message>
        <source>Files to rename</source>
        <translation>Fichiers à renommer</translation>
    </message>
</context>
<context>
    <name>BRRenameTableViewCell</name>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>Nouveau nom</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Will not be renamed</source>
        <translation>Ne sera pas renommé</translation>
    </message>
</context>
<context>
    <name>BRRenameViewController</name>
    <message>
        <source>File does not exist</source>
        <translation>Le fichier n’existe pas</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 n’existe pas</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Some files already exist</source>
        <translation>Certains fichiers sont déjà présents</translation>
    </message>
    <message>
        <source>Some of the files you were adding for rename are already in the list. So they are not added again</source>
        <translation>Certains des fichiers que vous ajoutiez pour les renommer sont déjà dans la liste. Ils ne sont donc pas ajoutés une seconde fois</translation>
    </message>
    <message>
        <source>Missing files</source>
        <translation>Fichiers manquants</translation>
    </message>
    <message>
        <source>Some files are missing and could not be found.</source>
        <translation>Certains fichiers manquent et sont introuvables.</translation>
    </message>
    <message>
        <source>Could not rename some files</source>
        <translation>Impossible de renommer certains fichiers</translation>
    </message>
    <message>
        <source>Some files could not be renamed since they are locked or you don&apos;t have permission to modify them.</source>
        <translation>Certains fichiers n’ont pas pu être renommés, car ils sont verrouillés ou vous n’avez pas le droit de les modifier.</translation>
    </message>
    <message>
        <source>Some files keep their new names</source>
        <translation>Certains fichiers gardent leur nouveau nom</translation>
    </message>
    <message>
        <source>Add files to rename</source>
        <translation>Ajouter des fichiers à renommer</translation>
    </message>
    <message numerus="yes">
        <source>Rename %n files</source>
        <translation>
            <numerusform>Renommer %n fichier</numerusform>
            <numerusform>Renommer %n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more files could not go back either.</source>
        <translation>
            <numerusform>%n autre fichier n’a pas pu revenir non plus.</numerusform>
            <numerusform>%n autres fichiers n’ont pas pu revenir non plus.</numerusform>
        </translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
</context>
<context>
    <name>BRSelectHomeFolderViewController</name>
    <message>
        <source>Select Home Folder</source>
        <translation>Choisir le dossier personnel</translation>
    </message>
    <message>
        <source>Choose a Home Folder</source>
        <translation>Choisissez un dossier personnel</translation>
    </message>
    <message>
        <source>Quillmere works inside the folder you choose here. You are asked once.</source>
        <translation>Quillmere travaille dans le dossier que vous choisissez ici. La question n’est posée qu’une fois.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>“%1” is not inside your home folder, %2. Choose your home folder or a folder inside it.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas dans votre dossier personnel, %2. Choisissez votre dossier personnel ou un dossier qu’il contient.</translation>
    </message>
</context>
<context>
    <name>ByteCountFormatter</name>
    <message>
        <source>%1 byte</source>
        <translation>%1 octet</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
</context>
<context>
    <name>CopyRemoval</name>
    <message>
        <source>“%1” has changed since the scan, so it was kept.</source>
        <translation>« %1 » a changé depuis la recherche et a donc été conservé.</translation>
    </message>
    <message>
        <source>“%1” is the last copy left in this group, so it was kept.</source>
        <translation>« %1 » est la dernière copie de ce groupe et a donc été conservé.</translation>
    </message>
    <message>
        <source>“%1” is not an exact copy of the other files in this group, so it was kept.</source>
        <translation>« %1 » n’est pas une copie exacte des autres fichiers de ce groupe et a donc été conservé.</translation>
    </message>
    <message>
        <source>“%1” could not be compared with the other files in this group, so it was kept.</source>
        <translation>« %1 » n’a pas pu être comparé aux autres fichiers de ce groupe et a donc été conservé.</translation>
    </message>
</context>
<context>
    <name>DuplicateTableModel</name>
    <message>
        <source>1 copy</source>
        <translation>1 copie</translation>
    </message>
    <message>
        <source>%1 each</source>
        <translation>%1 chacune</translation>
    </message>
    <message>
        <source>%1 in all</source>
        <translation>%1 au total</translation>
    </message>
    <message>
        <source>%1 reclaimable</source>
        <translation>%1 récupérables</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies</source>
        <translation>
            <numerusform>%1 copie</numerusform>
            <numerusform>%1 copies</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileTypeDatabase</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>FreedesktopTrash</name>
    <message>
        <source>“%1” does not exist.</source>
        <translation>«&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>“%1” is the top folder of a drive and cannot be moved to the Trash.</source>
        <translation>«&#xa0;%1&#xa0;» est le dossier racine d’un lecteur et ne peut pas être mis à la corbeille.</translation>
    </message>
    <message>
        <source>“%1” is already in the Trash.</source>
        <translation>«&#xa0;%1&#xa0;» est déjà dans la corbeille.</translation>
    </message>
    <message>
        <source>“%1” holds the Trash, which cannot be moved into itself.</source>
        <translation>«&#xa0;%1&#xa0;» contient la corbeille, qui ne peut pas être déplacée dans elle-même.</translation>
    </message>
    <message>
        <source>There is no Trash on the drive that holds “%1”.</source>
        <translation>Il n’y a pas de corbeille sur le lecteur qui contient «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The Trash cannot take “%1”: “%2” is not a folder.</source>
        <translation>La corbeille ne peut pas recevoir «&#xa0;%1&#xa0;»&#xa0;: «&#xa0;%2&#xa0;» n’est pas un dossier.</translation>
    </message>
    <message>
        <source>The Trash cannot take “%1”: its folder “%2” cannot be written to.</source>
        <translation>La corbeille ne peut pas recevoir «&#xa0;%1&#xa0;»&#xa0;: son dossier «&#xa0;%2&#xa0;» n’est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>There is no room in the Trash for “%1”: the disk is full.</source>
        <translation>Il n’y a pas de place dans la corbeille pour «&#xa0;%1&#xa0;»&#xa0;: le disque est plein.</translation>
    </message>
    <message>
        <source>“%1” is on a drive that is read-only.</source>
        <translation>«&#xa0;%1&#xa0;» se trouve sur un lecteur en lecture seule.</translation>
    </message>
    <message>
        <source>You do not have permission to move “%1” to the Trash.</source>
        <translation>Vous n’avez pas le droit de mettre «&#xa0;%1&#xa0;» à la corbeille.</translation>
    </message>
    <message>
        <source>The Trash already holds too many items named “%1”.</source>
        <translation>La corbeille contient déjà trop d’éléments nommés «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” could not be moved to the Trash because of an unexpected error.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être mis à la corbeille à cause d’une erreur inattendue.</translation>
    </message>
</context>
<context>
    <name>KeepOneMenu</name>
    <message>
        <source>Keep the Oldest Copy</source>
        <translation>Garder la copie la plus ancienne</translation>
    </message>
    <message>
        <source>Keep the Newest Copy</source>
        <translation>Garder la copie la plus récente</translation>
    </message>
    <message>
        <source>Keep the Copy with the Shortest Path</source>
        <translation>Garder la copie au chemin le plus court</translation>
    </message>
    <message>
        <source>Keep the Copy in a Folder…</source>
        <translation>Garder la copie d’un dossier…</translation>
    </message>
    <message>
        <source>Keep One</source>
        <translation>En garder une</translation>
    </message>
    <message>
        <source>Keep one copy of %1</source>
        <translation>Garder une copie de %1</translation>
    </message>
    <message>
        <source>Keep one copy of %1 and move the others to the Trash</source>
        <translation>Garder une copie de %1 et mettre les autres à la corbeille</translation>
    </message>
    <message>
        <source>the oldest</source>
        <translation>la plus ancienne</translation>
    </message>
    <message>
        <source>the newest</source>
        <translation>la plus récente</translation>
    </message>
    <message>
        <source>the one with the shortest path</source>
        <translation>celle au chemin le plus court</translation>
    </message>
    <message>
        <source>the one in “%1”</source>
        <translation>celle de «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>MenuActionsClass</name>
    <message>
        <source>&amp;About Quillmere</source>
        <translation>&amp;À propos de Quillmere</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>&amp;Contacter le support</translation>
    </message>
    <message>
        <source>&amp;More Apps from Brackenhale</source>
        <translation>A&amp;utres applications de Brackenhale</translation>
    </message>
    <message>
        <source>&amp;Terms of Use</source>
        <translation>&amp;Conditions d’utilisation</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>Envoyer un &amp;avis…</translation>
    </message>
    <message>
        <source>&amp;Quit Quillmere</source>
        <translation>&amp;Quitter Quillmere</translation>
    </message>
</context>
<context>
    <name>QtAlertPresenter</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QuitPolicy</name>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Quit Quillmere?</source>
        <translation>Quitter Quillmere&#xa0;?</translation>
    </message>
    <message>
        <source>Duplicate files scan is in progress. Are you sure you want to quit Quillmere?</source>
        <translation>Une recherche de fichiers en double est en cours. Voulez-vous vraiment quitter Quillmere&#xa0;?</translation>
    </message>
    <message>
        <source>The current list of the duplicate search results will be lost. Are you sure you want to quit Quillmere?</source>
        <translation>La liste actuelle des doublons trouvés sera perdue. Voulez-vous vraiment quitter Quillmere&#xa0;?</translation>
    </message>
    <message>
        <source>There are files selected for rename. Are you sure you want to quit Quillmere?</source>
        <translation>Des fichiers sont sélectionnés pour être renommés. Voulez-vous vraiment quitter Quillmere&#xa0;?</translation>
    </message>
    <message>
        <source>There are files selected for rename, and the current list of the duplicate search results will be lost. Are you sure you want to quit Quillmere?</source>
        <translation>Des fichiers sont sélectionnés pour être renommés, et la liste actuelle des doublons trouvés sera perdue. Voulez-vous vraiment quitter Quillmere&#xa0;?</translation>
    </message>
</context>
<context>
    <name>RenamePanelControls</name>
    <message>
        <source>Rule</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Change full file names to</source>
        <translation>Remplacer les noms complets par</translation>
    </message>
    <message>
        <source>Add text to existing names</source>
        <translation>Ajouter du texte aux noms existants</translation>
    </message>
    <message>
        <source>Change full name</source>
        <translation>Changer le nom complet</translation>
    </message>
    <message>
        <source>Add text to name</source>
        <translation>Ajouter du texte au nom</translation>
    </message>
    <message>
        <source>After name</source>
        <translation>Après le nom</translation>
    </message>
    <message>
        <source>Before name</source>
        <translation>Avant le nom</translation>
    </message>
</context>
<context>
    <name>RenameProblemText</name>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 will not be renamed. %2</source>
        <translation>%1 ne sera pas renommé. %2</translation>
    </message>
    <message>
        <source>%1 could not be renamed. %2</source>
        <translation>%1 n’a pas pu être renommé. %2</translation>
    </message>
    <message>
        <source>%1 could not be named %2 again. %3</source>
        <translation>%1 n’a pas pu reprendre le nom %2. %3</translation>
    </message>
    <message>
        <source>Another file in the list would also be named %1 in this folder.</source>
        <translation>Un autre fichier de la liste s’appellerait aussi %1 dans ce dossier.</translation>
    </message>
    <message>
        <source>A file named %1 is already in this folder.</source>
        <translation>Un fichier nommé %1 existe déjà dans ce dossier.</translation>
    </message>
    <message>
        <source>%1 cannot be a file name: it names a folder.</source>
        <translation>%1 ne peut pas être un nom de fichier&#xa0;: il désigne un dossier.</translation>
    </message>
    <message>
        <source>%1 cannot be a file name: a name cannot hold a slash (/).</source>
        <translation>%1 ne peut pas être un nom de fichier&#xa0;: un nom ne peut pas contenir de barre oblique (/).</translation>
    </message>
    <message>
        <source>The new name cannot be a file name: it holds a NUL character.</source>
        <translation>Le nouveau nom ne peut pas être un nom de fichier&#xa0;: il contient un caractère NUL.</translation>
    </message>
    <message>
        <source>The new name cannot be a file name: it is not valid UTF-8.</source>
        <translation>Le nouveau nom ne peut pas être un nom de fichier&#xa0;: ce n’est pas de l’UTF-8 valide.</translation>
    </message>
    <message>
        <source>The new name is longer than this folder&apos;s disk allows.</source>
        <translation>Le nouveau nom est plus long que ne le permet le disque de ce dossier.</translation>
    </message>
    <message>
        <source>Permission denied: the file or its folder is locked, or you may not change it.</source>
        <translation>Permission refusée&#xa0;: le fichier ou son dossier est verrouillé, ou vous n’avez pas le droit de le modifier.</translation>
    </message>
    <message>
        <source>A file with that name already exists.</source>
        <translation>Un fichier portant ce nom existe déjà.</translation>
    </message>
    <message>
        <source>The file was not found.</source>
        <translation>Le fichier est introuvable.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>Le disque est en lecture seule.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>Le fichier est en cours d’utilisation.</translation>
    </message>
    <message>
        <source>The new name cannot be a file name.</source>
        <translation>Le nouveau nom ne peut pas être un nom de fichier.</translation>
    </message>
    <message>
        <source>The system gave no reason.</source>
        <translation>Le système n’a donné aucune raison.</translation>
    </message>
    <message>
        <source>The system said: %1.</source>
        <translation>Message du système&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>RenameRowStyle</name>
    <message>
        <source>New Name</source>
        <translation>Nouveau nom</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
</context>
<context>
    <name>RenameTableModel</name>
    <message>
        <source>No new name</source>
        <translation>Aucun nouveau nom</translation>
    </message>
    <message>
        <source>New name, typed: %1</source>
        <translation>Nouveau nom, saisi&#xa0;: %1</translation>
    </message>
    <message>
        <source>New name: %1</source>
        <translation>Nouveau nom&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ScanAttention</name>
    <message>
        <source>Duplicate files scan complete.</source>
        <translation>Recherche de fichiers en double terminée.</translation>
    </message>
    <message>
        <source>No duplicate files found.</source>
        <translation>Aucun fichier en double trouvé.</translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate file found.</source>
        <translation>
            <numerusform>%n fichier en double trouvé.</numerusform>
            <numerusform>%n fichiers en double trouvés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate files found.</source>
        <translation>
            <numerusform>%n fichier en double trouvé.</numerusform>
            <numerusform>%n fichiers en double trouvés.</numerusform>
        </translation>
    </message>
    <message>
        <source>No duplicate files found in %1.</source>
        <translation>Aucun fichier en double trouvé dans %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate file found in %1.</source>
        <translation>
            <numerusform>%n fichier en double trouvé dans %1.</numerusform>
            <numerusform>%n fichiers en double trouvés dans %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate files found in %1.</source>
        <translation>
            <numerusform>%n fichier en double trouvé dans %1.</numerusform>
            <numerusform>%n fichiers en double trouvés dans %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ShellCommandLine</name>
    <message>
        <source>Usage: quillmere [--help | --version]

Finds duplicate files and folders, and renames files in batches, in one window.

  -h, --help  show this text
  --version   print the version

Qt&apos;s own options, such as -platform and -style, are accepted as well.
</source>
        <translation>Usage : quillmere [--help | --version]

Trouve les fichiers et dossiers en double, et renomme des fichiers par lots, dans une
seule fenêtre.

  -h, --help  afficher ce texte
  --version   afficher la version

Les options propres à Qt, comme -platform et -style, sont aussi acceptées.
</translation>
    </message>
    <message>
        <source>unknown option %1 (see --help)</source>
        <translation>option inconnue %1 (voir --help)</translation>
    </message>
    <message>
        <source>unexpected argument %1 (see --help)</source>
        <translation>argument inattendu %1 (voir --help)</translation>
    </message>
</context>
<context>
    <name>SortOrder</name>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
</context>
<context>
    <name>SubType</name>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>quillmere-scan</name>
    <message>
        <source>Usage: quillmere-scan [--json] [--single-thread] PATH
       quillmere-scan --help | --version

Finds duplicate files and folders below PATH in one pass.
Files above 64 KiB of equal size and type are compared by fingerprint;
folders by total size, entry count and the fingerprints of their first and last files.
Hidden files and folders, and every path containing &quot;.app&quot;, are skipped.

  --json           print every report of the scan as it happens, one JSON object
                   per line
  --single-thread  read every folder and file on the scanning thread instead of
                   ahead of it on a few more; slower, with the same reports
  -h, --help       show this text
  --version        print the version

Exit status: 0 when the scan ran, 1 when the output could not be written,
2 when PATH is not a readable folder or the arguments are wrong.
</source>
        <translation>Usage : quillmere-scan [--json] [--single-thread] CHEMIN
        quillmere-scan --help | --version

Trouve en un seul passage les fichiers et dossiers en double sous CHEMIN.
Les fichiers de plus de 64 Kio de même taille et de même type sont comparés par
empreinte ; les dossiers par taille totale, nombre d’éléments et empreintes de leurs
premier et dernier fichiers.
Les fichiers et dossiers cachés, et tout chemin contenant « .app », sont ignorés.

  --json           écrire chaque message de la recherche dès qu’il paraît, un objet
                   JSON par ligne
  --single-thread  lire chaque dossier et chaque fichier sur le fil de la recherche
                   plutôt qu’en avance sur quelques autres ; plus lent, mêmes messages
  -h, --help       afficher ce texte
  --version        afficher la version

Code de sortie : 0 quand la recherche a eu lieu, 1 quand la sortie n’a pas pu être
écrite, 2 quand CHEMIN n’est pas un dossier lisible ou que les arguments sont faux.
</translation>
    </message>
    <message>
        <source>unknown option %1 (see --help)</source>
        <translation>option inconnue %1 (voir --help)</translation>
    </message>
    <message>
        <source>expected one folder to scan (see --help)</source>
        <translation>un seul dossier à parcourir est attendu (voir --help)</translation>
    </message>
    <message>
        <source>%1: no such file or folder</source>
        <translation>%1 : fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>%1: not a folder</source>
        <translation>%1 : n’est pas un dossier</translation>
    </message>
    <message>
        <source>%1: folder cannot be read</source>
        <translation>%1 : le dossier ne peut pas être lu</translation>
    </message>
</context>
</TS>
