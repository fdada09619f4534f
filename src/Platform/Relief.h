#pragma once

#include "Platform/Result.h"

#include <QCoroTask>

/// What the program asks the system to give back.
class Relief {
public:
    virtual ~Relief() = default;

    /// Tells the running application that the menu calls `name` to quit, `force` without a question about
    /// unsaved work. Done when it has quit.
    virtual QCoro::Task<Outcome> quitApplication(QString name, bool force) = 0;
    /// Reclaims memory that is not in use, for 1.5 s at most. Done when the request could be made, whatever
    /// came of it.
    virtual QCoro::Task<Outcome> reclaimMemory() = 0;
    /// Drops clean file caches of the whole machine, after the administrator's prompt. Not done when the
    /// prompt was cancelled.
    virtual QCoro::Task<Outcome> dropCaches() = 0;
};
