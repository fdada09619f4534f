#include "Core/Alerts/NotificationPlan.h"

#include "Preferences.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxListedAlerts = 3;
constexpr double minutesOfDay = 24 * 60;

struct NotifiedRule {
    QStringView condition;
    QStringView alert; ///< its id, or with "_" at the end how the ids of its alerts begin
    Property<bool> Preferences::*isOn;
};

constexpr NotifiedRule notifiedRules[] = {
    {u"memory", u"ram_low", &Preferences::notifyRAMLow},
    {u"memory", u"ram_warn", &Preferences::notifyRAMTight},
    {u"pressure", u"pressure", &Preferences::notifyPressure},
    {u"forecast", u"memory_full", &Preferences::notifyMemoryFull},
    {u"cpu", u"cpu_hot", &Preferences::notifyCPUHot},
    {u"thermal", u"thermal", &Preferences::notifyThermal},
    {u"swap", u"swap_high", &Preferences::notifySwapHigh},
    {u"idle_agents", u"idle_agent_", &Preferences::notifyIdleAgent},
    {u"browsers", u"browser_hog", &Preferences::notifyBrowserHog},
    {u"caches", u"caches_big", &Preferences::notifyCachesBig},
    {u"sessions", u"session_big_", &Preferences::notifySessionBig},
};

bool isOfRule(const NotifiedRule& rule, const QString& alert) {
    return rule.alert.endsWith(u'_') ? alert.startsWith(rule.alert) : alert == rule.alert;
}

QList<ConditionNotice::Action> actionsOf(const Alert& alert, bool isForecast) {
    using Action = ConditionNotice::Action;
    QList<Action> actions{Action::show};
    if (alert.actionTarget == u"ram"_s || isForecast)
        actions.append(Action::freeRAM);
    if (isForecast && alert.actionPid && alert.actionTarget == u"session"_s)
        actions.append(Action::endSession);
    if (isForecast && alert.actionPid && alert.actionTarget == u"process"_s)
        actions.append(Action::quitProcess);
    return actions;
}

ConditionNotice noticeOf(const NotifiedRule& rule, const Alert& alert) {
    const QList<ConditionNotice::Action> actions = actionsOf(alert, rule.condition == u"forecast");
    const bool hasProcess = actions.last() == ConditionNotice::Action::endSession ||
                            actions.last() == ConditionNotice::Action::quitProcess;
    return {.condition = rule.condition.toString(),
            .title = alert.title,
            .body = alert.detail,
            .isDanger = alert.severity == Alert::Severity::danger,
            .actions = actions,
            .actionPid = hasProcess ? alert.actionPid : std::nullopt};
}

/// Sums up several alerts of a rule that has one for each process.
ConditionNotice noticeOf(const NotifiedRule& rule, const QList<Alert>& alerts) {
    ConditionNotice notice = noticeOf(rule, alerts.first());
    const auto count = static_cast<int>(alerts.size());
    if (count == 1)
        return notice;
    notice.title =
        rule.condition == u"sessions"
            ? QCoreApplication::translate("NotificationPlan", "%n large session(s)", nullptr, count)
            : QCoreApplication::translate("NotificationPlan", "%n idle agent(s)", nullptr, count);
    QStringList lines;
    for (const Alert& alert : alerts.first(std::min(maxListedAlerts, alerts.size())))
        lines.append(alert.title);
    if (alerts.size() > maxListedAlerts)
        lines.append(
            QCoreApplication::translate("NotificationPlan", "%1 more").arg(alerts.size() - maxListedAlerts));
    notice.body = lines.join(u'\n');
    return notice;
}

QList<ConditionNotice> noticesOf(const QList<Alert>& alerts, const Preferences& preferences) {
    QList<ConditionNotice> notices;
    for (const NotifiedRule& rule : notifiedRules) {
        if (!(preferences.*rule.isOn)())
            continue;
        QList<Alert> covered;
        std::ranges::copy_if(alerts, std::back_inserter(covered),
                             [&rule](const Alert& alert) { return isOfRule(rule, alert.id); });
        if (!covered.isEmpty())
            notices.append(noticeOf(rule, covered));
    }
    return notices;
}

bool isSwitchedOn(const QString& condition, const Preferences& preferences) {
    return std::ranges::any_of(notifiedRules, [&](const NotifiedRule& rule) {
        return condition == rule.condition && (preferences.*rule.isOn)();
    });
}

bool hasNotice(const QList<ConditionNotice>& notices, const QString& condition) {
    return std::ranges::find(notices, condition, &ConditionNotice::condition) != notices.end();
}

} // namespace

bool NotificationPlan::isQuiet(int minuteOfDay, const Preferences& preferences) {
    if (!preferences.notifyQuietEnabled())
        return false;
    const double from = std::clamp(preferences.notifyQuietFrom(), 0.0, minutesOfDay);
    const double to = std::clamp(preferences.notifyQuietTo(), 0.0, minutesOfDay);
    return from <= to ? from <= minuteOfDay && minuteOfDay < to : from <= minuteOfDay || minuteOfDay < to;
}

NotificationPlan::Changes NotificationPlan::update(const QList<Alert>& alerts, const Moment& now,
                                                   const Preferences& preferences) {
    Changes changes;
    const QList<ConditionNotice> notices = noticesOf(alerts, preferences);
    for (auto each = m_histories.begin(); each != m_histories.end(); ++each) {
        if (!each->onScreen || hasNotice(notices, each.key()))
            continue;
        if (now.uptime - each->inForce < overAfter && isSwitchedOn(each.key(), preferences))
            continue;
        each->onScreen.reset();
        changes.withdraw.append(each.key());
    }
    const bool isQuietNow = isQuiet(now.minuteOfDay, preferences);
    for (const ConditionNotice& notice : notices) {
        History& history = m_histories[notice.condition];
        history.inForce = now.uptime;
        const bool comes = history.onScreen
                               ? history.onScreen != notice && now.uptime - history.changed >= replacedAfter
                               : isDue(history, notice.isDanger, now.uptime);
        if (!comes || isQuietNow)
            continue;
        note(history, notice, now.uptime);
        changes.show.append(notice);
    }
    return changes;
}

bool NotificationPlan::isDue(const History& history, bool isDanger, Time now) {
    const auto isLongAgo = [now](const std::optional<Time>& time) {
        return !time || now - *time >= comesAgainAfter;
    };
    return isLongAgo(history.came) || (isDanger && isLongAgo(history.cameAsDanger));
}

void NotificationPlan::note(History& history, const ConditionNotice& notice, Time now) {
    const bool isNew = !history.onScreen;
    const bool isNewDanger = notice.isDanger && (isNew || !history.onScreen->isDanger);
    if (isNew)
        history.came = now;
    if (isNewDanger)
        history.cameAsDanger = now;
    history.onScreen = notice;
    history.changed = now;
}

void NotificationPlan::close(const QString& condition, const Moment& now) {
    const auto history = m_histories.find(condition);
    if (history == m_histories.end() || !history->onScreen)
        return;
    history->came = now.uptime;
    if (history->onScreen->isDanger)
        history->cameAsDanger = now.uptime;
    history->onScreen.reset();
}
