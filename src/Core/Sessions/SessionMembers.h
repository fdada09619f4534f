#pragma once

#include "Core/Sampling/ProcSample.h"
#include "Core/Sessions/AgentTable.h"
#include "Core/Sessions/DirectUse.h"
#include "Core/Sessions/ProcessTree.h"
#include "Platform/ProcessTable.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

class Clock;
class Identity;
struct Platform;

/// Finds which process belongs to which session of an agent, and remembers it: a process that has lost its
/// parent stays with the session that it was below.
///
/// A session is an agent's process of the user with no agent above it. Everything below it belongs to it,
/// another agent too. A process that had lost its parent before it was seen is found by what it inherited:
/// the session's id in its environment, its process session, its control group. What a person uses directly
/// belongs to no session by inheritance, with all below it (see DirectUse).
class SessionMembers {
public:
    /// A session, which may have ended.
    struct Known {
        std::optional<ProcessIdentity> host; ///< empty when it ended before it was seen
        QString agent;
        QString folder;               ///< empty when unknown
        std::optional<Instant> ended; ///< empty while it runs, and when nobody saw its end
        QSet<QString> ids;            ///< that the agent gave it
        QByteArray controlGroup;      ///< of its own, else empty
        bool isRunning = false;
    };

    explicit SessionMembers(const Platform& platform);

    static constexpr int none = -1;

    /// Follows the processes of a pass. Reads nothing.
    void follow(const ProcessTree& tree);
    /// Reads what is not known yet of processes that may belong to a session, within a budget. Called after
    /// `follow` with the same tree.
    void readInheritance(const ProcessTree& tree);
    /// Adds what the host of a running session says about itself. Empty texts say nothing.
    void addWord(int session, const QString& id, const QString& folder);

    /// Returns the number of the session that the process at a place belongs to, or `none`.
    int sessionAt(int place) const { return m_sessionAt[static_cast<std::size_t>(place)]; }
    /// Returns the sessions by their number, which stays the same while any of its processes runs.
    const QHash<int, Known>& known() const { return m_known; }
    /// Returns what was read of a process; empty before that.
    std::optional<ProcessInheritance> inheritance(const ProcessIdentity& process) const;
    /// Returns whether the process at a place runs an agent.
    bool isAgent(int place) const { return m_records[static_cast<std::size_t>(place)]->isAgent; }

private:
    /// What every tick needs of every process.
    struct Process {
        Instant startTime;
        QString name; ///< this and the program tell whether it has become something else
        QString program;
        int session = none;
        quint32 pass = 0;
        bool isAgent = false;
        bool isManager = false; ///< of services: what lost its parent is below it
        bool isRead = false;    ///< `m_inherited` has it
    };
    struct Inherited {
        ProcessInheritance facts;
        std::optional<AgentTable::Mark> mark;
    };

    /// The number of a process session, which its leader gave it.
    struct Leader {
        int session = none;
        std::optional<Instant> unusedSince; ///< when the last process with that number had gone
    };

    void record(const ProcessTree& tree);
    void followLeaders();
    Process& recordAt(int place) const { return *m_records[static_cast<std::size_t>(place)]; }
    bool isOfUser(const ProcSample& process) const;
    bool isBelowAgent(const ProcessTree& tree, int place) const;
    void findHosts(const ProcessTree& tree);
    int sessionOfHost(const ProcSample& host);
    void assign(const ProcessTree& tree);
    bool isHelper(const ProcessTree& tree, int place) const;
    int sessionBelow(const ProcessTree& tree, int place);
    void forget(const QSet<int>& inUse);
    bool isTop(const ProcessTree& tree, int place) const;
    void readMember(const ProcessTree& tree, int place);
    void readHost(const ProcessTree& tree, int place, Known& session);
    void adoptAll(const ProcessTree& tree);
    bool adopt(const ProcessTree& tree, int place);
    bool adoptAgent(const ProcSample& process, Process& record);
    std::optional<AgentTable::Mark> markOf(qint32 pid) const;
    int sessionInherited(const ProcessTree& tree, const ProcSample& process);
    bool hasProgramBeside(const ProcessTree& tree, int session, const ProcSample& process) const;
    int sessionWithId(const AgentTable::Mark& mark) const;
    int sessionOfMark(const AgentTable::Mark& mark, const ProcSample& process);

    std::shared_ptr<ProcessTable> m_table;
    std::shared_ptr<Identity> m_identity;
    std::shared_ptr<Clock> m_clock;
    DirectUse m_directUse;
    std::unordered_map<qint32, Process> m_processes; ///< by PID
    std::vector<Process*> m_records;                 ///< those at each place
    QHash<qint32, Inherited> m_inherited;            ///< by PID
    std::vector<int> m_agents;                       ///< the places of agents
    QHash<int, Known> m_known;
    QHash<qint32, int> m_sessionOfHost;      ///< by PID
    QHash<qint32, Leader> m_sessionOfLeader; ///< by the leader of a process session
    std::vector<int> m_hostAt;               ///< the place of the topmost agent at or above each place
    std::vector<int> m_sessionAt;
    std::vector<bool> m_isUsed; ///< at or below a program that a person uses directly
    int m_lastNumber = 0;
    bool m_mayHaveUnread = false;
    bool m_hasNews = false; ///< something was learnt that may tell whose a process is
    quint32 m_pass = 0;
    quint32 m_userId = 0; ///< of this program, in this pass
};
