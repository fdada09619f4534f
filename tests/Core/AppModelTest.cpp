#include "AppModel.h"

#include "Core/Observe.h"
#include "support/Each.h"
#include "support/FakePlatform.h"
#include "support/TemporarySettings.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

struct AppModelTest : testing::Test {
    FakePlatform fakes;
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    AppModel model{fakes.platform(), prefs};

    void tick(int times = 1) {
        for (int i = 0; i < times; ++i)
            QMetaObject::invokeMethod(&model, "tick");
    }
    static FakeProcess process(const char* name, quint64 rss) {
        return {.task = TaskInfo{.residentBytes = rss}, .name = name};
    }
};

} // namespace

TEST_F(AppModelTest, StartTicksOnceAndPublishesSortedAndGrouped) {
    fakes.processes->add(3, process("small", 10));
    fakes.processes->add(9, process("claude", 500));
    fakes.processes->add(4, process("twin one", 20));
    fakes.processes->add(2, process("twin two", 20));
    EXPECT_EQ(model.systemSample(), SystemSample::zero());
    EXPECT_EQ(model.timerInterval(), -1);
    model.start();
    // Equal sizes keep the listing's order.
    EXPECT_EQ(each(model.processes(), &ProcSample::pid), (QList<qint32>{9, 4, 2, 3}));
    ASSERT_EQ(model.groups().size(), 6);
    EXPECT_EQ(model.groups()[0].rssBytes, 500U);
    EXPECT_EQ(model.systemHistory().size(), 1);
    EXPECT_EQ(model.cacheTargets().size(), 15);
    EXPECT_EQ(model.timerInterval(), 2);
}

TEST_F(AppModelTest, EachChangeIsAnnouncedBeforeItLands) {
    QList<qsizetype> seen;
    QObject::connect(&model, &AppModel::objectWillChange, &model,
                     [&] { seen.append(model.processes().size()); });
    fakes.processes->add(1, process("a", 1));
    tick();
    ASSERT_FALSE(seen.isEmpty());
    EXPECT_EQ(seen.first(), 0);
    EXPECT_EQ(seen.last(), 1);
    EXPECT_EQ(seen.count(0), 3); // sample, history and the list itself
}

TEST_F(AppModelTest, HistoryIsTrimmedToItsRetention) {
    prefs.historyRetention.set(HistoryRetention::fiveMin);
    prefs.pollIntervalSeconds.set(10);
    tick(70);
    ASSERT_EQ(model.systemHistory().size(), 60);
    EXPECT_EQ(model.systemHistory().last(), model.systemSample());
}

TEST_F(AppModelTest, LowPowerPauseFreshensTheSystemOnly) {
    fakes.processes->add(1, process("a", 1));
    tick();
    fakes.power->lowPower = true;
    prefs.pauseOnLowPower.set(true);
    fakes.processes->remove(1);
    fakes.host->swap = 99;
    tick();
    EXPECT_EQ(model.systemSample().swapUsedBytes, 99U);
    EXPECT_EQ(model.systemHistory().size(), 2);
    EXPECT_EQ(model.processes().size(), 1);
    prefs.pauseOnLowPower.set(false);
    tick();
    EXPECT_TRUE(model.processes().isEmpty());
}

TEST_F(AppModelTest, AlertsFollowTheTick) {
    fakes.host->physical = quint64(2) << 30;
    tick();
    ASSERT_EQ(model.alerts().size(), 1);
    EXPECT_EQ(model.alerts().first().id, QStringLiteral("ram_low"));
    prefs.alertRAMLowEnabled.set(false);
    tick();
    EXPECT_TRUE(model.alerts().isEmpty());
}

TEST_F(AppModelTest, TimerFollowsThePollIntervalAndNeverSpins) {
    model.start();
    const std::pair<double, double> cases[] = {{2.005, 2}, {5, 5},         {0, 0.1},
                                               {-7, 0.1},  {1e300, 86400}, {0.25, 0.25}};
    for (const auto& [stored, interval] : cases) {
        prefs.pollIntervalSeconds.set(stored);
        QCoreApplication::sendPostedEvents();
        EXPECT_DOUBLE_EQ(model.timerInterval(), interval) << stored;
    }
}

TEST_F(AppModelTest, ObserversHearOfABurstOnceAndReadTheNewValues) {
    int calls = 0;
    {
        QObject owner;
        observe(&model, &owner, [&] {
            ++calls;
            EXPECT_EQ(model.systemHistory().size(), 2);
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
