#pragma once

#include "GroupMap.h"
#include "SubType.h"
#include "TypeConformance.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

// Sorts groups into the four views beside All: Photo (images), Music (sound and film),
// Document (text, PDF, office files, but not source code) and Folder. The decision is
// made from a group's type identifier each time a view is chosen; nothing is stored.
class SubTypeFilter
{
public:
    // The kind a sub-type stands for; nothing for All, which is no kind.
    static std::optional<QString> targetFor(SubType subType);

    // Decided once per kind: a list holds few kinds and many groups. No group belongs to All.
    bool belongs(SubType subType, const QString &fileUTI) const;
    // False for source code and developer project files, which count as text.
    bool checkNotAllowedDocumentType(const QString &fileUTI) const;
    // True for the document formats a person reads.
    bool checkAllowedDocumentType(const QString &fileUTI) const;

    // The keys of `allData` whose groups belong to the sub-type, in the same order; keys
    // whose group is gone are passed over.
    QStringList keysOfSubType(SubType subType, const QStringList &allData,
                              const GroupMap &groups) const;

private:
    bool decide(SubType subType, const QString &fileUTI) const;

    TypeConformance m_types;
    mutable std::array<QHash<QString, bool>, allSubTypes.size()> m_decided; // by sub-type, type
};
