#pragma once

#include "OpenPanel.h"

#include <QPointer>
#include <QWidget>

// The open panel as Qt's own file dialog, which can grey out what may not be chosen.
class QtOpenPanel final : public OpenPanel
{
public:
    explicit QtOpenPanel(QWidget *window = nullptr);
    // The window the dialogs are modal to; the main window is made after its services.
    void setWindow(QWidget *window) { m_window = window; }
    QList<QUrl> runModal(const OpenPanelRequest &request) override;

private:
    QPointer<QWidget> m_window;
};
