#include "Core/ReliefFixture.h"

#include "Core/ActionLog/ActionLogReader.h"
#include "Core/Sampling/ProcessFilter.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

using FreeRAMTest = ReliefTest;
using Reply = SignalResult;

QList<qint32> pidsOf(const QList<FreeRamPreview>& candidates) {
    return each(candidates, &FreeRamPreview::pid);
}

QStringList outcomesOf(const FreeRAMResult& result) {
    return each(result.perPid, [](const FreeRAMResult::Record& record) { return rawValue(record.outcome); });
}

} // namespace

TEST_F(FreeRAMTest, CandidatesAreTheUsersIdleKnownOrHugeProcesses) {
    add(1, "claude", 600 * MiB);
    add(2, "claude", 500 * MiB);
    add(3, "claude", 500 * MiB - 1);
    add(4, "claude", 900 * MiB, {.uid = 0});
    add(fakes.identity->pid, "claude", 900 * MiB);
    add(5, "unknown", 999'999'999);
    add(6, "unknown", 1'000'000'000);
    tick();
    fakes.clock->advance(900);
    tick();
    EXPECT_EQ(pidsOf(model->actions().freeRamCandidates(15, 500)), (QList<qint32>{6, 1, 2}));
    EXPECT_EQ(pidsOf(model->actions().freeRamCandidates(15.01, 500)), QList<qint32>());
    const FreeRamPreview last = model->actions().freeRamCandidates(0, 500).last();
    EXPECT_EQ(
        last,
        (FreeRamPreview{
            2, u"claude"_s, 500 * MiB, 900, ProcGroup::agents, {.memoryBytes = 500 * MiB, .isRough = true}}));
}

TEST_F(FreeRAMTest, FifteenLargestCandidates) {
    for (qint32 pid = 1; pid <= 20; ++pid)
        add(pid, "claude", static_cast<quint64>(pid) * MiB);
    tick();
    const QList<qint32> pids = pidsOf(model->actions().freeRamCandidates(0, 0));
    ASSERT_EQ(pids.size(), 15);
    EXPECT_EQ(pids.first(), 20);
    EXPECT_EQ(pids.last(), 6);
}

TEST_F(FreeRAMTest, AnyThresholdIsAccepted) {
    add(1, "claude", std::numeric_limits<quint64>::max());
    tick();
    const double nan = std::nan("");
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double size : {nan, infinity, -infinity, -1.0, -1e300, std::ldexp(1.0, 44), 1e300})
        EXPECT_TRUE(model->actions().freeRamCandidates(0, size).isEmpty()) << size;
    EXPECT_TRUE(model->actions().freeRamCandidates(nan, 0).isEmpty());
    EXPECT_EQ(model->actions().freeRamCandidates(0, std::ldexp(1.0, 44) - 1).size(), 1);
    EXPECT_EQ(ProcessFilter::bytesFromMiB(1.9), MiB);
    EXPECT_EQ(ProcessFilter::bytesFromMiB(-0.5), 0U);
}

TEST_F(FreeRAMTest, EveryOutcome) {
    const std::pair<FakeSignals::Script, QString> rows[] = {
        {{.endsOnTerminate = true}, u"quit"_s},
        {{}, u"forced"_s},
        {{.terminate = Reply::notPermitted}, u"denied"_s},
        {{.terminate = Reply::other}, u"forced"_s},
        {{.terminate = Reply::other, .kill = Reply::other}, u"ignored"_s},
        {{.kill = Reply::notPermitted}, u"denied"_s},
        {{.kill = Reply::noSuchProcess}, u"quit"_s},
        {{.kill = Reply::other, .probe = Reply::other}, u"ignored"_s},
    };
    QList<qint32> pids;
    for (const auto& [script, outcome] : rows) {
        pids.append(static_cast<qint32>(100 + pids.size()));
        signalSender->start(pids.last(), script);
    }
    EXPECT_EQ(outcomesOf(QCoro::waitFor(model->actions().freeRAM(pids))),
              each(rows, [](const auto& row) { return row.second; }));
}

TEST_F(FreeRAMTest, ARunReportsMeasuresAndLogs) {
    add(41, "claude", 7 * MiB);
    tick();
    fakes.relief->answer = [this] {
        const auto give = [this] { fakes.host->memory.activeBytes -= 204800; }; // takes the kernel a while
        QMetaObject::invokeMethod(model.get(), give, Qt::QueuedConnection);
        return Outcome::success();
    };
    const FreeRAMResult result = QCoro::waitFor(model->actions().freeRAM({41, 57}));
    EXPECT_EQ(result.perPid, (QList<FreeRAMResult::Record>{{41, u"claude"_s, 7 * MiB, KillOutcome::forced},
                                                           {57, u"pid 57"_s, 0, KillOutcome::quit}}));
    EXPECT_TRUE(result.memoryPressureSignaled);
    EXPECT_EQ(result.freedBytes, 204800U);
    EXPECT_EQ(logged(), QStringList(u"quit [free RAM] 41:forced,57:quit freed=204800 ok"_s));
    EXPECT_EQ(fakes.relief->requests, QStringList(u"reclaim memory"_s));
    EXPECT_EQ(ActionLogReader::read().value(0).freedBytes, 204800U);
    EXPECT_EQ(model->actionLog().entries().first().timestamp, fakes.clock->wall);
}

TEST_F(FreeRAMTest, AnEmptyRunStillNudgesAndFreesAtLeastZero) {
    fakes.relief->answer = [] { return Outcome(); };
    tick();
    fakes.host->memory.activeBytes *= 2;
    const FreeRAMResult result = QCoro::waitFor(model->actions().freeRAM({}));
    EXPECT_FALSE(result.memoryPressureSignaled);
    EXPECT_EQ(result.freedBytes, 0U);
    EXPECT_EQ(logged(), QStringList(u"quit [free RAM]  freed=0 ok"_s));
}

TEST_F(FreeRAMTest, AReusedPidGetsNoSignal) {
    signalSender->start(41);
    auto run = model->actions().freeRAM({41, 42});
    signalSender->end(41);
    signalSender->start(41); // during the delay: another process with that PID
    signalSender->start(42); // free when the run began
    const FreeRAMResult result = QCoro::waitFor(run);
    EXPECT_EQ(outcomesOf(result), (QStringList{u"quit"_s, u"quit"_s}));
    EXPECT_EQ(signalSender->sent(), (QList<FakeSignals::Sent>{{41, Signal::terminate, 1}}));
}

TEST_F(FreeRAMTest, AStoppedRunKillsNothingMore) {
    model->actions().setFreeRAMDelays({std::chrono::hours(1), std::chrono::hours(1)});
    signalSender->start(41);
    signalSender->start(42, {.endsOnTerminate = true});
    std::stop_source stopping;
    auto run = model->actions().freeRAM({41, 42}, stopping.get_token());
    stopping.request_stop();
    EXPECT_EQ(outcomesOf(QCoro::waitFor(run)), (QStringList{u"ignored"_s, u"quit"_s}));
    EXPECT_TRUE(fakes.relief->requests.isEmpty());
    EXPECT_EQ(logged(), QStringList(u"quit [free RAM] 41:ignored,42:quit freed=0 ok"_s));
}

TEST_F(FreeRAMTest, TheRunEndsWithItsModel) {
    signalSender->start(41);
    auto run = model->actions().freeRAM({41});
    model.reset();
    EXPECT_EQ(outcomesOf(QCoro::waitFor(run)), QStringList(u"quit"_s));
    EXPECT_TRUE(fakes.relief->requests.isEmpty());
}
