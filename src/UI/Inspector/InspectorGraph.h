#pragma once

#include "UI/Style/Theme.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

/// A figure over the last minutes, with its scale, its time and its present value.
class InspectorGraph : public QWidget {
    Q_OBJECT

public:
    struct Point {
        double secondsAgo = 0;
        double value = 0;
    };

    /// `format` makes the text of a value; `least` is the smallest top of the scale.
    InspectorGraph(const QString& title, Theme::Role role, double least, QString (*format)(double),
                   QWidget* parent = nullptr);

    /// Sets the line over so many seconds, the oldest point first.
    void set(std::vector<Point> points, double seconds);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// Returns the top of a scale that has room for `largest` and ends at a round figure: 1, 2 or 5 times a
    /// power of ten, or of 1,024 where that is the unit.
    static double roundTop(double largest, double unit);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
    Theme::Role m_role;
    double m_least;
    QString (*m_format)(double);
    std::vector<Point> m_points;
    double m_seconds = 60;
};
