#include "Model/ModelReport.h"

#include "AppModel.h"

QJsonObject ModelReport::of(AppModel& model, Report::Kind kind, const Report::Origin& origin) {
    using Report::Kind;
    switch (kind) {
    case Kind::status:
        return Report::status(origin, model.systemSample(), model.processes().size(), model.alerts());
    case Kind::groups:
        return Report::groups(origin, model.groups());
    case Kind::processes:
        return Report::processes(origin, model.processes());
    case Kind::sessions:
        model.wantSessions();
        return Report::sessions(origin, model.sessionReport());
    case Kind::servers:
        return Report::servers(origin, model.mcpReport());
    case Kind::alerts:
        return Report::alerts(origin, model.alerts());
    case Kind::caches:
        return Report::caches(origin, model.cleanup().shownTargets());
    case Kind::projects:
    case Kind::log:
        break;
    }
    return {};
}
