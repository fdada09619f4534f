#include "UI/Overview/Sparkline.h"

#include "UI/Kit/LinePoints.h"
#include "UI/Style/Painting.h"

#include <QPainter>

#include <algorithm>

Sparkline::Sparkline(QWidget* parent)
    : QWidget(parent) {
    setFixedHeight(32);
    setAttribute(Qt::WA_TransparentForMouseEvents);
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

void Sparkline::mark(qsizetype index) {
    if (index == m_marked)
        return;
    m_marked = index;
    update();
}

void Sparkline::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    painter.setRenderHint(QPainter::Antialiasing);
    // A stroke is centred on its line: its outer half needs room.
    painter.translate(0, 0.75);
    drawLine(painter, m_values, m_color);
    drawLine(painter, m_secondValues, m_secondColor);
    if (m_marked < 0 || m_marked >= m_values.size())
        return;
    constexpr double radius = 3;
    const QPointF point = points(m_values, QSizeF(width(), height() - 1.5)).value(m_marked);
    painter.fillRect(QRectF(qRound(point.x()), 0, 1, height()), Theme::color(Theme::Role::separator, 2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    painter.drawEllipse(point, radius, radius);
}

void Sparkline::drawLine(QPainter& painter, const QList<double>& values, QColor ink) const {
    ink.setAlphaF(0.7F);
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin));
    painter.drawPolyline(thinnedLine(points(values, QSizeF(width(), height() - 1.5))));
}
