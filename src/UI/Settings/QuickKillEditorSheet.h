#pragma once

#include "Core/Relief/QuickKillPreset.h"

#include <QDialog>

#include <functional>

class PushButton;
class SymbolView;
class QLineEdit;

/// Edits a copy of one preset. Modal for its window; deletes itself when it is closed.
class QuickKillEditorSheet : public QDialog {
    Q_OBJECT

public:
    /// `onSave` is called with the edited preset, unless the user cancels.
    QuickKillEditorSheet(const QString& title, const QuickKillPreset& preset,
                         std::function<void(const QuickKillPreset&)> onSave, QWidget* parent);

private:
    QWidget* makeTexts();
    QWidget* makeConditions();
    QLayout* makeButtons();
    /// Returns a field that edits one text of the preset.
    QLineEdit* makeField(QString& text);
    void refresh();
    void save();

    QuickKillPreset m_preset;
    std::function<void(const QuickKillPreset&)> m_onSave;
    SymbolView* m_symbol;
    PushButton* m_save;
};
