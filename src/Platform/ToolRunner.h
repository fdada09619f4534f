#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>
#include <stop_token>

struct ToolRequest {
    QString launchPath;
    QStringList arguments;
    bool captureOutput = false;
    std::optional<std::chrono::milliseconds> terminateAfter = {};
    QByteArray input = {};     ///< what it can read, nothing unless given
    std::stop_token stop = {}; ///< terminates it like `terminateAfter`, but when asked to
};

struct ToolResult {
    bool launched = false; ///< false as well for a tool of our own that found nothing here to work on
    int exitStatus = -1;   ///< -1 when it crashed or was not launched
    QByteArray output;
    /// The first line that a tool of this program's own wrote about a failure; empty for other tools.
    QString complaint;

    bool succeeded() const { return launched && exitStatus == 0; }
};

/// Runs programs of the system.
class ToolRunner {
public:
    virtual ~ToolRunner() = default;
    virtual QCoro::Task<ToolResult> run(ToolRequest request) = 0;
};
