#include "UI/AlertNotifier.h"

#include "AppModel.h"
#include "Core/Observable.h"
#include "Platform/Clock.h"
#include "Preferences.h"
#include "UI/Cleanup/CleanupTexts.h"

#include <QApplication>
#include <QDateTime>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longCleaning = 10s;

const auto cleanedKey = u"cleaned"_s;
const auto showAction = u"show"_s;
const auto freeRAMAction = u"free_ram"_s;

} // namespace

AlertNotifier::AlertNotifier(AppModel& model, Preferences& preferences,
                             std::shared_ptr<Notifications> notifications, std::shared_ptr<Clock> clock)
    : m_model(model)
    , m_preferences(preferences)
    , m_notifications(std::move(notifications))
    , m_clock(std::move(clock)) {
    observe(&m_model, this, [this] { follow(m_model.alerts()); });
    observe(&m_preferences, this, [this] { follow(m_model.alerts()); });
    observe(&m_model.cleanup(), this, [this] { followCleaning(); });
    connect(m_notifications.get(), &Notifications::invoked, this, &AlertNotifier::act);
    connect(m_notifications.get(), &Notifications::closed, this,
            [this](const QString& key) { m_plan.close(key, now()); });
}

AlertNotifier::~AlertNotifier() {
    m_notifications->disconnect(this);
    for (auto each = m_shown.cbegin(); each != m_shown.cend(); ++each)
        m_notifications->withdraw(each.key());
}

NotificationPlan::Moment AlertNotifier::now() const {
    const auto wall = std::chrono::floor<std::chrono::milliseconds>(m_clock->now().time_since_epoch());
    const QTime time = QDateTime::fromMSecsSinceEpoch(wall.count()).time();
    return {.uptime = m_clock->uptime(), .minuteOfDay = time.hour() * 60 + time.minute()};
}

void AlertNotifier::follow(const QList<Alert>& alerts) {
    const NotificationPlan::Changes changes = m_plan.update(alerts, now(), m_preferences);
    for (const QString& condition : changes.withdraw) {
        m_shown.remove(condition);
        m_notifications->withdraw(condition);
    }
    for (const ConditionNotice& notice : changes.show)
        show(notice);
}

void AlertNotifier::show(const ConditionNotice& notice) {
    using Action = ConditionNotice::Action;
    m_shown[notice.condition] = Offer();
    Notification notification{.key = notice.condition,
                              .title = notice.title,
                              .body = notice.body,
                              .urgency = notice.isDanger ? Notification::Urgency::critical
                                                         : Notification::Urgency::normal,
                              .actions = {}};
    const ProcSample* process = notice.actionPid ? m_model.process(*notice.actionPid) : nullptr;
    for (const Action action : notice.actions) {
        if (action == Action::show)
            notification.actions.append({showAction, tr("Show")});
        else if (action == Action::freeRAM)
            notification.actions.append({freeRAMAction, tr("Free RAM…")});
        else if (process)
            addProcessAction(notification, action, *process);
    }
    m_notifications->show(notification);
}

/// Adds an action that names its process: one of the notification that this one replaces is another.
void AlertNotifier::addProcessAction(Notification& notification, ConditionNotice::Action action,
                                     const ProcSample& process) {
    const bool isSession = action == ConditionNotice::Action::endSession;
    const QString key = (isSession ? u"end_%1"_s : u"quit_%1"_s).arg(process.pid);
    notification.actions.append({key, isSession ? tr("End session…") : tr("Quit %1").arg(process.name)});
    m_shown[notification.key] = {key, process.identity()};
}

void AlertNotifier::act(const QString& key, const QString& action) {
    m_plan.close(key, now());
    const Offer offer = m_shown.take(key);
    const ProcSample* process = action == offer.action ? m_model.process(offer.process.pid) : nullptr;
    const bool isTheSame = process && process->identity() == offer.process;
    if (key == cleanedKey)
        Q_EMIT showRequested(RootView::Tab::cleanup);
    else if (action == freeRAMAction)
        Q_EMIT freeRAMRequested();
    else if (isTheSame && action.startsWith(u"end_"_s))
        Q_EMIT endRequested(offer.process);
    else if (isTheSame)
        Q_EMIT quitRequested(ProcSample(*process));
    else
        Q_EMIT showRequested(RootView::Tab::overview);
}

void AlertNotifier::followCleaning() {
    const bool isCleaning = m_model.cleanup().isCleaning();
    if (isCleaning == m_cleaningSince.has_value())
        return;
    if (isCleaning) {
        m_cleaningSince = m_clock->uptime();
        m_shown.remove(cleanedKey);
        m_notifications->withdraw(cleanedKey);
        return;
    }
    const auto began = *std::exchange(m_cleaningSince, std::nullopt);
    if (m_clock->uptime() - began > longCleaning && !QApplication::activeWindow())
        tellOfCleaning();
}

void AlertNotifier::tellOfCleaning() {
    const CleanupReport& report = m_model.cleanup().report();
    if (report.wasCancelled || !m_preferences.notifyCleaned() ||
        NotificationPlan::isQuiet(now().minuteOfDay, m_preferences))
        return;
    QStringList lines{CleanupTexts::outcome(report.cleaned, {report.cleaned, report.freedBytes}, report)};
    if (const QString unfinished = CleanupTexts::unfinished(report); !unfinished.isEmpty())
        lines.append(unfinished);
    m_shown[cleanedKey] = Offer();
    m_notifications->show({.key = cleanedKey,
                           .title = tr("Cleaning is done"),
                           .body = lines.join(u'\n'),
                           .actions = {{showAction, tr("Show")}}});
}
