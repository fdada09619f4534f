// Compares a full scan of the cleanup catalogue with the same du and find commands run in parallel by a shell
// script of the same priority. Prints NAME VALUE lines; the processor time counts where others keep the
// machine busy. The home folder that it scans is temporary, in the working directory.

#include "Core/Cleanup/CacheScanner.h"
#include "Platform/Platform.h"
#include "Platform/Unix/UnixToolRunner.h"
#include "ScanHome.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 7;

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
    const ScanHome home;

    Platform platform;
    platform.tools = std::make_shared<UnixToolRunner>();
    platform.places = std::make_shared<ScanPlaces>();
    platform.clock = std::make_shared<ScanClock>();

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
