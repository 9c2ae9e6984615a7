#include "FileTypeDatabase.h"

#include <QCoreApplication>
#include <QFile>
#include <QMimeType>
#include <QStandardPaths>

namespace {

bool isPlainSuffixGlob(QStringView pattern)
{
    if (!pattern.startsWith(QLatin1String("*.")))
        return false;
    for (const QChar c : pattern.mid(2)) {
        if (c == u'*' || c == u'?' || c == u'[' || c == u']')
            return false;
    }
    return true;
}

} // namespace

FileTypeDatabase::FileTypeDatabase() : m_unusualNames(unusualNamePatterns()) {}

// Every glob of the databases on the data path that is not a plain "*.suffix", as one
// expression. Lines read "weight:type:glob[:flags]"; "cs" marks a case-sensitive glob.
QRegularExpression FileTypeDatabase::unusualNamePatterns()
{
    QStringList alternatives;
    const QStringList files = QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                                        QStringLiteral("mime/globs2"));
    for (const QString &path : files) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        while (!file.atEnd()) {
            const QString line = QString::fromUtf8(file.readLine()).trimmed();
            if (line.isEmpty() || line.startsWith(u'#'))
                continue;
            const QStringList fields = line.split(u':');
            if (fields.size() < 3 || isPlainSuffixGlob(fields[2]))
                continue;
            const bool caseSensitive = fields.size() > 3 && fields[3].contains(QLatin1String("cs"));
            // Anchored; a name holds no slash, so "*" may span all of it.
            const QString expression = QRegularExpression::wildcardToRegularExpression(fields[2]);
            alternatives.append(caseSensitive ? expression
                                              : QStringLiteral("(?i:") + expression + u')');
        }
    }
    if (alternatives.isEmpty())
        return QRegularExpression(QStringLiteral("(?!)")); // matches nothing
    return QRegularExpression(alternatives.join(u'|'));
}

FileTypeDatabase::FileType FileTypeDatabase::typeForFileName(const QString &fileName) const
{
    const qsizetype firstDot = fileName.indexOf(u'.');
    // With no database on the data path, every name is asked: nothing is known to be safe.
    if (firstDot < 0 || !m_unusualNames.isValid() || m_unusualNames.match(fileName).hasMatch())
        return lookUp(fileName);
    const QString ending = fileName.mid(firstDot);
    auto known = m_typeByEnding.constFind(ending);
    if (known == m_typeByEnding.constEnd())
        known = m_typeByEnding.insert(ending, lookUp(fileName));
    return *known;
}

FileTypeDatabase::FileType FileTypeDatabase::lookUp(const QString &fileName) const
{
    const QMimeType type = m_mimeDatabase.mimeTypeForFile(fileName, QMimeDatabase::MatchExtension);
    auto known = m_typeByIdentifier.constFind(type.name());
    if (known == m_typeByIdentifier.constEnd())
        known = m_typeByIdentifier.insert(type.name(), FileType{type.comment(), type.name()});
    // The remembered texts are shared by every record of the type, not copied into each.
    return *known;
}

QString FileTypeDatabase::folderDescription()
{
    return QCoreApplication::translate("FileTypeDatabase", "Folder");
}
