#include "UI/Sessions/SessionQuery.h"

#include "UI/Sessions/SessionTexts.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr double memoryMargin = 0.05;
constexpr double cpuMargin = 10; // percent of a core
constexpr std::chrono::seconds activityMargin(60);

bool matchesAll(const QString& search, QStringList texts, const QList<SessionProcess>& processes) {
    for (const SessionProcess& member : processes)
        texts << member.process.name << SessionTexts::ports(member);
    const QStringList words = search.simplified().split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(words, [&texts](const QString& word) {
        return std::ranges::any_of(
            texts, [&word](const QString& text) { return text.contains(word, Qt::CaseInsensitive); });
    });
}

bool isBefore(const Session& a, const Session& b, SessionSort sort) {
    switch (sort) {
    case SessionSort::cpu:
        return a.cpuPercent > b.cpuPercent;
    case SessionSort::lastActive:
        return a.lastActive > b.lastActive; // an unknown time is before all others
    case SessionSort::project: {
        const int order = SessionTexts::heading(a).localeAwareCompare(SessionTexts::heading(b));
        return order != 0 ? order < 0 : a.started < b.started;
    }
    case SessionSort::memory:
        break;
    }
    return a.memory.bytes > b.memory.bytes;
}

/// Returns whether `a` is before `b` by so much that a person would miss it.
bool isClearlyBefore(const Session& a, const Session& b, SessionSort sort) {
    switch (sort) {
    case SessionSort::cpu:
        return a.cpuPercent > b.cpuPercent + cpuMargin;
    case SessionSort::lastActive:
        return a.lastActive && (!b.lastActive || *a.lastActive > *b.lastActive + activityMargin);
    case SessionSort::project:
        return isBefore(a, b, sort);
    case SessionSort::memory:
        break;
    }
    return static_cast<double>(a.memory.bytes) > static_cast<double>(b.memory.bytes) * (1 + memoryMargin);
}

bool isInOrder(const QList<Session>& sessions, SessionSort sort) {
    for (qsizetype i = 0; i < sessions.size(); ++i) {
        for (qsizetype j = i + 1; j < sessions.size(); ++j) {
            if (isClearlyBefore(sessions[j], sessions[i], sort))
                return false;
        }
    }
    return true;
}

} // namespace

bool SessionQuery::matches(const Session& session) const {
    return matchesAll(search,
                      {session.agent, session.folder, session.project(), session.name,
                       SessionTexts::lookOf(session.state).text},
                      session.processes);
}

bool SessionQuery::matches(const Remains& remains) const {
    return matchesAll(search, {remains.title(), remains.agent(), remains.folder()}, remains.processes());
}

QList<Session> SessionOrder::sorted(const QList<Session>& sessions, SessionSort sort) {
    QList<Session> result = sessions;
    const auto exactly = [sort](const Session& a, const Session& b) { return isBefore(a, b, sort); };
    if (sort == m_sort) {
        std::ranges::stable_sort(result, {}, [this](const Session& session) {
            const qsizetype place = m_last.indexOf(session.host);
            return place < 0 ? m_last.size() : place;
        });
    }
    if (sort != m_sort || !isInOrder(result, sort))
        std::ranges::stable_sort(result, exactly);
    m_sort = sort;
    m_last.clear();
    for (const Session& session : std::as_const(result))
        m_last.append(session.host);
    return result;
}
