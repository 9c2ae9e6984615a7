#pragma once

#include <QHash>
#include <QMimeDatabase>
#include <QRegularExpression>
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

    FileTypeDatabase();

    FileType typeForFileName(const QString &fileName) const;
    static QString folderDescription();

private:
    FileType lookUp(const QString &fileName) const;
    static QRegularExpression unusualNamePatterns();

    QMimeDatabase m_mimeDatabase;
    // Almost every glob in the database is a suffix that starts with a dot ("*.png",
    // "*.tar.gz"), so for most names the type follows from the name's part from its first
    // dot on, and one answer serves every name with that ending. The few other globs
    // ("makefile", "readme*", "*.[1-9]") are matched first, and a name that fits one of
    // them is asked of the database itself, which would otherwise compile its regular
    // expressions anew on every lookup.
    QRegularExpression m_unusualNames;
    mutable QHash<QString, FileType> m_typeByEnding;
    // The comment of a MIME type is looked up in the database's XML; keep each one found.
    mutable QHash<QString, FileType> m_typeByIdentifier;
};
