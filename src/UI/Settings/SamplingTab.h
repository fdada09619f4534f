#pragma once

#include "UI/Settings/SettingsForm.h"

/// How often the machine is looked at, and how much of it is kept.
class SamplingTab : public SettingsForm {
    Q_OBJECT

public:
    explicit SamplingTab(Preferences& preferences, QWidget* parent = nullptr);

private:
    /// The choices of the poll interval, in seconds.
    static const QList<double> intervals;
};
