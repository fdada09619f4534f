#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QString>

#include <optional>

/// Who takes the memory.
struct Grower {
    enum class Kind { session, process, group };

    Kind kind = Kind::process;
    ProcessIdentity process; ///< the session's host, or the process; without a PID for a group
    QString title;           ///< "claude in ~/src/app", "java", "Browsers"
    double bytesPerSecond = 0;

    bool operator==(const Grower&) const = default;
};

/// When the machine will be full if it goes on like that.
struct MemoryForecast {
    double secondsLeft = 0;
    quint64 leftBytes = 0;        ///< in memory and in swap
    std::optional<Grower> grower; ///< empty when nobody explains enough of it
};
