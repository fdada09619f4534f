#include "Platform/Linux/LinuxPowerMode.h"

#include "Platform/Freedesktop/BusSignal.h"
#include "Platform/Log.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>

#include <array>

namespace {

/// The daemon's name under UPower, and its former name. Interface and object path are derived from the name.
const std::array services = {QStringLiteral("org.freedesktop.UPower.PowerProfiles"),
                             QStringLiteral("net.hadess.PowerProfiles")};
const auto propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

QString pathOf(QString service) {
    return u'/' + service.replace(u'.', u'/');
}

} // namespace

LinuxPowerMode::LinuxPowerMode(const QDBusConnection& bus, const QString& root, QObject* parent)
    : QObject(parent)
    , m_bus(bus)
    , m_platformProfile(
          QFile::encodeName(root + QStringLiteral("/sys/firmware/acpi/platform_profile")).toStdString()) {
    if (m_platformProfile.isOpen()) {
        m_firmwareNotifier =
            std::make_unique<QSocketNotifier>(m_platformProfile.descriptor(), QSocketNotifier::Exception);
        connect(m_firmwareNotifier.get(), &QSocketNotifier::activated, this, &LinuxPowerMode::readFirmware);
        readFirmware(); // arms the notification, which is of changes since the last read
    }
    if (m_bus.isConnected())
        followDaemon();
    else
        qCInfo(Log::platform) << "no system bus:" << m_bus.lastError().name();
}

void LinuxPowerMode::followDaemon() {
    m_services.setConnection(m_bus);
    m_services.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(&m_services, &QDBusServiceWatcher::serviceOwnerChanged, this, &LinuxPowerMode::ask);
    for (const QString& service : services) {
        m_services.addWatchedService(service);
        // The signal's contents are ignored.
        followSignal(m_bus, pathOf(service), propertiesInterface, QStringLiteral("PropertiesChanged"), this,
                     SLOT(ask()));
    }
    ask();
}

void LinuxPowerMode::ask() {
    askNext(0);
}

void LinuxPowerMode::askNext(int name) {
    if (name == static_cast<int>(services.size())) {
        m_daemonSaves.reset();
        return;
    }
    const QString& service = services[name];
    auto message =
        QDBusMessage::createMethodCall(service, pathOf(service), propertiesInterface, QStringLiteral("Get"));
    message << service << QStringLiteral("ActiveProfile");
    message.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, name] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        if (reply.isValid()) {
            m_daemonSaves = reply.value().variant().toString() == QStringLiteral("power-saver");
            return;
        }
        qCInfo(Log::platform) << services[name] << "does not answer:" << reply.error().name();
        askNext(name + 1);
    });
}

void LinuxPowerMode::readFirmware() {
    std::array<char, 64> buffer;
    const auto profile = m_platformProfile.read(buffer);
    m_firmwareSaves = profile == "low-power\n" || profile == "low-power";
}
