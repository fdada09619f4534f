#include "Cli/Scan.h"

#include "AppModel.h"
#include "Cli/Machine.h"

QCoro::Task<QJsonObject> Scan::caches(Machine& machine) {
    CacheCleanup& cleanup = machine.model().cleanup();
    auto scanning = cleanup.rescan();
    co_await scanning;
    const Report::Origin origin = machine.origin();
    co_return Report::caches(origin, cleanup.shownTargets());
}
