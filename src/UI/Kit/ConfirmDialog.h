#pragma once

#include "UI/Kit/PushButton.h"

#include <QDialog>

class QHBoxLayout;
class QVBoxLayout;

/// Asks before something that cannot be undone. Escape, Return and closing it all mean Cancel; it is gone
/// once it is answered. Show it with open().
class ConfirmDialog : public QDialog {
    Q_OBJECT

public:
    ConfirmDialog(QWidget* parent, const QString& title, const QString& text);

    /// One more answer, before Cancel. The dialog closes before the button's `clicked` reaches anyone else.
    PushButton* addAction(const QString& text, PushButton::Look look);
    /// Between the text and the buttons; as wide as `textWidth`.
    void addContent(QWidget* content);

    static constexpr int textWidth = 420;

private:
    QVBoxLayout* m_column;
    QHBoxLayout* m_buttons;
};
