#pragma once

#include "Platform/Places.h"

#include <string>

/// The folders of the XDG base directory specification and of xdg-user-dirs, read from the environment at
/// every call; mounts from the kernel's own list.
class LinuxPlaces : public Places {
public:
    /// `mountInfo`: a file in the form of /proc/PID/mountinfo, see proc(5).
    explicit LinuxPlaces(std::string mountInfo = "/proc/self/mountinfo");

    QStringList locate(const QString& path) const override;
    bool reachesMount(const QString& folder) const override;

private:
    std::string m_mountInfo;
};
