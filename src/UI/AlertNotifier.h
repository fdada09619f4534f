#pragma once

#include "Core/Alerts/NotificationPlan.h"
#include "Core/Sampling/ProcSample.h"
#include "Platform/Desktop/Notifications.h"
#include "UI/RootView.h"

#include <QHash>

#include <memory>
#include <optional>

class AppModel;
class Clock;
class Preferences;

/// Tells the desktop of the alerts in force, as the plan decides, and of a long clean that is done while no
/// window is in front. It ends and cleans nothing: what the user chooses in a notification is emitted, for
/// the main window to show or to ask.
class AlertNotifier : public QObject {
    Q_OBJECT

public:
    /// `model` and `preferences` outlive the notifier.
    AlertNotifier(AppModel& model, Preferences& preferences, std::shared_ptr<Notifications> notifications,
                  std::shared_ptr<Clock> clock);
    /// Withdraws what it has shown, because its actions would reach nobody.
    ~AlertNotifier() override;

    /// Follows these alerts instead of the last ones.
    void follow(const QList<Alert>& alerts);

Q_SIGNALS:
    void showRequested(RootView::Tab tab);
    void freeRAMRequested();
    void endRequested(const ProcessIdentity& host);
    /// Emitted with the process that the notification named, which still runs.
    void quitRequested(const ProcSample& process);

private:
    /// The action of a notification that is about one process.
    struct Offer {
        QString action;
        ProcessIdentity process;
    };

    void show(const ConditionNotice& notice);
    void addProcessAction(Notification& notification, ConditionNotice::Action action,
                          const ProcSample& process);
    void act(const QString& key, const QString& action);
    void followCleaning();
    void tellOfCleaning();
    NotificationPlan::Moment now() const;

    AppModel& m_model;
    Preferences& m_preferences;
    std::shared_ptr<Notifications> m_notifications;
    std::shared_ptr<Clock> m_clock;
    NotificationPlan m_plan;
    QHash<QString, Offer> m_shown; ///< by key; an empty offer where none is about a process
    std::optional<std::chrono::steady_clock::time_point> m_cleaningSince;
};
