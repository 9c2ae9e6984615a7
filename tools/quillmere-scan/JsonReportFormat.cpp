#include "JsonReportFormat.h"

namespace {

QByteArray number(qint64 value)
{
    return QByteArray::number(value);
}

} // namespace

QByteArray JsonReportFormat::string(const QString &text)
{
    static const char hexDigits[] = "0123456789abcdef";
    const QByteArray utf8 = text.toUtf8();
    QByteArray out;
    out.reserve(utf8.size() + 2);
    out += '"';
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\b':
            out += "\\b";
            break;
        case '\f':
            out += "\\f";
            break;
        default:
            if (byte < 0x20) {
                out += "\\u00";
                out += hexDigits[byte >> 4];
                out += hexDigits[byte & 0xf];
            } else {
                out += c;
            }
        }
    }
    out += '"';
    return out;
}

QByteArray JsonReportFormat::record(const GroupRecord &group)
{
    QByteArray out = "{\"fileName\": " + string(group.fileName);
    out += ", \"fileSize\": " + number(group.fileSize);
    out += ", \"fileType\": " + string(group.fileType);
    out += ", \"filePath\": [";
    for (qsizetype i = 0; i < group.filePath.size(); ++i) {
        if (i > 0)
            out += ", ";
        out += string(group.filePath.at(i));
    }
    out += "], \"oldKey\": " + string(group.oldKey);
    out += ", \"fileUTI\": " + string(group.fileUTI);
    out += ", \"totalSize\": " + number(group.totalSize);
    out += '}';
    return out;
}

QByteArray JsonReportFormat::liveReport(const QString &key, qint64 totalDuplicates,
                                        qint64 totalDupesSize, const GroupRecord &group)
{
    return "{\"completeStatus\": false, \"key\": " + string(key) +
           ", \"totalDuplicates\": " + number(totalDuplicates) +
           ", \"totalDupesSize\": " + number(totalDupesSize) + ", \"group\": " + record(group) +
           '}';
}

QByteArray JsonReportFormat::finalReport(const GroupMap &groups, const QStringList &keyOrder,
                                         qint64 totalDuplicates, qint64 totalDupesSize)
{
    QByteArray out = "{\"completeStatus\": true, \"key\": \"\", \"totalDuplicates\": " +
                     number(totalDuplicates) + ", \"totalDupesSize\": " + number(totalDupesSize) +
                     ", \"groups\": {";
    bool first = true;
    for (const QString &key : keyOrder) {
        const GroupRecord *group = groups.find(key);
        if (!group)
            continue;
        if (!first)
            out += ", ";
        first = false;
        out += string(key) + ": " + record(*group);
    }
    out += "}}";
    return out;
}
