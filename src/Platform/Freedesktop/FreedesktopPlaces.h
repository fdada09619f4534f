#pragma once

#include "Platform/Places.h"

#include <string>

/// The folders of the XDG base directory specification and xdg-user-dirs, by the current environment.
class FreedesktopPlaces : public Places {
public:
    /// `mountInfo` is a file in the form of /proc/PID/mountinfo, see proc(5).
    explicit FreedesktopPlaces(std::string mountInfo = "/proc/self/mountinfo");

    QList<Place> locate(const QString& path) const override;
    bool canExist(const QString& path) const override;

private:
    /// Returns the existing folders of a path that begins with a variable or is a pattern.
    QList<Place> located(const QString& path, const QString& home) const;
    /// Returns why a folder in the home folder must not be emptied, or an empty text.
    QString objection(const QString& place, const QString& home) const;
    /// Returns the same for a cache home, which a variable may set to any folder.
    QString objectionToCacheHome(const QString& folder, const QString& home) const;
    /// Returns true when the mounts are unreadable too.
    bool isMountPoint(const QString& folder) const;

    std::string m_mountInfo;
};
