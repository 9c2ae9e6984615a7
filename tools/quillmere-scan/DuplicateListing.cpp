#include "DuplicateListing.h"

#include "ByteCountFormatter.h"
#include "GroupOrdering.h"
#include "HardLinks.h"

QString DuplicateListing::sizeText(qint64 bytes)
{
    return ByteCountFormatter::binary(bytes);
}

QString DuplicateListing::lineSafe(const QString &text)
{
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u == u'\\')
            out += QStringLiteral("\\\\");
        else if (u == u'\n')
            out += QStringLiteral("\\n");
        else if (u == u'\t')
            out += QStringLiteral("\\t");
        else if (u == u'\r')
            out += QStringLiteral("\\r");
        else if (u < 0x20 || u == 0x7f)
            out += QStringLiteral("\\x%1").arg(u, 2, 16, QLatin1Char('0'));
        else
            out += c;
    }
    return out;
}

QByteArray DuplicateListing::format(const GroupMap &groups, const QStringList &keys,
                                    qint64 totalDuplicates, qint64 totalDupesSize)
{
    // The results screen's "Size" order: largest first, equal sizes in discovery order, so
    // the listing is reproducible.
    QString out;
    qint64 reclaimable = totalDupesSize;
    for (const QString &key : GroupOrdering::sortedKeys(SortOrder::Size, keys, groups)) {
        const GroupRecord &group = *groups.find(key);
        // A second name of a file frees nothing when it goes.
        reclaimable -= group.totalSize - group.fileSize - HardLinks::reclaimableBytes(group);
        const QList<int> sameFileAs = HardLinks::sameFileAs(group);
        out += lineSafe(group.fileName) + QStringLiteral(" (") + group.fileType +
               QStringLiteral("): ") + QString::number(group.filePath.size()) +
               QStringLiteral(" copies of ") + sizeText(group.fileSize) + QStringLiteral(", ") +
               sizeText(group.totalSize) + QStringLiteral(" in all\n");
        for (qsizetype row = 0; row < group.filePath.size(); ++row) {
            out += QStringLiteral("  ") + lineSafe(group.filePath.at(row));
            if (sameFileAs.at(row) >= 0)
                out += QStringLiteral(" (same file as %1)").arg(sameFileAs.at(row) + 1);
            out += u'\n';
        }
        out += u'\n';
    }
    out += QString::number(totalDuplicates) + QStringLiteral(" duplicate files, ") +
           sizeText(reclaimable) + QStringLiteral(" reclaimable\n");
    return out.toUtf8();
}
