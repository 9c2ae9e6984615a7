#include "FreedesktopNotifier.h"

#include "PlatformLog.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace {

const QString notificationsService = QStringLiteral("org.freedesktop.Notifications");
const QString notificationsPath = QStringLiteral("/org/freedesktop/Notifications");
const QString launcherInterface = QStringLiteral("com.canonical.Unity.LauncherEntry");
// The action a click on the notification's body invokes.
const QString defaultAction = QStringLiteral("default");

} // namespace

FreedesktopNotifier::FreedesktopNotifier(const QString &desktopEntry, const QDBusConnection &bus,
                                         QObject *parent)
    : QObject(parent), m_bus(bus), m_desktopEntry(desktopEntry)
{
    m_bus.connect(notificationsService, notificationsPath, notificationsService,
                  QStringLiteral("ActionInvoked"), this, SLOT(actionInvoked(uint, QString)));
}

void FreedesktopNotifier::notify(const QString &summary, const QString &body,
                                 std::function<void()> activated)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        notificationsService, notificationsPath, notificationsService, QStringLiteral("Notify"));
    const QVariantMap hints{{QStringLiteral("desktop-entry"), m_desktopEntry},
                            {QStringLiteral("urgency"), QVariant::fromValue<uchar>(1)}};
    call << QCoreApplication::applicationName() << m_shownId << m_desktopEntry << summary << body
         << QStringList{defaultAction, QStringLiteral("Show")} << hints << qint32(-1);
    m_activated = std::move(activated);
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusPendingReply<uint> reply = *finished;
                if (reply.isError()) {
                    qCInfo(platformLog).noquote()
                        << "no notification shown:" << reply.error().message();
                    return;
                }
                m_shownId = reply.value();
            });
}

void FreedesktopNotifier::showProgress(std::optional<double> fraction)
{
    QDBusMessage update = QDBusMessage::createSignal(
        QStringLiteral("/") + QString(m_desktopEntry).replace(u'.', u'/'), launcherInterface,
        QStringLiteral("Update"));
    const QVariantMap properties{{QStringLiteral("progress"), fraction.value_or(0.0)},
                                 {QStringLiteral("progress-visible"), fraction.has_value()}};
    update << QStringLiteral("application://") + m_desktopEntry + QStringLiteral(".desktop")
           << properties;
    m_bus.send(update);
}

void FreedesktopNotifier::actionInvoked(uint id, const QString &actionKey)
{
    if (id != m_shownId || actionKey != defaultAction || !m_activated)
        return;
    m_activated();
}
