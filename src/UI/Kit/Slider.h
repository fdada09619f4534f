#pragma once

#include "UI/Style/Theme.h"

#include <QSlider>
#include <QString>

class TextLabel;

/// A horizontal slider in the theme's colours; a press on its track moves the knob there.
class Slider : public QSlider {
    Q_OBJECT

public:
    explicit Slider(QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void moveKnobTo(double x);
};

/// A slider over steps, under a line that says its value: "Min idle: 10 min".
class LabeledSlider : public QWidget {
    Q_OBJECT

public:
    struct Range {
        int from;
        int to;
        int step;
    };

    /// The line is `text` with the value in place of its %1.
    LabeledSlider(QString text, Range range, double value, Theme::Length width, QWidget* parent = nullptr);

    double value() const;
    void setValue(double value);

Q_SIGNALS:
    void valueChanged(double value);

private:
    void showValue();

    QString m_text;
    int m_step;
    TextLabel* m_label;
    Slider* m_slider;
};
