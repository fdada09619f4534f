#pragma once

#include <QTimer>
#include <QWidget>

#include <chrono>

class TextLabel;

/// A short text about the outcome of an action, with a button to dismiss it. Hidden until it has a text.
class Notice : public QWidget {
    Q_OBJECT

public:
    /// Makes a notice that hides after `lifetime`, which starts anew with each text. 0 keeps it until it is
    /// dismissed.
    Notice(const QString& symbol, std::chrono::milliseconds lifetime, QWidget* parent = nullptr);

    void show(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TextLabel* m_text;
    QTimer m_timer;
};
