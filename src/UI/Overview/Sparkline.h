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
    /// Draws a second line over the first, on a scale of its own; none for an empty list.
    void setSecond(const QList<double>& values, const QColor& color);

    /// Marks one of the values; nothing for -1.
    void mark(qsizetype index);

    /// Returns the line in an area of `size`, empty with fewer than two values. The top of the area is the
    /// largest value, or 1 if that is larger.
    static QPolygonF points(const QList<double>& values, const QSizeF& size);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawLine(QPainter& painter, const QList<double>& values, QColor ink) const;

    QList<double> m_values;
    QColor m_color;
    QList<double> m_secondValues;
    QColor m_secondColor;
    qsizetype m_marked = -1;
};
