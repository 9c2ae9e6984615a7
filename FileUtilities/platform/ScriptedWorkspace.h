#pragma once

#include "Workspace.h"

#include <QStringList>

// Records what would have been opened, shown or trashed, for tests; trashing succeeds
// unless `trashError` is set, and touches no file.
class ScriptedWorkspace final : public Workspace
{
public:
    QList<QUrl> openedURLs;
    QStringList selectedFiles;
    QStringList trashedPaths;
    QString trashError;

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
        if (!trashError.isEmpty())
            return TrashResult{false, QString(), trashError};
        trashedPaths.append(path);
        return TrashResult{true, path, QString()};
    }
};
