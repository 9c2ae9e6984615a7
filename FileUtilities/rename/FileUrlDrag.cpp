#include "FileUrlDrag.h"

#include <QDropEvent>
#include <QMimeData>

QList<QUrl> FileUrlDrag::fileUrls(const QMimeData *mimeData)
{
    if (!mimeData || !mimeData->hasUrls())
        return {};
    const QList<QUrl> urls = mimeData->urls();
    for (const QUrl &url : urls) {
        if (!url.isLocalFile())
            return {};
    }
    return urls;
}

bool FileUrlDrag::acceptFiles(QDropEvent *event)
{
    if (fileUrls(event->mimeData()).isEmpty()) {
        event->ignore();
        return false;
    }
    // Nothing is moved or copied by the drop itself; a copy is what leaves the source be.
    if (event->possibleActions() & Qt::CopyAction) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    } else {
        event->acceptProposedAction();
    }
    return true;
}
