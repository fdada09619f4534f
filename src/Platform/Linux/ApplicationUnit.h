#pragma once

#include <QString>

#include <string_view>

/// What the control group of a process says of its application: desktops start each in a unit of its own,
/// named app[-LAUNCHER]-ID-RANDOM.scope or app[-LAUNCHER]-ID[@RANDOM].service, and the sandboxes do likewise.
struct ApplicationUnit {
    enum class Kind { none, desktop, flatpak, snap };

    Kind kind = Kind::none;
    QString id; ///< of the desktop entry; of a snap its name

    bool operator==(const ApplicationUnit&) const = default;

    /// Reads the text of `/proc/N/cgroup`. The innermost unit counts; a unit of any other name inside it,
    /// such as a terminal makes for what it runs, takes the process out of the application.
    static ApplicationUnit of(std::string_view cgroup);
};
