#pragma once

#include <QCoroTask>
#include <QString>

#include <memory>

class ToolRunner;

/// The two tools that give memory back system-wide, and the one that applications are told to quit with.
namespace Cleaner {

struct MemoryAnswer {
    bool done = false;
    QString reason; ///< why it was not, as the tool says it; empty when it was, or says nothing
};

/// Asks the system to reclaim memory that is not in use, for 1.5 s at most. Done when the tool could be
/// started: a request that was made counts, whatever came of it.
QCoro::Task<MemoryAnswer> memoryPressure(std::shared_ptr<ToolRunner> tools);

/// Drops clean file caches of the whole machine, after the administrator's prompt. Not done when
/// the tool could not be started, the prompt was cancelled or nothing was dropped.
QCoro::Task<MemoryAnswer> deepPurge(std::shared_ptr<ToolRunner> tools);

/// Runs one script, such as `tell application "NAME" to quit`. True when it ended with status 0.
QCoro::Task<bool> runOsascript(std::shared_ptr<ToolRunner> tools, QString script);

} // namespace Cleaner
