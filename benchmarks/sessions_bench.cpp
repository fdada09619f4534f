// Measures what sessions add to a tick with 1,000 processes, of which 400 belong to 20 sessions. Standard
// output has one "NAME VALUE" a line: medians in microseconds of a tick while nothing wants sessions and
// while the page is open, and the ratio of the second to the first.

#include "AppModel.h"
#include "CacheEviction.h"
#include "Children.h"
#include "Preferences.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <unistd.h>
#include <vector>

namespace {

constexpr int sessions = 20;
constexpr int processesEach = 20;
constexpr int others = 600;
constexpr int firstTicks = 20; // until everything is read that is read once
constexpr int repetitions = 51;
constexpr const char* agentArgument = "--agent";

[[noreturn]] void runAgent() {
    const Children started(processesEach - 1, [] { execlp("sleep", "sleep", "100000", nullptr); });
    for (;;)
        pause();
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

double tick(AppModel& model) {
    const auto start = std::chrono::steady_clock::now();
    QMetaObject::invokeMethod(&model, "tick", Qt::DirectConnection);
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], agentArgument) == 0)
        runAgent();
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString agent = folder.filePath(QStringLiteral("claude")); // the name of the file makes it one
    QFile::copy(application.applicationFilePath(), agent);
    const QByteArray path = QFile::encodeName(agent);
    const Children agents(sessions,
                          [&path] { execl(path.constData(), path.constData(), agentArgument, nullptr); });
    const Children sleepers(others);
    Preferences preferences(folder.filePath(QStringLiteral("bench.ini")));
    AppModel closed(Platform::native(), preferences);
    AppModel open(Platform::native(), preferences);
    for (int i = 0; i < firstTicks; ++i) {
        tick(closed);
        open.wantSessions();
        tick(open);
    }
    qsizetype members = 0;
    for (const Session& session : open.sessionReport().sessions)
        members += session.processes.size();
    if (members != sessions * processesEach) {
        std::fprintf(stderr, "only %d processes are in sessions\n", static_cast<int>(members));
        return 1;
    }
    CacheEviction eviction;
    std::vector<double> without;
    std::vector<double> with;
    for (int i = 0; i < repetitions; ++i) {
        eviction.run();
        without.push_back(tick(closed));
        open.wantSessions();
        eviction.run();
        with.push_back(tick(open));
    }
    std::printf("tick_us_sessions_closed_1000 %.0f\n", median(without));
    std::printf("tick_us_sessions_open_1000 %.0f\n", median(with));
    std::printf("sessions_open_over_closed_1000 %.3f\n", median(with) / median(without));
    return 0;
}
