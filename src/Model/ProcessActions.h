#pragma once

#include "Core/ActionLog/ActionLog.h"
#include "Core/Relief/AutoOptimizer.h"
#include "Core/Relief/FreeRAM.h"
#include "Core/Relief/NukePreview.h"
#include "Core/Relief/SignalGate.h"
#include "Core/Sampling/Sampler.h"
#include "Core/Sessions/PausedSessions.h"
#include "Core/Sessions/Session.h"
#include "Core/Sessions/SessionEnding.h"
#include "Model/PublishedState.h"
#include "Platform/Platform.h"

#include <stop_token>

class ServerWatch;

/// The user's actions on processes and memory. All but `quitServer` leave a line in the log.
class ProcessActions : public QObject, public SafeRelief {
    Q_OBJECT

public:
    /// The arguments outlive the actions. `sampler` and `servers` are those behind the state.
    ProcessActions(const Platform& platform, const PublishedState& state, const Sampler& sampler,
                   const ServerWatch& servers, ActionLog& log);

    /// Asks the process that the user pointed at to end. A process that reuses its PID gets no signal.
    void quitProcess(const ProcSample& chosen);
    void forceKillProcess(const ProcSample& chosen);
    /// Asks a server of the report and its launchers to end.
    void quitServer(const MCPInspector::LiveServer& server);

    /// Asks the kernel to reclaim memory, and returns whether the request could be made.
    QCoro::Task<Outcome> nudgeMemory() override;
    /// Drops clean caches after the administrator's prompt.
    QCoro::Task<Outcome> purgeMemory(std::stop_token stop = {});

    /// Returns the idle processes worth ending: at most 15, largest first. The minima are in minutes and MiB.
    /// A program of no known group is worth it from a gigabyte on, or with `others`.
    QList<FreeRamPreview> freeRamCandidates(double minIdleMin, double minRSSMB, bool others = false) const;
    /// Returns what the end of these processes together gives back.
    MemoryReturn givesBack(const QList<qint32>& pids) const;
    /// Asks each process to end, kills those that stay, asks the kernel to reclaim memory, and measures.
    /// Takes about 4 seconds and leaves one entry in the log. After `stop` none is killed any more, and what
    /// has not ended by then is left alone.
    QCoro::Task<FreeRAMResult> freeRAM(QList<qint32> pids, std::stop_token stop = {});

    struct FreeRAMDelays {
        std::chrono::milliseconds beforeSecondPass{2000};
        std::chrono::milliseconds beforeMeasuring{1500};
    };
    /// Replaces the delays, in tests only.
    void setFreeRAMDelays(FreeRAMDelays delays) { m_freeRAMDelays = delays; }

    struct QuickKillResult {
        int matched = 0;
        int killed = 0;

        bool operator==(const QuickKillResult&) const = default;
    };
    /// Signals every process of the user that has `pattern` in its name, path or arguments, in any case, and
    /// reaches both minima (minutes, MiB). Leaves one entry in the log.
    QuickKillResult quickKill(const QString& pattern, const QString& label, double minIdleMin,
                              double minRSSMB, bool force);
    /// Returns the processes that `quickKill` would signal now, and how many they are.
    QList<ProcSample> quickKillMatches(const QString& pattern, double minIdleMin, double minRSSMB) const;
    int previewMatches(const QString& pattern, double minIdleMin, double minRSSMB) const;

    /// Signals the user's orphan servers that still are orphans, with their launchers. Returns how many
    /// servers got a signal.
    int killOrphanMCPs(bool force) override;

    /// Return what ends with a session, with left-overs and with duplicates, and what that gives back.
    SessionEnding endingOf(const Session& session) const;
    SessionEnding endingOf(const QList<LeftOver>& leftOvers) const;
    SessionEnding endingOf(const QList<DuplicateServers>& duplicates) const;
    /// Asks the host to end, then what is left of its processes, kills those that stay, and measures. Takes
    /// up to 9 seconds and leaves one entry in the log.
    QCoro::Task<SessionEndResult> endSession(SessionEnding ending);
    /// Stops the processes of a session until `resumeSession`, or until this program ends.
    Outcome pauseSession(const Session& session);
    Outcome resumeSession(const Session& session);
    const PausedSessions& pausedSessions() const { return m_paused; }

    struct SessionDelays {
        std::chrono::milliseconds forHost{5000}; ///< to save
        std::chrono::milliseconds forOthers{2000};
        std::chrono::milliseconds betweenLooks{250};
        std::chrono::milliseconds beforeMeasuring{1500};
    };
    /// Replaces the delays, in tests only.
    void setSessionDelays(SessionDelays delays) { m_sessionDelays = delays; }

    /// Returns the processes of exactly that name, without this program.
    NukePreview previewForName(const QString& name) const;
    /// Asks the system for the application that all of them belong to, and returns its name in the menu.
    std::optional<QString> applicationOf(const QList<ProcSample>& processes) const;
    /// Returns the processes of that application.
    NukePreview previewForApplication(const QString& application) const;
    /// Asks every process of the preview to end, and returns how many signals were delivered.
    int nuke(const NukePreview& preview);
    /// Asks the application to quit, which closes its helpers, and returns the outcome in words.
    QCoro::Task<QString> nukeGracefulApp(NukePreview preview, QString appName, bool force);

private:
    SessionEnding endingOf(const QString& title, const QList<SessionProcess>& processes) const;
    bool mayEnd(const ProcSample& process, const SessionEnding& ending) const;
    void signalChosen(const ProcSample& chosen, bool force);
    int signalServer(const MCPInspector::LiveServer& server, bool force);
    QList<ProcSample> reinspectedOrphans() const;
    std::optional<QString> applicationOf(const ProcSample& process) const;
    QList<ProcSample> processesOf(const QString& application) const;
    void setApplication(NukePreview& preview, const QList<ProcSample>& owned) const;
    QList<ProcSample> inTerminalsOf(const QList<ProcSample>& processes) const;

    Platform m_platform;
    const PublishedState& m_state;
    const Sampler& m_sampler;
    const ServerWatch& m_servers;
    ActionLog& m_log;
    SignalGate m_gate;
    FreeRAMDelays m_freeRAMDelays;
    SessionDelays m_sessionDelays;
    PausedSessions m_paused;
};
