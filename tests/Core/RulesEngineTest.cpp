#include "Core/Alerts/RulesEngine.h"

#include "support/Bytes.h"
#include "support/Each.h"
#include "support/FakePlatform.h"
#include "support/TemporarySettings.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct RulesEngineTest : testing::Test {
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    FakeIdentity identity;
    RulesEngine rules{identity};
    SystemSample system;
    QList<ProcSample> processes;
    QList<GroupRollup> groups = GroupRollup::build({});
    QList<CacheTarget> caches;

    RulesEngineTest() {
        system.memTotalBytes = 16 * GiB;
        system.memUsedBytes = 4 * GiB;
    }
    QList<Alert> evaluate() { return rules.evaluate(system, processes, groups, caches, prefs); }
    QStringList ids() { return each(evaluate(), &Alert::id); }
    Alert only() {
        const auto alerts = evaluate();
        EXPECT_EQ(alerts.size(), 1);
        return alerts.value(0);
    }
};

ProcSample process(qint32 pid, const QString& name, ProcGroup group, double cpu, quint64 rss, double idle) {
    return {.pid = pid,
            .uid = 1000,
            .name = name,
            .cpuPercent = cpu,
            .rssBytes = rss,
            .idleSeconds = idle,
            .group = group};
}

} // namespace

TEST_F(RulesEngineTest, FreeMemoryBelowItsThresholdAndBelowTwiceIt) {
    const std::pair<double, QString> cases[] = {
        {4.0, {}},
        {3.5, u"3.5 GB free."_s},
        {2.0, u"2.0 GB free."_s},
        {1.94, u"Only 1.9 GB free — consider quitting top hogs or cleaning caches."_s},
    };
    for (const auto& [freeGB, detail] : cases) {
        system.memUsedBytes = system.memTotalBytes - static_cast<quint64>(freeGB * double(GiB));
        const auto alerts = evaluate();
        EXPECT_EQ(alerts.value(0).detail, detail) << freeGB;
    }
    system.memTotalBytes = 0;
    EXPECT_TRUE(ids().isEmpty());
}

TEST_F(RulesEngineTest, SaturatedCpuNamesTheFirstOfTheBusiest) {
    system.cpuPercent = 85;
    EXPECT_TRUE(ids().isEmpty());
    system.cpuPercent = 85.1;
    Alert alert = only();
    EXPECT_EQ(alert.detail, u"85% total — top: —"_s);
    EXPECT_FALSE(alert.actionPid.has_value());

    processes = {process(1, u"a"_s, ProcGroup::other, 10, 0, 0),
                 process(2, u"%1 b"_s, ProcGroup::other, 90, 0, 0),
                 process(3, u"c"_s, ProcGroup::other, 90, 0, 0)};
    alert = only();
    EXPECT_EQ(alert.detail, u"85% total — top: %1 b"_s);
    EXPECT_EQ(alert.actionPid, 2);
}

TEST_F(RulesEngineTest, HeatIsAnAlertFromTheThirtiethTickOn) {
    const auto tick = [this](ThermalState state, int times) {
        system.thermalState = state;
        QStringList last;
        for (int i = 0; i < times; ++i)
            last = ids();
        return last;
    };
    EXPECT_TRUE(tick(ThermalState::serious, 29).isEmpty());
    EXPECT_TRUE(tick(ThermalState::fair, 1).isEmpty());
    EXPECT_TRUE(tick(ThermalState::critical, 29).isEmpty());
    EXPECT_EQ(tick(ThermalState::serious, 1), QStringList{u"thermal"_s});
    prefs.alertThermalEnabled.set(false);
    EXPECT_TRUE(tick(ThermalState::serious, 5).isEmpty());
    prefs.alertThermalEnabled.set(true);
    EXPECT_EQ(tick(ThermalState::serious, 1).size(), 1); // counted while it was off
}

TEST_F(RulesEngineTest, SwapHasNoSwitch) {
    for (auto* enabled :
         {&prefs.alertRAMLowEnabled, &prefs.alertCPUHotEnabled, &prefs.alertThermalEnabled,
          &prefs.alertIdleAgentEnabled, &prefs.alertBrowserHogEnabled, &prefs.alertCachesBigEnabled})
        enabled->set(false);
    system.memUsedBytes = system.memTotalBytes;
    system.cpuPercent = 100;
    system.swapUsedBytes = 4 * GiB;
    EXPECT_TRUE(ids().isEmpty());
    system.swapUsedBytes = 4 * GiB + 1;
    EXPECT_EQ(only().detail, u"4.0 GB swapped — system will feel sluggish."_s);
}

TEST_F(RulesEngineTest, IdleAgentsAboveBothThresholdsInListOrder) {
    const auto agent = [](qint32 pid, quint64 rss, double idle) {
        return process(pid, u"claude"_s, ProcGroup::agents, 0, rss, idle);
    };
    processes = {agent(6, 800 * MiB, 901), agent(2, 700 * MiB, 900), agent(3, 500 * MiB, 5000),
                 agent(4, 500 * MiB + 1, 1800), process(5, u"x"_s, ProcGroup::other, 0, 900 * MiB, 5000)};
    const auto alerts = evaluate();
    ASSERT_EQ(alerts.size(), 2);
    EXPECT_EQ(alerts[0].actionPid, 6);
    EXPECT_EQ(alerts[1].actionPid, 4);
}

TEST_F(RulesEngineTest, BrowsersAtTheirShareOfMemory) {
    SummedMemory& memory = groups[static_cast<qsizetype>(ProcGroup::browsers)].memory;
    memory.bytes = 4 * GiB;
    EXPECT_EQ(ids(), QStringList(QStringLiteral("browser_hog")));
    memory.bytes = 4 * GiB - 1;
    EXPECT_TRUE(ids().isEmpty());
    memory.bytes = 6 * GiB;
    memory.standInBytes = 2 * GiB + 1; // what is known stays below
    EXPECT_TRUE(ids().isEmpty());
}

TEST_F(RulesEngineTest, TheTrueMemoryOfBrowsersIsNeededOnceItMayReachTheShare) {
    groups[static_cast<qsizetype>(ProcGroup::browsers)].rssBytes = 3 * GiB;
    const auto isNeeded = [this] { return RulesEngine::needsTrueMemory(system, groups, prefs); };
    EXPECT_FALSE(isNeeded());
    system.swapUsedBytes = GiB;
    EXPECT_TRUE(isNeeded());
    prefs.alertBrowserHogEnabled.set(false);
    EXPECT_FALSE(isNeeded());
}

TEST_F(RulesEngineTest, CachesNameTheFirstThreeAboveTheirShare) {
    prefs.alertCachesBigGB.set(10);
    for (int i = 0; i < 8; ++i)
        caches.append({.name = u"c%1"_s.arg(i), .symbol = {}, .sizeBytes = 2 * GiB});
    EXPECT_EQ(only().detail, u"c0 (2 GB), c1 (2 GB), c2 (2 GB)"_s);
    for (CacheTarget& target : caches)
        target.sizeBytes = 10 * GiB / 8; // each has its share, and all have the limit
    EXPECT_TRUE(ids().isEmpty());
    ++caches[3].sizeBytes;
    EXPECT_EQ(only().detail, u"c3 (1.3 GB)"_s);
}

TEST_F(RulesEngineTest, AllAlertsInTheirOrderWithTheirTexts) {
    system = {.cpuPercent = 97.5,
              .memUsedBytes = 15 * GiB,
              .memTotalBytes = 16 * GiB,
              .swapUsedBytes = 6 * GiB,
              .thermalState = ThermalState::critical};
    processes = {process(7, QStringLiteral("claude"), ProcGroup::agents, 3, 800 * MiB, 930)};
    groups[static_cast<qsizetype>(ProcGroup::browsers)].memory.bytes = 6 * GiB;
    caches = {{.name = QStringLiteral("npm"), .symbol = {}, .sizeBytes = 12 * GiB}};
    for (int tick = 1; tick < 30; ++tick)
        evaluate();
    using enum Alert::Severity;
    const QList<Alert> expected = {
        {u"ram_low"_s, danger, u"Free RAM low"_s,
         u"Only 1.0 GB free — consider quitting top hogs or cleaning caches."_s, std::nullopt, u"ram"_s},
        {u"cpu_hot"_s, warn, u"CPU saturated"_s, u"98% total — top: claude"_s, 7},
        {u"thermal"_s, danger, u"Computer is running hot (Critical)"_s,
         u"Linux is throttling — reduce parallel agentic work or quit Docker/ollama."_s},
        {u"swap_high"_s, warn, u"Heavy swap usage"_s, u"6.0 GB swapped — system will feel sluggish."_s},
        {u"idle_agent_7"_s, warn, u"Idle agent — claude"_s, u"Idle 16 min, 800 MB RAM. Quit?"_s, 7},
        {u"browser_hog"_s, info, u"Browsers using 6 GB"_s,
         u"That's 38% of total RAM. Closing idle tabs frees the most memory fastest."_s, std::nullopt,
         u"browsers"_s},
        {u"caches_big"_s, info, u"Caches reclaimable: 12 GB"_s, u"npm (12 GB)"_s, std::nullopt, u"caches"_s}};
    const auto alerts = evaluate();
    ASSERT_EQ(alerts.size(), expected.size());
    for (qsizetype i = 0; i < alerts.size(); ++i)
        EXPECT_EQ(alerts[i], expected[i]) << qPrintable(alerts[i].id + alerts[i].title + alerts[i].detail);

    system.memUsedBytes = 13 * GiB;
    EXPECT_EQ(evaluate().first(), (Alert{u"ram_warn"_s, warn, u"RAM getting tight"_s, u"3.0 GB free."_s,
                                         std::nullopt, u"ram"_s}));
}

TEST_F(RulesEngineTest, NoAlertOffersToQuitThisProgramOrAnotherUsers) {
    system.cpuPercent = 95;
    ProcSample ourselves = process(identity.pid, u"tavrin"_s, ProcGroup::agents, 300, GiB, 5000);
    ProcSample foreign = process(1, u"compactor"_s, ProcGroup::agents, 200, GiB, 5000);
    foreign.uid = 0;
    const ProcSample mine = process(2, u"build"_s, ProcGroup::other, 90, GiB, 0);
    const QString idle = u"Idle 83 min, 1 GB RAM."_s;
    processes = {ourselves, foreign, mine};
    auto alerts = evaluate();
    EXPECT_EQ(each(alerts, &Alert::detail), (QStringList{u"95% total — top: build"_s, idle, idle}));
    EXPECT_EQ(each(alerts, &Alert::actionPid), (QList<std::optional<qint32>>{2, std::nullopt, std::nullopt}));

    processes = {ourselves, foreign};
    EXPECT_EQ(evaluate().first().detail, u"95% total — top: compactor"_s);
    EXPECT_EQ(evaluate().first().actionPid, std::nullopt);
    processes = {ourselves};
    EXPECT_EQ(evaluate().first().detail, u"95% total — top: —"_s);

    // The display takes every program with it.
    processes = {process(3, u"Xorg"_s, ProcGroup::other, 91, GiB, 0), mine};
    EXPECT_EQ(evaluate().first().detail, u"95% total — top: Xorg"_s);
    EXPECT_EQ(evaluate().first().actionPid, std::nullopt);

    // So does the agent that this program was started from.
    ourselves.parentPid = 4;
    processes = {ourselves, process(4, u"claude"_s, ProcGroup::agents, 0, GiB, 5000)};
    EXPECT_EQ(evaluate().last().id, u"idle_agent_4"_s);
    EXPECT_EQ(evaluate().last().actionPid, std::nullopt);
}

TEST_F(RulesEngineTest, ThresholdsThatNoByteCountExpressesSkipTheirRule) {
    caches.append({.name = u"c"_s, .symbol = {}, .sizeBytes = 100 * GiB});
    processes = {process(1, u"claude"_s, ProcGroup::agents, 0, 9 * GiB, 1e6)};
    ASSERT_EQ(ids().size(), 2);
    for (const double bad : {-1.0, 1e300}) {
        prefs.alertCachesBigGB.set(bad);
        prefs.alertIdleAgentMinRSSMB.set(bad);
        EXPECT_TRUE(ids().isEmpty()) << bad;
    }
}

TEST_F(RulesEngineTest, ALargeSessionByWhatIsKnownOfIt) {
    Session session{.host = {.pid = 7}, .agent = u"claude"_s, .folder = u"/src/app"_s};
    session.processes.resize(3);
    session.memory = {.bytes = 19 * GiB / 2};
    const auto alerts = [&] { return rules.evaluate(system, processes, groups, caches, prefs, {session}); };
    EXPECT_EQ(alerts(), QList<Alert>()) << "it is off at first";
    prefs.alertSessionBigEnabled.set(true);
    ASSERT_EQ(alerts().size(), 1);
    EXPECT_EQ(alerts()[0].id, u"session_big_7"_s);
    EXPECT_EQ(alerts()[0].title, u"claude in /src/app holds 9.5 GB"_s);
    EXPECT_EQ(alerts()[0].actionPid, std::nullopt);
    session.memory.standInBytes = 2 * GiB;
    EXPECT_EQ(alerts(), QList<Alert>());
}

TEST_F(RulesEngineTest, AnIdleAgentIsNamedWithItsProject) {
    RulesEngine named(identity, [](const ProcSample&) { return u"~/src/app"_s; });
    processes = {process(7, u"claude"_s, ProcGroup::agents, 0, 800 * MiB, 960)};
    const auto alerts = named.evaluate(system, processes, groups, caches, prefs);
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts[0].title, u"Idle agent — claude in ~/src/app"_s);
}
