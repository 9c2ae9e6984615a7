#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>

// The messages that join the rename screen's views. The screen owns one and hands it to
// the views it builds, so a view announces what happened without knowing who listens.
class RenameNotificationCenter : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    // Files arrived on the drop target, by a drop or its browse panel.
    void dragAndDropComplete(const QList<QUrl> &sourceUrls);
    // A rename moved at least one file; the new names, without extensions.
    void renameComplete(const QStringList &renamedFiles);
    // The user closed the completion view.
    void renameDone();
    // The completion view's Undo Rename: the files are to take their old names again.
    void undoRename();
    // The completion view's Show failed files: the failed rows come back for another try.
    void showFailedFiles();
    // The list was emptied; the option panels empty their fields.
    void clearText();
};
