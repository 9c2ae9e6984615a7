#include "DuplicateListing.h"

#include <QLocale>

#include <algorithm>

QString DuplicateListing::sizeText(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeIecFormat);
}

QByteArray DuplicateListing::format(const GroupMap &groups, const QStringList &keys,
                                    qint64 totalDuplicates, qint64 totalDupesSize)
{
    struct Entry
    {
        QString key;
        const GroupRecord *group;
    };
    std::vector<Entry> entries;
    entries.reserve(static_cast<size_t>(keys.size()));
    for (const QString &key : keys) {
        if (const GroupRecord *group = groups.find(key))
            entries.push_back({key, group});
    }
    // Largest first; equal sizes keep discovery order, so the listing is reproducible.
    std::stable_sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) {
        return a.group->totalSize > b.group->totalSize;
    });

    QString out;
    for (const Entry &entry : entries) {
        const GroupRecord &group = *entry.group;
        out += group.fileName + QStringLiteral(" (") + group.fileType + QStringLiteral("): ") +
               QString::number(group.filePath.size()) + QStringLiteral(" copies of ") +
               sizeText(group.fileSize) + QStringLiteral(", ") + sizeText(group.totalSize) +
               QStringLiteral(" in all\n");
        for (const QString &path : group.filePath)
            out += QStringLiteral("  ") + path + u'\n';
        out += u'\n';
    }
    out += QString::number(totalDuplicates) + QStringLiteral(" duplicate files, ") +
           sizeText(totalDupesSize) + QStringLiteral(" reclaimable\n");
    return out.toUtf8();
}
