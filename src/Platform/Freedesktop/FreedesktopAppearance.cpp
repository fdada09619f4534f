#include "Platform/Freedesktop/FreedesktopAppearance.h"

#include "Platform/Log.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace {

const auto service = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto interface = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto colorSchemeKey = QStringLiteral("color-scheme");

/// Returns the value in its variants: the reply of `Read` has one more than the signal.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

FreedesktopAppearance::FreedesktopAppearance(QObject* parent)
    : Appearance(parent) {
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        qCInfo(Log::platform) << "no session bus:" << bus.lastError().name();
        return;
    }
    bus.connect(service, portalPath, interface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask();
}

void FreedesktopAppearance::ask() {
    auto message = QDBusMessage::createMethodCall(service, portalPath, interface, QStringLiteral("Read"));
    message << appearanceGroup << colorSchemeKey;
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            take(reply.value().variant());
        else
            qCInfo(Log::platform) << "the desktop portal does not answer:" << reply.error().name();
        watcher->deleteLater();
    });
}

void FreedesktopAppearance::settingChanged(const QString& group, const QString& key,
                                           const QDBusVariant& value) {
    if (group == appearanceGroup && key == colorSchemeKey)
        take(value.variant());
}

void FreedesktopAppearance::take(const QVariant& colorScheme) {
    const uint scheme = unwrapped(colorScheme).toUInt(); // 1 dark, 2 light, anything else no preference
    const auto dark = scheme == 1 ? std::optional(true) : scheme == 2 ? std::optional(false) : std::nullopt;
    if (std::exchange(m_prefersDark, dark) != dark)
        Q_EMIT changed();
}
