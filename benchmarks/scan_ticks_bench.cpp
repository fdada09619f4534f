// Compares the ticks of a machine with 1,000 sleeping processes while a scan of 300,000 files runs with those
// while none does. Prints NAME VALUE lines in milliseconds. A wait of the main loop is how much later than
// asked a timer of 2 ms came, beside a tick's own time.

#include "AppModel.h"
#include "CacheEviction.h"
#include "Children.h"
#include "Preferences.h"
#include "ScanHome.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr int sleepers = 1000;
constexpr int scans = 8;
constexpr int firstTicks = 20; // until everything is read that is read once
constexpr auto tickPeriod = 100ms;
constexpr auto quietTime = 3s;

double secondsOf(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

struct Seen {
    std::vector<double> ticks; ///< milliseconds
    std::vector<double> processorTimes;
    std::vector<double> waits;
};

/// Ticks ten times a second, and watches how long the main loop is held up otherwise.
class Watch {
public:
    explicit Watch(AppModel& model)
        : m_model(model) {
        m_tick.setTimerType(Qt::PreciseTimer);
        m_pulse.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_tick, &QTimer::timeout, [this] { tick(); });
        QObject::connect(&m_pulse, &QTimer::timeout, [this] { pulse(); });
        m_pulse.setSingleShot(true);
    }
    void begin(Seen& seen) {
        m_seen = &seen;
        m_tick.start(tickPeriod);
        startPulse();
    }
    void end() {
        m_tick.stop();
        m_pulse.stop();
    }

private:
    void tick() {
        m_pulse.stop();
        m_eviction.run();
        const double start = secondsOf(CLOCK_MONOTONIC);
        const double load = secondsOf(CLOCK_THREAD_CPUTIME_ID);
        QMetaObject::invokeMethod(&m_model, "tick", Qt::DirectConnection);
        m_seen->processorTimes.push_back(1e3 * (secondsOf(CLOCK_THREAD_CPUTIME_ID) - load));
        m_seen->ticks.push_back(1e3 * (secondsOf(CLOCK_MONOTONIC) - start));
        startPulse();
    }
    void startPulse() {
        m_pulseDue = secondsOf(CLOCK_MONOTONIC) + 0.002;
        m_pulse.start(2ms);
    }
    void pulse() {
        m_seen->waits.push_back(1e3 * (secondsOf(CLOCK_MONOTONIC) - m_pulseDue));
        startPulse();
    }

    AppModel& m_model;
    Seen* m_seen = nullptr;
    QTimer m_tick;
    QTimer m_pulse;
    double m_pulseDue = 0;
    CacheEviction m_eviction;
};

void sleepFor(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

double at(std::vector<double> values, double share) {
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))];
}

void print(const char* when, const Seen& seen) {
    std::printf("tick_%s_ms %.2f\ntick_%s_95_ms %.2f\ntick_%s_processor_ms %.2f\n", when, at(seen.ticks, 0.5),
                when, at(seen.ticks, 0.95), when, at(seen.processorTimes, 0.5));
    std::printf("main_loop_wait_%s_99_ms %.2f\nmain_loop_wait_%s_longest_ms %.2f\n", when,
                at(seen.waits, 0.99), when, at(seen.waits, 1));
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const ScanHome home;
    const QTemporaryDir folder;
    const Children children(sleepers);
    Preferences preferences(folder.filePath(QStringLiteral("bench.ini")));
    Platform platform = Platform::native();
    platform.places = std::make_shared<ScanPlaces>();
    platform.clock = std::make_shared<ScanClock>();
    AppModel model(platform, preferences);
    for (int i = 0; i < firstTicks; ++i)
        QMetaObject::invokeMethod(&model, "tick", Qt::DirectConnection);
    QCoro::waitFor(model.cleanup().rescan()); // fills the page cache
    Seen alone;
    Seen beside;
    Watch watch(model);
    double scanning = 0;
    for (int scan = 0; scan < scans; ++scan) {
        watch.begin(alone);
        sleepFor(quietTime);
        watch.end();
        const double start = secondsOf(CLOCK_MONOTONIC);
        watch.begin(beside);
        QCoro::waitFor(model.cleanup().rescan());
        watch.end();
        scanning += secondsOf(CLOCK_MONOTONIC) - start;
    }
    print("alone", alone);
    print("beside_scan", beside);
    std::printf("tick_beside_scan_over_alone %.3f\nscan_beside_ticks_seconds %.2f\n",
                at(beside.ticks, 0.5) / at(alone.ticks, 0.5), scanning / scans);
    return 0;
}
