#pragma once

#include "UI/Processes/ProcessColumns.h"

/// Identifies a row from one tick to the next: a process, or all processes of one name. The other member is
/// empty. A key that is kept for longer is that of a process, which holds no text.
struct ProcessRowKey {
    quint64 process = 0; ///< its PID, then 32 bits of its start in microseconds
    QString name;

    static ProcessRowKey of(const ProcSample& process) {
        const auto start = static_cast<quint32>(process.startTime.time_since_epoch().count() / 1000);
        return {.process = (static_cast<quint64>(static_cast<quint32>(process.pid)) << 32) | start};
    }
    static ProcessRowKey of(const ProcessTableRow& row, bool isGrouped) {
        return isGrouped ? ProcessRowKey{.name = row.first.name} : of(row.first);
    }

    bool operator==(const ProcessRowKey&) const = default;
};

inline size_t qHash(const ProcessRowKey& key, size_t seed = 0) {
    return key.name.isEmpty() ? ::qHash(key.process, seed) : ::qHash(key.name, seed);
}
