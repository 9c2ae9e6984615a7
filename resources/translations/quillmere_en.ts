<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>BRDuplicateCancelViewController</name>
    <message numerus="yes">
        <source>%1 item scanned</source>
        <translation>
            <numerusform>%1 item scanned</numerusform>
            <numerusform>%1 items scanned</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items scanned</source>
        <translation>
            <numerusform>%1 item scanned</numerusform>
            <numerusform>%1 items scanned</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BRDuplicateFilesViewController</name>
    <message numerus="yes">
        <source>%n duplicate files found.</source>
        <translation>
            <numerusform>%n duplicate file found.</numerusform>
            <numerusform>%n duplicate files found.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>One copy of each of %n group stays: %1.</source>
        <translation>
            <numerusform>One copy of each of %n group stays: %1.</numerusform>
            <numerusform>One copy of each of %n groups stays: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>One copy of each of %n groups stays: %1.</source>
        <translation>
            <numerusform>One copy of each of %n group stays: %1.</numerusform>
            <numerusform>One copy of each of %n groups stays: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file goes to the Trash and frees %1.</source>
        <translation>
            <numerusform>%n file goes to the Trash and frees %1.</numerusform>
            <numerusform>%n files go to the Trash and free %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files go to the Trash and free %1.</source>
        <translation>
            <numerusform>%n file goes to the Trash and frees %1.</numerusform>
            <numerusform>%n files go to the Trash and free %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group has no copy in “%1” and is left whole.</source>
        <translation>
            <numerusform>%n group has no copy in “%1” and is left whole.</numerusform>
            <numerusform>%n groups have no copy in “%1” and are left whole.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n groups have no copy in “%1” and are left whole.</source>
        <translation>
            <numerusform>%n group has no copy in “%1” and is left whole.</numerusform>
            <numerusform>%n groups have no copy in “%1” and are left whole.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n file to the Trash?</source>
        <translation>
            <numerusform>Move %n file to the Trash?</numerusform>
            <numerusform>Move %n files to the Trash?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n files to the Trash?</source>
        <translation>
            <numerusform>Move %n file to the Trash?</numerusform>
            <numerusform>Move %n files to the Trash?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: they had changed since the scan.</source>
        <translation>
            <numerusform>%n file was kept: it had changed since the scan.</numerusform>
            <numerusform>%n files were kept: they had changed since the scan.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: they are not exact copies of the ones that stay.</source>
        <translation>
            <numerusform>%n file was kept: it is not an exact copy of the one that stays.</numerusform>
            <numerusform>%n files were kept: they are not exact copies of the ones that stay.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: the copies meant to stay are gone.</source>
        <translation>
            <numerusform>%n file was kept: the copy meant to stay is gone.</numerusform>
            <numerusform>%n files were kept: the copies meant to stay are gone.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept: they could not be compared.</source>
        <translation>
            <numerusform>%n file was kept: it could not be compared.</numerusform>
            <numerusform>%n files were kept: they could not be compared.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files were kept. The first: </source>
        <translation>
            <numerusform>%n file was kept: </numerusform>
            <numerusform>%n files were kept. The first: </numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files were gone already.</source>
        <translation>
            <numerusform>%n file was gone already.</numerusform>
            <numerusform>%n files were gone already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group had no copy in “%1” and was left whole.</source>
        <translation>
            <numerusform>%n group had no copy in “%1” and was left whole.</numerusform>
            <numerusform>%n groups had no copy in “%1” and were left whole.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n groups had no copy in “%1” and were left whole.</source>
        <translation>
            <numerusform>%n group had no copy in “%1” and was left whole.</numerusform>
            <numerusform>%n groups had no copy in “%1” and were left whole.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped: %n file was not checked and stayed.</source>
        <translation>
            <numerusform>Stopped: %n file was not checked and stayed.</numerusform>
            <numerusform>Stopped: %n files were not checked and stayed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped: %n files were not checked and stayed.</source>
        <translation>
            <numerusform>Stopped: %n file was not checked and stayed.</numerusform>
            <numerusform>Stopped: %n files were not checked and stayed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files were moved to the Trash</source>
        <translation>
            <numerusform>%n file was moved to the Trash</numerusform>
            <numerusform>%n files were moved to the Trash</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BRRenameCompleteView</name>
    <message numerus="yes">
        <source>%n files renamed</source>
        <translation>
            <numerusform>%n file renamed</numerusform>
            <numerusform>%n files renamed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n failed</source>
        <translation>
            <numerusform>, %n failed</numerusform>
            <numerusform>, %n failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files have their old names again</source>
        <translation>
            <numerusform>%n file has its old name again</numerusform>
            <numerusform>%n files have their old names again</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n could not go back</source>
        <translation>
            <numerusform>, %n could not go back</numerusform>
            <numerusform>, %n could not go back</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BRRenameViewController</name>
    <message numerus="yes">
        <source>%n more files could not go back either.</source>
        <translation>
            <numerusform>%n more file could not go back either.</numerusform>
            <numerusform>%n more files could not go back either.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %n files</source>
        <translation>
            <numerusform>Rename %n file</numerusform>
            <numerusform>Rename %n files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DuplicateTableModel</name>
    <message numerus="yes">
        <source>%1 copies</source>
        <translation>
            <numerusform>%1 copy</numerusform>
            <numerusform>%1 copies</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanAttention</name>
    <message numerus="yes">
        <source>%n duplicate file found.</source>
        <translation>
            <numerusform>%n duplicate file found.</numerusform>
            <numerusform>%n duplicate files found.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate files found.</source>
        <translation>
            <numerusform>%n duplicate file found.</numerusform>
            <numerusform>%n duplicate files found.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate file found in %1.</source>
        <translation>
            <numerusform>%n duplicate file found in %1.</numerusform>
            <numerusform>%n duplicate files found in %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate files found in %1.</source>
        <translation>
            <numerusform>%n duplicate file found in %1.</numerusform>
            <numerusform>%n duplicate files found in %1.</numerusform>
        </translation>
    </message>
</context>
</TS>
