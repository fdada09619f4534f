#pragma once

#include "Platform/Linux/KernelFile.h"
#include "Platform/PowerMode.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QSocketNotifier>

#include <memory>
#include <optional>

/// Low power mode is the profile "power-saver" of the power-profiles daemon, or without the daemon the
/// firmware's `platform_profile` "low-power". Both notify of changes. Until the first reply the mode is off.
class LinuxPowerMode : public QObject, public PowerMode {
    Q_OBJECT

public:
    /// `root` contains `sys`.
    explicit LinuxPowerMode(const QDBusConnection& bus = QDBusConnection::systemBus(),
                            const QString& root = QStringLiteral("/"), QObject* parent = nullptr);

    bool isLowPowerModeEnabled() const override { return m_daemonSaves.value_or(m_firmwareSaves); }

private Q_SLOTS:
    void ask();

private:
    void followDaemon();
    void askNext(int name);
    void readFirmware();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_services;
    KernelFile m_platformProfile;
    std::unique_ptr<QSocketNotifier> m_firmwareNotifier;
    std::optional<bool> m_daemonSaves; ///< empty while no daemon answers
    bool m_firmwareSaves = false;
};
