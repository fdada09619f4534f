#pragma once

#include "Platform/Relief.h"
#include "support/Turn.h"

#include <QStringList>

#include <functional>

/// Records the requests and answers from `answer`: at once or, while `suspended`, when the test releases the
/// oldest.
class FakeRelief : public Relief {
public:
    std::function<Outcome()> answer = [] { return Outcome::success(); };
    bool suspended = false;
    QStringList requests; ///< "quit NAME", "force-quit NAME", "reclaim memory", "drop caches"

    QCoro::Task<Outcome> quitApplication(QString name, bool force) override {
        return ask((force ? QStringLiteral("force-quit ") : QStringLiteral("quit ")) + name);
    }
    QCoro::Task<Outcome> reclaimMemory() override { return ask(QStringLiteral("reclaim memory")); }
    QCoro::Task<Outcome> dropCaches(std::stop_token stop) override {
        m_stop = stop;
        return ask(QStringLiteral("drop caches"));
    }
    bool isStopped() const { return m_stop.stop_requested(); }

    /// Resumes the oldest request, and returns false when none is suspended.
    bool release() {
        if (m_waiting.isEmpty())
            return false;
        m_waiting.takeFirst().resume();
        return true;
    }

private:
    QCoro::Task<Outcome> ask(QString request) {
        requests.append(request);
        if (suspended) {
            Turn turn{m_waiting};
            co_await turn;
        }
        co_return answer();
    }

    std::stop_token m_stop;
    QList<std::coroutine_handle<>> m_waiting;
};
