#pragma once

#include <QList>
#include <QString>
#include <QUrl>

#include <functional>

// What an open panel offers and where it starts.
struct OpenPanelRequest
{
    QString directory;
    QString message;
    bool canChooseFiles = true;
    bool canChooseDirectories = false;
    bool allowsMultipleSelection = false;
    bool canCreateDirectories = false;
    bool showsHiddenFiles = false;
    // Which paths may be chosen; others are shown but cannot be. Unset: all.
    std::function<bool(const QString &path)> shouldEnable;
};

// Lets the user choose files or folders; an empty list means the panel was cancelled.
class OpenPanel
{
public:
    virtual ~OpenPanel() = default;
    virtual QList<QUrl> runModal(const OpenPanelRequest &request) = 0;
};
