#pragma once

#include "Workspace.h"

#include <QStringList>

#include <functional>

// Records what would have been opened, shown or trashed, for tests; trashing succeeds
// unless `trashError` is set, and touches no file. Trashing may be asked from a worker
// thread; `beforeTrash` runs there first, so a test can hold it.
class ScriptedWorkspace final : public Workspace
{
public:
    QList<QUrl> openedURLs;
    QStringList selectedFiles;
    QStringList trashedPaths;
    QString trashError;
    std::function<void(const QString &)> beforeTrash;

    bool openURL(const QUrl &url) override
    {
        openedURLs.append(url);
        return true;
    }
    bool selectFile(const QString &path) override
    {
        selectedFiles.append(path);
        return true;
    }
    TrashResult moveToTrash(const QString &path) override
    {
        if (beforeTrash)
            beforeTrash(path);
        if (!trashError.isEmpty())
            return TrashResult{false, QString(), trashError};
        trashedPaths.append(path);
        return TrashResult{true, path, QString()};
    }
};
