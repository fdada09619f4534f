#pragma once

#include "Core/Sampling/ProcSample.h"
#include "Core/Sampling/SystemSample.h"
#include "Platform/HostStatistics.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class Applications;
class Clock;
class Pressure;
class ProcessTable;
struct ProcessOrigin;
struct Platform;

/// Reads the machine and every process, and keeps the previous readings that turn counters into rates. Not
/// thread-safe.
class Sampler {
public:
    /// Returns the group for a name, path, arguments and program. Called for a new process, and when one of
    /// these has changed.
    using Classifier = std::function<ProcGroup(const ProcSample&)>;

    /// Puts every process into the group `other` without a classifier.
    explicit Sampler(const Platform& platform, Classifier classifier = {});

    /// Reads the whole machine. An unavailable figure is 0, and so is the CPU load of the first reading.
    SystemSample sample();
    /// Returns the load of each CPU between the last two samples in percent; nothing where it is unknown.
    const QList<double>& coreLoads() const { return m_coreLoads; }

    /// Returns one record per readable process, in the system's order, none when the listing fails. A new
    /// program, title or parent of a process shows within three passes; its CPU and idle time go on.
    QList<ProcSample> sampleProcesses();

    /// Takes over how long a process of the last pass has been idle. Starts are compared in whole seconds.
    void setIdle(const ProcessIdentity& process, double seconds);

    /// Calls the classifier again for every process.
    void classifyAnew();

    /// Returns a listed process with its present texts, owner and parent, and the figures of the listing.
    /// Returns an empty optional when it has ended.
    std::optional<ProcSample> lookAgain(const ProcSample& listed) const;

    /// Asks the system whether another process reuses the PID of a listed one. Returns false for a PID that
    /// was not listed or is free.
    bool isReplaced(qint32 pid) const;

    /// Return the sizes of the tables, constant in the long run.
    qsizetype rememberedProcesses() const { return m_known.size(); }
    qsizetype rememberedTexts() const { return m_texts.size(); }

private:
    using Uptime = std::chrono::steady_clock::time_point;

    struct PrevCPU {
        quint64 totalNs = 0;
        Uptime sampledAt; ///< the clock's epoch before the first reading
        Uptime lastNonZero;
        quint32 pass = 0; ///< the last pass that listed the process
    };
    struct StaticMeta {
        QString name;
        QString path;
        QString args;
        QString program;
        ProcGroup group = ProcGroup::other;
        quint32 uid = 0;
        qint32 ppid = 0;
        Instant startTime;
        quint64 startTicks = 0;
        quint64 textHash = 0; ///< of the texts above, see ProcessTable
    };
    struct Known {
        PrevCPU prev;
        StaticMeta staticCache;
        quint32 firstPass = 0;
        bool mayHaveChanged = false; ///< it has run since its texts were last compared
    };

    double cpuLoad();
    double cpuPercent(PrevCPU& cpu, quint64 totalNs, Uptime now) const;
    StaticMeta lookUp(qint32 pid, Instant now);
    ProcGroup groupOf(const StaticMeta& meta) const;
    StaticMeta metaOf(qint32 pid, const ProcessOrigin& origin, Instant now) const;
    QString procName(qint32 pid, const ProcessOrigin& origin, const QStringList& arguments,
                     const QString& script) const;
    void refreshTexts(qint32 pid, Known& process, Instant now);
    bool isDue(qint32 pid, const Known& process) const;
    void refreshParents(QList<ProcSample>& processes);
    QString interned(const QString& text);
    void evictUnseen();

    std::shared_ptr<HostStatistics> m_host;
    std::shared_ptr<ProcessTable> m_table;
    std::shared_ptr<Pressure> m_pressure;
    std::shared_ptr<Clock> m_clock;
    std::shared_ptr<Applications> m_applications;
    Classifier m_classify;
    std::optional<CpuTicks> m_prevHostCPU;
    QList<CoreTicks> m_prevCores;
    QList<double> m_coreLoads;
    QHash<qint32, Known> m_known; ///< by PID
    QSet<QString> m_texts;        ///< names, paths and arguments, each stored once
    qsizetype m_gone = 0;         ///< ended processes since texts were last dropped
    QSet<qint32> m_left;          ///< PIDs that lost their process in this pass
    quint32 m_pass = 0;
};
