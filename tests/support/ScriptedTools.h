#pragma once

#include "Platform/ToolRunner.h"
#include "support/Turn.h"

#include <functional>
#include <utility>

/// Records every request and answers from `answer`: at once or, while `suspended`, when the test releases a
/// request.
class ScriptedTools : public ToolRunner {
public:
    std::function<ToolResult(const ToolRequest&)> answer = [](const ToolRequest&) { return exited(0); };
    bool suspended = false;
    QList<ToolRequest> requests;

    static ToolResult exited(int status, QByteArray output = {}) { return {true, status, std::move(output)}; }

    QCoro::Task<ToolResult> run(ToolRequest request) override {
        requests.append(request);
        if (suspended) {
            m_suspended.append(requests.size() - 1);
            Turn turn{m_waiting};
            co_await turn;
        }
        const ToolResult result = answer(request);
        if (request.onOutput) {
            const char end = request.lineEnd;
            for (const QByteArray& line : result.output.split(end).mid(0, result.output.count(end)))
                request.onOutput(line);
        }
        co_return result;
    }

    /// Resumes the first suspended request with this argument, and returns false when there is none.
    bool release(const QString& argument) {
        for (qsizetype i = 0; i < m_suspended.size(); ++i) {
            if (requests[m_suspended[i]].arguments.contains(argument)) {
                m_suspended.removeAt(i);
                m_waiting.takeAt(i).resume();
                return true;
            }
        }
        return false;
    }

    /// Returns "PROGRAM ARGUMENT ..." of every request.
    QStringList commandLines() const {
        QStringList lines;
        for (const ToolRequest& request : requests)
            lines.append((QStringList(request.launchPath) + request.arguments).join(u' '));
        return lines;
    }

private:
    QList<qsizetype> m_suspended; ///< indices of requests, parallel to `m_waiting`
    QList<std::coroutine_handle<>> m_waiting;
};
