#pragma once

#include "ApplicationStatus.h"
#include "QuitGuard.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

class AlertPresenter;
class QSettings;
class WindowDelegate;

// The application's delegate: the two facts every decision to quit turns on, the guards
// on quitting, and the plain alert all screens use. One exists per run; screens are given
// it rather than looking it up.
class AppDelegate : public QObject, public ApplicationStatus
{
    Q_OBJECT

public:
    enum class TerminateReply
    {
        TerminateNow,
        TerminateCancel
    };

    AppDelegate(AlertPresenter &alerts, QSettings &settings, QObject *parent = nullptr);

    QPointer<QWidget> window;

    void applicationDidFinishLaunching();
    TerminateReply applicationShouldTerminate();
    // The window's close button while `screen` is the tool shown last.
    bool windowShouldClose(WindowDelegate &screen);
    bool applicationShouldTerminateAfterLastWindowClosed() const;
    void showAlert(const QString &title, const QString &description);

private:
    AlertPresenter &m_alerts;
    QSettings &m_settings;
    QuitGuard m_quitGuard;
};
