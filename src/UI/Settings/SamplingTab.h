#pragma once

#include "UI/Settings/SettingsForm.h"

/// The poll interval, the length of the history, and the pause on low power.
class SamplingTab : public SettingsForm {
    Q_OBJECT

public:
    explicit SamplingTab(Preferences& preferences, QWidget* parent = nullptr);
};
