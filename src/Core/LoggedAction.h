#pragma once

#include "Core/Models.h"

/// One line of the action log, read back.
struct LoggedAction {
    Instant timestamp; ///< whole seconds
    QString kind;      ///< as written, also when it is no kind this program knows
    bool success = false;
    quint64 freedBytes = 0;
    QString detail;

    bool operator==(const LoggedAction&) const = default;

    /// Seconds since 1970 with one decimal, "-", detail. Two actions of one second with one detail share it.
    QString id() const;
};
