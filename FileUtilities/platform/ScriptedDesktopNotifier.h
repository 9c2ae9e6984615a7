#pragma once

#include "DesktopNotifier.h"

#include <QList>

// Keeps what would have been shown, for tests; `click()` does what the user's click on the
// last notification would.
class ScriptedDesktopNotifier final : public DesktopNotifier
{
public:
    struct Notice
    {
        QString summary;
        QString body;
    };

    QList<Notice> notices;
    // Every change of the launcher's progress, nothing for hidden.
    QList<std::optional<double>> progress;

    void notify(const QString &summary, const QString &body,
                std::function<void()> activated) override
    {
        notices.append({summary, body});
        m_activated = std::move(activated);
    }
    void showProgress(std::optional<double> fraction) override { progress.append(fraction); }

    void click() const
    {
        if (m_activated)
            m_activated();
    }

private:
    std::function<void()> m_activated;
};
