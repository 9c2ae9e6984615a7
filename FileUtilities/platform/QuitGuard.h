#pragma once

#include "QuitPolicy.h"

#include <functional>

class AlertPresenter;
struct ApplicationStatus;
class WindowDelegate;

// Asks what the quit policy says to ask, and carries out the answer: "Quit" clears what
// the decision names and lets the program go; "Cancel" keeps everything as it was.
class QuitGuard
{
public:
    QuitGuard(AlertPresenter &alerts, ApplicationStatus &status);

    // The Quit command, and a close before either tool was shown.
    bool confirmQuit();
    // The window's close button while `screen` is the tool shown last.
    bool confirmClose(WindowDelegate &screen);

    // Called when the user cancels the Quit command, to bring the window back to the front.
    std::function<void()> bringWindowForward;

private:
    bool confirm(QuitPolicy::Request request, WindowDelegate *screen);

    AlertPresenter &m_alerts;
    ApplicationStatus &m_status;
};
