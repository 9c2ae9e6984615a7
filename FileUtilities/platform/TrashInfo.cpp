#include "TrashInfo.h"

#include <QList>

namespace {

// Local time without a zone, as the format wants it.
QString dateFormat()
{
    return QStringLiteral("yyyy-MM-dd'T'HH:mm:ss");
}

bool isKeptAsIs(char byte)
{
    if ((byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
        (byte >= '0' && byte <= '9'))
        return true;
    switch (byte) {
    case '-':
    case '_':
    case '.':
    case '!':
    case '~':
    case '*':
    case '\'':
    case '(':
    case ')':
    case '/':
        return true;
    default:
        return false;
    }
}

int hexValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    return -1;
}

} // namespace

QByteArray TrashInfo::toBytes() const
{
    return QByteArrayLiteral("[Trash Info]\nPath=") + encodePath(path) +
           QByteArrayLiteral("\nDeletionDate=") + deletionDate.toString(dateFormat()).toLatin1() +
           '\n';
}

std::optional<TrashInfo> TrashInfo::fromBytes(const QByteArray &content)
{
    bool inGroup = false;
    bool sawGroup = false;
    std::optional<QByteArray> path;
    std::optional<QByteArray> date;
    for (QByteArray line : content.split('\n')) {
        if (line.endsWith('\r'))
            line.chop(1);
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        if (line.startsWith('[')) {
            // Only the first group is the record; anything after it belongs to others.
            if (sawGroup)
                break;
            sawGroup = true;
            inGroup = line == "[Trash Info]";
            if (!inGroup)
                return std::nullopt;
            continue;
        }
        if (!inGroup)
            return std::nullopt;
        const qsizetype equals = line.indexOf('=');
        if (equals < 0)
            continue;
        const QByteArray key = line.left(equals).trimmed();
        const QByteArray value = line.mid(equals + 1).trimmed();
        if (key == "Path" && !path)
            path = value;
        else if (key == "DeletionDate" && !date)
            date = value;
    }
    if (!path)
        return std::nullopt;
    std::optional<QByteArray> nativePath = decodePath(*path);
    if (!nativePath || nativePath->isEmpty())
        return std::nullopt;
    TrashInfo info;
    info.path = *std::move(nativePath);
    if (date)
        info.deletionDate = QDateTime::fromString(QString::fromLatin1(*date), dateFormat());
    return info;
}

QByteArray TrashInfo::encodePath(const QByteArray &nativePath)
{
    static constexpr char hexDigits[] = "0123456789ABCDEF";
    QByteArray encoded;
    encoded.reserve(nativePath.size());
    for (const char byte : nativePath) {
        if (isKeptAsIs(byte)) {
            encoded.append(byte);
            continue;
        }
        const auto value = static_cast<unsigned char>(byte);
        encoded.append('%');
        encoded.append(hexDigits[value >> 4]);
        encoded.append(hexDigits[value & 0x0F]);
    }
    return encoded;
}

std::optional<QByteArray> TrashInfo::decodePath(const QByteArray &encodedPath)
{
    QByteArray decoded;
    decoded.reserve(encodedPath.size());
    for (qsizetype i = 0; i < encodedPath.size(); ++i) {
        const char byte = encodedPath.at(i);
        if (byte != '%') {
            decoded.append(byte);
            continue;
        }
        if (i + 2 >= encodedPath.size())
            return std::nullopt;
        const int high = hexValue(encodedPath.at(i + 1));
        const int low = hexValue(encodedPath.at(i + 2));
        if (high < 0 || low < 0)
            return std::nullopt;
        decoded.append(static_cast<char>(high * 16 + low));
        i += 2;
    }
    // No native path holds a NUL; a record that claims one was written by something else.
    if (decoded.contains('\0'))
        return std::nullopt;
    return decoded;
}
