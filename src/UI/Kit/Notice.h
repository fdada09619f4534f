#pragma once

#include <QTimer>
#include <QWidget>

#include <chrono>

class TextLabel;

/// A short text about the outcome of an action, with a button to dismiss it. Hidden until it has a text. It
/// stays while the pointer is over it, and screen readers announce it.
class Notice : public QWidget {
    Q_OBJECT

public:
    /// Makes a notice that hides after `lifetime`, which starts anew with each text. 0 keeps it until it is
    /// dismissed.
    Notice(const QString& symbol, std::chrono::milliseconds lifetime, QWidget* parent = nullptr);

    /// Shows the text, and in red after it what has failed.
    void show(const QString& text, const QString& failure = {});

protected:
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void expire();

    TextLabel* m_text;
    TextLabel* m_failure;
    QTimer m_timer;
    bool m_isExpired = false; ///< while the pointer is over it
};
