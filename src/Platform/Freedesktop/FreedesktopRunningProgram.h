#pragma once

#include "Platform/RunningProgram.h"

#include <QDBusConnection>

#include <chrono>

/// Asks the running program on the session bus.
class FreedesktopRunningProgram : public RunningProgram {
public:
    explicit FreedesktopRunningProgram(std::chrono::milliseconds patience = usualPatience);

    std::optional<QByteArray> report(const QString& kind) override;

    /// Returns no connection where no bus runs, because Qt would start one, and where none answers in time.
    static QDBusConnection sessionBus(std::chrono::milliseconds patience = usualPatience);

private:
    static constexpr std::chrono::seconds usualPatience{2};

    std::chrono::milliseconds m_patience;
    std::optional<QDBusConnection> m_bus; ///< empty until the first question
};
