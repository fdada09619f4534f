#pragma once

#include "UI/Settings/SettingsForm.h"

class Notifications;

/// The switches and the thresholds of the alert rules, and what the desktop is told of.
class AlertsTab : public SettingsForm {
    Q_OBJECT

public:
    /// `notifications` outlives the tab.
    AlertsTab(Preferences& preferences, const Notifications& notifications, QWidget* parent = nullptr);

private:
    struct Threshold {
        StepperRow::Look look;
        Stepper::Range range;
        Property<double>& property;
    };

    FormSection* addRule(const QString& title, const QString& toggle, Property<bool>& enabled,
                         const QList<Threshold>& thresholds, Property<bool>& notify);
    void addNotify(FormSection* section, const QString& text, const QString& name, Property<bool>& property,
                   const Property<bool>& condition);
    void addNotifications(Preferences& preferences, const Notifications& notifications);
};
