#include "SubTypeFilter.h"

#include "UniformTypes.h"

namespace {
const QString folderIdentifier = QStringLiteral("Folder");
}

std::optional<QString> SubTypeFilter::targetFor(SubType subType)
{
    switch (subType) {
    case SubType::All:
        return std::nullopt;
    case SubType::Photo:
        return UniformTypes::image;
    case SubType::Music:
        return UniformTypes::audio;
    case SubType::Document:
        return UniformTypes::content;
    case SubType::Folder:
        return folderIdentifier;
    }
    Q_UNREACHABLE();
    return std::nullopt;
}

bool SubTypeFilter::checkNotAllowedDocumentType(const QString &fileUTI) const
{
    for (const QString &kind : {UniformTypes::sourceCode, UniformTypes::xcodeProject,
                                UniformTypes::storyboard, UniformTypes::cocoaNib}) {
        if (m_types.conformsTo(fileUTI, kind))
            return false;
    }
    return true;
}

bool SubTypeFilter::checkAllowedDocumentType(const QString &fileUTI) const
{
    for (const QString &kind :
         {UniformTypes::rtf, UniformTypes::text, UniformTypes::pdf, UniformTypes::rtfd,
          UniformTypes::flatRtfd, UniformTypes::utf8PlainText, UniformTypes::utf16ExternalPlainText,
          UniformTypes::utf16PlainText, UniformTypes::wordDocument,
          UniformTypes::wordOpenXmlDocument, UniformTypes::numbersDocument,
          UniformTypes::openDocument}) {
        if (m_types.conformsTo(fileUTI, kind))
            return true;
    }
    return false;
}

bool SubTypeFilter::belongs(SubType subType, const QString &fileUTI) const
{
    QHash<QString, bool> &decided = m_decided[static_cast<size_t>(subType)];
    auto found = decided.constFind(fileUTI);
    if (found == decided.cend())
        found = decided.insert(fileUTI, decide(subType, fileUTI));
    return *found;
}

bool SubTypeFilter::decide(SubType subType, const QString &fileUTI) const
{
    const auto target = targetFor(subType);
    if (!target)
        return false;
    // Film passes the first gate of every view; the second gate sends it to Music alone.
    if (!m_types.conformsTo(fileUTI, *target) && !m_types.conformsTo(fileUTI, UniformTypes::movie))
        return false;
    switch (subType) {
    case SubType::Document:
        return checkNotAllowedDocumentType(fileUTI) && checkAllowedDocumentType(fileUTI);
    case SubType::Music:
        return m_types.conformsTo(fileUTI, UniformTypes::movie) ||
               m_types.conformsTo(fileUTI, UniformTypes::audio);
    case SubType::All:
    case SubType::Photo:
    case SubType::Folder:
        return m_types.conformsTo(fileUTI, UniformTypes::image) ||
               m_types.conformsTo(fileUTI, folderIdentifier);
    }
    Q_UNREACHABLE();
    return false;
}

QStringList SubTypeFilter::keysOfSubType(SubType subType, const QStringList &allData,
                                         const GroupMap &groups) const
{
    QStringList keys;
    for (const QString &key : allData) {
        const GroupRecord *group = groups.find(key);
        if (group && belongs(subType, group->fileUTI))
            keys.append(key);
    }
    return keys;
}
