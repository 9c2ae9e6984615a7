#pragma once

#include "GroupMap.h"
#include "TypeConformance.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

// Sorts groups into the four views beside All: Photo (images), Music (sound and film),
// Document (text, PDF, office files, but not source code) and Folder. The decision is
// made from a group's type identifier each time a view is chosen; nothing is stored.
class SubTypeFilter
{
public:
    // The kind a sub-type stands for; nothing for a name that is no sub-type.
    static std::optional<QString> targetFor(const QString &subType);

    // Decided once per kind: a list holds few kinds and many groups.
    bool belongs(const QString &subType, const QString &fileUTI) const;
    // False for source code and developer project files, which count as text.
    bool checkNotAllowedDocumentType(const QString &fileUTI) const;
    // True for the document formats a person reads.
    bool checkAllowedDocumentType(const QString &fileUTI) const;

    // The keys of `allData` whose groups belong to the sub-type, in the same order; keys
    // whose group is gone are passed over.
    QStringList keysOfSubType(const QString &subType, const QStringList &allData,
                              const GroupMap &groups) const;

private:
    bool decide(const QString &subType, const QString &fileUTI) const;

    TypeConformance m_types;
    mutable QHash<QString, QHash<QString, bool>> m_decided; // by sub-type, then type
};
