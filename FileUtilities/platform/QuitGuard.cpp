#include "QuitGuard.h"

#include "AlertPresenter.h"
#include "ApplicationStatus.h"
#include "WindowDelegate.h"
#include <QCoreApplication>

QuitGuard::QuitGuard(AlertPresenter &alerts, ApplicationStatus &status)
    : m_alerts(alerts), m_status(status)
{}

bool QuitGuard::confirmQuit()
{
    return confirm(QuitPolicy::Request::Quit, nullptr);
}

bool QuitGuard::confirmClose(WindowDelegate &screen)
{
    return confirm(screen.closeRequest(), &screen);
}

bool QuitGuard::confirm(QuitPolicy::Request request, WindowDelegate *screen)
{
    QuitPolicy::Facts facts{m_status.duplicateScanStatus, m_status.duplicateFilesCount,
                            m_status.renameRows};
    if (screen)
        screen->describeHoldings(facts);
    const QuitPolicy::Decision decision = QuitPolicy::decide(request, facts);
    if (!decision.alert)
        return true;

    const int answer = m_alerts.runModal({decision.alert->title,
                                          decision.alert->message,
                                          {QCoreApplication::translate("QuitPolicy", "Quit"),
                                           QCoreApplication::translate("QuitPolicy", "Cancel")}});
    if (answer != AlertPresenter::firstButton) {
        if (decision.raiseWindowOnCancel && bringWindowForward)
            bringWindowForward();
        return false;
    }
    switch (decision.onQuit) {
    case QuitPolicy::Clears::Nothing:
        break;
    case QuitPolicy::Clears::ApplicationStatus:
        m_status.duplicateScanStatus = false;
        m_status.duplicateFilesCount = 0;
        break;
    case QuitPolicy::Clears::DuplicateResults:
        if (screen)
            screen->clear();
        break;
    }
    return true;
}
