#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

struct ToolRequest {
    QString launchPath;
    QStringList arguments;
    bool captureOutput = false;
    std::optional<std::chrono::milliseconds> timeout = {}; ///< with `onOutput`, since its last line
    QByteArray input = {};                                 ///< its standard input
    std::stop_token stop = {};                             ///< terminates it as the timeout does
    /// Is called with each whole line of its standard output as it comes, without the line break.
    std::function<void(const QByteArray&)> onOutput = {};
    char lineEnd = '\n'; ///< of the lines for `onOutput`
};

struct ToolResult {
    bool launched = false; ///< false as well when a tool of our own is unsupported here
    int exitStatus = -1;   ///< -1 when it crashed or was not launched
    QByteArray output;
    QString errorLine; ///< the first line of standard error; empty for tools that are not our own

    bool succeeded() const { return launched && exitStatus == 0; }
};

/// Runs programs of the system.
class ToolRunner {
public:
    virtual ~ToolRunner() = default;
    virtual QCoro::Task<ToolResult> run(ToolRequest request) = 0;
};
