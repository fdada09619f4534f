#include "Core/ReliefFixture.h"

#include "Core/ActionLog/ActionLogReader.h"
#include "Core/Observable.h"

#include <QCoreApplication>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using AppModelTest = ReliefTest;

} // namespace

TEST_F(AppModelTest, StartTicksOnceAndPublishesSortedAndGrouped) {
    QList<qint32> bySize = {900};
    for (qint32 pid = 80; pid > 40; --pid) { // enough for an unstable sort to reorder them
        add(pid, "twin", 20);
        bySize.append(pid);
    }
    add(3, "small", 10);
    add(900, "claude", 500);
    bySize.append(3);
    EXPECT_EQ(model->systemSample(), SystemSample::zero());
    EXPECT_EQ(model->timerInterval(), -1);
    model->start();
    // Equal sizes keep the listing's order.
    EXPECT_EQ(each(model->processes(), &ProcSample::pid), bySize);
    ASSERT_EQ(model->groups().size(), 6);
    EXPECT_EQ(model->groups()[0].rssBytes, 500U);
    EXPECT_EQ(model->systemHistory().size(), 1);
    EXPECT_EQ(model->cleanup().targets().size(), 15);
    EXPECT_EQ(model->timerInterval(), 2);
}

TEST_F(AppModelTest, EachChangeIsAnnouncedBeforeItLands) {
    QList<qsizetype> seen;
    QObject::connect(model.get(), &AppModel::objectWillChange, model.get(),
                     [&] { seen.append(model->processes().size()); });
    add(1, "a", 1);
    tick();
    ASSERT_FALSE(seen.isEmpty());
    EXPECT_EQ(seen.first(), 0);
    EXPECT_EQ(seen.last(), 1);
    EXPECT_EQ(seen.count(0), 3); // sample, history and the list itself
}

TEST_F(AppModelTest, HistoryIsTrimmedToItsRetention) {
    settings.preferences.historyRetention.set(HistoryRetention::fiveMin);
    settings.preferences.pollIntervalSeconds.set(10);
    for (int pass = 0; pass < 70; ++pass) {
        tick();
        ASSERT_EQ(model->systemHistory().size(), std::min(pass + 1, 60));
    }
    EXPECT_EQ(model->systemHistory().last(), model->systemSample());
}

TEST_F(AppModelTest, LowPowerPausesAllButTheSystemSample) {
    add(1, "a", 1);
    tick();
    fakes.power->lowPower = true;
    settings.preferences.pauseOnLowPower.set(true);
    fakes.processes->remove(1);
    fakes.host->memory.swapUsedBytes = 99;
    fakes.clock->advance(2);
    tick();
    EXPECT_EQ(model->systemSample().swapUsedBytes, 99U);
    ASSERT_EQ(model->groupHistory().times.size(), 2);
    EXPECT_TRUE(std::isnan(model->groupHistory().values[0].last())) << "nobody counted the groups then";
    EXPECT_EQ(model->systemHistory().size(), 2);
    EXPECT_EQ(model->processes().size(), 1);
    settings.preferences.pauseOnLowPower.set(false);
    tick();
    EXPECT_TRUE(model->processes().isEmpty());
}

TEST_F(AppModelTest, TheTimerFollowsThePollIntervalWithinBounds) {
    model->start();
    const std::pair<double, double> cases[] = {{2.005, 2}, {2.02, 2.02},   {5, 5},      {0, 0.1},
                                               {-7, 0.1},  {1e300, 86400}, {0.25, 0.25}};
    for (const auto& [stored, interval] : cases) {
        settings.preferences.pollIntervalSeconds.set(stored);
        QCoreApplication::sendPostedEvents();
        EXPECT_DOUBLE_EQ(model->timerInterval(), interval) << stored;
    }
}

TEST_F(AppModelTest, EachPeriodEndsWithATick) {
    settings.preferences.pollIntervalSeconds.set(0.1);
    model->start();
    EXPECT_TRUE(QTest::qWaitFor([this] { return model->systemHistory().size() > 2; }));
}

TEST_F(AppModelTest, ARunTakesTheDelaysThatTheUserIsTold) {
    const ProcessActions::FreeRAMDelays delays;
    EXPECT_EQ(delays.beforeSecondPass, std::chrono::seconds(2));
    EXPECT_EQ(delays.beforeMeasuring, std::chrono::milliseconds(1500));
}

TEST_F(AppModelTest, NoNameForgesALineOfTheLog) {
    model->actions().quickKill(u"x"_s, u"a\nb\tc"_s, 0, 0, false);
    EXPECT_EQ(logged(), QStringList(u"quit [quickKill] a\u240ab\u2409c — matched=0 killed=0 ok"_s));
    EXPECT_EQ(ActionLogReader::read().size(), 1);
}

TEST_F(AppModelTest, ObserversAreCalledOnceForABurstAndReadTheNewValues) {
    int calls = 0;
    {
        QObject owner;
        observe(model.get(), &owner, [&] {
            ++calls;
            EXPECT_EQ(model->systemHistory().size(), 2);
        });
        tick(2);
        EXPECT_EQ(calls, 0);
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(calls, 1);
        tick();
    }
    QCoreApplication::sendPostedEvents(); // the owner is gone before its call
    EXPECT_EQ(calls, 1);
}
