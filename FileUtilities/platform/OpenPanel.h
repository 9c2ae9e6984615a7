#pragma once

#include <QList>
#include <QString>
#include <QUrl>

#include <functional>

// What an open panel offers and where it starts.
struct OpenPanelRequest
{
    QString directory;
    // What to choose, as the panel's title.
    QString message;
    // The accept button's text where the platform lets it be set; empty: the platform's.
    QString prompt = {};
    bool canChooseFiles = true;
    bool canChooseDirectories = false;
    bool allowsMultipleSelection = false;
    bool canCreateDirectories = false;
    bool showsHiddenFiles = false;
    // Which paths may be chosen; others are shown but cannot be. Unset: all.
    std::function<bool(const QString &path)> shouldEnable;
    // A sentence for a path chosen that may not be (%1 is the path), as the desktop's own
    // dialog cannot grey anything out; the panel then opens again. Empty: dropped unsaid.
    QString refusal = {};
};

// Lets the user choose files or folders; an empty list means the panel was cancelled.
class OpenPanel
{
public:
    virtual ~OpenPanel() = default;
    virtual QList<QUrl> runModal(const OpenPanelRequest &request) = 0;
};
