#pragma once

#include "Core/RawValue.h"

#include <QList>
#include <QString>
#include <QUuid>

#include <array>
#include <chrono>
#include <optional>

// The plain records that every part of the program passes around. Sizes are bytes, percentages run from
// 0 to 100 (100 = one core for a process), durations are seconds.

using Instant = std::chrono::system_clock::time_point;

enum class ThermalState { nominal, fair, serious, critical };

template <>
inline constexpr std::array rawValueTable<ThermalState> = {
    RawValueRow<ThermalState>{ThermalState::nominal, u"nominal"},
    RawValueRow<ThermalState>{ThermalState::fair, u"fair"},
    RawValueRow<ThermalState>{ThermalState::serious, u"serious"},
    RawValueRow<ThermalState>{ThermalState::critical, u"critical"},
};

/// The word shown to the user: "Cool", "Warm", "Hot" or "Critical".
QString thermalLabel(ThermalState state);

/// One reading of the whole machine.
struct SystemSample {
    QUuid id;
    Instant timestamp;
    double cpuPercent = 0;
    QList<double> cpuPerCore;
    quint64 memUsedBytes = 0; ///< active + wired + compressed
    quint64 memTotalBytes = 0;
    quint64 memWiredBytes = 0;
    quint64 memCompressedBytes = 0;
    quint64 swapUsedBytes = 0;
    quint64 diskFreeBytes = 0; ///< on the root volume, to an ordinary user
    quint64 diskTotalBytes = 0;
    ThermalState thermalState = ThermalState::nominal;

    bool operator==(const SystemSample&) const = default;

    /// What is shown before the first real sample; the same value, `id` included, for the whole run.
    static const SystemSample& zero();

    double memUsedPercent() const;  ///< 0 when the total is 0
    double diskUsedPercent() const; ///< 0 when the total is 0
};

/// Groups of processes that matter on a developer's machine, in the order in which they are listed. The
/// raw value is the label on screen.
enum class ProcGroup { agents, ides, terminals, browsers, containers, other };

template <>
inline constexpr std::array rawValueTable<ProcGroup> = {
    RawValueRow<ProcGroup>{ProcGroup::agents, u"Claude Code & Agents"},
    RawValueRow<ProcGroup>{ProcGroup::ides, u"IDEs"},
    RawValueRow<ProcGroup>{ProcGroup::terminals, u"Terminals"},
    RawValueRow<ProcGroup>{ProcGroup::browsers, u"Browsers"},
    RawValueRow<ProcGroup>{ProcGroup::containers, u"Docker & Containers"},
    RawValueRow<ProcGroup>{ProcGroup::other, u"Other"},
};

/// Name of the group's symbol, under resources/symbols.
QString groupSymbol(ProcGroup group);

/// One process for good: its id may pass on to another, its start does not.
struct ProcessIdentity {
    qint32 pid = 0;
    Instant startTime;

    bool operator==(const ProcessIdentity&) const = default;
};

/// One process in one sampling pass.
struct ProcSample {
    qint32 pid = 0;
    qint32 parentPid = 0; ///< 0 when unknown
    quint32 uid = 0;      ///< effective user id, 0 when unknown
    QString name;
    QString executablePath; ///< empty when unreadable
    QString arguments;      ///< joined by single spaces
    double cpuPercent = 0;
    quint64 rssBytes = 0;
    quint64 virtualBytes = 0;
    int threads = 0;
    Instant startTime;
    double idleSeconds = 0; ///< since it last used more than 0.5 % CPU
    ProcGroup group = ProcGroup::other;
    QString program; ///< what is run: the executable, or what an interpreter or launcher was told to run
                     ///< (a script's path, a module, a package, an image)

    ProcessIdentity identity() const { return {pid, startTime}; }
    bool operator==(const ProcSample&) const = default;
};

/// Totals of one group in one pass.
struct GroupRollup {
    ProcGroup group = ProcGroup::other;
    quint64 rssBytes = 0;
    double cpuPercent = 0;
    int count = 0;

    bool operator==(const GroupRollup&) const = default;

    /// Exactly one rollup per group, in group order, zeros included.
    static QList<GroupRollup> build(const QList<ProcSample>& processes);
};

/// One condition raised by the rules engine.
struct Alert {
    enum class Severity { info, warn, danger };

    QString id; ///< stays the same while the condition lasts
    Severity severity = Severity::info;
    QString title;
    QString detail;
    std::optional<qint32> actionPid = std::nullopt; ///< the process that the alert's action acts on
    std::optional<QString> actionTarget =
        std::nullopt; ///< the name of the thing that the alert's action acts on

    bool operator==(const Alert&) const = default;
};

template <>
inline constexpr std::array rawValueTable<Alert::Severity> = {
    RawValueRow<Alert::Severity>{Alert::Severity::info, u"info"},
    RawValueRow<Alert::Severity>{Alert::Severity::warn, u"warn"},
    RawValueRow<Alert::Severity>{Alert::Severity::danger, u"danger"},
};

/// Name of the severity's symbol, under resources/symbols.
QString severitySymbol(Alert::Severity severity);

/// One path of a cleanup target, measured.
struct CacheEntry {
    QString path;
    quint64 sizeBytes = 0;

    bool operator==(const CacheEntry&) const = default;
};

/// How a target is measured, previewed and cleaned. One with a command of its own is cleaned by that alone.
struct CleanupRule {
    enum class Measure {
        folders,   ///< whole folders, which are emptied
        oldFiles,  ///< files in them that are older than `olderThanDays`
        containers ///< what the container engine reports
    };

    Measure measure = Measure::folders;
    int olderThanDays = 0;
    bool screenshotsOnly = false;
    bool isShared = false;       ///< its folder is everybody's, and programs work in it
    bool holdsUserFiles = false; ///< nothing that comes back by itself

    bool operator==(const CleanupRule&) const = default;
};

/// A folder as a scan found it.
struct ListedFolder {
    QString path;
    quint64 sizeBytes = 0;
    QByteArray listing; ///< what of it goes, as the program `cleanup` lists it; empty when that failed

    bool operator==(const ListedFolder&) const = default;
};

/// A named set of directories that can be cleaned. From `sizeBytes` on, but for `rule`, the fields are what
/// the last scan found.
struct CacheTarget {
    QString name; ///< unique
    QString symbol;
    QList<QString> paths = {}; ///< may begin with "~"
    std::optional<QString> pruneCommand = std::nullopt;
    quint64 sizeBytes = 0;
    QList<CacheEntry> details = {};
    std::optional<Instant> lastScanned = std::nullopt;
    CleanupRule rule = {};
    QList<ListedFolder> listed = {}; ///< what a clean will do, no less and no more
    quint64 sharedBytes = 0;         ///< the part of `sizeBytes` that another target of the same list has too
    QStringList volumes = {};        ///< of containers, that go with all that is in them
    QStringList notes = {};          ///< sentences for the user, such as why a folder is left alone

    bool operator==(const CacheTarget&) const = default;

    /// The fixed catalogue, nothing measured.
    static const QList<CacheTarget>& defaults();
};

/// One action taken by the user or the optimizer.
struct ActionLogEntry {
    enum class Kind { quit, forceKill, clean };

    QUuid id;
    Instant timestamp;
    Kind kind = Kind::quit;
    QString detail;
    quint64 freedBytes = 0; ///< 0 when not known
    bool success = false;
};

template <>
inline constexpr std::array rawValueTable<ActionLogEntry::Kind> = {
    RawValueRow<ActionLogEntry::Kind>{ActionLogEntry::Kind::quit, u"quit"},
    RawValueRow<ActionLogEntry::Kind>{ActionLogEntry::Kind::forceKill, u"forceKill"},
    RawValueRow<ActionLogEntry::Kind>{ActionLogEntry::Kind::clean, u"clean"},
};
