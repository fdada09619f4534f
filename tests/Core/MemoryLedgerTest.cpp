#include "Core/Memory/MemoryLedger.h"

#include "support/Bytes.h"
#include "support/Each.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <QTest>

#include <algorithm>
#include <atomic>
#include <semaphore>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

using MemoryPlan::Process;
using MemoryPlan::Reading;

QList<Reading> planned(const QList<Process>& processes, std::chrono::nanoseconds credit = 4ms,
                       double secondsSinceLast = 50) {
    return MemoryPlan::slice(processes, credit, {}, secondsSinceLast);
}

/// A process that was read whole.
Process known(qint32 pid, quint64 residentBytes, double ageSeconds) {
    return {.pid = pid,
            .residentBytes = residentBytes,
            .residentWhenRead = residentBytes,
            .ageSeconds = ageSeconds,
            .lastCost = 100us,
            .costBytes = residentBytes};
}

struct MemoryLedgerTest : testing::Test {
    FakePlatform fakes;
    FakeProcessMemory& memory = *fakes.processMemory;
    QList<ProcSample> processes;
    bool isSwapInUse = true;
    MemoryLedger ledger{fakes.processMemory, fakes.clock};

    void add(qint32 pid, quint64 rssBytes = 10 * MiB) {
        processes.append({.pid = pid, .rssBytes = rssBytes, .startTime = Instant(std::chrono::seconds(pid))});
    }
    /// Runs a tick two seconds later with a slice behind it, and returns what was read in that.
    QStringList tick() {
        memory.readings.clear();
        fakes.clock->advance(2);
        for (ProcSample& process : processes)
            process.memory = nullptr;
        ledger.tick(processes, isSwapInUse);
        ledger.waitForSlice();
        return memory.readings;
    }
    QStringList tickForAll() {
        ledger.wantAll();
        return tick();
    }
};

/// Each reading takes until the test lets it end, or five seconds.
class HangingProcessMemory : public ProcessMemory {
public:
    std::binary_semaphore hasBegun{0};
    std::binary_semaphore mayEnd{0};
    std::atomic<int> ended = 0;

    ProcessMemoryReading readAll(qint32) override {
        hasBegun.release();
        static_cast<void>(mayEnd.try_acquire_for(5s));
        ++ended;
        return {.use = ProcessMemoryUse()};
    }
    ProcessMemoryReading readTotals(qint32) override { return {}; }
    std::optional<ControlGroupMemory> controlGroup(qint32) override { return std::nullopt; }
};

} // namespace

TEST(MemoryPlanTest, AskedThenShownThenNewThenGrownThenDue) {
    Process asked = known(1, 10 * MiB, 6);
    asked.isAsked = true;
    Process onShow = known(2, 10 * MiB, 6);
    onShow.isOnShow = true;
    Process grown = known(5, 30 * MiB, 4);
    grown.residentWhenRead = 28 * MiB;
    const Process small = {.pid = 6, .residentBytes = 8 * MiB - 1};
    const QList<Process> processes = {known(8, 40 * MiB, 10),
                                      known(7, 40 * MiB, 46),
                                      small,
                                      grown,
                                      {.pid = 3, .residentBytes = 9 * MiB},
                                      {.pid = 4, .residentBytes = 20 * MiB},
                                      onShow,
                                      asked};
    EXPECT_EQ(
        planned(processes),
        (QList<Reading>{{2, false}, {6, false}, {7, false}, {1, true}, {4, true}, {3, true}, {5, true}}));
}

TEST(MemoryPlanTest, TheTotalsStandForTheWholeNineTimesAtMost) {
    Process process = known(1, 40 * MiB, 46);
    process.repeats = 8;
    EXPECT_EQ(planned({process}), (QList<Reading>{{1, false}}));
    process.repeats = 9;
    EXPECT_EQ(planned({process}), (QList<Reading>{{1, true}}));
    process.isRefused = true;
    EXPECT_EQ(planned({process}), (QList<Reading>{{1, false}}));
}

TEST(MemoryPlanTest, ASliceStaysWithinItsCredit) {
    const auto counts = [](const QList<Reading>& readings) {
        const auto whole = std::ranges::count(readings, true, &Reading::all);
        return std::pair(int(whole), int(readings.size() - whole));
    };
    QList<Process> processes;
    for (qint32 pid = 1; pid <= 100; ++pid)
        processes.append({.pid = pid, .residentBytes = 23 * MiB}); // 500 us each, or 15 us for the totals
    EXPECT_EQ(counts(planned(processes, 1ms)), std::pair(0, 53)) << "four fifths for totals";
    EXPECT_EQ(counts(planned(processes, 4ms)), std::pair(5, 95));
    EXPECT_EQ(counts(planned(processes, -5ms)), std::pair(0, 0));
}

TEST(MemoryPlanTest, EachSliceTakesItsPartOfTheTurnOldestFirst) {
    QList<Process> processes;
    for (qint32 pid = 1; pid <= 100; ++pid)
        processes.append(known(pid, 40 * MiB, 10 + 0.3 * pid));
    EXPECT_EQ(planned(processes, 4ms, 1), (QList<Reading>{{100, false}, {99, false}}));
    EXPECT_EQ(planned(processes, 4ms, 600).size(), 100);
}

TEST(MemoryPlanTest, ADearProcessIsReadOnceTheCreditIsFull) {
    const Process dear{.pid = 1, .residentBytes = 1024 * MiB};
    const Process cheap{.pid = 2, .residentBytes = 10 * MiB};
    EXPECT_EQ(planned({dear, cheap}, 3ms), (QList<Reading>{{1, false}, {2, false}}))
        << "saves for the larger";
    EXPECT_EQ(planned({dear, cheap}, 4ms), (QList<Reading>{{2, false}, {1, true}}));
}

TEST(MemoryPlanTest, TotalsStandInForWhatHasToWait) {
    Process rough = known(1, 40 * MiB, 11);
    rough.lastCost.reset();
    EXPECT_EQ(planned({rough}, 4ms), (QList<Reading>{{1, true}}));
    EXPECT_EQ(planned({rough}, 500us), (QList<Reading>{{1, false}}));
    rough.ageSeconds = 9;
    EXPECT_EQ(planned({rough}, 500us), QList<Reading>()) << "they are fresh";
}

TEST(MemoryPlanTest, MoreThanFourGigabytesOnlyWhenAsked) {
    Process huge{.pid = 1, .residentBytes = MemoryPlan::maxUnaskedBytes + 1};
    EXPECT_EQ(planned({huge}), (QList<Reading>{{1, false}}));
    huge.isAsked = true;
    EXPECT_EQ(planned({huge}), (QList<Reading>{{1, true}}));
}

TEST_F(MemoryLedgerTest, FiguresArriveOneTickLater) {
    add(1);
    memory.all[1] = {.proportionalBytes = 3 * MiB, .uniqueBytes = 2 * MiB, .swapBytes = MiB};
    EXPECT_EQ(tickForAll(), QStringList(u"all 1"_s));
    EXPECT_FALSE(processes[0].memory);
    EXPECT_EQ(tickForAll(), QStringList()) << "it is fresh";
    ASSERT_TRUE(processes[0].memory);
    EXPECT_EQ(processes[0].memory->use, memory.all[1]);
    EXPECT_EQ(processes[0].memory->readAt, fakes.clock->steady);
}

TEST_F(MemoryLedgerTest, NothingIsReadUnlessSomethingWantsIt) {
    add(1);
    add(2);
    memory.all = {{1, {.proportionalBytes = 1}}, {2, {.proportionalBytes = 2}}};
    EXPECT_EQ(tick(), QStringList());
    ledger.wantOnShow({2});
    EXPECT_EQ(tick(), QStringList(u"all 2"_s));
    EXPECT_EQ(tick(), QStringList()) << "a wish lasts one tick";
    fakes.clock->advance(117);
    tick();
    EXPECT_TRUE(processes[1].memory);
    tick();
    EXPECT_FALSE(processes[1].memory) << "figures last two minutes";
}

TEST_F(MemoryLedgerTest, ARefusedProcessHasItsTotals) {
    add(1);
    processes[0].cpuPercent = 1;
    memory.totals[1] = {.anonymousBytes = 5, .swapBytes = 1};
    EXPECT_EQ(tickForAll(), (QStringList{u"all 1"_s, u"totals 1"_s}));
    tickForAll();
    ASSERT_TRUE(processes[0].memory);
    EXPECT_EQ(processes[0].memory->use, memory.totals[1]);
    EXPECT_TRUE(processes[0].memory->isRefused);
    fakes.clock->advance(45);
    EXPECT_EQ(tickForAll(), QStringList(u"totals 1"_s)) << "it is not asked for more again";
}

TEST_F(MemoryLedgerTest, SharesGoOnWhileTheProcessKeepsItsSize) {
    add(1);
    memory.all[1] = {.proportionalBytes = 30, .anonymousBytes = 20, .swapBytes = 1};
    memory.totals[1] = {.anonymousBytes = 21, .swapBytes = 2};
    tickForAll();
    tickForAll();
    processes[0].cpuPercent = 0.01;
    fakes.clock->advance(45);
    EXPECT_EQ(tickForAll(), QStringList(u"totals 1"_s));
    tickForAll();
    EXPECT_EQ(processes[0].memory->use,
              (ProcessMemoryUse{.proportionalBytes = 30, .anonymousBytes = 21, .swapBytes = 2}));
    processes[0].rssBytes *= 10;
    EXPECT_EQ(tickForAll(), QStringList(u"all 1"_s));
}

TEST_F(MemoryLedgerTest, AProcessThatDidNotRunIsNotReadAgainWhileItsSharesMayBeTrue) {
    add(1);
    memory.all[1] = {.proportionalBytes = 30};
    tickForAll();
    for (int i = 0; i < 240; ++i) {
        EXPECT_EQ(tickForAll(), QStringList()) << i;
        ASSERT_TRUE(processes[0].memory) << i;
        EXPECT_LT(fakes.clock->uptime() - processes[0].memory->readAt, 60s) << i;
    }
    fakes.clock->advance(30); // what maps the same pages may have ended
    EXPECT_EQ(tickForAll(), QStringList(u"all 1"_s));
    tickForAll();
    processes[0].rssBytes += 4096;
    fakes.clock->advance(20);
    EXPECT_EQ(tickForAll(), QStringList(u"totals 1"_s)) << "something else took pages from it";
}

TEST_F(MemoryLedgerTest, WithoutSwapTheTickTellsTheTotals) {
    isSwapInUse = false;
    add(1);
    add(2);
    memory.all[1] = {.proportionalBytes = 30, .anonymousBytes = 20};
    for (ProcSample& process : processes) {
        process.anonymousBytes = 4 * MiB;
        process.cpuPercent = 1;
    }
    EXPECT_EQ(tickForAll(), (QStringList{u"all 1"_s, u"all 2"_s})) << "the refused one needs no more";
    fakes.clock->advance(45);
    EXPECT_EQ(tickForAll(), QStringList());
    EXPECT_EQ(processes[0].memory->use.proportionalBytes, 30u);
    EXPECT_TRUE(processes[1].memory->isRefused);
    EXPECT_EQ(processes[1].memory->use, (ProcessMemoryUse{.anonymousBytes = 4 * MiB, .swapBytes = 0}));
    isSwapInUse = true;
    fakes.clock->advance(45);
    EXPECT_EQ(tickForAll(), (QStringList{u"totals 1"_s, u"totals 2"_s}));
}

TEST_F(MemoryLedgerTest, AnotherProcessOfThatPidHasNoFigures) {
    add(1);
    memory.all[1] = {.proportionalBytes = 30};
    tickForAll();
    processes[0].startTime += std::chrono::seconds(1);
    EXPECT_EQ(tickForAll(), QStringList(u"all 1"_s));
    EXPECT_FALSE(processes[0].memory);
}

TEST_F(MemoryLedgerTest, ADearReadingIsPaidBack) {
    memory.cost = 40ms;
    add(1, 500 * MiB);
    memory.all[1] = {.proportionalBytes = 1};
    tickForAll();
    add(2);
    memory.all[2] = {.proportionalBytes = 2};
    int ticks = 1;
    while (tickForAll().isEmpty() && ticks < 50)
        ++ticks;
    EXPECT_EQ(ticks, 14) << "a debt of 10.3 ms, and 0.75 less each tick";
}

TEST_F(MemoryLedgerTest, ItsEndDoesNotWaitForAReadingThatHangs) {
    const auto hanging = std::make_shared<HangingProcessMemory>();
    add(1);
    add(2);
    {
        MemoryLedger itsOwn(hanging, fakes.clock);
        itsOwn.wantAll();
        itsOwn.tick(processes, isSwapInUse);
        ASSERT_TRUE(hanging->hasBegun.try_acquire_for(5s));
    }
    EXPECT_EQ(hanging->ended, 0);
    hanging->mayEnd.release();
    EXPECT_TRUE(QTest::qWaitFor([&] { return hanging.use_count() == 1; })) << "the thread let go of it";
    EXPECT_EQ(hanging->ended, 1) << "the rest of the slice is not read";
}
