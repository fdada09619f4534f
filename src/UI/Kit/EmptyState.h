#pragma once

#include <QWidget>

class PushButton;
class QVBoxLayout;
class TextLabel;

/// Takes the place of a list that has nothing to show, and says why and what to do. The headline may be
/// empty.
class EmptyState : public QWidget {
    Q_OBJECT

public:
    EmptyState(const QString& symbol, const QString& headline, const QString& text,
               QWidget* parent = nullptr);

    void setText(const QString& text);
    /// Adds the button of the next step below the text.
    PushButton* addButton(const QString& text);

private:
    QVBoxLayout* m_column;
    TextLabel* m_detail;
};
