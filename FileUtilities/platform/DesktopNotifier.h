#pragma once

#include <QString>

#include <functional>
#include <optional>

// The desktop's ways of reaching the user outside the window: a notification, and progress
// on the program's entry in the task bar or dock. Either may be missing on a desktop; then
// nothing is shown and nothing fails.
class DesktopNotifier
{
public:
    virtual ~DesktopNotifier() = default;

    // Shows a notification in place of the one shown last; `activated` runs when the user
    // clicks it.
    virtual void notify(const QString &summary, const QString &body,
                        std::function<void()> activated) = 0;
    // Progress from 0 to 1 on the launcher entry; nothing hides it.
    virtual void showProgress(std::optional<double> fraction) = 0;
};
