#pragma once

#include "UI/Processes/ProcessColumns.h"

/// Identifies a row from one tick to the next, by one of its members. No key outlives its row, so that old
/// names take no memory.
struct ProcessRowKey {
    quint64 process = 0; ///< of one process: its PID, and its start, which tells it from a later one
    QString name;        ///< of all processes of one name

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
