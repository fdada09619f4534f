#include "Core/ReliefFixture.h"

#include <functional>

using namespace Qt::StringLiterals;

TEST_F(ReliefTest, NoActionReachesAProcessThatReusesAPid) {
    using Action = std::function<void()>;
    const QList<std::pair<const char*, Action>> actions = {
        {"quit", [this] { model->actions().quitProcess(model->processes().first()); }},
        {"force kill", [this] { model->actions().forceKillProcess(model->processes().first()); }},
        {"quit server", [this] { model->actions().quitServer(model->mcpReport().live.first()); }},
        {"kill orphans", [this] { model->actions().killOrphanMCPs(true); }},
        {"quick kill", [this] { model->actions().quickKill(u"mcp-server"_s, {}, 0, 0, false); }},
        {"sweep", [this] { model->actions().nuke(model->actions().previewForName(u"mcp-server"_s)); }},
        {"free RAM", [this] { QCoro::waitFor(model->actions().freeRAM({7})); }},
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

TEST_F(ReliefTest, AnActionReachesOnlyTheChosenProcess) {
    const auto start = fakes.clock->wall;
    add(8, "another", 0);
    add(7, "first", 1, {.start = start, .uid = 1000});
    tick();
    const ProcSample chosen = model->processes().first();
    fakes.processes->remove(7);
    tick();
    add(7, "second", 1, {.start = start + std::chrono::seconds(5), .uid = 1000});
    tick();
    model->actions().forceKillProcess(chosen);
    EXPECT_TRUE(signalSender->sent().isEmpty());
    EXPECT_EQ(logged(), QStringList(u"forceKill pid=7 fail"_s));
    model->actions().quitProcess(model->processes().first());
    model->actions().forceKillProcess(model->processes().first());
    EXPECT_EQ(signalSender->sent(),
              (QList<FakeSignals::Sent>{{7, Signal::terminate, 2}, {7, Signal::kill, 2}}));
}
