// Measures the Processes section on the main thread for one tick with 4,000 rows, beyond the tick itself.

#include "AppModel.h"
#include "UI/Processes/ProcessesView.h"
#include "UI/Style/Style.h"
#include "UI/Style/Theme.h"
#include "support/FakePlatform.h"
#include "support/TemporarySettings.h"

#include <QApplication>
#include <QRandomGenerator>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

constexpr int rows = 4000;
constexpr int ticks = 60;

double cpuMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

void shuffleLoad(FakePlatform& fakes, QRandomGenerator& random) {
    fakes.clock->advance(2);
    for (FakeProcess& process : fakes.processes->processes) {
        process.task->cpuTimeNs += static_cast<quint64>(random.bounded(200'000'000));
        process.task->residentBytes += static_cast<quint64>(random.bounded(1 << 20));
    }
}

/// Returns the median of a tick with the events that it causes, in milliseconds of CPU time.
double median(FakePlatform& fakes, AppModel& model) {
    QRandomGenerator random(5);
    std::vector<double> costs;
    for (int i = 0; i < ticks; ++i) {
        shuffleLoad(fakes, random);
        const double before = cpuMilliseconds();
        QMetaObject::invokeMethod(&model, "tick");
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        costs.push_back(cpuMilliseconds() - before);
    }
    std::nth_element(costs.begin(), costs.begin() + ticks / 2, costs.end());
    return costs[ticks / 2];
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(new Style);
    Theme::apply({});
    FakePlatform fakes;
    for (int i = 0; i < rows; ++i) {
        fakes.processes->add(100 + i, {.task = TaskInfo{.residentBytes = quint64(60 + i % 900) << 20},
                                       .name = "program-" + QByteArray::number(i % 300)});
    }
    TemporarySettings settings;
    AppModel model(fakes.platform(), settings.preferences);
    const double tick = median(fakes, model);
    ProcessesView view(model, settings.preferences);
    view.resize(800, 640);
    view.show();
    const double withTable = median(fakes, model);
    std::printf("tick_4000_ms %.2f\ntable_4000_ms %.2f\n", tick, withTable - tick);
    return 0;
}
