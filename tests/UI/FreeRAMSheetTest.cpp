#include "UI/Overview/FreeRAMSheet.h"

#include "UI/Kit/Slider.h"
#include "UI/ModelFixture.h"
#include "UI/Overview/CandidateRow.h"

#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

struct FreeRAMSheetTest : ModelFixture {
    QWidget window;
    QPointer<FreeRAMSheet> sheet;

    FreeRAMSheetTest() { model.actions().setFreeRAMDelays({.beforeSecondPass = {}, .beforeMeasuring = {}}); }
    ~FreeRAMSheetTest() override { delete sheet; }

    /// Adds agents of 400, 401, ... MiB that have been idle for 20 minutes.
    void addIdle(int count) {
        for (int i = 0; i < count; ++i)
            addProcesses(1, "claude", static_cast<quint64>(400 + i) * MiB);
        tick();
        fakes.clock->advance(1200);
        tick();
    }
    void open() {
        sheet = new FreeRAMSheet(model, &window);
        sheet->open();
    }
    QList<qint32> rows(bool tickedOnly) {
        QList<qint32> pids;
        for (const auto* row : sheet->findChildren<CandidateRow*>()) {
            if (row->isVisibleTo(sheet) && (row->isChecked() || !tickedOnly))
                pids.append(row->accessibleName().section(u"PID "_s, -1).section(u' ', 0, 0).toInt());
        }
        return pids;
    }
    CandidateRow* row(int index) { return sheet->findChildren<CandidateRow*>().at(index); }
};

} // namespace

TEST_F(FreeRAMSheetTest, TicksTheFiveLargestOnce) {
    addIdle(7);
    open();
    EXPECT_EQ(rows(false), (QList<qint32>{106, 105, 104, 103, 102, 101, 100}));
    EXPECT_EQ(rows(true), (QList<qint32>{106, 105, 104, 103, 102}));
    EXPECT_TRUE(showsText(*sheet, u"5 selected • 2 GB targeted"_s));
    EXPECT_TRUE(showsText(*sheet, u"≤ 2 GB will come back"_s));
    press(*sheet, u"Clear"_s);
    tick();
    EXPECT_EQ(rows(true), QList<qint32>());
    EXPECT_FALSE(buttonNamed(*sheet, u"Clear"_s)->isEnabled());
    EXPECT_TRUE(buttonNamed(*sheet, u"Send memory pressure only"_s));
    press(*sheet, u"Select all"_s);
    EXPECT_EQ(rows(true).size(), 7);
    EXPECT_TRUE(buttonNamed(*sheet, u"Kill 7 and free RAM"_s));
}

TEST_F(FreeRAMSheetTest, ATickIsForTheProcessThatWasPressed) {
    addIdle(2);
    open();
    press(*sheet, u"Clear"_s);
    QTest::mousePress(row(0), Qt::LeftButton);
    fakes.processes->processes[100].task->residentBytes = 900 * MiB; // takes the first row
    tick();
    QTest::mouseRelease(row(0), Qt::LeftButton);
    EXPECT_EQ(rows(false), (QList<qint32>{100, 101}));
    EXPECT_EQ(rows(true), QList<qint32>{101});
    QTest::keyClick(row(1), Qt::Key_Space);
    EXPECT_EQ(rows(true), QList<qint32>());
}

TEST_F(FreeRAMSheetTest, FollowsTheModelAndTheSliders) {
    addIdle(3);
    open();
    fakes.processes->processes[102].task->cpuTimeNs += 1'000'000'000;
    fakes.clock->advance(1);
    tick();
    EXPECT_EQ(rows(false), (QList<qint32>{101, 100})); // 102 became busy
    EXPECT_TRUE(showsText(*sheet, u"3 selected • 801 MB targeted"_s));
    const auto sliders = sheet->findChildren<Slider*>();
    QTest::keyClick(sliders[0], Qt::Key_Home);
    EXPECT_TRUE(showsText(*sheet, u"Min idle: 0 min"_s));
    EXPECT_EQ(rows(false), (QList<qint32>{102, 101, 100}));
    QTest::keyClick(sliders[1], Qt::Key_End);
    EXPECT_TRUE(showsText(*sheet, u"Min RAM: 2000 MB"_s));
    EXPECT_TRUE(showsText(*sheet, u"No idle hogs above your thresholds"_s));
    EXPECT_FALSE(buttonNamed(*sheet, u"Select all"_s)->isEnabled());
    fakes.processes->remove(101);
    tick();
    EXPECT_TRUE(buttonNamed(*sheet, u"Kill 2 and free RAM"_s)); // no tick for one that has ended
}

TEST_F(FreeRAMSheetTest, ReturnRunsAndTheOutcomesAreShown) {
    addIdle(4);
    fakes.signalSender->start(100, {.endsOnTerminate = true});
    fakes.signalSender->start(101, {.terminate = SignalResult::notPermitted});
    fakes.signalSender->start(102, {.terminate = SignalResult::other, .kill = SignalResult::other});
    open();
    fakes.relief->suspended = true;
    fakes.host->memory.activeBytes /= 2;
    QTest::keyClick(sheet, Qt::Key_Return);
    EXPECT_FALSE(buttonNamed(*sheet, u"Killing…"_s)->isEnabled());
    QTest::keyClick(sheet, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return fakes.relief->release(); }, 1000));
    EXPECT_TRUE(QTest::qWaitFor([this] { return showsText(*sheet, u"Freed ~400 KB"_s); }, 1000));
    EXPECT_TRUE(showsText(*sheet, u"• memory_pressure nudged"_s));
    QStringList outcomes = shownNames<QWidget>(*sheet).filter(u"claude ("_s);
    outcomes.sort();
    EXPECT_EQ(outcomes,
              (QStringList{u"claude (100) Quit"_s, u"claude (101) Permission denied"_s,
                           u"claude (102) Ignored SIGTERM/KILL"_s, u"claude (103) Force-killed"_s}));
    EXPECT_EQ(logged().size(), 1);
    QTest::keyClick(sheet, Qt::Key_Escape);
    settle();
    EXPECT_TRUE(sheet.isNull());
}

TEST_F(FreeRAMSheetTest, AStoppedRunLeavesAloneWhatStillRuns) {
    model.actions().setFreeRAMDelays({std::chrono::hours(1), std::chrono::hours(1)});
    addIdle(1);
    fakes.signalSender->start(100);
    open();
    QTest::keyClick(sheet, Qt::Key_Return);
    press(*sheet, u"Stop"_s);
    EXPECT_FALSE(buttonNamed(*sheet, u"Stop"_s)->isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([this] { return showsText(*sheet, u"• stopped"_s); }));
    EXPECT_EQ(shownNames<QWidget>(*sheet).filter(u"claude ("_s),
              QStringList(u"claude (100) Still running"_s));
    EXPECT_TRUE(buttonNamed(*sheet, u"Kill 1 and free RAM"_s)->isEnabled());
}

TEST_F(FreeRAMSheetTest, SaysWhatComesBackBeforeAndAfter) {
    addIdle(1);
    fakes.processMemory->all[100] = {.proportionalBytes = 390 * MiB,
                                     .uniqueBytes = 320 * MiB,
                                     .uniqueDirtyBytes = 300 * MiB - 400 * MiB / 512,
                                     .proportionalSwapBytes = 20 * MiB};
    open();
    for (int i = 0; i < 5; ++i) {
        tick();
        model.memoryLedger().waitForSlice();
    }
    EXPECT_TRUE(row(0)->accessibleName().endsWith(u"frees ≈ 320 MB"_s))
        << qPrintable(row(0)->accessibleName());
    EXPECT_TRUE(showsText(*sheet, u"≈ 320 MB will come back"_s));
    fakes.host->memory.swapUsedBytes = 30 * MiB;
    tick();
    fakes.host->memory.swapUsedBytes = 12 * MiB;
    QTest::keyClick(sheet, Qt::Key_Return);
    const QString outcome =
        u"Promised: 300 MB in memory, 20 MB in swap. Came back: 0 bytes in memory, 18 MB in swap."_s;
    EXPECT_TRUE(QTest::qWaitFor([&] { return showsText(*sheet, outcome); }, 1000));
}

TEST_F(FreeRAMSheetTest, OtherProgramsAreListedOnRequest) {
    addProcesses(1, "unknown", 600 * MiB);
    addIdle(1);
    open();
    EXPECT_EQ(rows(false), QList<qint32>{101});
    press(*sheet, u"Other programs too"_s);
    EXPECT_EQ(rows(false), (QList<qint32>{100, 101}));
}

TEST_F(FreeRAMSheetTest, ClosedDuringARunItLeavesTheRunToFinish) {
    addIdle(1);
    open();
    fakes.relief->suspended = true;
    QTest::keyClick(sheet, Qt::Key_Return);
    delete sheet;
    EXPECT_TRUE(QTest::qWaitFor([this] { return fakes.relief->release(); }, 1000));
    EXPECT_TRUE(QTest::qWaitFor([this] { return logged().size() == 1; }, 1000));
}

TEST_F(FreeRAMSheetTest, HostileNamesStayPlain) {
    addProcesses(1, "<b>claude</b>\n", 500 * MiB);
    addIdle(0);
    open();
    EXPECT_EQ(row(0)->accessibleName(),
              u"<b>claude</b>\u240a, PID 100 • Claude Code & Agents, 500 MB, idle 20m, frees ≤ 500 MB"_s);
}
