#pragma once

#include "OpenPanel.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

class QFileDialog;

// The open panel as the desktop's own file dialog (GNOME's, KDE's or the portal's, through
// Qt's platform theme) where the platform has one, else Qt's, which Qt falls back to by
// itself. A panel where files and folders can be chosen together is always Qt's dialog
// (FilesAndFoldersDialog): no desktop dialog has such a mode.
class QtOpenPanel final : public OpenPanel
{
public:
    explicit QtOpenPanel(QWidget *window = nullptr);
    // The window the dialogs are modal to; the main window is made after its services.
    void setWindow(QWidget *window) { m_window = window; }
    QList<QUrl> runModal(const OpenPanelRequest &request) override;

    // Only files and folders together need Qt's own dialog.
    static bool needsFilesAndFolders(const OpenPanelRequest &request);
    // Title, accept button, file mode and options for the request.
    static void configure(QFileDialog &dialog, const OpenPanelRequest &request);

    struct Screened
    {
        QList<QUrl> chosen;
        QStringList refused;
    };
    // The paths the request lets be chosen, and the others.
    static Screened screen(const QStringList &paths, const OpenPanelRequest &request);

private:
    QStringList runDialog(const OpenPanelRequest &request);

    QPointer<QWidget> m_window;
};
