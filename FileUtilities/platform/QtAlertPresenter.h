#pragma once

#include "AlertPresenter.h"

#include <QPointer>
#include <QWidget>

// Alerts as window-modal message boxes over the main window.
class QtAlertPresenter final : public AlertPresenter
{
public:
    explicit QtAlertPresenter(QWidget *window = nullptr);
    // The window the dialogs are modal to; the main window is made after its services.
    void setWindow(QWidget *window) { m_window = window; }
    int runModal(const AlertRequest &request) override;

private:
    QPointer<QWidget> m_window;
};
