#pragma once

#include "UI/Settings/SettingsForm.h"

/// What the cleanup asks about, leaves alone, and where it looks for projects.
class CleanupTab : public SettingsForm {
    Q_OBJECT

public:
    explicit CleanupTab(Preferences& preferences, QWidget* parent = nullptr);

private:
    void addList(const QString& title, const QString& emptyText, const QString& prompt, const QString& note,
                 Property<QStringList>& property);
};
