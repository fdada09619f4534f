#include "Core/Alerts/NotificationPlan.h"

#include "support/Each.h"
#include "support/TemporarySettings.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Action = ConditionNotice::Action;

Alert alertOf(const QString& id, Alert::Severity severity = Alert::Severity::danger,
              const QString& title = u"title"_s) {
    return {.id = id, .severity = severity, .title = title, .detail = u"detail"_s};
}

struct NotificationPlanTest : testing::Test {
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    NotificationPlan plan;
    NotificationPlan::Moment now{.uptime = std::chrono::steady_clock::time_point(100h), .minuteOfDay = 720};

    /// What the plan does after that time: "+memory" shows, "-memory" withdraws.
    QStringList after(std::chrono::seconds time, const QList<Alert>& alerts) {
        now.uptime += time;
        const NotificationPlan::Changes changes = plan.update(alerts, now, prefs);
        QStringList steps;
        for (const QString& condition : changes.withdraw)
            steps.append(u'-' + condition);
        for (const ConditionNotice& notice : changes.show)
            steps.append(u'+' + notice.condition);
        return steps;
    }
    ConditionNotice first(const QList<Alert>& alerts) {
        return plan.update(alerts, now, prefs).show.value(0);
    }

    const QList<Alert> none;
    const QList<Alert> low{alertOf(u"ram_low"_s)};
    const QList<Alert> tight{alertOf(u"ram_warn"_s, Alert::Severity::warn)};
    const QStringList nothing;
    const QStringList shown{u"+memory"_s};
    const QStringList withdrawn{u"-memory"_s};
};

} // namespace

TEST_F(NotificationPlanTest, EachAlertHasTheSwitchOfItsRule) {
    const std::tuple<QString, QString, Property<bool> Preferences::*, bool> cases[] = {
        {u"ram_low"_s, u"memory"_s, &Preferences::notifyRAMLow, true},
        {u"ram_warn"_s, u"memory"_s, &Preferences::notifyRAMTight, false},
        {u"pressure"_s, u"pressure"_s, &Preferences::notifyPressure, true},
        {u"memory_full"_s, u"forecast"_s, &Preferences::notifyMemoryFull, true},
        {u"cpu_hot"_s, u"cpu"_s, &Preferences::notifyCPUHot, false},
        {u"thermal"_s, u"thermal"_s, &Preferences::notifyThermal, true},
        {u"swap_high"_s, u"swap"_s, &Preferences::notifySwapHigh, false},
        {u"idle_agent_77"_s, u"idle_agents"_s, &Preferences::notifyIdleAgent, false},
        {u"browser_hog"_s, u"browsers"_s, &Preferences::notifyBrowserHog, false},
        {u"caches_big"_s, u"caches"_s, &Preferences::notifyCachesBig, false},
        {u"session_big_77"_s, u"sessions"_s, &Preferences::notifySessionBig, false},
    };
    for (const auto& [id, condition, isOn, byDefault] : cases)
        EXPECT_EQ((prefs.*isOn)(), byDefault) << qPrintable(id);
    for (const auto& [id, condition, isOn, byDefault] : cases) {
        for (const auto& [other, itsCondition, itsSwitch, unused] : cases)
            (prefs.*itsSwitch).set(other == id);
        plan = {};
        EXPECT_EQ(first({alertOf(id)}).condition, condition) << qPrintable(id);
        plan = {};
        (prefs.*isOn).set(false);
        EXPECT_TRUE(after(0s, {alertOf(id)}).isEmpty()) << qPrintable(id);
    }
    EXPECT_TRUE(after(0s, {alertOf(u"idle_agents"_s), alertOf(u"pressures"_s)}).isEmpty());
}

TEST_F(NotificationPlanTest, ANoticeSaysWhatTheAlertSaysAndOffersWhatHelps) {
    Alert alert{.id = u"ram_low"_s,
                .severity = Alert::Severity::danger,
                .title = u"Free RAM low"_s,
                .detail = u"Only 1 GB free."_s,
                .actionTarget = u"ram"_s};
    EXPECT_EQ(first({alert}), (ConditionNotice{.condition = u"memory"_s,
                                               .title = u"Free RAM low"_s,
                                               .body = u"Only 1 GB free."_s,
                                               .isDanger = true,
                                               .actions = {Action::show, Action::freeRAM}}));
    alert = alertOf(u"pressure"_s, Alert::Severity::warn);
    EXPECT_FALSE(first({alert}).isDanger);

    const std::tuple<std::optional<QString>, std::optional<qint32>, QList<Action>> forecasts[] = {
        {u"session"_s, 7, {Action::show, Action::freeRAM, Action::endSession}},
        {u"process"_s, 8, {Action::show, Action::freeRAM, Action::quitProcess}},
        {u"process"_s, std::nullopt, {Action::show, Action::freeRAM}},
        {std::nullopt, 9, {Action::show, Action::freeRAM}},
        {std::nullopt, std::nullopt, {Action::show, Action::freeRAM}},
    };
    for (const auto& [target, pid, actions] : forecasts) {
        plan = {};
        alert = alertOf(u"memory_full"_s);
        alert.actionTarget = target;
        alert.actionPid = pid;
        EXPECT_EQ(first({alert}).actions, actions);
        EXPECT_EQ(plan.update({}, {now.uptime + 1h, 720}, prefs).withdraw, QStringList(u"forecast"_s));
        alert.id = u"thermal"_s; // no forecast: never an offer to end something
        alert.actionTarget.reset();
        EXPECT_EQ(first({alert}).actions, QList<Action>{Action::show});
        EXPECT_EQ(plan.update({alert}, now, prefs).show.size(), 0);
    }
}

TEST_F(NotificationPlanTest, SeveralAlertsOfARuleAreSummedUp) {
    prefs.notifyIdleAgent.set(true);
    QList<Alert> alerts;
    for (int i = 1; i <= 2; ++i)
        alerts.append(alertOf(u"idle_agent_%1"_s.arg(i), Alert::Severity::warn, u"agent %1"_s.arg(i)));
    ConditionNotice notice = first(alerts);
    EXPECT_EQ(notice.title, u"2 idle agents"_s);
    EXPECT_EQ(notice.body, u"agent 1\nagent 2"_s);
    for (int i = 3; i <= 5; ++i)
        alerts.append(alertOf(u"idle_agent_%1"_s.arg(i), Alert::Severity::warn, u"agent %1"_s.arg(i)));
    now.uptime += 10s;
    notice = first(alerts);
    EXPECT_EQ(notice.title, u"5 idle agents"_s);
    EXPECT_EQ(notice.body, u"agent 1\nagent 2\nagent 3\n2 more"_s);
    now.uptime += 10s;
    EXPECT_EQ(first(alerts.first(1)).title, u"agent 1"_s);
}

TEST_F(NotificationPlanTest, ReplacedAsItsTextChangesButNotAtEveryTick) {
    const auto saying = [](const QString& text) { return QList<Alert>{alertOf(u"ram_low"_s, {}, text)}; };
    EXPECT_EQ(after(0s, saying(u"1"_s)), shown);
    EXPECT_EQ(after(9s, saying(u"2"_s)), nothing);
    EXPECT_EQ(after(1s, saying(u"3"_s)), shown);
    EXPECT_EQ(after(60s, saying(u"3"_s)), nothing);
    EXPECT_EQ(after(1s, saying(u"4"_s)), shown);
    int shows = 0;
    for (int i = 0; i < 600; ++i)
        shows += static_cast<int>(after(1s, saying(QString::number(i))).size());
    EXPECT_EQ(shows, 60);
}

TEST_F(NotificationPlanTest, AConditionThatComesAndGoesDoesNotFlicker) {
    EXPECT_EQ(after(0s, low), shown);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(after(2s, none), nothing);
        EXPECT_EQ(after(2s, low), nothing);
    }
    EXPECT_EQ(after(9s, none), nothing);
    EXPECT_EQ(after(1s, none), withdrawn);
    EXPECT_EQ(after(1s, none), nothing);
    int shows = 0; // half a minute there, half a minute gone
    for (int i = 0; i < 60; ++i) {
        shows += static_cast<int>(after(30s, low).size());
        after(15s, none);
        after(15s, none);
    }
    EXPECT_LE(shows, 5); // in an hour
    EXPECT_GE(shows, 3);
}

TEST_F(NotificationPlanTest, ComesAgainAfterFifteenMinutes) {
    EXPECT_EQ(after(0s, low), shown);
    after(60s, low);
    EXPECT_EQ(after(10s, none), withdrawn);
    EXPECT_EQ(after(13min + 49s, low), nothing);
    EXPECT_EQ(after(1s, low), shown); // 15 minutes after it came
    EXPECT_EQ(after(20min, low), nothing);
    plan.close(u"memory"_s, now);
    plan.close(u"unknown"_s, now);
    EXPECT_EQ(after(2s, {alertOf(u"ram_low"_s, {}, u"other figures"_s)}), nothing);
    EXPECT_EQ(after(1s, none), nothing); // nothing is there to be withdrawn
    EXPECT_EQ(after(14min + 56s, low), nothing);
    EXPECT_EQ(after(1s, low), shown); // 15 minutes after it was closed
}

TEST_F(NotificationPlanTest, ADangerComesAtOnceAfterItsWarning) {
    prefs.notifyRAMTight.set(true);
    EXPECT_EQ(after(0s, tight), shown);
    EXPECT_EQ(after(10s, low), shown); // replaces it
    plan.close(u"memory"_s, now);
    EXPECT_EQ(after(1min, tight), nothing);
    EXPECT_EQ(after(1min, low), nothing);
    EXPECT_EQ(after(13min, tight), shown);
    plan.close(u"memory"_s, now);
    EXPECT_EQ(after(2s, low), shown);
    plan.close(u"memory"_s, now);
    EXPECT_EQ(after(2s, tight), nothing);
    EXPECT_EQ(after(2s, low), nothing);
    prefs.notifyRAMTight.set(false);
    EXPECT_EQ(after(15min, low), shown);
    EXPECT_EQ(after(10s, tight), withdrawn); // the danger is over
}

TEST_F(NotificationPlanTest, ASwitchThatIsTurnedOffWithdrawsAtOnce) {
    EXPECT_EQ(after(0s, low), shown);
    prefs.notifyRAMLow.set(false);
    EXPECT_EQ(after(0s, low), withdrawn);
    prefs.notifyRAMLow.set(true);
    EXPECT_EQ(after(1s, low), nothing); // 15 minutes hold for this too
}

TEST_F(NotificationPlanTest, TheQuietTimeMayGoOverMidnight) {
    const auto quiet = [this](int from, int to, int hour, int minute) {
        prefs.notifyQuietFrom.set(from);
        prefs.notifyQuietTo.set(to);
        return NotificationPlan::isQuiet(hour * 60 + minute, prefs);
    };
    EXPECT_FALSE(NotificationPlan::isQuiet(23 * 60, prefs)); // off by default
    prefs.notifyQuietEnabled.set(true);
    EXPECT_FALSE(NotificationPlan::isQuiet(21 * 60 + 59, prefs));
    EXPECT_TRUE(NotificationPlan::isQuiet(22 * 60, prefs));
    EXPECT_TRUE(NotificationPlan::isQuiet(0, prefs));
    EXPECT_TRUE(NotificationPlan::isQuiet(6 * 60 + 59, prefs));
    EXPECT_FALSE(NotificationPlan::isQuiet(7 * 60, prefs));
    EXPECT_TRUE(quiet(540, 600, 9, 0));
    EXPECT_FALSE(quiet(540, 600, 10, 0));
    EXPECT_FALSE(quiet(540, 600, 8, 59));
    EXPECT_FALSE(quiet(540, 540, 9, 0));
    EXPECT_TRUE(quiet(-5, 1'000'000, 23, 59));
}

TEST_F(NotificationPlanTest, InTheQuietTimeNothingComesAndWhatLastsComesAfterIt) {
    prefs.notifyQuietEnabled.set(true);
    EXPECT_EQ(after(0s, {alertOf(u"thermal"_s)}), QStringList(u"+thermal"_s));
    now.minuteOfDay = 23 * 60;
    EXPECT_EQ(after(60s, {alertOf(u"thermal"_s, {}, u"hotter"_s), alertOf(u"ram_low"_s)}), nothing);
    EXPECT_EQ(after(60s, low), QStringList(u"-thermal"_s));
    now.minuteOfDay = 7 * 60;
    EXPECT_EQ(after(60s, low), shown);
}
