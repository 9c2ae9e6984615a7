#pragma once

#include "Workspace.h"

// The freedesktop implementation: QDesktopServices for links, the file manager's D-Bus
// interface for showing an item, and the freedesktop Trash.
class DesktopWorkspace final : public Workspace
{
public:
    bool openURL(const QUrl &url) override;
    bool selectFile(const QString &path) override;
    TrashResult moveToTrash(const QString &path) override;
};
