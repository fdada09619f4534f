#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

struct ToolRequest {
    QString launchPath;
    QStringList arguments;
    bool captureOutput = false;
    std::optional<std::chrono::milliseconds> terminateAfter;
};

struct ToolResult {
    bool launched = false;
    int exitStatus = -1; ///< -1 when it crashed or was not launched
    QByteArray output;

    bool succeeded() const { return launched && exitStatus == 0; }
};

/// Runs programs of the system.
class ToolRunner {
public:
    virtual ~ToolRunner() = default;
    virtual QCoro::Task<ToolResult> run(ToolRequest request) = 0;
};
