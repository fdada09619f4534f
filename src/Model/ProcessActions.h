#pragma once

#include "Core/ActionLog/ActionLog.h"
#include "Core/Relief/AutoOptimizer.h"
#include "Core/Relief/FreeRAM.h"
#include "Core/Relief/NukePreview.h"
#include "Core/Relief/SignalGate.h"
#include "Core/Sampling/Sampler.h"
#include "Model/PublishedState.h"
#include "Platform/Platform.h"

class ServerWatch;

/// What the user can have done to processes and to memory; all but `quitServer` is on record when it is done.
class ProcessActions : public QObject, public SafeRelief {
    Q_OBJECT

public:
    /// All of them outlive the actions; `sampler` and `servers` are those behind the state.
    ProcessActions(const Platform& platform, const PublishedState& state, const Sampler& sampler,
                   const ServerWatch& servers, ActionLog& log);

    /// Signals the very process that the user pointed at, not another that has its id by now.
    void quitProcess(const ProcSample& chosen);
    void forceKillProcess(const ProcSample& chosen);
    /// Asks a server of the report to end. Leaves no line in the log.
    void quitServer(const MCPInspector::LiveServer& server);

    /// Asks the kernel to reclaim memory. Whether the request could be made.
    QCoro::Task<Outcome> nudgeMemory() override;
    /// Drops clean caches after the administrator's prompt.
    QCoro::Task<Outcome> purgeMemory();

    /// Idle processes worth ending: at most 15, largest first. Idle time in minutes, size in MiB.
    QList<FreeRamPreview> freeRamCandidates(double minIdleMin, double minRSSMB) const;
    /// Asks each process to end, kills those that stay, asks the kernel to reclaim, and measures. Takes
    /// about 4 seconds; one entry in the log.
    QCoro::Task<FreeRAMResult> freeRAM(QList<qint32> pids);

    struct FreeRAMWaits {
        std::chrono::milliseconds beforeSecondPass{2000};
        std::chrono::milliseconds beforeMeasuring{1500};
    };
    /// For tests, which do not wait.
    void setFreeRAMWaits(FreeRAMWaits waits) { m_freeRAMWaits = waits; }

    struct QuickKillResult {
        int matched = 0;
        int killed = 0;

        bool operator==(const QuickKillResult&) const = default;
    };
    /// Signals every process of the user's that has `pattern` in its name, path or arguments, in any case,
    /// and reaches both thresholds (minutes, MiB). One entry in the log.
    QuickKillResult quickKill(const QString& pattern, const QString& label, double minIdleMin,
                              double minRSSMB, bool force);
    /// How many processes `quickKill` would signal now.
    int previewMatches(const QString& pattern, double minIdleMin, double minRSSMB) const;

    /// Looks at the orphan servers of the last report again and signals those of the user that still are; how
    /// many servers got a signal. Their launchers are signalled with them.
    int killOrphanMCPs(bool force) override;

    /// All processes of exactly that name, this program left out.
    NukePreview previewForName(const QString& name) const;
    /// The application that all of them belong to, as the menu calls it. Asks the system.
    std::optional<QString> applicationOf(const QList<ProcSample>& processes) const;
    /// All processes of that application.
    NukePreview previewForApplication(const QString& application) const;
    /// Asks every process of the preview to end; the outcome in words.
    QString nuke(const NukePreview& preview);
    /// Asks the application itself to quit, which closes its helpers; the outcome in words.
    QCoro::Task<QString> nukeGracefulApp(NukePreview preview, QString appName, bool force);

private:
    void signalChosen(const ProcSample& chosen, bool force);
    int signalServer(const MCPInspector::LiveServer& server, bool force);
    QList<ProcSample> orphansLookedAtAgain() const;
    QList<ProcSample> quickKillMatches(const QString& pattern, double minIdleMin, double minRSSMB) const;
    std::optional<QString> applicationOf(const ProcSample& process) const;
    QList<ProcSample> processesOf(const QString& application) const;
    QList<ProcSample> inTerminalsOf(const QList<ProcSample>& processes) const;

    Platform m_platform;
    const PublishedState& m_state;
    const Sampler& m_sampler;
    const ServerWatch& m_servers;
    ActionLog& m_log;
    SignalGate m_gate;
    FreeRAMWaits m_freeRAMWaits;
};
