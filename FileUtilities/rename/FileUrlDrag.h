#pragma once

#include <QList>
#include <QUrl>

class QDropEvent;
class QMimeData;

// What the drop targets of the rename screen take: files, given as local file URLs, and
// only files. A drag that holds anything else, a web link say, is refused whole.
class FileUrlDrag
{
public:
    // The dragged URLs when every one is a local file; else none.
    static QList<QUrl> fileUrls(const QMimeData *mimeData);
    // Accepts a drag or drop of files as a copy, the only thing a drop here means; refuses
    // any other. True when accepted.
    static bool acceptFiles(QDropEvent *event);
};
