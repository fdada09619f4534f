#pragma once

#include "Platform/Linux/KernelFile.h"

#include <QtGlobal>

#include <optional>
#include <string>
#include <string_view>

/// Whether the kernel takes memory back, by the counters "pgsteal_..." of `/proc/vmstat`. What a process has
/// in memory can shrink that way while it sleeps.
class PageReclaim {
public:
    /// `root` is the mount point of procfs.
    explicit PageReclaim(const std::string& root)
        : m_file(root + "/vmstat") {}

    /// Returns whether pages may have been taken since the last call: also where nobody counts them.
    bool hasWorked();
    /// Returns how many pages were taken since boot; a page can be counted several times.
    static std::optional<quint64> pagesTaken(std::string_view vmstat);

private:
    KernelFile m_file;
    std::optional<quint64> m_taken; ///< at the last call
};
