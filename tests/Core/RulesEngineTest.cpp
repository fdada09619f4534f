#include "Core/RulesEngine.h"

#include "support/Each.h"
#include "support/TemporarySettings.h"

#include <gtest/gtest.h>

namespace {

constexpr quint64 GiB = quint64(1) << 30;
constexpr quint64 MiB = quint64(1) << 20;

struct RulesEngineTest : testing::Test {
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    RulesEngine rules;
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
    return {
        .pid = pid, .name = name, .cpuPercent = cpu, .rssBytes = rss, .idleSeconds = idle, .group = group};
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
        if (detail.isEmpty())
            continue;
        EXPECT_EQ(alerts[0].id, freeGB < 2 ? QStringLiteral("ram_low") : QStringLiteral("ram_warn"));
        EXPECT_EQ(alerts[0].severity, freeGB < 2 ? Alert::Severity::danger : Alert::Severity::warn);
        EXPECT_EQ(alerts[0].actionTarget, QStringLiteral("ram"));
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
    EXPECT_EQ(only().title, QStringLiteral("Mac is running hot (Hot)"));
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
    EXPECT_EQ(alerts[0].id, QStringLiteral("idle_agent_1"));
    EXPECT_EQ(alerts[0].title, QStringLiteral("Idle agent — claude"));
    EXPECT_EQ(alerts[0].detail, QStringLiteral("Idle 15 min, 800 MB RAM. Quit?"));
    EXPECT_EQ(alerts[1].actionPid, 4);
}

TEST_F(RulesEngineTest, BrowsersAtTheirShareOfMemory) {
    groups[static_cast<qsizetype>(ProcGroup::browsers)].rssBytes = 4 * GiB;
    EXPECT_EQ(only().title, QStringLiteral("Browsers using 4 GB"));
    groups[static_cast<qsizetype>(ProcGroup::browsers)].rssBytes = 4 * GiB - 1;
    EXPECT_TRUE(ids().isEmpty());
}

TEST_F(RulesEngineTest, CachesNameTheFirstThreeAboveTheirShare) {
    prefs.alertCachesBigGB.set(10);
    for (int i = 0; i < 8; ++i)
        caches.append({.name = QStringLiteral("c%1").arg(i), .symbol = {}, .sizeBytes = 2 * GiB});
    EXPECT_EQ(only().title, QStringLiteral("Caches reclaimable: 16 GB"));
    EXPECT_EQ(only().detail, QStringLiteral("c0 (2 GB), c1 (2 GB), c2 (2 GB)"));
    for (CacheTarget& target : caches)
        target.sizeBytes = 0;
    EXPECT_TRUE(ids().isEmpty());
    caches[3].sizeBytes = 11 * GiB;
    EXPECT_EQ(only().detail, QStringLiteral("c3 (11 GB)"));
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
