#include "Cli/Machine.h"

#include "AppModel.h"
#include "Core/Iso8601.h"
#include "Model/ModelReport.h"
#include "Platform/Clock.h"
#include "Platform/RunningProgram.h"

#include <QCoroTimer>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

/// Of so much resident memory the true memory is wanted. One slice of the ledger reads what 4 ms of processor
/// time pay for, the largest first.
constexpr quint64 maxReadBytes = quint64(4) << 30;
constexpr qsizetype readsPerTick = 50; // of what processes have inherited, see SessionMembers
constexpr qsizetype ticksForPorts = 3;

} // namespace

Machine::Machine(const Environment& environment, Choice choice)
    : m_environment(environment)
    , m_choice(choice) {}

Machine::~Machine() = default;

AppModel& Machine::model() {
    if (m_model)
        return *m_model;
    m_model = std::make_unique<AppModel>(m_environment.platform, m_environment.preferences);
    if (m_environment.adjust)
        m_environment.adjust(*m_model);
    return *m_model;
}

Report::Origin Machine::origin() const {
    return {.sampledAt = m_environment.platform.clock->now(), .isRunning = false, .hasCpu = m_hasCpu};
}

QCoro::Task<QJsonObject> Machine::report(Report::Kind kind) {
    if (const auto document = ask(kind))
        co_return *document;
    auto looking = lookFor(kind);
    co_await looking;
    const Report::Origin direct = origin();
    co_return ModelReport::of(model(), kind, direct);
}

QCoro::Task<AppModel*> Machine::look() {
    auto looking = lookFor(Report::Kind::processes);
    co_await looking;
    if (!m_choice.hasCpu) { // else they were asked for between the two readings
        takeOverIdleTimes();
        tick();
    }
    co_return m_model.get();
}

QCoro::Task<AppModel*> Machine::lookForSessions() {
    auto looking = lookFor(Report::Kind::sessions);
    co_await looking;
    co_return m_model.get();
}

std::optional<QJsonObject> Machine::ask(Report::Kind kind) {
    if (m_choice.isDirect)
        return std::nullopt;
    const auto text = m_environment.running.report(rawValue(kind));
    const QJsonObject document = QJsonDocument::fromJson(text.value_or(QByteArray())).object();
    // A program of another version may have other documents.
    const bool isOurs = document.value(u"schema"_s).toInt() == Report::schema &&
                        document.value(u"kind"_s).toString() == rawValue(kind);
    return isOurs ? std::optional(document) : std::nullopt;
}

QCoro::Task<> Machine::lookFor(Report::Kind kind) {
    const bool hadOldReading = hasOldReading();
    if (kind == Report::Kind::sessions)
        findSessions();
    else
        tick();
    m_hasCpu = hadOldReading;
    const bool showsMemory =
        kind == Report::Kind::sessions || kind == Report::Kind::groups || kind == Report::Kind::processes;
    if (!m_choice.hasCpu || (hadOldReading && !showsMemory))
        co_return;
    wantMemory(kind);
    tick(); // starts to read the memory
    takeOverIdleTimes();
    const auto pause = m_environment.betweenReadings;
    co_await QCoro::sleepFor(pause);
    model().wantSessions();
    tick();
    m_hasCpu = true;
}

/// What a process has inherited is read in several ticks.
void Machine::findSessions() {
    tick();
    const qsizetype ticks = ticksForPorts + model().processes().size() / readsPerTick;
    for (qsizetype i = 0; i < ticks; ++i) {
        model().wantSessions();
        tick();
    }
}

void Machine::wantMemory(Report::Kind kind) {
    QList<qint32> pids;
    quint64 bytes = 0;
    const auto want = [&](const ProcSample& process) {
        if (process.rssBytes > maxReadBytes - bytes)
            return;
        bytes += process.rssBytes;
        pids.append(process.pid);
    };
    const auto wantEach = [&want](const QList<SessionProcess>& processes) {
        for (const SessionProcess& each : processes)
            want(each.process);
    };
    if (kind == Report::Kind::sessions) {
        for (const Session& session : model().sessionReport().sessions)
            wantEach(session.processes);
        for (const LeftOver& left : model().sessionReport().leftOvers)
            wantEach(left.processes);
    } else if (kind == Report::Kind::groups || kind == Report::Kind::processes) {
        for (const ProcSample& process : model().processes())
            want(process);
    }
    model().memoryLedger().wantAsked(pids);
}

void Machine::takeOverIdleTimes() {
    const auto document = ask(Report::Kind::processes);
    m_knowsIdleTimes = document.has_value();
    if (!document)
        return;
    const QJsonArray processes = document->value(u"processes"_s).toArray();
    for (const QJsonValue& value : processes) {
        const QJsonObject process = value.toObject();
        const auto start = Iso8601::parse(process.value(u"started_at"_s).toString().toLatin1());
        if (start)
            model().setIdle({process.value(u"pid"_s).toInt(), *start},
                            process.value(u"idle_seconds"_s).toDouble());
    }
}

/// Returns whether the last look was long enough ago for a load since then.
bool Machine::hasOldReading() const {
    const auto now = m_environment.platform.clock->uptime();
    return m_tickedAt != std::chrono::steady_clock::time_point() &&
           now - m_tickedAt >= m_environment.betweenReadings;
}

void Machine::tick() {
    model().tick();
    m_tickedAt = m_environment.platform.clock->uptime();
}
