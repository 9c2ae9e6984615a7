#include "FileTypeDatabase.h"

#include <QMimeType>

FileTypeDatabase::FileType FileTypeDatabase::typeForFileName(const QString &fileName) const
{
    const QMimeType type = m_mimeDatabase.mimeTypeForFile(fileName, QMimeDatabase::MatchExtension);
    auto known = m_typeByIdentifier.constFind(type.name());
    if (known == m_typeByIdentifier.constEnd())
        known = m_typeByIdentifier.insert(type.name(), FileType{type.comment(), type.name()});
    // The remembered texts are shared by every record of the type, not copied into each.
    return *known;
}

QString FileTypeDatabase::folderDescription()
{
    return QStringLiteral("Folder");
}
