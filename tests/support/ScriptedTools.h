#pragma once

#include "Platform/ToolRunner.h"

#include <QList>

#include <coroutine>
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
            Turn turn{*this, requests.size() - 1};
            co_await turn;
        }
        co_return answer(request);
    }

    /// Lets the held request go whose arguments contain `argument`; false when there is none.
    bool release(const QString& argument) {
        for (qsizetype i = 0; i < m_waiting.size(); ++i) {
            if (requests[m_waiting[i].first].arguments.contains(argument)) {
                m_waiting.takeAt(i).second.resume();
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
    struct Turn {
        ScriptedTools& tools;
        qsizetype request;

        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> waiter) { tools.m_waiting.append({request, waiter}); }
        void await_resume() const noexcept {}
    };

    QList<std::pair<qsizetype, std::coroutine_handle<>>> m_waiting;
};
