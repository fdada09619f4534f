#include "Cli/Mcp/McpTools.h"

#include "Cli/Machine.h"
#include "Cli/ProcessRows.h"
#include "Cli/Scan.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int usualLimit = 15;
constexpr int maxLimit = 200;

struct Tool {
    QString name;
    QString description;
    QJsonObject properties; ///< of its arguments, as JSON Schema
};

QJsonObject limitProperty() {
    return {{u"limit"_s, QJsonObject{{u"type"_s, u"integer"_s},
                                     {u"minimum"_s, 1},
                                     {u"maximum"_s, maxLimit},
                                     {u"description"_s, u"how many processes, 15 by default"_s}}}};
}

QJsonObject scanProperty() {
    return {{u"scan"_s, QJsonObject{{u"type"_s, u"boolean"_s},
                                    {u"description"_s, u"measure now, which may take a minute"_s}}}};
}

const QList<Tool>& tools() {
    static const QList<Tool> all = {
        {u"memory_status"_s,
         u"Memory, swap, processor and disk of this machine, and the alerts in force. Ask before starting "
         "something large, and when a command was killed or is slow."_s,
         {}},
        {u"sessions"_s,
         u"The coding agents that run, each with what it started (servers, development servers, browsers) "
         u"and "
         "the memory of all that together. The session with is_caller is the one that asks."_s,
         {}},
        {u"what_holds_memory"_s, u"The largest processes and what each group of programs holds."_s,
         limitProperty()},
        {u"orphans"_s,
         u"What nobody uses any more: MCP servers without a host, processes that ended sessions left behind, "
         u"and "
         "older servers of the same kind."_s,
         {}},
        {u"caches"_s, u"The caches of developer tools, and how much space each takes."_s, scanProperty()}};
    return all;
}

const Tool* toolOf(const QString& name) {
    const auto found = std::ranges::find(tools(), name, &Tool::name);
    return found == tools().end() ? nullptr : &*found;
}

/// Returns the members of an object that an agent needs.
QJsonObject only(const QJsonObject& object, std::initializer_list<QStringView> keys) {
    QJsonObject result;
    for (const QStringView key : keys)
        result.insert(key.toString(), object.value(key));
    return result;
}

QJsonArray withoutOwn(const QJsonArray& processes, qint64 ownPid) {
    QJsonArray result;
    for (const QJsonValue& value : processes) {
        if (value.toObject().value(u"pid"_s).toInteger() != ownPid)
            result.append(value);
    }
    return result;
}

QJsonArray shortProcesses(const QJsonArray& processes) {
    QJsonArray result;
    for (const QJsonValue& value : processes)
        result.append(only(value.toObject(), {u"pid", u"parent_pid", u"name", u"part", u"rss_bytes",
                                              u"memory_bytes", u"cpu_percent", u"ports", u"started_at"}));
    return result;
}

bool contains(const QJsonArray& processes, qint64 pid) {
    return withoutOwn(processes, pid).size() < processes.size();
}

/// Returns the records with the short form of their processes, without those that have none.
QJsonArray shortRecords(const QJsonArray& records, qint64 ownPid) {
    QJsonArray result;
    for (const QJsonValue& value : records) {
        QJsonObject record = value.toObject();
        const QJsonArray processes = withoutOwn(record.value(u"processes"_s).toArray(), ownPid);
        record.insert(u"processes"_s, shortProcesses(processes));
        if (!processes.isEmpty())
            result.append(record);
    }
    return result;
}

QCoro::Task<QJsonObject> memoryStatus(Machine& machine) {
    auto reading = machine.report(Report::Kind::status);
    co_return co_await reading;
}

QCoro::Task<QJsonObject> sessions(Machine& machine, qint64 ownPid) {
    auto reading = machine.report(Report::Kind::sessions);
    const QJsonObject document = co_await reading;
    const QJsonArray all = document.value(u"sessions"_s).toArray();
    QJsonArray records;
    for (const QJsonValue& value : all) {
        QJsonObject session = value.toObject();
        const QJsonArray processes = session.value(u"processes"_s).toArray();
        session.insert(u"is_caller"_s, contains(processes, ownPid));
        session.insert(u"processes"_s, shortProcesses(processes));
        records.append(session);
    }
    const QJsonObject result{{u"sampled_at"_s, document.value(u"sampled_at"_s)}, {u"sessions"_s, records}};
    co_return result;
}

QCoro::Task<QJsonObject> whatHoldsMemory(Machine& machine, int limit) {
    auto readingGroups = machine.report(Report::Kind::groups);
    const QJsonObject groups = co_await readingGroups;
    auto reading = machine.report(Report::Kind::processes);
    const QJsonObject document = co_await reading;
    const ProcessRows::Choice choice;
    const QJsonArray all = ProcessRows::chosen(document.value(u"processes"_s).toArray(), choice);
    QJsonArray largest;
    for (const QJsonValue& value : all) {
        if (largest.size() < limit)
            largest.append(
                only(value.toObject(), {u"pid", u"parent_pid", u"name", u"arguments", u"group", u"rss_bytes",
                                        u"memory_bytes", u"swap_bytes", u"cpu_percent"}));
    }
    const QJsonObject result{{u"sampled_at"_s, document.value(u"sampled_at"_s)},
                             {u"groups"_s, groups.value(u"groups"_s)},
                             {u"processes"_s, largest}};
    co_return result;
}

QCoro::Task<QJsonObject> orphans(Machine& machine, qint64 ownPid) {
    auto readingServers = machine.report(Report::Kind::servers);
    const QJsonObject servers = co_await readingServers;
    auto reading = machine.report(Report::Kind::sessions);
    const QJsonObject document = co_await reading;
    const QJsonArray live = withoutOwn(servers.value(u"servers"_s).toArray(), ownPid);
    QJsonArray unused;
    for (const QJsonValue& value : live) {
        if (value.toObject().value(u"is_orphan"_s).toBool())
            unused.append(value);
    }
    const QJsonObject result{
        {u"sampled_at"_s, document.value(u"sampled_at"_s)},
        {u"servers"_s, unused},
        {u"left_overs"_s, shortRecords(document.value(u"left_overs"_s).toArray(), ownPid)},
        {u"duplicates"_s, shortRecords(document.value(u"duplicates"_s).toArray(), ownPid)}};
    co_return result;
}

QCoro::Task<QJsonObject> caches(Machine& machine, bool scans) {
    auto reading = scans ? Scan::caches(machine) : machine.report(Report::Kind::caches);
    const QJsonObject document = co_await reading;
    const QJsonArray all = document.value(u"targets"_s).toArray();
    QJsonArray targets;
    for (const QJsonValue& value : all)
        targets.append(only(value.toObject(), {u"name", u"size_bytes", u"scanned_at", u"is_in_clean_all",
                                               u"has_user_files", u"reason", u"notes"}));
    const QJsonObject result{{u"sampled_at"_s, document.value(u"sampled_at"_s)}, {u"targets"_s, targets}};
    co_return result;
}

} // namespace

QJsonArray McpTools::list() {
    QJsonArray result;
    for (const Tool& tool : tools())
        result.append(QJsonObject{{u"name"_s, tool.name},
                                  {u"description"_s, tool.description},
                                  {u"inputSchema"_s, QJsonObject{{u"type"_s, u"object"_s},
                                                                 {u"properties"_s, tool.properties},
                                                                 {u"additionalProperties"_s, false}}},
                                  {u"annotations"_s, QJsonObject{{u"readOnlyHint"_s, true}}}});
    return result;
}

QString McpTools::objection(const QString& name, const QJsonObject& arguments) {
    const Tool* tool = toolOf(name);
    if (!tool)
        return u"Unknown tool: "_s + name;
    const QStringList given = arguments.keys();
    for (const QString& key : given) {
        if (!tool->properties.contains(key))
            return u"Unknown argument: "_s + key;
    }
    const QJsonValue limit = arguments.value(u"limit"_s);
    if (!limit.isUndefined() && (limit.toInt(0) < 1 || limit.toInt(0) > maxLimit))
        return u"limit is a whole number from 1 to %1"_s.arg(maxLimit);
    const QJsonValue scan = arguments.value(u"scan"_s);
    return scan.isUndefined() || scan.isBool() ? QString() : u"scan is true or false"_s;
}

QCoro::Task<QJsonObject> McpTools::call(Machine& machine, QString name, QJsonObject arguments,
                                        qint64 ownPid) {
    if (name == "sessions"_L1)
        return sessions(machine, ownPid);
    if (name == "what_holds_memory"_L1)
        return whatHoldsMemory(machine, arguments.value(u"limit"_s).toInt(usualLimit));
    if (name == "orphans"_L1)
        return orphans(machine, ownPid);
    if (name == "caches"_L1)
        return caches(machine, arguments.value(u"scan"_s).toBool());
    return memoryStatus(machine);
}
