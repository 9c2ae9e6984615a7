#include "AppDelegate.h"

#include "AlertPresenter.h"

#include <QSettings>

AppDelegate::AppDelegate(AlertPresenter &alerts, QSettings &settings, QObject *parent)
    : QObject(parent), m_alerts(alerts), m_settings(settings), m_quitGuard(alerts, *this)
{
    m_quitGuard.bringWindowForward = [this] {
        if (window) {
            window->show();
            window->raise();
            window->activateWindow();
        }
    };
}

void AppDelegate::applicationDidFinishLaunching()
{
    // Tool tips open at once rather than after the usual pause.
    m_settings.setValue(QStringLiteral("NSInitialToolTipDelay"), 1);
}

AppDelegate::TerminateReply AppDelegate::applicationShouldTerminate()
{
    return m_quitGuard.confirmQuit() ? TerminateReply::TerminateNow
                                     : TerminateReply::TerminateCancel;
}

bool AppDelegate::windowShouldClose(WindowDelegate &screen)
{
    return m_quitGuard.confirmClose(screen);
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() const
{
    return !duplicateScanStatus && duplicateFilesCount <= 0;
}

void AppDelegate::showAlert(const QString &title, const QString &description)
{
    m_alerts.runModal({title, description, {QStringLiteral("OK")}});
}
