#pragma once

#include "UI/Style/Theme.h"

#include <QBasicTimer>
#include <QWidget>

/// Shows that an operation is in progress. It turns only while it is visible.
class Spinner : public QWidget {
    Q_OBJECT

public:
    static constexpr Theme::Length side{15};

    explicit Spinner(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_timer;
    int m_degrees = 0;
};
