#pragma once

#include <QByteArray>
#include <QString>

// One file a rename moved, kept so that the move can be undone: where it was, where it went,
// and a bookmark to find it by if it has moved since.
struct RenamedFile
{
    QString key;      // the row it was listed under
    QString fromPath; // its path before the rename
    QString toPath;   // its path right after
    QByteArray bookmark = {};
};
