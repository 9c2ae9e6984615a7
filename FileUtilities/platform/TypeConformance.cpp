#include "TypeConformance.h"

#include "UniformTypes.h"

#include <QMimeType>

namespace {

// Kinds by the MIME types that make them up; a type inheriting from one of these
// belongs to the kind as well.
const QHash<QString, QStringList> &membersOfKinds()
{
    static const QHash<QString, QStringList> members{
        {UniformTypes::text, {QStringLiteral("text/plain")}},
        {UniformTypes::utf8PlainText, {QStringLiteral("text/plain")}},
        {UniformTypes::utf16ExternalPlainText, {QStringLiteral("text/plain")}},
        {UniformTypes::utf16PlainText, {QStringLiteral("text/plain")}},
        {UniformTypes::rtf, {QStringLiteral("application/rtf"), QStringLiteral("text/rtf")}},
        {UniformTypes::pdf, {QStringLiteral("application/pdf")}},
        {UniformTypes::wordDocument, {QStringLiteral("application/msword")}},
        {UniformTypes::wordOpenXmlDocument,
         {QStringLiteral(
             "application/vnd.openxmlformats-officedocument.wordprocessingml.document")}},
        {UniformTypes::numbersDocument, {QStringLiteral("application/vnd.apple.numbers")}},
        {UniformTypes::openDocument,
         {QStringLiteral("application/vnd.oasis.opendocument.text"),
          QStringLiteral("application/vnd.oasis.opendocument.spreadsheet"),
          QStringLiteral("application/vnd.oasis.opendocument.presentation")}},
        {UniformTypes::sourceCode,
         {QStringLiteral("text/x-csrc"),
          QStringLiteral("text/x-chdr"),
          QStringLiteral("text/x-c++src"),
          QStringLiteral("text/x-c++hdr"),
          QStringLiteral("text/x-objcsrc"),
          QStringLiteral("text/x-java"),
          QStringLiteral("text/x-python"),
          QStringLiteral("text/x-python3"),
          QStringLiteral("application/x-shellscript"),
          QStringLiteral("application/x-perl"),
          QStringLiteral("application/x-ruby"),
          QStringLiteral("application/javascript"),
          QStringLiteral("text/javascript"),
          QStringLiteral("text/x-go"),
          QStringLiteral("text/rust"),
          QStringLiteral("text/x-kotlin"),
          QStringLiteral("text/x-csharp"),
          QStringLiteral("application/x-php"),
          QStringLiteral("text/x-makefile"),
          QStringLiteral("text/x-cmake"),
          QStringLiteral("text/x-lua"),
          QStringLiteral("text/x-scala"),
          QStringLiteral("text/x-haskell"),
          QStringLiteral("text/x-swift")}},
        // Documents a person made: text, pictures, sound and film, and the office formats.
        {UniformTypes::content,
         {QStringLiteral("text/plain"), QStringLiteral("application/pdf"),
          QStringLiteral("application/rtf"), QStringLiteral("application/msword"),
          QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.document"),
          QStringLiteral("application/vnd.openxmlformats-officedocument.spreadsheetml.sheet"),
          QStringLiteral(
              "application/vnd.openxmlformats-officedocument.presentationml.presentation"),
          QStringLiteral("application/vnd.ms-excel"),
          QStringLiteral("application/vnd.ms-powerpoint"),
          QStringLiteral("application/vnd.oasis.opendocument.text"),
          QStringLiteral("application/vnd.oasis.opendocument.spreadsheet"),
          QStringLiteral("application/vnd.oasis.opendocument.presentation"),
          QStringLiteral("application/vnd.apple.numbers"),
          QStringLiteral("application/vnd.apple.pages"),
          QStringLiteral("application/vnd.apple.keynote"), QStringLiteral("application/epub+zip")}},
    };
    return members;
}

// Kinds that take whole families of MIME types.
const QHash<QString, QString> &familyOfKinds()
{
    static const QHash<QString, QString> families{
        {UniformTypes::image, QStringLiteral("image/")},
        {UniformTypes::audio, QStringLiteral("audio/")},
        {UniformTypes::movie, QStringLiteral("video/")},
    };
    return families;
}

} // namespace

bool TypeConformance::inheritsAny(const QString &type, const QStringList &ancestors) const
{
    const QMimeType mime = m_mimeDatabase.mimeTypeForName(type);
    for (const QString &ancestor : ancestors) {
        if (type == ancestor || (mime.isValid() && mime.inherits(ancestor)))
            return true;
    }
    return false;
}

bool TypeConformance::conformsTo(const QString &type, const QString &kind) const
{
    if (type.isEmpty() || kind.isEmpty())
        return false;
    if (type == kind)
        return true;
    if (const auto family = familyOfKinds().constFind(kind); family != familyOfKinds().constEnd())
        return type.startsWith(*family);
    // Pictures, sound and film are content too.
    if (kind == UniformTypes::content &&
        (type.startsWith(QLatin1String("image/")) || type.startsWith(QLatin1String("audio/")) ||
         type.startsWith(QLatin1String("video/"))))
        return true;
    if (const auto members = membersOfKinds().constFind(kind);
        members != membersOfKinds().constEnd())
        return inheritsAny(type, *members);
    // Any other kind is a MIME type name: inheritance decides.
    return inheritsAny(type, {kind});
}
