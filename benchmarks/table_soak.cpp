// Checks that nothing grows in ticks on the system's process table while 200 children of this program start
// and end per second. Prints figures as NAME_TICK VALUE after each quarter of the run. Status 1 when one
// grew.
//   tavrin_table_soak [SECONDS]     180 unless given

#include "AppModel.h"
#include "Children.h"
#include "LongRun.h"
#include "support/TemporaryHome.h"
#include "support/TemporarySettings.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <memory>

namespace {

constexpr int ticksPerSecond = 6;
constexpr int startsPerTick = 34;
constexpr double otherProcesses = 100;                    ///< by which the machine's other processes may grow
constexpr std::size_t livingBatches = 2 * ticksPerSecond; // each lives for 2 s

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 180;
    if (seconds < 60) {
        std::fprintf(stderr, "usage: tavrin_table_soak [SECONDS]     at least 60\n");
        return 2;
    }
    const TemporaryHome home;
    TemporarySettings settings;
    AppModel model(Platform::native(), settings.preferences);
    const auto tables = [&model] {
        return std::vector<LongRun::Figure>{
            {.name = "processes", .value = double(model.processes().size()), .margin = otherProcesses}};
    };
    LongRun run(seconds * ticksPerSecond, tables, 2 * otherProcesses);
    std::deque<std::unique_ptr<Children>> children;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &app, [&] {
        children.push_back(std::make_unique<Children>(startsPerTick));
        if (children.size() > livingBatches)
            children.pop_front();
        QMetaObject::invokeMethod(&model, "tick");
        run.ticked();
        if (run.isOver())
            QCoreApplication::quit();
    });
    timer.start(1000 / ticksPerSecond);
    QCoreApplication::exec();
    return run.stoodStill() ? 0 : 1;
}
