#pragma once

#include <QColor>
#include <QList>
#include <QPolygonF>
#include <QWidget>

/// A bare line through a list of values, scaled to their largest.
class Sparkline : public QWidget {
    Q_OBJECT

public:
    explicit Sparkline(QWidget* parent = nullptr);

    void set(const QList<double>& values, const QColor& color);

    /// The line in a space of `size`; empty with fewer than two values. The top of the space is the largest
    /// value, but at least 1.
    static QPolygonF points(const QList<double>& values, const QSizeF& size);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QList<double> m_values;
    QColor m_color;
};
