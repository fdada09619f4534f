#include "Core/ReliefFixture.h"

#include <functional>

using namespace Qt::StringLiterals;

/// The list on show may be old: the period is long, or sampling pauses to save power.
TEST_F(ReliefTest, NoActionReachesAProcessThatTookTheIdSinceTheLastTick) {
    using Action = std::function<void()>;
    const QList<std::pair<const char*, Action>> actions = {
        {"quit", [this] { model->quitProcess(model->processes().first()); }},
        {"force kill", [this] { model->forceKillProcess(model->processes().first()); }},
        {"quit server", [this] { model->quitServer(model->mcpReport().live.first()); }},
        {"kill orphans", [this] { model->killOrphanMCPs(true); }},
        {"quick kill", [this] { model->quickKill(u"mcp-server"_s, {}, 0, 0, false); }},
        {"sweep", [this] { model->nuke(model->previewForName(u"mcp-server"_s)); }},
        {"free RAM", [this] { QCoro::waitFor(model->freeRAM({7})); }},
    };
    add(7, "mcp-server", 1, {.uid = 1000, .startTicks = 100});
    tick();
    fakes.processes->processes[7].info->startTicks = 200;
    for (const auto& [name, act] : actions) {
        act();
        EXPECT_TRUE(signalSender->sent().isEmpty()) << name;
    }

    fakes.processes->processes[7].info->startTicks = 100;
    for (const auto& [name, act] : actions) {
        const qsizetype before = signalSender->sent().size();
        signalSender->start(7);
        act();
        EXPECT_GT(signalSender->sent().size(), before) << name;
    }
}

TEST_F(ReliefTest, AChosenProcessIsTheOneThatWasShownThen) {
    const auto start = fakes.clock->wall;
    add(8, "another", 0);
    add(7, "first", 1, {.start = start, .uid = 1000});
    tick();
    const ProcSample chosen = model->processes().first();
    fakes.processes->remove(7);
    tick();
    add(7, "second", 1, {.start = start + std::chrono::seconds(5), .uid = 1000});
    tick();
    model->forceKillProcess(chosen);
    EXPECT_TRUE(signalSender->sent().isEmpty());
    EXPECT_EQ(logged(), QStringList(u"forceKill pid=7 fail"_s));
    model->quitProcess(model->processes().first());
    model->forceKillProcess(model->processes().first());
    EXPECT_EQ(signalSender->sent(),
              (QList<FakeSignals::Sent>{{7, Signal::terminate, 2}, {7, Signal::kill, 2}}));
}
