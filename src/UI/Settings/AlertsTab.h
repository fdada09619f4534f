#pragma once

#include "UI/Settings/SettingsForm.h"

/// Which rules raise an alert, and from which figures on.
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
