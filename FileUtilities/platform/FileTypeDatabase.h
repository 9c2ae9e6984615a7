#pragma once

#include <QHash>
#include <QMimeDatabase>
#include <QString>

// What kind of file a name stands for, from the shared MIME database and the name alone:
// the readable type text (for example "PNG image") and the type identifier (the MIME type
// name, for example "image/png"). Every folder's type text is "Folder".
//
// Not thread-safe: each thread that asks keeps its own instance.
class FileTypeDatabase
{
public:
    struct FileType
    {
        QString description;
        QString identifier;
    };

    FileType typeForFileName(const QString &fileName) const;
    static QString folderDescription();

private:
    QMimeDatabase m_mimeDatabase;
    // The comment of a MIME type is looked up in the database's XML; keep each one found.
    mutable QHash<QString, FileType> m_typeByIdentifier;
};
