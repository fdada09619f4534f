#include "Core/Report/Report.h"

#include "Core/Memory/MemoryFigures.h"
#include "Core/Report/ReportParts.h"

using namespace Qt::StringLiterals;

namespace Report {

using namespace ReportParts;

namespace {

constexpr QStringView groupNames[] = {u"agents", u"ides", u"terminals", u"browsers", u"containers", u"other"};

QJsonValue level(const std::optional<PressureLevel>& pressure, double PressureLevel::*part) {
    return pressure ? QJsonValue(rounded((*pressure).*part)) : QJsonValue();
}

/// Returns the proportional memory, or null while the ledger has not read it.
QJsonValue proportionalBytes(const ProcSample& process) {
    return process.memory ? number(process.memory->use.proportionalBytes) : QJsonValue();
}

QJsonValue swapBytes(const ProcSample& process) {
    if (!process.memory)
        return {};
    const ProcessMemoryUse& use = process.memory->use;
    return number(use.proportionalSwapBytes ? use.proportionalSwapBytes : use.swapBytes);
}

QJsonObject alertOf(const Alert& alert) {
    return {{u"id"_s, alert.id},
            {u"severity"_s, rawValue(alert.severity)},
            {u"title"_s, alert.title},
            {u"detail"_s, alert.detail},
            {u"pid"_s, alert.actionPid ? QJsonValue(*alert.actionPid) : QJsonValue()}};
}

} // namespace

QString groupName(ProcGroup group) {
    return groupNames[static_cast<int>(group)].toString();
}

QJsonObject status(const Origin& origin, const SystemSample& sample, qsizetype processes,
                   const QList<Alert>& alerts) {
    const Alert* worst = Alert::worstOf(alerts);
    QJsonObject document = head(Kind::status, origin);
    document.insert(u"cpu_percent"_s, origin.hasCpu ? QJsonValue(rounded(sample.cpuPercent)) : QJsonValue());
    // A machine without memory is one that does not tell.
    const bool hasMemory = sample.memTotalBytes > 0;
    document.insert(u"memory_total_bytes"_s, known(hasMemory, sample.memTotalBytes));
    document.insert(u"memory_used_bytes"_s, known(hasMemory, sample.memUsedBytes));
    document.insert(u"memory_used_percent"_s,
                    hasMemory ? QJsonValue(rounded(sample.memUsedPercent())) : QJsonValue());
    document.insert(u"memory_wired_bytes"_s, known(hasMemory, sample.memWiredBytes));
    document.insert(u"memory_compressed_bytes"_s, known(hasMemory, sample.memCompressedBytes));
    document.insert(u"memory_left_bytes"_s, known(hasMemory, sample.leftBytes()));
    document.insert(u"swap_total_bytes"_s, known(hasMemory, sample.swapTotalBytes));
    document.insert(u"swap_used_bytes"_s, known(hasMemory, sample.swapUsedBytes));
    document.insert(u"disk_total_bytes"_s, known(sample.diskTotalBytes > 0, sample.diskTotalBytes));
    document.insert(u"disk_free_bytes"_s, known(sample.diskTotalBytes > 0, sample.diskFreeBytes));
    document.insert(u"thermal_state"_s, rawValue(sample.thermalState));
    document.insert(u"memory_pressure_some_percent"_s, level(sample.memoryPressure, &PressureLevel::some));
    document.insert(u"memory_pressure_full_percent"_s, level(sample.memoryPressure, &PressureLevel::full));
    document.insert(u"process_count"_s, processes);
    document.insert(u"alert_count"_s, alerts.size());
    document.insert(u"worst_severity"_s, worst ? QJsonValue(rawValue(worst->severity)) : QJsonValue());
    document.insert(u"alerts"_s, arrayOf(alerts, alertOf));
    return document;
}

QJsonObject groups(const Origin& origin, const QList<GroupRollup>& groups) {
    QJsonObject document = head(Kind::groups, origin);
    document.insert(u"groups"_s, arrayOf(groups, [&origin](const GroupRollup& group) {
                        QJsonObject part = memory(group.memory);
                        part.insert(u"group"_s, groupName(group.group));
                        part.insert(u"label"_s, rawValue(group.group));
                        part.insert(u"process_count"_s, group.count);
                        part.insert(u"cpu_percent"_s, cpu(origin, group.cpuPercent));
                        return part;
                    }));
    return document;
}

QJsonObject process(const Origin& origin, const ProcSample& process) {
    return {{u"pid"_s, process.pid},
            {u"parent_pid"_s, process.parentPid},
            {u"uid"_s, qint64(process.uid)},
            {u"name"_s, process.name},
            {u"path"_s, process.executablePath},
            {u"arguments"_s, process.arguments},
            {u"group"_s, groupName(process.group)},
            {u"cpu_percent"_s, cpu(origin, process.cpuPercent)},
            {u"rss_bytes"_s, number(process.rssBytes)},
            {u"memory_bytes"_s, proportionalBytes(process)},
            {u"swap_bytes"_s, swapBytes(process)},
            {u"virtual_bytes"_s, number(process.virtualBytes)},
            {u"thread_count"_s, process.threads},
            {u"started_at"_s, time(process.startTime)},
            {u"idle_seconds"_s, origin.isRunning ? QJsonValue(rounded(process.idleSeconds)) : QJsonValue()}};
}

QJsonObject processes(const Origin& origin, const QList<ProcSample>& processes) {
    QJsonObject document = head(Kind::processes, origin);
    document.insert(u"processes"_s,
                    arrayOf(processes, [&origin](const ProcSample& each) { return process(origin, each); }));
    return document;
}

QJsonObject alerts(const Origin& origin, const QList<Alert>& alerts) {
    QJsonObject document = head(Kind::alerts, origin);
    document.insert(u"alerts"_s, arrayOf(alerts, alertOf));
    return document;
}

} // namespace Report
