#include "UI/Overview/Sparkline.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// Returns the lowest and the highest point of each column of pixels. More cannot be seen, and stroking the
/// thousands of a long history takes tens of milliseconds.
QPolygonF thinned(const QPolygonF& line) {
    const auto isLower = [](QPointF a, QPointF b) { return a.y() < b.y(); };
    QPolygonF result;
    for (auto column = line.begin(); column != line.end();) {
        const auto end = std::find_if(column, line.end(), [x = std::floor(column->x())](QPointF point) {
            return std::floor(point.x()) != x;
        });
        const auto [lowest, highest] = std::minmax_element(column, end, isLower);
        result.append(*std::min(lowest, highest));
        if (lowest != highest)
            result.append(*std::max(lowest, highest));
        column = end;
    }
    return result;
}

} // namespace

Sparkline::Sparkline(QWidget* parent)
    : QWidget(parent) {
    setFixedHeight(32);
}

void Sparkline::set(const QList<double>& values, const QColor& color) {
    m_values = values;
    m_color = color;
    update();
}

QPolygonF Sparkline::points(const QList<double>& values, const QSizeF& size) {
    if (values.size() < 2)
        return {};
    const double top = std::max(1.0, *std::max_element(values.begin(), values.end()));
    const double step = size.width() / static_cast<double>(values.size() - 1);
    QPolygonF line;
    line.reserve(values.size());
    for (qsizetype i = 0; i < values.size(); ++i)
        line.append({step * static_cast<double>(i), size.height() - values[i] / top * size.height()});
    return line;
}

void Sparkline::setSecond(const QList<double>& values, const QColor& color) {
    m_secondValues = values;
    m_secondColor = color;
    update();
}

void Sparkline::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // A stroke is centred on its line: its outer half needs room.
    painter.translate(0, 0.75);
    drawLine(painter, m_values, m_color);
    drawLine(painter, m_secondValues, m_secondColor);
}

void Sparkline::drawLine(QPainter& painter, const QList<double>& values, QColor ink) const {
    ink.setAlphaF(0.7F);
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin));
    painter.drawPolyline(thinned(points(values, QSizeF(width(), height() - 1.5))));
}
