#pragma once

#include "Core/RawValue.h"
#include "UI/Sessions/Remains.h"

enum class SessionSort { memory, cpu, lastActive, project };

template <>
inline constexpr std::array rawValueTable<SessionSort> = {
    RawValueRow{SessionSort::memory, QT_TRANSLATE_NOOP("Translations", "Memory")},
    RawValueRow{SessionSort::cpu, QT_TRANSLATE_NOOP("Translations", "CPU")},
    RawValueRow{SessionSort::lastActive, QT_TRANSLATE_NOOP("Translations", "Last active")},
    RawValueRow{SessionSort::project, QT_TRANSLATE_NOOP("Translations", "Project")},
};

/// Which sessions the user wants to see: those in which every word of the search is found, in any case.
struct SessionQuery {
    QString search;

    /// Looks in the agent, the project, the name, the state, the processes' names and their ports (":5173").
    bool matches(const Session& session) const;
    bool matches(const Remains& remains) const;
};

/// Keeps the sessions in order: the largest, the busiest or the latest first, or by project. Where figures
/// are nearly equal, rows stay where they were, so that they do not change places with every tick.
class SessionOrder {
public:
    QList<Session> sorted(const QList<Session>& sessions, SessionSort sort);

private:
    QList<ProcessIdentity> m_last;
    SessionSort m_sort = SessionSort::memory;
};
