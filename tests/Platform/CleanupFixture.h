#pragma once

#include "Core/Cleanup/CacheScanner.h"
#include "Core/Cleanup/Cleaner.h"
#include "Platform/Clock.h"
#include "Platform/Freedesktop/FreedesktopPlaces.h"
#include "Platform/Platform.h"
#include "Platform/Unix/UnixToolRunner.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

/// A file's status change cannot be set: for these tests it is 400 days later.
class LaterClock : public SystemClock {
public:
    static constexpr auto ahead = std::chrono::hours(24 * 400);

    Instant now() override { return SystemClock::now() + ahead; }
};

/// Runs scanner and cleaner with the system's own tools on temporary folders.
struct CleanupOnDisk : testing::Test {
    Cleaner::CleanResult clean(const CacheTarget& target, std::stop_token stop = {}) {
        return QCoro::waitFor(Cleaner::clean(target, tools, places, clock->now(), stop));
    }
    Cleaner::CleanResult clean(const QString& path) {
        return clean(CacheTarget{.name = QStringLiteral("x"), .paths = {path}});
    }

    CacheTarget scanned(const CacheTarget& target) {
        Platform platform;
        platform.tools = tools;
        platform.places = places;
        platform.clock = clock;
        CacheScanner scanner(platform);
        return QCoro::waitFor(scanner.scan({target})).value(0);
    }

    static CacheTarget target(const QString& name) {
        const QList<CacheTarget>& all = CacheTarget::defaults();
        return *std::ranges::find(all, name, &CacheTarget::name);
    }

    static QStringList entries(const QString& folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    /// Makes a file `days` and an hour old, by the clock of the test.
    void age(const QString& path, int days) {
        const auto since = std::chrono::hours(24 * days + 1);
        const auto written = std::chrono::file_clock::from_sys(clock->now() - since);
        std::filesystem::last_write_time(path.toStdString(), written);
    }

    TemporaryHome home;
    std::shared_ptr<Clock> clock = std::make_shared<LaterClock>();
    std::shared_ptr<ToolRunner> tools = std::make_shared<UnixToolRunner>();
    std::shared_ptr<Places> places = std::make_shared<FreedesktopPlaces>();
};
