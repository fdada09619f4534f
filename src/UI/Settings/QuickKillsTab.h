#pragma once

#include "Core/Relief/QuickKillPreset.h"

#include <QWidget>

#include <functional>

class PresetTable;
class Preferences;

/// The user's quick-kill presets. It keeps no list of its own: every action reads the stored one, changes it
/// and stores it.
class QuickKillsTab : public QWidget {
    Q_OBJECT

public:
    explicit QuickKillsTab(Preferences& preferences, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLayout* makeHeader();
    void refresh();
    void add();
    void edit(const QuickKillPreset& preset);
    void remove(const QuickKillPreset& preset);
    void reset();
    void openEditor(const QString& title, const QuickKillPreset& preset,
                    std::function<void(const QuickKillPreset&)> onSave);

    Preferences& m_preferences;
    PresetTable* m_table;
};
