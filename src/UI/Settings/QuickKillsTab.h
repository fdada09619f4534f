#pragma once

#include "Core/Relief/QuickKillPreset.h"

#include <QWidget>

#include <functional>

class PresetTable;
class Preferences;

/// The user's quick-kill presets. Every action reads the stored list, changes it and stores it.
class QuickKillsTab : public QWidget {
    Q_OBJECT

public:
    explicit QuickKillsTab(Preferences& preferences, QWidget* parent = nullptr);

private:
    QLayout* makeHeader();
    void add();
    void edit(const QuickKillPreset& preset);
    void remove(const QuickKillPreset& preset);
    void reset();
    void openEditor(const QString& title, const QuickKillPreset& preset,
                    std::function<void(const QuickKillPreset&)> onSave);

    Preferences& m_preferences;
    PresetTable* m_table;
};
