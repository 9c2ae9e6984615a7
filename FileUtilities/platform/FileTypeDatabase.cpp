#include "FileTypeDatabase.h"

#include <QMimeType>

FileTypeDatabase::FileType FileTypeDatabase::typeForFileName(const QString &fileName) const
{
    const QMimeType type = m_mimeDatabase.mimeTypeForFile(fileName, QMimeDatabase::MatchExtension);
    FileType result;
    result.identifier = type.name();
    auto known = m_descriptionByIdentifier.constFind(result.identifier);
    if (known == m_descriptionByIdentifier.constEnd())
        known = m_descriptionByIdentifier.insert(result.identifier, type.comment());
    result.description = *known;
    return result;
}

QString FileTypeDatabase::folderDescription()
{
    return QStringLiteral("Folder");
}
