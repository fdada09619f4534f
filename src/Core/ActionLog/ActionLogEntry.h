#pragma once

#include "Core/Instant.h"
#include "Core/RawValue.h"

#include <QString>
#include <QUuid>

#include <array>

/// One action taken by the user or the optimizer, or a kill by the system.
struct ActionLogEntry {
    enum class Kind { quit, forceKill, clean, kernel };

    QUuid id;
    Instant timestamp;
    Kind kind = Kind::quit;
    QString detail;
    quint64 freedBytes = 0; ///< 0 when not known
    bool success = false;
};

template <>
inline constexpr std::array rawValueTable<ActionLogEntry::Kind> = {
    RawValueRow{ActionLogEntry::Kind::quit, u"quit"},
    RawValueRow{ActionLogEntry::Kind::forceKill, u"forceKill"},
    RawValueRow{ActionLogEntry::Kind::clean, u"clean"},
    RawValueRow{ActionLogEntry::Kind::kernel, u"kernel"},
};
