#include "Core/Relief/SignalGate.h"

#include "Core/Sampling/Sampler.h"
#include "Platform/Signals.h"

#include <algorithm>

SignalGate::SignalGate(std::shared_ptr<Signals> sender, const Sampler& sampler)
    : m_sender(std::move(sender))
    , m_sampler(sampler) {}

std::shared_ptr<ProcessHandle> SignalGate::hold(qint32 pid) const {
    constexpr qint32 nobody = 0;
    const auto handle = m_sender->hold(pid);
    // Checked after the handle exists, because a handle stays with its process.
    return m_sampler.isReplaced(pid) ? m_sender->hold(nobody) : handle;
}

int SignalGate::signalAll(const QList<qint32>& pids, bool force) const {
    const Signal signal = force ? Signal::kill : Signal::terminate;
    return static_cast<int>(std::ranges::count_if(
        pids, [&](qint32 pid) { return hold(pid)->send(signal) == SignalResult::delivered; }));
}
