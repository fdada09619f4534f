#pragma once

#include "Platform/ToolRunner.h"
#include "support/Turn.h"

#include <functional>
#include <utility>

/// A tool runner that runs nothing: it remembers every request and answers from `answer`, at once or, while
/// `held`, when the test lets a request go.
class ScriptedTools : public ToolRunner {
public:
    std::function<ToolResult(const ToolRequest&)> answer = [](const ToolRequest&) { return exited(0); };
    bool held = false;
    QList<ToolRequest> requests;

    static ToolResult exited(int status, QByteArray output = {}) { return {true, status, std::move(output)}; }

    QCoro::Task<ToolResult> run(ToolRequest request) override {
        requests.append(request);
        if (held) {
            m_held.append(requests.size() - 1);
            Turn turn{m_waiting};
            co_await turn;
        }
        co_return answer(request);
    }

    /// Lets the held request go whose arguments contain `argument`; false when there is none.
    bool release(const QString& argument) {
        for (qsizetype i = 0; i < m_held.size(); ++i) {
            if (requests[m_held[i]].arguments.contains(argument)) {
                m_held.removeAt(i);
                m_waiting.takeAt(i).resume();
                return true;
            }
        }
        return false;
    }

    /// "PROGRAM ARGUMENT ..." of every request so far.
    QStringList commandLines() const {
        QStringList lines;
        for (const ToolRequest& request : requests)
            lines.append((QStringList(request.launchPath) + request.arguments).join(u' '));
        return lines;
    }

private:
    QList<qsizetype> m_held; ///< requests, each at the place of its coroutine in `m_waiting`
    QList<std::coroutine_handle<>> m_waiting;
};
