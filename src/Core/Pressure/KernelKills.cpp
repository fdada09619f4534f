#include "Core/Pressure/KernelKills.h"

#include "Core/Sampling/ProcessName.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

constexpr auto recordReach = std::chrono::minutes(1); // longer than a record is asked back for
constexpr quint64 leastVanishedBytes = 64 << 20;      // that may be the work of a program that guards memory

} // namespace

QString MemoryKill::id() const {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(at.time_since_epoch()).count();
    return QStringLiteral("memory_kill_%1_%2_%3").arg(pid).arg(seconds).arg(pid == 0 ? name : QString());
}

bool KernelKills::follow(std::optional<quint64> count, const QList<ProcSample>& processes, bool isGuarded,
                         Instant now) {
    const auto before = std::exchange(m_count, count);
    const quint64 risen = before && count && *count > *before ? *count - *before : 0;
    m_unnamed += risen;
    m_now = now;
    if (!m_isAsking)
        m_vanished.clear();
    if (m_unnamed > 0 || isGuarded || m_isAsking)
        noteVanished(processes);
    m_previous = processes;
    const bool hasVanished = std::ranges::any_of(
        m_vanished, [](const ProcSample& process) { return process.rssBytes >= leastVanishedBytes; });
    m_isAsking |= m_unnamed > 0 || (isGuarded && hasVanished);
    return m_isAsking;
}

/// What was killed may be listed once more while the kernel takes its memory back.
void KernelKills::noteVanished(const QList<ProcSample>& processes) {
    QSet<qint32> running;
    for (const ProcSample& process : processes)
        running.insert(process.pid);
    for (const ProcSample& process : std::as_const(m_previous)) {
        if (!running.contains(process.pid))
            m_vanished.append(process);
    }
    std::ranges::stable_sort(m_vanished, std::ranges::greater(), &ProcSample::rssBytes);
}

std::optional<quint64> KernelKills::sizeOf(qint32 pid) const {
    const auto found = std::ranges::find(m_vanished, pid, &ProcSample::pid);
    return found == m_vanished.end() ? std::nullopt : std::optional(found->rssBytes);
}

QList<MemoryKill> KernelKills::take(const QList<RecordedKill>& record) {
    QList<MemoryKill> kills;
    m_taken.removeIf([this](const auto& taken) { return m_now - *taken > recordReach; });
    for (const RecordedKill& each : record) {
        if (m_taken.contains(each.pid))
            continue;
        m_taken.insert(each.pid, m_now);
        const auto known = sizeOf(each.pid);
        kills.append({.at = m_now,
                      .pid = each.pid,
                      .name = each.name,
                      .bytes = each.bytes ? each.bytes : known,
                      .by = each.by});
        m_unnamed -= each.by.isEmpty() && m_unnamed > 0 ? 1 : 0;
        m_vanished.removeIf([&each](const ProcSample& process) { return process.pid == each.pid; });
    }
    while (m_unnamed > 0 && !m_vanished.isEmpty()) {
        const ProcSample largest = m_vanished.takeFirst();
        kills.append({.at = m_now,
                      .pid = largest.pid,
                      .name = largest.name,
                      .bytes = largest.rssBytes,
                      .by = QString(),
                      .isGuess = true});
        --m_unnamed;
    }
    m_unnamed = 0; // what lived between two ticks has no name
    m_isAsking = false;
    return kills;
}
