#include "Core/ReliefFixture.h"

#include "Core/ActionLog/ActionLogReader.h"

using namespace Qt::StringLiterals;

namespace {

/// Two orphan servers of the user, one server with a host, one orphan of another user.
struct OrphansTest : ReliefTest {
    OrphansTest() {
        add(10, "claude", 1);
        add(1, "mcp-server-small", 100, {.uid = 1000, .parentPid = 99});
        add(2, "mcp-server-large", 300, {.uid = 1000, .parentPid = 99});
        add(3, "mcp-server-hosted", 900, {.uid = 1000, .parentPid = 10});
        add(4, "mcp-server-root", 900, {.uid = 0, .parentPid = 99});
        add(fakes.identity->pid, "mcp-server-ourselves", 900, {.uid = 1000, .parentPid = 99});
        tick();
    }
    void letLoopRun() { QCoreApplication::processEvents(); }
};

const QString nothingLeft = u"quit [orphan MCPs] killed=0/2 ok"_s;

} // namespace

TEST_F(OrphansTest, OnlyTheUsersOrphansLargestFirst) {
    EXPECT_EQ(model->mcpReport().live.size(), 5);
    signalSender->end(1);
    EXPECT_EQ(model->actions().killOrphanMCPs(false), 1);
    EXPECT_EQ(signalSender->sent(), (QList<FakeSignals::Sent>{{2, Signal::terminate, 1}}));
    signalSender->start(1);
    EXPECT_EQ(model->actions().killOrphanMCPs(true), 2);
    EXPECT_EQ(signalSender->sent().mid(1),
              (QList<FakeSignals::Sent>{{2, Signal::kill, 1}, {1, Signal::kill, 2}}));
    EXPECT_EQ(logged(), (QStringList{u"forceKill [orphan MCPs] killed=2/2 ok"_s,
                                     u"quit [orphan MCPs] killed=1/2 ok"_s}));
}

TEST_F(OrphansTest, TheReportFollowsTheTick) {
    fakes.processes->remove(1);
    fakes.processes->remove(2);
    fakes.power->lowPower = true;
    settings.preferences.pauseOnLowPower.set(true);
    tick();
    EXPECT_EQ(model->mcpReport().orphanCount(), 4); // paused: of the last full tick
    fakes.power->lowPower = false;
    tick();
    EXPECT_EQ(model->mcpReport().orphanCount(), 2);
    EXPECT_EQ(model->actions().killOrphanMCPs(false), 0);
    EXPECT_EQ(logged().first(), u"quit [orphan MCPs] killed=0/0 ok"_s);
}

TEST_F(OrphansTest, SwitchingOnRunsAPassAtOnceInThreeLines) {
    EXPECT_FALSE(model->autoOptimizeEnabled());
    fakes.relief->suspended = true;
    model->setAutoOptimizeEnabled(true);
    EXPECT_TRUE(model->autoOptimizeEnabled());
    EXPECT_EQ(logged(), QStringList(u"quit [orphan MCPs] killed=2/2 ok"_s)); // the others await the tool
    EXPECT_TRUE(fakes.relief->release());
    letLoopRun();
    EXPECT_EQ(logged(),
              (QStringList{u"clean [auto-optimize] orphans=2, pressure nudged ok"_s,
                           u"clean memory_pressure -l warn ok"_s, u"quit [orphan MCPs] killed=2/2 ok"_s}));
    EXPECT_EQ(signalled(), (QList<qint32>{2, 1}));
}

TEST_F(OrphansTest, OffStopsAndOnAgainRunsAnotherPass) {
    fakes.relief->answer = [] { return Outcome(); };
    model->setAutoOptimizeEnabled(true);
    model->setAutoOptimizeEnabled(false);
    EXPECT_FALSE(model->autoOptimizeEnabled());
    EXPECT_EQ(logged().size(), 3);
    EXPECT_EQ(logged()[1], u"clean memory_pressure -l warn fail"_s);
    model->setAutoOptimizeEnabled(true);
    model->setAutoOptimizeEnabled(true);
    EXPECT_EQ(logged().size(), 9);
}

TEST_F(OrphansTest, TheTimerRunsEveryHalfHourWhileOn) {
    AutoOptimizer optimizer(model->actions(), model->actionLog());
    const auto* timer = optimizer.findChild<QTimer*>();
    ASSERT_NE(timer, nullptr);
    EXPECT_FALSE(timer->isActive());
    optimizer.setEnabled(true);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 1'800'000);
    optimizer.setEnabled(false);
    EXPECT_FALSE(timer->isActive());
}

TEST_F(OrphansTest, APassEndsWithItsModel) {
    fakes.relief->suspended = true;
    model->setAutoOptimizeEnabled(true);
    model.reset();
    EXPECT_TRUE(fakes.relief->release());
    letLoopRun();
    EXPECT_EQ(ActionLogReader::read().size(), 1); // the orphans, and nothing after the model
}
