#include "ScanProgressEstimate.h"

#include <QDir>
#include <QFile>

#include <algorithm>

ScanProgressEstimate::ScanProgressEstimate(const QString &root) : m_root(QDir::cleanPath(root)) {}

QStringList ScanProgressEstimate::foldersInWalkOrder(const QString &folder)
{
    QStringList names =
        QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::NoSort);
    // Byte order of the names as the file system holds them, not the order of QString.
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
        return QFile::encodeName(a) < QFile::encodeName(b);
    });
    return names;
}

const QStringList &ScanProgressEstimate::foldersOf(const QString &folder)
{
    auto listed = m_listed.find(folder);
    if (listed == m_listed.end())
        listed = m_listed.insert(folder, foldersInWalkOrder(folder));
    return *listed;
}

double ScanProgressEstimate::fractionAt(const QString &currentFolder)
{
    const QString prefix = m_root == QStringLiteral("/") ? m_root : m_root + u'/';
    if (m_root.isEmpty() || !currentFolder.startsWith(prefix))
        return m_fraction;
    const QStringList parts = currentFolder.mid(prefix.size()).split(u'/', Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return m_fraction;
    const QStringList &first = foldersOf(m_root);
    const qsizetype outer = first.indexOf(parts.at(0));
    if (outer < 0)
        return m_fraction;
    double within = 0;
    if (parts.size() > 1) {
        const QStringList &second = foldersOf(prefix + parts.at(0));
        const qsizetype inner = second.indexOf(parts.at(1));
        if (inner >= 0)
            within = static_cast<double>(inner) / static_cast<double>(second.size());
    }
    const double guess = (static_cast<double>(outer) + within) / static_cast<double>(first.size());
    m_fraction = std::max(m_fraction, guess);
    return m_fraction;
}
