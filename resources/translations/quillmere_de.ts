<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>BRAboutViewController</name>
    <message>
        <source>Contact Support</source>
        <translation>Support kontaktieren</translation>
    </message>
    <message>
        <source>Terms of Use</source>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>More Apps from Brackenhale</source>
        <translation>Weitere Apps von Brackenhale</translation>
    </message>
    <message>
        <source>Quillmere icon</source>
        <translation>Quillmere-Symbol</translation>
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
        <translation>Über Quillmere</translation>
    </message>
</context>
<context>
    <name>BRAddTextViewController</name>
    <message>
        <source>Add Text</source>
        <translation>Text hinzufügen</translation>
    </message>
    <message>
        <source>Where the text goes</source>
        <translation>Wohin der Text kommt</translation>
    </message>
</context>
<context>
    <name>BRChangeFileNameViewController</name>
    <message>
        <source>Enter New Name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Startnummer</translation>
    </message>
    <message>
        <source>Where the number goes</source>
        <translation>Wohin die Nummer kommt</translation>
    </message>
    <message>
        <source>starting at</source>
        <translation>beginnend bei</translation>
    </message>
</context>
<context>
    <name>BRDragAndDropImageView</name>
    <message>
        <source>Drop files here</source>
        <translation>Dateien hier ablegen</translation>
    </message>
</context>
<context>
    <name>BRDragAndDropView</name>
    <message>
        <source>Drop files and folders here to rename them</source>
        <translation>Dateien und Ordner zum Umbenennen hier ablegen</translation>
    </message>
    <message>
        <source>You see every new name before anything on disk changes.</source>
        <translation>Sie sehen jeden neuen Namen, bevor sich auf der Festplatte etwas ändert.</translation>
    </message>
    <message>
        <source>Choose Files…</source>
        <translation>Dateien auswählen …</translation>
    </message>
    <message>
        <source>Choose files to rename</source>
        <translation>Dateien zum Umbenennen auswählen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>BRDuplicateCancelViewController</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Scan progress</source>
        <translation>Suchfortschritt</translation>
    </message>
    <message numerus="yes">
        <source>%1 item scanned</source>
        <translation>
            <numerusform>%1 Objekt durchsucht</numerusform>
            <numerusform>%1 Objekte durchsucht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items scanned</source>
        <translation>
            <numerusform>%1 Objekt durchsucht</numerusform>
            <numerusform>%1 Objekte durchsucht</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 copies checked</source>
        <translation>%1 von %2 Kopien geprüft</translation>
    </message>
</context>
<context>
    <name>BRDuplicateFilePreviewTableViewCell</name>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message>
        <source>Same file as %1.</source>
        <translation>Dieselbe Datei wie %1.</translation>
    </message>
</context>
<context>
    <name>BRDuplicateFilePreviewViewController</name>
    <message>
        <source>this group</source>
        <translation>dieser Gruppe</translation>
    </message>
    <message>
        <source>Modified:%1</source>
        <translation>Geändert: %1</translation>
    </message>
    <message>
        <source>Not Available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Copy %1: %2</source>
        <translation>Kopie %1: %2</translation>
    </message>
</context>
<context>
    <name>BRDuplicateFilesViewController</name>
    <message>
        <source>Duplicate files</source>
        <translation>Doppelte Dateien</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <translation>Freizugeben</translation>
    </message>
    <message>
        <source>Scanned folder</source>
        <translation>Durchsuchter Ordner</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>each group listed</source>
        <translation>jeder aufgeführten Gruppe</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Duplicate files scan complete.</source>
        <translation>Suche nach doppelten Dateien abgeschlossen.</translation>
    </message>
    <message>
        <source>Stop duplicate files scan?</source>
        <translation>Suche nach doppelten Dateien anhalten?</translation>
    </message>
    <message>
        <source>Duplicate files scan is in progress. Are you sure you want to stop the scan?</source>
        <translation>Die Suche nach doppelten Dateien läuft. Möchten Sie die Suche wirklich anhalten?</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Start a new scan?</source>
        <translation>Neue Suche starten?</translation>
    </message>
    <message>
        <source>The current list of the duplicate search results will be lost. Are you sure you want to start a new scan?</source>
        <translation>Die aktuelle Liste der gefundenen Duplikate geht verloren. Möchten Sie wirklich eine neue Suche starten?</translation>
    </message>
    <message>
        <source>New scan</source>
        <translation>Neue Suche</translation>
    </message>
    <message>
        <source>Could not remove some files</source>
        <translation>Einige Dateien konnten nicht entfernt werden</translation>
    </message>
    <message>
        <source>Choose the folder whose copies to keep</source>
        <translation>Ordner wählen, dessen Kopien behalten werden</translation>
    </message>
    <message>
        <source>No files to move to the Trash</source>
        <translation>Keine Dateien zum Verschieben in den Papierkorb</translation>
    </message>
    <message>
        <source>No group listed has a copy in “%1”.</source>
        <translation>Keine aufgeführte Gruppe hat eine Kopie in „%1“.</translation>
    </message>
    <message>
        <source>Every group listed has one copy only.</source>
        <translation>Jede aufgeführte Gruppe hat nur eine Kopie.</translation>
    </message>
    <message numerus="yes">
        <source>One copy of each of %n group stays: %1.</source>
        <translation>
            <numerusform>In %n Gruppe bleibt eine Kopie: %1.</numerusform>
            <numerusform>In jeder der %n Gruppen bleibt eine Kopie: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>One copy of each of %n groups stays: %1.</source>
        <translation>
            <numerusform>In %n Gruppe bleibt eine Kopie: %1.</numerusform>
            <numerusform>In jeder der %n Gruppen bleibt eine Kopie: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file goes to the Trash and frees %1.</source>
        <translation>
            <numerusform>%n Datei kommt in den Papierkorb und gibt %1 frei.</numerusform>
            <numerusform>%n Dateien kommen in den Papierkorb und geben %1 frei.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files go to the Trash and free %1.</source>
        <translation>
            <numerusform>%n Datei kommt in den Papierkorb und gibt %1 frei.</numerusform>
            <numerusform>%n Dateien kommen in den Papierkorb und geben %1 frei.</numerusform>
        </translation>
    </message>
    <message>
        <source>Each is compared with the copy that stays before it goes.</source>
        <translation>Jede wird vor dem Verschieben mit der bleibenden Kopie verglichen.</translation>
    </message>
    <message numerus="yes">
        <source>Move %n file to the Trash?</source>
        <translation>
            <numerusform>%n Datei in den Papierkorb verschieben?</numerusform>
            <numerusform>%n Dateien in den Papierkorb verschieben?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n files to the Trash?</source>
        <translation>
            <numerusform>%n Datei in den Papierkorb verschieben?</numerusform>
            <numerusform>%n Dateien in den Papierkorb verschieben?</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>It frees %1.</source>
        <translation>Dadurch werden %1 frei.</translation>
    </message>
    <message>
        <source>They free %1.</source>
        <translation>Dadurch werden %1 frei.</translation>
    </message>
    <message>
        <source>1 file was kept: it had changed since the scan.</source>
        <translation>1 Datei wurde behalten: Sie hat sich seit der Suche geändert.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: they had changed since the scan.</source>
        <translation>
            <numerusform>%n Datei wurde behalten: Sie hat sich seit der Suche geändert.</numerusform>
            <numerusform>%n Dateien wurden behalten: Sie haben sich seit der Suche geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file was kept: it is not an exact copy of the one that stays.</source>
        <translation>1 Datei wurde behalten: Sie ist keine exakte Kopie der bleibenden Datei.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: they are not exact copies of the ones that stay.</source>
        <translation>
            <numerusform>%n Datei wurde behalten: Sie ist keine exakte Kopie der bleibenden.</numerusform>
            <numerusform>%n Dateien wurden behalten: Sie sind keine exakten Kopien der bleibenden.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file was kept: the copy meant to stay is gone.</source>
        <translation>1 Datei wurde behalten: Die Kopie, die bleiben sollte, ist nicht mehr da.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: the copies meant to stay are gone.</source>
        <translation>
            <numerusform>%n Datei wurde behalten: Die Kopie, die bleiben sollte, ist nicht mehr da.</numerusform>
            <numerusform>%n Dateien wurden behalten: Die Kopien, die bleiben sollten, sind nicht mehr da.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file was kept: it could not be compared.</source>
        <translation>1 Datei wurde behalten: Sie konnte nicht verglichen werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: they could not be compared.</source>
        <translation>
            <numerusform>%n Datei wurde behalten: Sie konnte nicht verglichen werden.</numerusform>
            <numerusform>%n Dateien wurden behalten: Sie konnten nicht verglichen werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file was kept: %1</source>
        <translation>1 Datei wurde behalten: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept. The first: </source>
        <translation>
            <numerusform>%n Datei wurde behalten. Die erste: </numerusform>
            <numerusform>%n Dateien wurden behalten. Die erste: </numerusform>
        </translation>
    </message>
    <message>
        <source>1 file was gone already.</source>
        <translation>1 Datei war bereits nicht mehr vorhanden.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were gone already.</source>
        <translation>
            <numerusform>%n Datei war bereits nicht mehr vorhanden.</numerusform>
            <numerusform>%n Dateien waren bereits nicht mehr vorhanden.</numerusform>
        </translation>
    </message>
    <message>
        <source>No files were moved to the Trash</source>
        <translation>Es wurden keine Dateien in den Papierkorb verschoben</translation>
    </message>
    <message>
        <source>1 file was moved to the Trash</source>
        <translation>1 Datei wurde in den Papierkorb verschoben</translation>
    </message>
    <message>
        <source>File does not exist</source>
        <translation>Datei existiert nicht</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 existiert nicht</translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate files found.</source>
        <translation>
            <numerusform>%n doppelte Datei gefunden.</numerusform>
            <numerusform>%n doppelte Dateien gefunden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group has no copy in “%1” and is left whole.</source>
        <translation>
            <numerusform>%n Gruppe hat keine Kopie in „%1“ und bleibt vollständig.</numerusform>
            <numerusform>%n Gruppen haben keine Kopie in „%1“ und bleiben vollständig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n groups have no copy in “%1” and are left whole.</source>
        <translation>
            <numerusform>%n Gruppe hat keine Kopie in „%1“ und bleibt vollständig.</numerusform>
            <numerusform>%n Gruppen haben keine Kopie in „%1“ und bleiben vollständig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group had no copy in “%1” and was left whole.</source>
        <translation>
            <numerusform>%n Gruppe hatte keine Kopie in „%1“ und blieb vollständig.</numerusform>
            <numerusform>%n Gruppen hatten keine Kopie in „%1“ und blieben vollständig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n groups had no copy in “%1” and were left whole.</source>
        <translation>
            <numerusform>%n Gruppe hatte keine Kopie in „%1“ und blieb vollständig.</numerusform>
            <numerusform>%n Gruppen hatten keine Kopie in „%1“ und blieben vollständig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped: %n file was not checked and stayed.</source>
        <translation>
            <numerusform>Angehalten: %n Datei wurde nicht geprüft und ist geblieben.</numerusform>
            <numerusform>Angehalten: %n Dateien wurden nicht geprüft und sind geblieben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped: %n files were not checked and stayed.</source>
        <translation>
            <numerusform>Angehalten: %n Datei wurde nicht geprüft und ist geblieben.</numerusform>
            <numerusform>Angehalten: %n Dateien wurden nicht geprüft und sind geblieben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files were moved to the Trash</source>
        <translation>
            <numerusform>%n Datei wurde in den Papierkorb verschoben</numerusform>
            <numerusform>%n Dateien wurden in den Papierkorb verschoben</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep Copies Here</source>
        <translation>Kopien hier behalten</translation>
    </message>
</context>
<context>
    <name>BRDuplicatePopOverTableView</name>
    <message>
        <source>Copies</source>
        <translation>Kopien</translation>
    </message>
</context>
<context>
    <name>BRDuplicateScanStartViewController</name>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner auswählen …</translation>
    </message>
    <message>
        <source>Chosen folder</source>
        <translation>Ausgewählter Ordner</translation>
    </message>
    <message>
        <source>Start Scan</source>
        <translation>Suche starten</translation>
    </message>
    <message>
        <source>Choose a folder to scan</source>
        <comment>Open panel title to select folder to scan duplicate files</comment>
        <translation>Zu durchsuchenden Ordner auswählen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>BRDuplicateScanStatusViewController</name>
    <message>
        <source>No duplicate files found</source>
        <translation>Keine doppelten Dateien gefunden</translation>
    </message>
    <message>
        <source>New Scan</source>
        <translation>Neue Suche</translation>
    </message>
    <message>
        <source>in &quot;%1&quot;</source>
        <translation>in „%1“</translation>
    </message>
</context>
<context>
    <name>BRDuplicateSortViewController</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Music &amp; Videos</source>
        <translation>Musik &amp; Videos</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>BRDuplicateTableViewCell</name>
    <message>
        <source>Each copy</source>
        <translation>Jede Kopie</translation>
    </message>
    <message>
        <source>All copies</source>
        <translation>Alle Kopien</translation>
    </message>
</context>
<context>
    <name>BRFilePreviewPopoverViewController</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>Current name</source>
        <translation>Aktueller Name</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
</context>
<context>
    <name>BRIntroViewController</name>
    <message>
        <source>Got it!</source>
        <translation>Verstanden!</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Willkommen bei Quillmere</translation>
    </message>
    <message>
        <source>Duplicates finds equal files and folders in one pass and moves the copies you choose to the Trash.
Rename renames many files at once, and never overwrites a file.</source>
        <translation>Duplikate findet gleiche Dateien und Ordner in einem Durchgang und verschiebt die gewählten Kopien in den Papierkorb.
Umbenennen benennt viele Dateien auf einmal um und überschreibt nie eine Datei.</translation>
    </message>
</context>
<context>
    <name>BRMainViewController</name>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Stop duplicate files scan &amp; switch to rename?</source>
        <translation>Suche nach Duplikaten anhalten und zu Umbenennen wechseln?</translation>
    </message>
    <message>
        <source>Duplicate files scanning is in progress. Do you want to stop the scan and switch to renaming files?</source>
        <translation>Die Suche nach doppelten Dateien läuft. Möchten Sie die Suche anhalten und zum Umbenennen von Dateien wechseln?</translation>
    </message>
    <message>
        <source>Stop scan</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>BRNoSearchResultCell</name>
    <message>
        <source>No duplicate files match your search</source>
        <translation>Keine doppelten Dateien entsprechen Ihrer Suche</translation>
    </message>
</context>
<context>
    <name>BRNoSubTypeFoundCell</name>
    <message>
        <source>Music &amp; Videos</source>
        <translation>Musik &amp; Videos</translation>
    </message>
    <message>
        <source>No duplicate %1</source>
        <translation>Keine Duplikate: %1</translation>
    </message>
</context>
<context>
    <name>BRRenameCompleteView</name>
    <message>
        <source>Renaming done</source>
        <translation>Umbenennen abgeschlossen</translation>
    </message>
    <message>
        <source>Show failed files</source>
        <translation>Fehlgeschlagene anzeigen</translation>
    </message>
    <message>
        <source>Undo Rename</source>
        <translation>Umbenennen rückgängig</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Give every renamed file its old name again</source>
        <translation>Jeder umbenannten Datei ihren alten Namen zurückgeben</translation>
    </message>
    <message>
        <source>Rename undone</source>
        <translation>Umbenennen rückgängig gemacht</translation>
    </message>
    <message numerus="yes">
        <source>%n files renamed</source>
        <translation>
            <numerusform>%n Datei umbenannt</numerusform>
            <numerusform>%n Dateien umbenannt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n failed</source>
        <translation>
            <numerusform>, %n fehlgeschlagen</numerusform>
            <numerusform>, %n fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files have their old names again</source>
        <translation>
            <numerusform>%n Datei hat wieder ihren alten Namen</numerusform>
            <numerusform>%n Dateien haben wieder ihre alten Namen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n could not go back</source>
        <translation>
            <numerusform>, %n konnte nicht zurück</numerusform>
            <numerusform>, %n konnten nicht zurück</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BRRenameTableView</name>
    <message>
        <source>Files to rename</source>
        <translation>Umzubenennende Dateien</translation>
    </message>
</context>
<context>
    <name>BRRenameTableViewCell</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Will not be renamed</source>
        <translation>Wird nicht umbenannt</translation>
    </message>
</context>
<context>
    <name>BRRenameViewController</name>
    <message>
        <source>File does not exist</source>
        <translation>Datei existiert nicht</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 existiert nicht</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Dateien hinzufügen …</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Some files already exist</source>
        <translation>Einige Dateien sind bereits vorhanden</translation>
    </message>
    <message>
        <source>Some of the files you were adding for rename are already in the list. So they are not added again</source>
        <translation>Einige der Dateien, die Sie zum Umbenennen hinzufügen wollten, sind bereits in der Liste. Sie werden daher nicht erneut hinzugefügt</translation>
    </message>
    <message>
        <source>Missing files</source>
        <translation>Fehlende Dateien</translation>
    </message>
    <message>
        <source>Some files are missing and could not be found.</source>
        <translation>Einige Dateien fehlen und konnten nicht gefunden werden.</translation>
    </message>
    <message>
        <source>Could not rename some files</source>
        <translation>Einige Dateien konnten nicht umbenannt werden</translation>
    </message>
    <message>
        <source>Some files could not be renamed since they are locked or you don&apos;t have permission to modify them.</source>
        <translation>Einige Dateien konnten nicht umbenannt werden, da sie gesperrt sind oder Sie keine Berechtigung haben, sie zu ändern.</translation>
    </message>
    <message>
        <source>Some files keep their new names</source>
        <translation>Einige Dateien behalten ihre neuen Namen</translation>
    </message>
    <message>
        <source>Add files to rename</source>
        <translation>Dateien zum Umbenennen hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>Rename %n files</source>
        <translation>
            <numerusform>%n Datei umbenennen</numerusform>
            <numerusform>%n Dateien umbenennen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more files could not go back either.</source>
        <translation>
            <numerusform>%n weitere Datei konnte ebenfalls nicht zurück.</numerusform>
            <numerusform>%n weitere Dateien konnten ebenfalls nicht zurück.</numerusform>
        </translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>BRSelectHomeFolderViewController</name>
    <message>
        <source>Select Home Folder</source>
        <translation>Persönlichen Ordner wählen</translation>
    </message>
    <message>
        <source>Choose a Home Folder</source>
        <translation>Persönlichen Ordner auswählen</translation>
    </message>
    <message>
        <source>Quillmere works inside the folder you choose here. You are asked once.</source>
        <translation>Quillmere arbeitet in dem Ordner, den Sie hier wählen. Sie werden nur einmal gefragt.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>“%1” is not inside your home folder, %2. Choose your home folder or a folder inside it.</source>
        <translation>„%1“ liegt nicht in Ihrem persönlichen Ordner %2. Wählen Sie Ihren persönlichen Ordner oder einen Ordner darin.</translation>
    </message>
</context>
<context>
    <name>ByteCountFormatter</name>
    <message>
        <source>%1 byte</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
</context>
<context>
    <name>CopyRemoval</name>
    <message>
        <source>“%1” has changed since the scan, so it was kept.</source>
        <translation>„%1“ hat sich seit der Suche geändert und wurde daher behalten.</translation>
    </message>
    <message>
        <source>“%1” is the last copy left in this group, so it was kept.</source>
        <translation>„%1“ ist die letzte Kopie in dieser Gruppe und wurde daher behalten.</translation>
    </message>
    <message>
        <source>“%1” is not an exact copy of the other files in this group, so it was kept.</source>
        <translation>„%1“ ist keine exakte Kopie der anderen Dateien dieser Gruppe und wurde daher behalten.</translation>
    </message>
    <message>
        <source>“%1” could not be compared with the other files in this group, so it was kept.</source>
        <translation>„%1“ konnte nicht mit den anderen Dateien dieser Gruppe verglichen werden und wurde daher behalten.</translation>
    </message>
</context>
<context>
    <name>DuplicateTableModel</name>
    <message>
        <source>1 copy</source>
        <translation>1 Kopie</translation>
    </message>
    <message>
        <source>%1 each</source>
        <translation>je %1</translation>
    </message>
    <message>
        <source>%1 in all</source>
        <translation>%1 insgesamt</translation>
    </message>
    <message>
        <source>%1 reclaimable</source>
        <translation>%1 freizugeben</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies</source>
        <translation>
            <numerusform>%1 Kopie</numerusform>
            <numerusform>%1 Kopien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileTypeDatabase</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>FreedesktopTrash</name>
    <message>
        <source>“%1” does not exist.</source>
        <translation>„%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>“%1” is the top folder of a drive and cannot be moved to the Trash.</source>
        <translation>„%1“ ist der oberste Ordner eines Laufwerks und kann nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message>
        <source>“%1” is already in the Trash.</source>
        <translation>„%1“ ist bereits im Papierkorb.</translation>
    </message>
    <message>
        <source>“%1” holds the Trash, which cannot be moved into itself.</source>
        <translation>„%1“ enthält den Papierkorb, der nicht in sich selbst verschoben werden kann.</translation>
    </message>
    <message>
        <source>There is no Trash on the drive that holds “%1”.</source>
        <translation>Auf dem Laufwerk mit „%1“ gibt es keinen Papierkorb.</translation>
    </message>
    <message>
        <source>The Trash cannot take “%1”: “%2” is not a folder.</source>
        <translation>Der Papierkorb kann „%1“ nicht aufnehmen: „%2“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>The Trash cannot take “%1”: its folder “%2” cannot be written to.</source>
        <translation>Der Papierkorb kann „%1“ nicht aufnehmen: In seinen Ordner „%2“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>There is no room in the Trash for “%1”: the disk is full.</source>
        <translation>Im Papierkorb ist kein Platz für „%1“: Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>“%1” is on a drive that is read-only.</source>
        <translation>„%1“ liegt auf einem schreibgeschützten Laufwerk.</translation>
    </message>
    <message>
        <source>You do not have permission to move “%1” to the Trash.</source>
        <translation>Sie haben keine Berechtigung, „%1“ in den Papierkorb zu verschieben.</translation>
    </message>
    <message>
        <source>The Trash already holds too many items named “%1”.</source>
        <translation>Der Papierkorb enthält bereits zu viele Objekte namens „%1“.</translation>
    </message>
    <message>
        <source>“%1” could not be moved to the Trash because of an unexpected error.</source>
        <translation>„%1“ konnte wegen eines unerwarteten Fehlers nicht in den Papierkorb verschoben werden.</translation>
    </message>
</context>
<context>
    <name>KeepOneMenu</name>
    <message>
        <source>Keep the Oldest Copy</source>
        <translation>Älteste Kopie behalten</translation>
    </message>
    <message>
        <source>Keep the Newest Copy</source>
        <translation>Neueste Kopie behalten</translation>
    </message>
    <message>
        <source>Keep the Copy with the Shortest Path</source>
        <translation>Kopie mit dem kürzesten Pfad behalten</translation>
    </message>
    <message>
        <source>Keep the Copy in a Folder…</source>
        <translation>Kopie in einem Ordner behalten …</translation>
    </message>
    <message>
        <source>Keep One</source>
        <translation>Eine behalten</translation>
    </message>
    <message>
        <source>Keep one copy of %1</source>
        <translation>Eine Kopie %1 behalten</translation>
    </message>
    <message>
        <source>Keep one copy of %1 and move the others to the Trash</source>
        <translation>Eine Kopie %1 behalten und die anderen in den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>the oldest</source>
        <translation>die älteste</translation>
    </message>
    <message>
        <source>the newest</source>
        <translation>die neueste</translation>
    </message>
    <message>
        <source>the one with the shortest path</source>
        <translation>die mit dem kürzesten Pfad</translation>
    </message>
    <message>
        <source>the one in “%1”</source>
        <translation>die in „%1“</translation>
    </message>
</context>
<context>
    <name>MenuActionsClass</name>
    <message>
        <source>&amp;About Quillmere</source>
        <translation>Ü&amp;ber Quillmere</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>&amp;Support kontaktieren</translation>
    </message>
    <message>
        <source>&amp;More Apps from Brackenhale</source>
        <translation>&amp;Weitere Apps von Brackenhale</translation>
    </message>
    <message>
        <source>&amp;Terms of Use</source>
        <translation>&amp;Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>&amp;Rückmeldung senden …</translation>
    </message>
    <message>
        <source>&amp;Quit Quillmere</source>
        <translation>Quillmere &amp;beenden</translation>
    </message>
</context>
<context>
    <name>QtAlertPresenter</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
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
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Quit Quillmere?</source>
        <translation>Quillmere beenden?</translation>
    </message>
    <message>
        <source>Duplicate files scan is in progress. Are you sure you want to quit Quillmere?</source>
        <translation>Die Suche nach doppelten Dateien läuft. Möchten Sie Quillmere wirklich beenden?</translation>
    </message>
    <message>
        <source>The current list of the duplicate search results will be lost. Are you sure you want to quit Quillmere?</source>
        <translation>Die aktuelle Liste der gefundenen Duplikate geht verloren. Möchten Sie Quillmere wirklich beenden?</translation>
    </message>
    <message>
        <source>There are files selected for rename. Are you sure you want to quit Quillmere?</source>
        <translation>Es sind Dateien zum Umbenennen ausgewählt. Möchten Sie Quillmere wirklich beenden?</translation>
    </message>
    <message>
        <source>There are files selected for rename, and the current list of the duplicate search results will be lost. Are you sure you want to quit Quillmere?</source>
        <translation>Es sind Dateien zum Umbenennen ausgewählt, und die aktuelle Liste der gefundenen Duplikate geht verloren. Möchten Sie Quillmere wirklich beenden?</translation>
    </message>
</context>
<context>
    <name>RenamePanelControls</name>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Change full file names to</source>
        <translation>Ganze Dateinamen ändern in</translation>
    </message>
    <message>
        <source>Add text to existing names</source>
        <translation>Text zu vorhandenen Namen hinzufügen</translation>
    </message>
    <message>
        <source>Change full name</source>
        <translation>Ganzen Namen ändern</translation>
    </message>
    <message>
        <source>Add text to name</source>
        <translation>Text zum Namen hinzufügen</translation>
    </message>
    <message>
        <source>After name</source>
        <translation>Nach dem Namen</translation>
    </message>
    <message>
        <source>Before name</source>
        <translation>Vor dem Namen</translation>
    </message>
</context>
<context>
    <name>RenameProblemText</name>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>%1 will not be renamed. %2</source>
        <translation>%1 wird nicht umbenannt. %2</translation>
    </message>
    <message>
        <source>%1 could not be renamed. %2</source>
        <translation>%1 konnte nicht umbenannt werden. %2</translation>
    </message>
    <message>
        <source>%1 could not be named %2 again. %3</source>
        <translation>%1 konnte nicht wieder in %2 umbenannt werden. %3</translation>
    </message>
    <message>
        <source>Another file in the list would also be named %1 in this folder.</source>
        <translation>Eine andere Datei der Liste würde in diesem Ordner ebenfalls %1 heißen.</translation>
    </message>
    <message>
        <source>A file named %1 is already in this folder.</source>
        <translation>In diesem Ordner gibt es bereits eine Datei namens %1.</translation>
    </message>
    <message>
        <source>%1 cannot be a file name: it names a folder.</source>
        <translation>%1 kann kein Dateiname sein: Es bezeichnet einen Ordner.</translation>
    </message>
    <message>
        <source>%1 cannot be a file name: a name cannot hold a slash (/).</source>
        <translation>%1 kann kein Dateiname sein: Ein Name darf keinen Schrägstrich (/) enthalten.</translation>
    </message>
    <message>
        <source>The new name cannot be a file name: it holds a NUL character.</source>
        <translation>Der neue Name kann kein Dateiname sein: Er enthält ein NUL-Zeichen.</translation>
    </message>
    <message>
        <source>The new name cannot be a file name: it is not valid UTF-8.</source>
        <translation>Der neue Name kann kein Dateiname sein: Er ist kein gültiges UTF-8.</translation>
    </message>
    <message>
        <source>The new name is longer than this folder&apos;s disk allows.</source>
        <translation>Der neue Name ist länger, als der Datenträger dieses Ordners erlaubt.</translation>
    </message>
    <message>
        <source>Permission denied: the file or its folder is locked, or you may not change it.</source>
        <translation>Zugriff verweigert: Die Datei oder ihr Ordner ist gesperrt, oder Sie dürfen sie nicht ändern.</translation>
    </message>
    <message>
        <source>A file with that name already exists.</source>
        <translation>Eine Datei mit diesem Namen existiert bereits.</translation>
    </message>
    <message>
        <source>The file was not found.</source>
        <translation>Die Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>Die Datei wird gerade verwendet.</translation>
    </message>
    <message>
        <source>The new name cannot be a file name.</source>
        <translation>Der neue Name kann kein Dateiname sein.</translation>
    </message>
    <message>
        <source>The system gave no reason.</source>
        <translation>Das System hat keinen Grund genannt.</translation>
    </message>
    <message>
        <source>The system said: %1.</source>
        <translation>Meldung des Systems: %1.</translation>
    </message>
</context>
<context>
    <name>RenameRowStyle</name>
    <message>
        <source>New Name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>RenameTableModel</name>
    <message>
        <source>No new name</source>
        <translation>Kein neuer Name</translation>
    </message>
    <message>
        <source>New name, typed: %1</source>
        <translation>Neuer Name, eingetippt: %1</translation>
    </message>
    <message>
        <source>New name: %1</source>
        <translation>Neuer Name: %1</translation>
    </message>
</context>
<context>
    <name>ScanAttention</name>
    <message>
        <source>Duplicate files scan complete.</source>
        <translation>Suche nach doppelten Dateien abgeschlossen.</translation>
    </message>
    <message>
        <source>No duplicate files found.</source>
        <translation>Keine doppelten Dateien gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate file found.</source>
        <translation>
            <numerusform>%n doppelte Datei gefunden.</numerusform>
            <numerusform>%n doppelte Dateien gefunden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate files found.</source>
        <translation>
            <numerusform>%n doppelte Datei gefunden.</numerusform>
            <numerusform>%n doppelte Dateien gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>No duplicate files found in %1.</source>
        <translation>Keine doppelten Dateien in %1 gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate file found in %1.</source>
        <translation>
            <numerusform>%n doppelte Datei in %1 gefunden.</numerusform>
            <numerusform>%n doppelte Dateien in %1 gefunden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate files found in %1.</source>
        <translation>
            <numerusform>%n doppelte Datei in %1 gefunden.</numerusform>
            <numerusform>%n doppelte Dateien in %1 gefunden.</numerusform>
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
        <translation>Aufruf: quillmere [--help | --version]

Findet doppelte Dateien und Ordner und benennt Dateien stapelweise um, in einem Fenster.

  -h, --help  diesen Text zeigen
  --version   die Version ausgeben

Qts eigene Optionen wie -platform und -style werden ebenfalls angenommen.
</translation>
    </message>
    <message>
        <source>unknown option %1 (see --help)</source>
        <translation>unbekannte Option %1 (siehe --help)</translation>
    </message>
    <message>
        <source>unexpected argument %1 (see --help)</source>
        <translation>unerwartetes Argument %1 (siehe --help)</translation>
    </message>
</context>
<context>
    <name>SortOrder</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
</context>
<context>
    <name>SubType</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
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
        <translation>Aufruf: quillmere-scan [--json] [--single-thread] PFAD
        quillmere-scan --help | --version

Findet doppelte Dateien und Ordner unterhalb von PFAD in einem Durchgang.
Dateien über 64 KiB mit gleicher Größe und gleichem Typ werden per Fingerabdruck
verglichen, Ordner nach Gesamtgröße, Anzahl der Einträge und den Fingerabdrücken
ihrer ersten und letzten Datei.
Versteckte Dateien und Ordner sowie jeder Pfad, der „.app“ enthält, werden übersprungen.

  --json           jede Meldung der Suche ausgeben, sobald sie entsteht, ein
                   JSON-Objekt pro Zeile
  --single-thread  jeden Ordner und jede Datei im suchenden Thread lesen statt
                   vorab in einigen weiteren; langsamer, mit denselben Meldungen
  -h, --help       diesen Text zeigen
  --version        die Version ausgeben

Rückgabewert: 0, wenn die Suche lief, 1, wenn die Ausgabe nicht geschrieben werden
konnte, 2, wenn PFAD kein lesbarer Ordner ist oder die Argumente falsch sind.
</translation>
    </message>
    <message>
        <source>unknown option %1 (see --help)</source>
        <translation>unbekannte Option %1 (siehe --help)</translation>
    </message>
    <message>
        <source>expected one folder to scan (see --help)</source>
        <translation>erwartet genau einen zu durchsuchenden Ordner (siehe --help)</translation>
    </message>
    <message>
        <source>%1: no such file or folder</source>
        <translation>%1: Datei oder Ordner nicht vorhanden</translation>
    </message>
    <message>
        <source>%1: not a folder</source>
        <translation>%1: kein Ordner</translation>
    </message>
    <message>
        <source>%1: folder cannot be read</source>
        <translation>%1: Ordner kann nicht gelesen werden</translation>
    </message>
</context>
</TS>
