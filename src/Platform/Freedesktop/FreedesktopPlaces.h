#pragma once

#include "Platform/Places.h"

#include <string>

/// The folders of the XDG base directory specification and of xdg-user-dirs, read from the environment at
/// every call; mounts from the kernel's own list.
class FreedesktopPlaces : public Places {
public:
    /// `mountInfo`: a file in the form of /proc/PID/mountinfo, see proc(5).
    explicit FreedesktopPlaces(std::string mountInfo = "/proc/self/mountinfo");

    QList<Place> locate(const QString& path) const override;

private:
    /// To emptying a folder in the home folder; empty where there is none.
    QString objection(const QString& place, const QString& home) const;
    /// To emptying anything in a cache home: a variable may name any folder, also one that holds other
    /// things.
    QString objectionToCacheHome(const QString& folder, const QString& home) const;
    /// True as well when that cannot be found out.
    bool isMountRoot(const QString& folder) const;

    std::string m_mountInfo;
};
