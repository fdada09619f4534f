#pragma once

#include "Platform/Clock.h"
#include "Platform/Freedesktop/FreedesktopPlaces.h"

#include <QTemporaryDir>

/// A temporary home folder in the working directory with the targets of the catalogue and 300,000 files, and
/// the home of this program as long as it exists.
class ScanHome {
public:
    ScanHome();

private:
    QTemporaryDir m_folder;
};

/// Has a folder of the home in the place of the machine's own /tmp.
class ScanPlaces : public FreedesktopPlaces {
public:
    QList<Place> locate(const QString& path) const override;
};

/// Is ahead, because a file's status change cannot be set.
class ScanClock : public SystemClock {
public:
    static constexpr auto ahead = std::chrono::hours(24 * 400);

    std::chrono::system_clock::time_point now() override { return SystemClock::now() + ahead; }
};
