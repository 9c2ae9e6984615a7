#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

// How far a walk of a folder has come, guessed from the folder it is in. The walk takes
// a folder's entries in the byte order of their names, depth first, so the place of the
// current folder among its parent's folders tells what is done: the first level gives
// the share, the second level the share within it. Nothing is counted ahead, which would
// cost a second walk; the guess only ever grows.
class ScanProgressEstimate
{
public:
    explicit ScanProgressEstimate(const QString &root = {});

    // From 0 to 1; a folder outside the root, or one not listed, leaves it as it was.
    double fractionAt(const QString &currentFolder);

    // The visible folders directly inside `folder`, as the walk orders them; links to
    // folders are not followed by the walk and not listed.
    static QStringList foldersInWalkOrder(const QString &folder);

private:
    const QStringList &foldersOf(const QString &folder);

    QString m_root;
    QHash<QString, QStringList> m_listed;
    double m_fraction = 0;
};
