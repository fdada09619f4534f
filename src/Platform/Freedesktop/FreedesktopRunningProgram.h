#pragma once

#include "Platform/RunningProgram.h"

#include <QDBusConnection>

/// Asks the running program on the session bus.
class FreedesktopRunningProgram : public RunningProgram {
public:
    explicit FreedesktopRunningProgram(const QDBusConnection& bus = sessionBus());

    std::optional<QByteArray> report(const QString& kind) override;

    /// Returns no connection where no bus runs, because Qt would start one.
    static QDBusConnection sessionBus();

private:
    QDBusConnection m_bus;
};
