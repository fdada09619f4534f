#pragma once

#include <QCoroTask>
#include <QString>

#include <memory>

class ToolRunner;

/// The two tools that give memory back system-wide, and the one that applications are told to quit with.
namespace Cleaner {

/// Asks the system to reclaim memory that is not in use, for 1.5 s at most. True when the tool could be
/// started: a request that was made counts, whatever came of it.
QCoro::Task<bool> memoryPressure(std::shared_ptr<ToolRunner> tools);

/// Drops clean file caches of the whole machine, after the administrator's prompt. False when the tool could
/// not be started, the prompt was cancelled or nothing was dropped.
QCoro::Task<bool> deepPurge(std::shared_ptr<ToolRunner> tools);

/// Runs one script, such as `tell application "NAME" to quit`. True when it ended with status 0.
QCoro::Task<bool> runOsascript(std::shared_ptr<ToolRunner> tools, QString script);

} // namespace Cleaner
