#include "Core/Alerts/RulesEngine.h"

#include "support/Each.h"
#include "support/FakePlatform.h"
#include "support/TemporarySettings.h"

#include <gtest/gtest.h>

namespace {

constexpr quint64 GiB = quint64(1) << 30;
constexpr quint64 MiB = quint64(1) << 20;

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
        {3.5, QStringLiteral("3.5 GB free.")},
        {2.0, QStringLiteral("2.0 GB free.")},
        {1.94, QStringLiteral("Only 1.9 GB free — consider quitting top hogs or cleaning caches.")},
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
    EXPECT_EQ(alert.detail, QStringLiteral("85% total — top: —"));
    EXPECT_FALSE(alert.actionPid.has_value());

    processes = {process(1, QStringLiteral("a"), ProcGroup::other, 10, 0, 0),
                 process(2, QStringLiteral("%1 b"), ProcGroup::other, 90, 0, 0),
                 process(3, QStringLiteral("c"), ProcGroup::other, 90, 0, 0)};
    alert = only();
    EXPECT_EQ(alert.detail, QStringLiteral("85% total — top: %1 b"));
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
    EXPECT_EQ(tick(ThermalState::serious, 1), QStringList{QStringLiteral("thermal")});
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
    EXPECT_EQ(only().detail, QStringLiteral("4.0 GB swapped — system will feel sluggish."));
}

TEST_F(RulesEngineTest, IdleAgentsAboveBothThresholdsInListOrder) {
    const auto agent = [](qint32 pid, quint64 rss, double idle) {
        return process(pid, QStringLiteral("claude"), ProcGroup::agents, 0, rss, idle);
    };
    processes = {agent(1, 800 * MiB, 901), agent(2, 700 * MiB, 900), agent(3, 500 * MiB, 5000),
                 agent(4, 500 * MiB + 1, 1800),
                 process(5, QStringLiteral("x"), ProcGroup::other, 0, 900 * MiB, 5000)};
    const auto alerts = evaluate();
    ASSERT_EQ(alerts.size(), 2);
    EXPECT_EQ(alerts[0].actionPid, 1);
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
        caches.append({.name = QStringLiteral("c%1").arg(i), .symbol = {}, .sizeBytes = 2 * GiB});
    EXPECT_EQ(only().detail, QStringLiteral("c0 (2 GB), c1 (2 GB), c2 (2 GB)"));
    for (CacheTarget& target : caches)
        target.sizeBytes = 10 * GiB / 8; // each has its share, and all have the limit
    EXPECT_TRUE(ids().isEmpty());
    ++caches[3].sizeBytes;
    EXPECT_EQ(only().detail, QStringLiteral("c3 (1.3 GB)"));
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
        {QStringLiteral("ram_low"), danger, QStringLiteral("Free RAM low"),
         QStringLiteral("Only 1.0 GB free — consider quitting top hogs or cleaning caches."), std::nullopt,
         QStringLiteral("ram")},
        {QStringLiteral("cpu_hot"), warn, QStringLiteral("CPU saturated"),
         QStringLiteral("98% total — top: claude"), 7},
        {QStringLiteral("thermal"), danger, QStringLiteral("Computer is running hot (Critical)"),
         QStringLiteral("Linux is throttling — reduce parallel agentic work or quit Docker/ollama.")},
        {QStringLiteral("swap_high"), warn, QStringLiteral("Heavy swap usage"),
         QStringLiteral("6.0 GB swapped — system will feel sluggish.")},
        {QStringLiteral("idle_agent_7"), warn, QStringLiteral("Idle agent — claude"),
         QStringLiteral("Idle 16 min, 800 MB RAM. Quit?"), 7},
        {QStringLiteral("browser_hog"), info, QStringLiteral("Browsers using 6 GB"),
         QStringLiteral("That's 38% of total RAM. Closing idle tabs frees the most memory fastest."),
         std::nullopt, QStringLiteral("browsers")},
        {QStringLiteral("caches_big"), info, QStringLiteral("Caches reclaimable: 12 GB"),
         QStringLiteral("npm (12 GB)"), std::nullopt, QStringLiteral("caches")}};
    const auto alerts = evaluate();
    ASSERT_EQ(alerts.size(), expected.size());
    for (qsizetype i = 0; i < alerts.size(); ++i)
        EXPECT_EQ(alerts[i], expected[i]) << qPrintable(alerts[i].id + alerts[i].title + alerts[i].detail);

    system.memUsedBytes = 13 * GiB;
    EXPECT_EQ(evaluate().first(),
              (Alert{QStringLiteral("ram_warn"), warn, QStringLiteral("RAM getting tight"),
                     QStringLiteral("3.0 GB free."), std::nullopt, QStringLiteral("ram")}));
}

TEST_F(RulesEngineTest, NoAlertOffersToQuitThisProgramOrAnotherUsers) {
    system.cpuPercent = 95;
    ProcSample ourselves = process(identity.pid, QStringLiteral("tavrin"), ProcGroup::agents, 300, GiB, 5000);
    ProcSample foreign = process(1, QStringLiteral("compactor"), ProcGroup::agents, 200, GiB, 5000);
    foreign.uid = 0;
    const ProcSample mine = process(2, QStringLiteral("build"), ProcGroup::other, 90, GiB, 0);
    const QString idle = QStringLiteral("Idle 83 min, 1 GB RAM.");
    processes = {ourselves, foreign, mine};
    auto alerts = evaluate();
    EXPECT_EQ(each(alerts, &Alert::detail),
              (QStringList{QStringLiteral("95% total — top: build"), idle, idle}));
    EXPECT_EQ(each(alerts, &Alert::actionPid), (QList<std::optional<qint32>>{2, std::nullopt, std::nullopt}));

    processes = {ourselves, foreign};
    EXPECT_EQ(evaluate().first().detail, QStringLiteral("95% total — top: compactor"));
    EXPECT_EQ(evaluate().first().actionPid, std::nullopt);
    processes = {ourselves};
    EXPECT_EQ(evaluate().first().detail, QStringLiteral("95% total — top: —"));
}

TEST_F(RulesEngineTest, ThresholdsThatNoByteCountExpressesSkipTheirRule) {
    caches.append({.name = QStringLiteral("c"), .symbol = {}, .sizeBytes = 100 * GiB});
    processes = {process(1, QStringLiteral("claude"), ProcGroup::agents, 0, 9 * GiB, 1e6)};
    ASSERT_EQ(ids().size(), 2);
    for (const double bad : {-1.0, 1e300}) {
        prefs.alertCachesBigGB.set(bad);
        prefs.alertIdleAgentMinRSSMB.set(bad);
        EXPECT_TRUE(ids().isEmpty()) << bad;
    }
}
