#pragma once

#include <QString>

#include <string_view>

/// The application that a process's control group names. Desktops and sandboxes start each application in a
/// unit named app[-LAUNCHER]-ID-RANDOM.scope or app[-LAUNCHER]-ID[@RANDOM].service.
struct ApplicationUnit {
    enum class Kind { none, desktop, flatpak, snap };

    Kind kind = Kind::none;
    QString id; ///< of the desktop entry; a snap's name

    bool operator==(const ApplicationUnit&) const = default;

    /// Parses `/proc/N/cgroup`. The innermost unit counts: one of another name, as terminals make for what
    /// they run, takes the process out of the application.
    static ApplicationUnit of(std::string_view cgroup);
};
