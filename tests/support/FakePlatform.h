#pragma once

#include "Core/Instant.h"
#include "Platform/Applications.h"
#include "Platform/CleanupTargets.h"
#include "Platform/Clock.h"
#include "Platform/HostStatistics.h"
#include "Platform/Identity.h"
#include "Platform/ListeningPorts.h"
#include "Platform/MemoryKills.h"
#include "Platform/Platform.h"
#include "Platform/PowerMode.h"
#include "Platform/Pressure.h"
#include "Platform/ProcessDetails.h"
#include "Platform/ProcessMemory.h"
#include "Platform/ProcessTable.h"
#include "support/FakePlaces.h"
#include "support/FakeRelief.h"
#include "support/FakeSignals.h"
#include "support/ScriptedTools.h"

#include <QHash>

#include <algorithm>
#include <atomic>

// Scripted answers of an operating system: tests set the fields and read the requests.

class FakeClock : public Clock {
public:
    Instant wall = Instant(std::chrono::seconds(1'700'000'000));
    std::chrono::steady_clock::time_point steady{std::chrono::hours(1)};

    Instant now() override { return wall; }
    std::chrono::steady_clock::time_point uptime() override { return steady; }
    void advance(double seconds) {
        const auto step =
            std::chrono::round<std::chrono::nanoseconds>(std::chrono::duration<double>(seconds));
        wall += std::chrono::duration_cast<Instant::duration>(step);
        steady += step;
    }
};

class FakeHostStatistics : public HostStatistics {
public:
    std::optional<CpuTicks> ticks = CpuTicks{};
    MemoryUse memory = {.activeBytes = 800 << 10,
                        .wiredBytes = 120 << 10,
                        .compressedBytes = 80 << 10,
                        .totalBytes = quint64(16) << 30};
    std::optional<VolumeSize> root = VolumeSize{.totalBytes = 4000 << 10, .freeBytes = 1600 << 10};
    int thermal = 0;
    QList<CoreTicks> cores;

    std::optional<CpuTicks> cpuTicks() override { return ticks; }
    QList<CoreTicks> coreTicks() override { return cores; }
    MemoryUse memoryUse() override { return memory; }
    std::optional<VolumeSize> rootVolume() override { return root; }
    int thermalLevel() override { return thermal; }
};

struct FakeProcess {
    std::optional<TaskInfo> task =
        TaskInfo{.virtualBytes = 2, .residentBytes = 1, .cpuTimeNs = 0, .threads = 1};
    QByteArray path = {};
    QByteArray name = {};
    QByteArray arguments = {};
    std::optional<KernelProcessInfo> info = KernelProcessInfo{};
    QByteArray folder = {};
    ProcessKeeper keeper = {};
    ProcessInheritance inheritance = {};
};

class FakeProcessTable : public ProcessTable {
public:
    QList<qint32> listing; ///< the PIDs that the system lists, in order
    QHash<qint32, FakeProcess> processes;
    bool fails = false;
    int metadataLookUps = 0;
    int textHashes = 0;
    QList<qint32> inheritances; ///< the PIDs whose inheritance was read

    FakeProcess& add(qint32 pid, FakeProcess process = {}) {
        listing.append(pid);
        return processes[pid] = std::move(process);
    }
    void remove(qint32 pid) {
        listing.removeAll(pid);
        processes.remove(pid);
    }

    int listAllPids(std::span<qint32> pids) override {
        if (fails)
            return -1;
        const auto count = std::min<std::size_t>(pids.size(), static_cast<std::size_t>(listing.size()));
        std::copy_n(listing.begin(), count, pids.begin());
        return static_cast<int>(count);
    }
    std::optional<TaskInfo> taskInfo(qint32 pid) override {
        const auto found = processes.constFind(pid);
        return found == processes.constEnd() ? std::nullopt : found->task;
    }
    ProcessOrigin origin(qint32 pid) override {
        ++metadataLookUps;
        const FakeProcess process = processes.value(pid);
        return {process.path, process.name, process.arguments, process.info, hashOf(process)};
    }
    std::optional<KernelProcessInfo> kernelInfo(qint32 pid) override { return processes.value(pid).info; }
    std::optional<quint64> textHash(qint32 pid) override {
        ++textHashes;
        const auto found = processes.constFind(pid);
        return found == processes.constEnd() ? std::nullopt : std::optional(hashOf(*found));
    }
    QByteArray workingDirectory(qint32 pid) override { return processes.value(pid).folder; }
    ProcessKeeper keeper(qint32 pid) override { return processes.value(pid).keeper; }
    ProcessInheritance inheritance(qint32 pid, const QByteArrayList&) override {
        inheritances.append(pid);
        return processes.value(pid).inheritance;
    }

private:
    static quint64 hashOf(const FakeProcess& process) {
        return qHashMulti(0, process.path, process.name, process.arguments);
    }
};

/// Called on the ledger's thread: set the answers and read the requests while no slice runs.
class FakeProcessMemory : public ProcessMemory {
public:
    QHash<qint32, ProcessMemoryUse> all;    ///< refused for a PID without an entry
    QHash<qint32, ProcessMemoryUse> totals; ///< the same
    QHash<qint32, ControlGroupMemory> controlGroups;
    std::chrono::nanoseconds cost{};
    QStringList readings; ///< "all PID", "totals PID"

    ProcessMemoryReading readAll(qint32 pid) override { return answer(all, pid, QStringLiteral("all %1")); }
    ProcessMemoryReading readTotals(qint32 pid) override {
        return answer(totals, pid, QStringLiteral("totals %1"));
    }
    std::optional<ControlGroupMemory> controlGroup(qint32 pid) override {
        const auto found = controlGroups.constFind(pid);
        return found == controlGroups.cend() ? std::nullopt : std::optional(*found);
    }

private:
    ProcessMemoryReading answer(const QHash<qint32, ProcessMemoryUse>& uses, qint32 pid,
                                const QString& request) {
        readings.append(request.arg(pid));
        const auto found = uses.constFind(pid);
        return {.use = found == uses.cend() ? std::nullopt : std::optional(*found), .cost = cost};
    }
};

/// Called on threads: set the answers while nothing is read.
class FakeProcessDetails : public ProcessDetails {
public:
    QHash<qint32, DiskCounters> disks;
    QHash<qint32, QByteArrayList> commandLines;
    QHash<qint32, QByteArray> folders;
    QHash<qint32, QByteArray> groups;
    QHash<qint32, OpenFiles> files;
    QHash<qint32, QByteArrayList> environments;
    QHash<quint32, QString> users;
    std::atomic<int> environmentReadings = 0;
    std::atomic<int> diskReadings = 0;

    std::optional<DiskCounters> disk(qint32 pid) override {
        ++diskReadings;
        return answer(disks, pid);
    }
    QByteArrayList commandLine(qint32 pid) override { return commandLines.value(pid); }
    QByteArray workingDirectory(qint32 pid) override { return folders.value(pid); }
    QByteArray controlGroup(qint32 pid) override { return groups.value(pid); }
    std::optional<OpenFiles> openFiles(qint32 pid, int) override { return answer(files, pid); }
    std::optional<QByteArrayList> environment(qint32 pid) override {
        ++environmentReadings;
        return answer(environments, pid);
    }
    QString userName(quint32 uid) override { return users.value(uid); }

private:
    template <typename Value>
    static std::optional<Value> answer(const QHash<qint32, Value>& known, qint32 pid) {
        const auto found = known.constFind(pid);
        return found == known.constEnd() ? std::nullopt : std::optional(*found);
    }
};

class FakeListeningPorts : public ListeningPorts {
public:
    QList<ListeningSocket> listening;
    QHash<qint32, QList<quint64>> byProcess;
    QList<qint32> searched; ///< the PIDs whose sockets were read
    int listings = 0;

    QList<ListeningSocket> sockets() override {
        ++listings;
        return listening;
    }
    QList<quint64> socketsOf(qint32 pid) override {
        searched.append(pid);
        return byProcess.value(pid);
    }
};

class FakePowerMode : public PowerMode {
public:
    bool lowPower = false;

    bool isLowPowerModeEnabled() const override { return lowPower; }
};

class FakeIdentity : public Identity {
public:
    quint32 uid = 1000;
    qint32 pid = 4242;
    QList<qint32> display;

    quint32 userId() const override { return uid; }
    qint32 processId() const override { return pid; }
    QList<qint32> displayServers() const override { return display; }
};

class FakeApplications : public Applications {
public:
    QHash<QString, Application> byProgram;
    QHash<qint32, Application> byProcess;
    QHash<qint32, QList<qint32>> inTerminals; ///< by the process of the terminal

    std::optional<Application> ofProgram(const QString& executable) override {
        return answer(byProgram, executable);
    }
    std::optional<Application> ofProcess(qint32 pid) override { return answer(byProcess, pid); }
    QList<qint32> inTerminalsOf(const QList<qint32>& pids) override {
        QList<qint32> all;
        for (const qint32 pid : pids)
            all += inTerminals.value(pid);
        return all;
    }

private:
    template <typename Key>
    static std::optional<Application> answer(const QHash<Key, Application>& known, const Key& key) {
        const auto found = known.constFind(key);
        return found == known.constEnd() ? std::nullopt : std::optional(*found);
    }
};

class FakeCleanupTargets : public CleanupTargets {
public:
    QList<PlatformTarget> targets;
    QHash<QString, QStringList> inUse; ///< by the name of the target

    QList<PlatformTarget> all() const override { return targets; }
    QStringList kept(const PlatformTarget& target) const override { return inUse.value(target.name); }
};

class FakePressure : public Pressure {
public:
    std::optional<PressureLevel> memory() override { return memoryLevel; }
    std::optional<PressureLevel> disk() override { return diskLevel; }

    std::optional<PressureLevel> memoryLevel;
    std::optional<PressureLevel> diskLevel;
};

class FakeMemoryKills : public MemoryKills {
public:
    std::optional<quint64> count() override { return counted; }
    QCoro::Task<QList<RecordedKill>> since(std::chrono::system_clock::time_point time) override {
        askedSince.append(time);
        co_return record;
    }

    std::optional<quint64> counted = 0;
    QList<RecordedKill> record;
    QList<std::chrono::system_clock::time_point> askedSince;
};

/// All fakes together.
struct FakePlatform {
    std::shared_ptr<FakeHostStatistics> host = std::make_shared<FakeHostStatistics>();
    std::shared_ptr<FakeProcessTable> processes = std::make_shared<FakeProcessTable>();
    std::shared_ptr<FakeProcessMemory> processMemory = std::make_shared<FakeProcessMemory>();
    std::shared_ptr<FakeProcessDetails> processDetails = std::make_shared<FakeProcessDetails>();
    std::shared_ptr<FakeListeningPorts> listeningPorts = std::make_shared<FakeListeningPorts>();
    std::shared_ptr<FakePressure> pressure = std::make_shared<FakePressure>();
    std::shared_ptr<FakeMemoryKills> memoryKills = std::make_shared<FakeMemoryKills>();
    std::shared_ptr<FakePowerMode> power = std::make_shared<FakePowerMode>();
    std::shared_ptr<FakeIdentity> identity = std::make_shared<FakeIdentity>();
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<ScriptedTools> tools = std::make_shared<ScriptedTools>();
    std::shared_ptr<FakePlaces> places = std::make_shared<FakePlaces>();
    std::shared_ptr<FakeCleanupTargets> cleanupTargets = std::make_shared<FakeCleanupTargets>();
    std::shared_ptr<FakeSignals> signalSender = std::make_shared<FakeSignals>();
    std::shared_ptr<FakeApplications> applications = std::make_shared<FakeApplications>();
    std::shared_ptr<FakeRelief> relief = std::make_shared<FakeRelief>();

    Platform platform() const {
        return {.host = host,
                .processes = processes,
                .processMemory = processMemory,
                .processDetails = processDetails,
                .listeningPorts = listeningPorts,
                .pressure = pressure,
                .memoryKills = memoryKills,
                .power = power,
                .identity = identity,
                .clock = clock,
                .tools = tools,
                .places = places,
                .cleanupTargets = cleanupTargets,
                .signalSender = signalSender,
                .applications = applications,
                .relief = relief};
    }
};
