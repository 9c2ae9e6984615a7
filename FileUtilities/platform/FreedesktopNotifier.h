#pragma once

#include "DesktopNotifier.h"

#include <QDBusConnection>
#include <QObject>

// Notifications through org.freedesktop.Notifications, and launcher progress through the
// com.canonical.Unity.LauncherEntry signal, which KDE's task manager, Dash to Dock and
// Plank read. Calls never wait on the bus: a desktop without either service costs nothing.
class FreedesktopNotifier final : public QObject, public DesktopNotifier
{
    Q_OBJECT

public:
    // `desktopEntry` is the desktop file's name without ".desktop"; it names the program
    // to the notification server and the launcher.
    explicit FreedesktopNotifier(const QString &desktopEntry,
                                 const QDBusConnection &bus = QDBusConnection::sessionBus(),
                                 QObject *parent = nullptr);

    void notify(const QString &summary, const QString &body,
                std::function<void()> activated) override;
    void showProgress(std::optional<double> fraction) override;

private Q_SLOTS:
    void actionInvoked(uint id, const QString &actionKey);

private:
    QDBusConnection m_bus;
    QString m_desktopEntry;
    // One notification at a time: a new one replaces the last on screen and here.
    uint m_shownId = 0;
    std::function<void()> m_activated;
};
