#include "AppDelegate.h"

#include "AlertPresenter.h"

#include <QSettings>

AppDelegate::AppDelegate(AlertPresenter &alerts, QSettings &settings, QObject *parent)
    : QObject(parent), m_alerts(alerts), m_settings(settings)
{}

QString AppDelegate::quitTitle()
{
    return QStringLiteral("Quit Quillmere?");
}

QString AppDelegate::scanInProgressMessage()
{
    return QStringLiteral(
        "Duplicate files scan is in progress. Are you sure you want to quit Quillmere?");
}

QString AppDelegate::resultsWillBeLostMessage()
{
    return QStringLiteral("The current list of the duplicate search results will be lost. Are "
                          "you sure you want to quit Quillmere?");
}

void AppDelegate::applicationDidFinishLaunching()
{
    // Tool tips open at once rather than after the usual pause.
    m_settings.setValue(QStringLiteral("NSInitialToolTipDelay"), 1);
}

AppDelegate::TerminateReply AppDelegate::applicationShouldTerminate()
{
    if (duplicateScanStatus)
        return showQuitAlert(quitTitle(), scanInProgressMessage());
    if (duplicateFilesCount > 0)
        return showQuitAlert(quitTitle(), resultsWillBeLostMessage());
    // A filled rename list does not hold up quitting; only the window's close button asks.
    return TerminateReply::TerminateNow;
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() const
{
    return !duplicateScanStatus && duplicateFilesCount <= 0;
}

AppDelegate::TerminateReply AppDelegate::showQuitAlert(const QString &title, const QString &message)
{
    const int answer =
        m_alerts.runModal({title, message, {QStringLiteral("Quit"), QStringLiteral("Cancel")}});
    if (answer == AlertPresenter::firstButton) {
        duplicateScanStatus = false;
        duplicateFilesCount = 0;
        return TerminateReply::TerminateNow;
    }
    if (window) {
        window->show();
        window->raise();
        window->activateWindow();
    }
    return TerminateReply::TerminateCancel;
}

void AppDelegate::showAlert(const QString &title, const QString &description)
{
    m_alerts.runModal({title, description, {QStringLiteral("OK")}});
}
