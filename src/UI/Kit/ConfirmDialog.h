#pragma once

#include "UI/Kit/PushButton.h"

#include <QDialog>

class QHBoxLayout;

/// Asks before something that cannot be undone. Escape, Return and closing it all mean Cancel; it is gone
/// once it is answered. Show it with open().
class ConfirmDialog : public QDialog {
    Q_OBJECT

public:
    ConfirmDialog(QWidget* parent, const QString& title, const QString& text);

    /// One more answer, before Cancel. The dialog closes before the button's `clicked` reaches anyone else.
    PushButton* addAction(const QString& text, PushButton::Look look);

private:
    QHBoxLayout* m_buttons;
};
