#pragma once

#include "Platform/Result.h"

#include <QCoroTask>

#include <stop_token>

/// Requests to the system to free memory.
class Relief {
public:
    virtual ~Relief() = default;

    /// Asks the running application that the menu calls `name` to quit, with `force` without a prompt for
    /// unsaved work. Succeeds when it has quit.
    virtual QCoro::Task<Outcome> quitApplication(QString name, bool force) = 0;
    /// Reclaims unused memory for 1.5 s at most. Succeeds when the request could be made, whatever it freed.
    virtual QCoro::Task<Outcome> reclaimMemory() = 0;
    /// Drops the machine's clean file caches after the administrator's prompt. Fails when that is cancelled.
    /// `stop` takes the prompt away; what the administrator allowed goes on to its end.
    virtual QCoro::Task<Outcome> dropCaches(std::stop_token stop) = 0;
};
