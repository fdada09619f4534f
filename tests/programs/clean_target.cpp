#include "Core/ActionLog/ActionLog.h"
#include "Core/Cleanup/CacheCleanup.h"
#include "Preferences.h"

#include <QCoreApplication>
#include <QCoroTask>

#include <algorithm>
#include <cstdio>

/// Measures the cleanup target of that name below HOME, cleans it, and prints its bytes before and after.
/// Status 1 when the clean failed or there is nothing.
int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    const Platform platform = Platform::native();
    ActionLog log(platform.clock);
    CacheCleanup cleanup(platform, log, Preferences::shared());
    const QString name = app.arguments().value(1);
    const auto measure = [&cleanup, &name] {
        QCoro::waitFor(cleanup.rescan());
        const auto found = std::ranges::find(cleanup.targets(), name, &CacheTarget::name);
        return found == cleanup.targets().end() ? CacheTarget() : *found;
    };
    const CacheTarget before = measure();
    QCoro::waitFor(cleanup.clean(before));
    const bool isDone = before.sizeBytes > 0 && cleanup.report().failures.isEmpty();
    std::printf("%llu %llu\n", before.sizeBytes, measure().sizeBytes);
    return isDone ? 0 : 1;
}
