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
class ProcessTable;
struct ProcessOrigin;
struct Platform;

/// Reads the machine and every process, and keeps the previous readings that turn counters into rates.
/// Not thread-safe: it lives on the thread of the tick.
class Sampler {
public:
    /// Says which group a process belongs to by its name, path, arguments and program. It is asked when a
    /// process is first seen and when one of these has changed.
    using Classifier = std::function<ProcGroup(const ProcSample&)>;

    /// Without a classifier every process is in the group `other`.
    explicit Sampler(const Platform& platform, Classifier classifier = {});

    /// One reading of the whole machine. A figure that the system refuses is 0. The first reading of a
    /// sampler has no CPU load to report.
    SystemSample sample();

    /// One record per readable process, in the system's order. Empty when the system's listing fails. A
    /// process that took another program, title or parent shows it within three passes; its CPU and idle time
    /// go on.
    QList<ProcSample> sampleProcesses();

    /// Asks the classifier anew about every process of the passes to come.
    void classifyAnew();

    /// A listed process as it is now: its texts, owner and parent are asked for anew, its figures are those
    /// of the listing. Empty when it is gone or its id has come to mean another process.
    std::optional<ProcSample> lookAgain(const ProcSample& listed) const;

    /// Whether the id of a process of the last listing has come to mean another process since. Asks the
    /// system; false for an id that was not listed or that nobody has.
    bool isReplaced(qint32 pid) const;

    /// How many processes the tables remember; level in the long run.
    qsizetype rememberedProcesses() const { return m_known.size(); }
    qsizetype rememberedTexts() const { return m_texts.size(); }

private:
    struct PrevCPU {
        quint64 totalNs = 0;
        std::chrono::steady_clock::time_point sampledAt; ///< the clock's epoch before the first reading
        std::chrono::steady_clock::time_point lastNonZero;
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
    /// One entry, so that a pass looks a process up once.
    struct Known {
        PrevCPU prev;
        StaticMeta staticCache;
        quint32 firstPass = 0;
        bool mayHaveChanged = false; ///< it has run since its texts were last compared
    };
    using Uptime = std::chrono::steady_clock::time_point;

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
    std::shared_ptr<Clock> m_clock;
    std::shared_ptr<Applications> m_applications;
    Classifier m_classify;
    std::optional<CpuTicks> m_prevHostCPU;
    QHash<qint32, Known> m_known; ///< by process id
    QSet<QString> m_texts;        ///< names, paths and arguments, each stored once for all that have it
    qsizetype m_gone = 0;         ///< processes, since their texts were last dropped
    QSet<qint32> m_left;          ///< ids that lost their process in this pass
    quint32 m_pass = 0;
};
