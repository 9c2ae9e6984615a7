#pragma once

#include <QString>
#include <QUrl>

// What moving an item to the Trash came to: where it went, or why it stayed.
struct TrashResult
{
    bool trashed = false;
    QString pathInTrash;
    QString error; // for the user, when not trashed
};

// The desktop's services for files and links.
class Workspace
{
public:
    virtual ~Workspace() = default;

    // Opens a web page, a mail or a file with the desktop's chosen program.
    virtual bool openURL(const QUrl &url) = 0;
    // Shows the item selected in the file manager.
    virtual bool selectFile(const QString &path) = 0;
    // Moves the item to the Trash, where the desktop can restore it; never deletes it.
    virtual TrashResult moveToTrash(const QString &path) = 0;
};
