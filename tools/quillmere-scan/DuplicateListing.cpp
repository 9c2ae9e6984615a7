#include "DuplicateListing.h"

#include "ByteCountFormatter.h"
#include "GroupOrdering.h"

QString DuplicateListing::sizeText(qint64 bytes)
{
    return ByteCountFormatter::binary(bytes);
}

QByteArray DuplicateListing::format(const GroupMap &groups, const QStringList &keys,
                                    qint64 totalDuplicates, qint64 totalDupesSize)
{
    // The results screen's "Size" order: largest first, equal sizes in discovery order, so
    // the listing is reproducible.
    QString out;
    for (const QString &key : GroupOrdering::sortedKeys(SortOrder::Size, keys, groups)) {
        const GroupRecord &group = *groups.find(key);
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
