#pragma once

#include "UI/Kit/PushButton.h"
#include "UI/Style/Theme.h"

#include <QDialog>

class QHBoxLayout;
class QVBoxLayout;

/// Asks before an action that cannot be undone. Escape, Return and closing the window mean Cancel. Show it
/// with open(); it deletes itself once it is answered.
class ConfirmDialog : public QDialog {
    Q_OBJECT

public:
    ConfirmDialog(QWidget* parent, const QString& title, const QString& text);

    /// Adds an answer before Cancel. The dialog closes before the button's `clicked` reaches other receivers.
    PushButton* addAction(const QString& text, PushButton::Look look);
    /// Adds a widget between the text and the buttons. It has to be at least as wide as `textWidth`.
    void addContent(QWidget* content);

    static constexpr Theme::Length textWidth{420};

private:
    QVBoxLayout* m_column;
    QHBoxLayout* m_buttons;
};
