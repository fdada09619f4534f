#pragma once

#include "UI/Settings/SettingsForm.h"

/// The switches and the thresholds of the alert rules.
class AlertsTab : public SettingsForm {
    Q_OBJECT

public:
    explicit AlertsTab(Preferences& preferences, QWidget* parent = nullptr);

private:
    struct Threshold {
        StepperRow::Look look;
        Stepper::Range range;
        Property<double>& property;
    };

    void addRule(const QString& title, const QString& toggle, Property<bool>& enabled,
                 const QList<Threshold>& thresholds);
};
