// Compares a full scan of the cleanup catalogue with the same du and find commands run in parallel by a shell
// script of the same priority. Prints NAME VALUE lines; the processor time counts where others keep the
// machine busy. The home folder that it scans is temporary, in the working directory.

#include "Core/Cleanup/CacheScanner.h"
#include "Platform/Clock.h"
#include "Platform/Freedesktop/FreedesktopPlaces.h"
#include "Platform/Platform.h"
#include "Platform/Unix/UnixToolRunner.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 7;
constexpr int filesPerFolder = 250;

struct Part {
    const char* folder;
    int files;
    bool old = false;
};

// 300,000 files over the places of all targets.
constexpr Part parts[] = {
    {".npm/_cacache", 60000},
    {".npm/_npx", 20000},
    {".pnpm-store", 20000},
    {".yarn/cache", 5000},
    {".cache/yarn", 10000},
    {".cache/uv", 40000},
    {".cache/pip", 10000},
    {".cache/Homebrew", 1000},
    {".cache/ms-playwright", 10000},
    {".cache/org.swift.swiftpm", 5000},
    {".cache/other", 40000},
    {".cargo/registry/cache", 5000},
    {"go/pkg/mod/cache", 30000},
    {"Library/Developer/Xcode/DerivedData", 2000},
    {"Library/Logs", 1000},
    {".claude/plugins/cache", 2000},
    {".local/share/Trash/files", 4000},
    {"tmp", 20000, true},
    {"tmp/new", 5000},
    {"Downloads", 5000, true},
    {"Downloads/new", 4000},
    {"Desktop", 1000, true},
};

/// Replaces the machine's own /tmp.
class BenchPlaces : public FreedesktopPlaces {
public:
    QList<Place> locate(const QString& path) const override {
        return FreedesktopPlaces::locate(path == u"/tmp" ? u"~/tmp"_s : path);
    }
};

/// A file's status change cannot be set, so the clock is ahead.
class BenchClock : public SystemClock {
public:
    static constexpr auto ahead = std::chrono::hours(24 * 400);

    std::chrono::system_clock::time_point now() override { return SystemClock::now() + ahead; }
};

void makeHome(const std::string& home) {
    for (const Part& part : parts) {
        for (int i = 0; i < part.files; ++i) {
            const std::string folder =
                home + '/' + part.folder + "/folder " + std::to_string(i / filesPerFolder);
            if (i % filesPerFolder == 0)
                std::filesystem::create_directories(folder);
            const std::string path = folder + "/Screen file " + std::to_string(i);
            const int file = open(path.c_str(), O_CREAT | O_WRONLY, 0600);
            if (std::string_view(part.folder) == "Desktop")
                static_cast<void>(!write(file, "\x89PNG\r\n\x1a\n", 8));
            constexpr std::chrono::seconds ahead = BenchClock::ahead;
            const std::time_t written = part.old ? 1000000000 : std::time(nullptr) + ahead.count();
            const timespec times[] = {{written, 0}, {written, 0}};
            futimens(file, times);
            close(file);
        }
    }
}

/// Makes one background job per target, its own commands one after another.
QString script(const QList<CacheTarget>& measured) {
    const auto quoted = [](const QString& path) { return u"'"_s + path + u"'"_s; };
    QString text;
    for (const CacheTarget& target : measured) {
        QStringList commands;
        if (target.rule.measure == CleanupRule::Measure::containers)
            commands.append(u"/bin/sh -lc 'command -v docker >/dev/null 2>&1 && docker system df || true'"_s);
        for (const ListedFolder& folder : target.listed) {
            if (target.rule.measure == CleanupRule::Measure::folders)
                commands.append(u"/usr/bin/du -sk -x "_s + quoted(folder.path));
            else
                commands.append(u"/usr/bin/find %1 -type f -mtime +%2 %3 -print0"_s.arg(
                    quoted(folder.path), QString::number(target.rule.olderThanDays),
                    target.rule.screenshotsOnly ? u"-name 'Screen*'"_s : QString()));
        }
        if (!commands.isEmpty())
            text += u"("_s + commands.join(u"; "_s) + u") >/dev/null &\n"_s;
    }
    return text + u"wait\n"_s;
}

/// Returns the processor time of the children that have ended, in seconds.
double childrenSeconds() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir home(QDir::currentPath() + u"/scan_bench-XXXXXX"_s);
    qputenv("HOME", QFile::encodeName(home.path()));
    for (const char* variable : {"XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        qunsetenv(variable);
    makeHome(home.path().toStdString());

    Platform platform;
    platform.tools = std::make_shared<UnixToolRunner>();
    platform.places = std::make_shared<BenchPlaces>();
    platform.clock = std::make_shared<BenchClock>();

    QList<CacheTarget> measured;
    QString commands;
    std::vector<double> scans, scripts, scanLoads, scriptLoads;
    for (int round = 0; round <= rounds; ++round) { // the first only fills the page cache
        const double loadBefore = childrenSeconds();
        QElapsedTimer timer;
        timer.start();
        CacheScanner scanner(platform);
        measured = QCoro::waitFor(scanner.scan(CacheTarget::defaults()));
        const double scanned = static_cast<double>(timer.restart()) / 1000;
        if (round == 0)
            commands = script(measured);
        const double loadBetween = childrenSeconds();
        timer.restart();
        QProcess::execute(u"/usr/bin/nice"_s, {u"-n"_s, u"10"_s, u"/bin/sh"_s, u"-c"_s, commands});
        const double ran = static_cast<double>(timer.elapsed()) / 1000;
        if (round > 0) {
            scans.push_back(scanned);
            scripts.push_back(ran);
            scanLoads.push_back(loadBetween - loadBefore);
            scriptLoads.push_back(childrenSeconds() - loadBetween);
        }
    }
    std::printf("scan_seconds %.3f\n", median(scans));
    std::printf("scan_script_seconds %.3f\n", median(scripts));
    std::printf("scan_to_script_ratio %.3f\n", median(scans) / median(scripts));
    std::printf("scan_cpu_seconds %.3f\n", median(scanLoads));
    std::printf("scan_script_cpu_seconds %.3f\n", median(scriptLoads));
}
