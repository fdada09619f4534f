#pragma once

#include "Core/ActionLog/ActionLog.h"
#include "support/Each.h"

/// Returns the actions as "KIND DETAIL ok", the newest first.
inline QStringList loggedIn(const ActionLog& log) {
    return each(log.entries(), [](const ActionLogEntry& entry) {
        return rawValue(entry.kind) + u' ' + entry.detail + QLatin1String(entry.success ? " ok" : " fail");
    });
}
