#include "Platform/Linux/LinuxPowerMode.h"

#include "Platform/Log.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>

#include <array>

namespace {

/// The daemon's name since it moved under UPower, and the one it had before. Interface and object path
/// are called after the name.
struct DaemonName {
    QString service;
    QString path;
};

const std::array<DaemonName, 2>& daemonNames() {
    static const std::array<DaemonName, 2> names = {
        DaemonName{QStringLiteral("org.freedesktop.UPower.PowerProfiles"),
                   QStringLiteral("/org/freedesktop/UPower/PowerProfiles")},
        DaemonName{QStringLiteral("net.hadess.PowerProfiles"), QStringLiteral("/net/hadess/PowerProfiles")},
    };
    return names;
}

QString propertiesInterface() {
    return QStringLiteral("org.freedesktop.DBus.Properties");
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
        readFirmware(); // the kernel notifies of changes since the last read
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
    for (const auto& [service, path] : daemonNames()) {
        m_services.addWatchedService(service);
        // No sender is named, because the bus would be asked for its owner and waited for. The signal's
        // contents are not trusted: it only makes us ask.
        m_bus.connect(QString(), path, propertiesInterface(), QStringLiteral("PropertiesChanged"), this,
                      SLOT(ask()));
    }
    ask();
}

void LinuxPowerMode::ask() {
    askNext(0);
}

void LinuxPowerMode::askNext(int name) {
    if (name == static_cast<int>(daemonNames().size())) {
        m_daemonSaves.reset();
        return;
    }
    const auto& [service, path] = daemonNames()[name];
    auto message =
        QDBusMessage::createMethodCall(service, path, propertiesInterface(), QStringLiteral("Get"));
    message << service << QStringLiteral("ActiveProfile");
    message.setAutoStartService(false); // watching starts no daemons
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, name] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        if (reply.isValid()) {
            m_daemonSaves = reply.value().variant().toString() == QStringLiteral("power-saver");
            return;
        }
        qCInfo(Log::platform) << daemonNames()[name].service << "does not answer:" << reply.error().name();
        askNext(name + 1);
    });
}

void LinuxPowerMode::readFirmware() {
    std::array<char, 64> room;
    const auto profile = m_platformProfile.read(room);
    m_firmwareSaves = profile == "low-power\n" || profile == "low-power";
}
