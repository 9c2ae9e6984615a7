#pragma once

#include <QString>
#include <QStringList>

// What the scan knows of a folder it has seen.
struct FolderRecord
{
    qint64 fileCount = 0; // direct files, plus for each closed subfolder its count plus one
    qint64 fileSize = 0;  // 0 while open; the total once closed and large enough to compare
    QString firstHash;    // fingerprint of the first readable file directly inside
    QString lastHash;     // set to the last file's fingerprint when the folder closes

    // Regular files seen directly inside while `firstHash` is not yet taken. The first
    // fingerprint only matters once the folder closes large enough to be compared, so it
    // is taken then, from the first of these that can be read; most folders never need it.
    QStringList unhashedFiles;
};
