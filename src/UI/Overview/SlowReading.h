#pragma once

#include "Core/OnThread.h"

#include <QObject>
#include <QPointer>

/// What a page asks of hardware that may not answer. It is read on a thread, one reading at a time.
template <typename Value> class SlowReading {
public:
    using Answer = std::optional<Value>;

    /// Reads, unless an earlier reading still goes on. Calls `show` with what was read, and with nothing when
    /// the hardware did not answer within five seconds. Calls it no more once `receiver` is gone.
    void ask(QObject* receiver, const std::function<Value()>& read,
             const std::function<void(const Answer&)>& show) {
        if (m_reader.use_count() > 1)
            return;
        const std::function<Value()> held = [read, reader = m_reader] { return read(); };
        onThread(held, std::chrono::seconds(5))
            .then([receiver = QPointer(receiver), show](const Answer& answer) {
                if (receiver)
                    show(answer);
            });
    }

private:
    std::shared_ptr<char> m_reader =
        std::make_shared<char>(); ///< also held by a thread that has no answer yet
};
