#include "UI/Optimize/OptimizeView.h"

#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/Notice.h"
#include "UI/ModelFixture.h"
#include "UI/Optimize/PresetTile.h"
#include "UI/Optimize/QuickKillsCard.h"
#include "UI/Optimize/ServerRow.h"
#include "UI/Optimize/StatBox.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace {

struct OptimizeViewTest : ModelFixture {
    OptimizeView view{model, prefs};

    void show() {
        view.resize(800, 900);
        view.show();
        tick();
    }
    QString notice() { return shownName<Notice>(view); }
    QList<PresetTile*> tiles() {
        QList<PresetTile*> shown = view.findChildren<PresetTile*>();
        shown.removeIf([this](const PresetTile* tile) { return !tile->isVisibleTo(&view); });
        return shown;
    }
    void usePreset(const QString& name, const QString& pattern) {
        QuickKillPreset preset = QuickKillPreset::blank();
        preset.name = name;
        preset.pattern = pattern;
        prefs.storeQuickKillPresets({preset});
        settle();
    }
    void addServer(qint32 parent) {
        fakes.signalSender->start(nextPid);
        fakes.processes->add(nextPid++,
                             {.task = TaskInfo{.residentBytes = 5 << 20},
                              .name = "node",
                              .arguments = QByteArray("node\0/opt/mcp-server-git\0", 24),
                              .info = KernelProcessInfo{.uid = fakes.identity->uid, .parentPid = parent}});
    }
};

} // namespace

TEST_F(OptimizeViewTest, TilesCountWhatAPressWouldSignal) {
    addProcesses(2, "worker <b>", 1);
    show();
    EXPECT_EQ(tiles().size(), 6);
    usePreset(u"Work"_s, u"WORKER"_s);
    ASSERT_EQ(tiles().size(), 1);
    QuickKillsCard fresh;
    fresh.refresh(model.actions(), prefs.quickKillPresets());
    EXPECT_EQ(view.findChild<QuickKillsCard*>()->sizeHint(), fresh.sizeHint()) << "hidden tiles take room";
    EXPECT_EQ(tiles()[0]->accessibleName(), u"Work, pattern: WORKER, 2 matching"_s);
    addProcesses(1, "worker", 1);
    tick();
    EXPECT_EQ(tiles()[0]->accessibleName(), u"Work, pattern: WORKER, 3 matching"_s);
    fakes.signalSender->end(100);
    const QPoint place = tiles()[0]->mapTo(&view, QPoint());
    QTest::mouseClick(tiles()[0], Qt::LeftButton);
    EXPECT_EQ(notice(), u"Work: killed 2/3"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(tiles()[0]->mapTo(&view, QPoint()), place) << "a second click must not meet another button";
    usePreset(u"None"_s, u"nobody"_s);
    QTest::keyClick(tiles()[0], Qt::Key_Space);
    EXPECT_EQ(notice(), u"None: nothing matched"_s);
    prefs.storeQuickKillPresets({});
    tick();
    EXPECT_TRUE(tiles().isEmpty());
}

TEST_F(OptimizeViewTest, ServersAndTheirOrphans) {
    show();
    EXPECT_TRUE(showsText(view, u"No ~/.claude/mcp.json found — nothing configured globally."_s));
    EXPECT_FALSE(buttonNamed(view, u"Kill orphans"_s)->isEnabled());
    EXPECT_FALSE(showsText(view, u"Running servers"_s));
    addProcesses(1, "claude", 1);
    addServer(100);
    addServer(7);
    home.makeFile(u".claude.json"_s, R"({"mcpServers": {"git": {}}})");
    tick();
    EXPECT_EQ(shownNames<StatBox>(view),
              (QStringList{u"Configured 1"_s, u"Running 2"_s, u"Orphans 1"_s, u"Orphan RAM 5 MB"_s}));
    EXPECT_EQ(shownNames<ServerRow>(view),
              (QStringList{u"Orphan /opt/mcp-server-git, PID 102, parent: (init or gone), 5 MB"_s,
                           u"Running /opt/mcp-server-git, PID 101, parent: claude, 5 MB"_s}));
    QTest::mouseClick(view.findChildren<ServerRow*>()[1]->findChild<QAbstractButton*>(), Qt::LeftButton);
    EXPECT_EQ(fakes.signalSender->sent(), (QList<FakeSignals::Sent>{{101, Signal::terminate, 1}}));
    EXPECT_TRUE(logged().isEmpty());
    press(view, u"Kill orphans"_s);
    EXPECT_EQ(notice(), u"Killed 1 orphan MCP server(s)"_s);
    fakes.signalSender->end(102);
    press(view, u"Kill orphans"_s);
    EXPECT_EQ(notice(), u"No orphan MCPs to kill"_s);
}

TEST_F(OptimizeViewTest, WhatIsConfiguredIsUnknownUntilItHasBeenRead) {
    const QString nothing = u"No ~/.claude/mcp.json found — nothing configured globally."_s;
    home.makeFile(u".claude.json"_s, QByteArray(R"({"mcpServers": {"git": {}}})").leftJustified(1 << 20));
    show();
    EXPECT_EQ(shownNames<StatBox>(view).value(0), u"Configured —"_s);
    EXPECT_FALSE(showsText(view, nothing));
    EXPECT_TRUE(QTest::qWaitFor([this] {
        tick();
        return shownNames<StatBox>(view).value(0) == u"Configured 1"_s;
    }));
    home.makeFile(u".claude.json"_s, "{}");
    home.makeFile(u".codex/config.toml"_s, "[mcp_servers.git]\ncommand = 'uvx'\n");
    tick();
    EXPECT_FALSE(showsText(view, nothing));
    EXPECT_TRUE(QFile::remove(home.path(u".codex/config.toml"_s)));
    tick();
    EXPECT_TRUE(showsText(view, nothing));
}

TEST_F(OptimizeViewTest, NudgeAndPurgeReportAndAreOnRecord) {
    show();
    press(view, u"Pressure nudge"_s);
    EXPECT_EQ(notice(), u"Sent memory_pressure -l warn"_s);
    fakes.relief->suspended = true;
    press(view, u"Deep purge (admin)"_s);
    EXPECT_FALSE(buttonNamed(view, u"Purging…"_s)->isEnabled());
    EXPECT_FALSE(fakes.relief->isStopped());
    press(view, u"Stop"_s);
    EXPECT_TRUE(fakes.relief->isStopped());
    fakes.relief->answer = [] { return Outcome::failure(u"no <agent>"_s); };
    EXPECT_TRUE(fakes.relief->release());
    EXPECT_EQ(notice(), u"Purge cancelled or failed. no <agent>"_s);
    EXPECT_TRUE(buttonNamed(view, u"Deep purge (admin)"_s)->isEnabled());
    EXPECT_TRUE(buttonNamed(view, u"Deep purge (admin)"_s)->toolTip().contains(u"no &lt;agent&gt;"_s));
    fakes.relief->suspended = false;
    fakes.relief->answer = [] { return Outcome::failure(u"no group"_s); };
    press(view, u"Pressure nudge"_s);
    EXPECT_EQ(notice(), u"memory_pressure failed. no group"_s);
    EXPECT_EQ(buttonNamed(view, u"Pressure nudge"_s)->accessibleDescription(), u"no group"_s);
    EXPECT_EQ(logged(),
              (QStringList{u"clean memory_pressure -l warn fail"_s, u"clean sudo purge (admin) fail"_s,
                           u"clean memory_pressure -l warn ok"_s}));
    press(view, u"Dismiss"_s);
    EXPECT_EQ(notice(), QString());
}

TEST_F(OptimizeViewTest, TheSwitchRunsTheOptimizer) {
    show();
    auto* toggle = view.findChild<QCheckBox*>();
    EXPECT_TRUE(showsText(view, u"Off"_s));
    QTest::mouseClick(toggle, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_TRUE(model.autoOptimizeEnabled());
    EXPECT_TRUE(showsText(view, u"Running in background"_s));
    EXPECT_EQ(logged().size(), 3);
    QTest::keyClick(toggle, Qt::Key_Space);
    EXPECT_FALSE(model.autoOptimizeEnabled());
}

TEST_F(OptimizeViewTest, CleanAllAsksOnceUnlessToldNotTo) {
    fillNpmFolder();
    show();
    EXPECT_FALSE(buttonNamed(view, u"Clean All"_s)->isEnabled());
    QCoro::waitFor(model.cleanup().rescan());
    tick();
    EXPECT_TRUE(showsText(view, u"2 MB reclaimable across %1 targets"_s.arg(CacheTarget::defaults().size())));
    press(view, u"Clean All"_s);
    EXPECT_TRUE(logged().isEmpty());
    press(*view.findChild<ConfirmDialog*>(), u"Clean 2 MB"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return notice() == u"Cleaned 1 targets, freed ~2 MB"_s; }, 2000));
}

TEST_F(OptimizeViewTest, ACleanThatIsNotAskedAboutCanBeCancelled) {
    fillNpmFolder();
    prefs.askBeforeCleaningAll.set(false);
    show();
    QCoro::waitFor(model.cleanup().rescan());
    tick();
    fakes.tools->suspended = true;
    press(view, u"Clean All"_s);
    tick();
    EXPECT_FALSE(view.findChild<ConfirmDialog*>());
    EXPECT_FALSE(buttonNamed(view, u"Clean All"_s)->isEnabled());
    EXPECT_TRUE(showsText(view, u"Cleaning npm / pnpm / yarn (0 of 1)"_s));
    const QString npm = home.path(u".npm"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fakes.tools->requests.last().launchPath == u"/usr/bin/du"; }));
    press(view, u"Stop cleaning"_s);
    fakes.tools->suspended = false;
    EXPECT_TRUE(fakes.tools->release(npm));
    EXPECT_TRUE(QTest::qWaitFor([this] { return notice().startsWith(u"Stopped: cleaned 0 of 1"_s); }, 2000));
    EXPECT_TRUE(notice().endsWith(u"Not finished: npm / pnpm / yarn (stopped)"_s));
    EXPECT_TRUE(buttonNamed(view, u"Clean All"_s)->isEnabled());
}
