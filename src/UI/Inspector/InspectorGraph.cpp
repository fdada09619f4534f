#include "UI/Inspector/InspectorGraph.h"

#include "UI/Style/Painting.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr int plotHeight = 56;
constexpr int axisGap = 4;

QString timeText(double seconds) {
    return seconds < 90 ? InspectorGraph::tr("%1 s ago").arg(std::lround(seconds))
                        : InspectorGraph::tr("%1 min ago").arg(std::lround(seconds / 60));
}

} // namespace

InspectorGraph::InspectorGraph(const QString& title, Role role, double least, QString (*format)(double),
                               QWidget* parent)
    : QWidget(parent)
    , m_title(title)
    , m_role(role)
    , m_least(least)
    , m_format(format) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

double InspectorGraph::roundTop(double largest, double unit) {
    double step = unit;
    while (step < largest && step < 1e18) {
        for (const double factor : {2.0, 5.0}) {
            if (step * factor >= largest)
                return step * factor;
        }
        step *= 10;
    }
    return step;
}

void InspectorGraph::set(std::vector<Point> points, double seconds) {
    m_points = std::move(points);
    m_seconds = seconds;
    const QString now = m_points.empty() ? tr("unknown yet") : m_format(m_points.back().value);
    double largest = 0;
    for (const Point& point : m_points)
        largest = std::max(largest, point.value);
    setAccessibleName(
        tr("%1: %2 now, at most %3 since %4").arg(m_title, now, m_format(largest), timeText(m_seconds)));
    update();
}

QSize InspectorGraph::sizeHint() const {
    const double title = Painting::lineHeight(Theme::font(TextStyle::callout));
    const double axis = Painting::lineHeight(Theme::font(TextStyle::caption));
    return {200, static_cast<int>(title + axis) + plotHeight + 2 * axisGap};
}

void InspectorGraph::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double titleHeight = Painting::lineHeight(Theme::font(TextStyle::callout));
    const double axisHeight = Painting::lineHeight(Theme::font(TextStyle::caption));
    double largest = m_least;
    for (const Point& point : m_points)
        largest = std::max(largest, point.value);
    const double top = roundTop(largest, m_least);
    const QString topText = m_format(top);
    Painting::setTextStyle(painter, TextStyle::callout, Role::secondaryText);
    Painting::drawElided(painter, QRectF(0, 0, width(), titleHeight), Qt::ElideRight, m_title);
    painter.setPen(Theme::color(Role::primaryText));
    if (!m_points.empty())
        Painting::drawTabular(painter, QRectF(0, 0, width(), titleHeight), Qt::AlignRight,
                              m_format(m_points.back().value));

    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    const double axisWidth = Painting::tabularWidth(painter.font(), topText) + axisGap;
    const QRectF plot(axisWidth, titleHeight + axisGap, width() - axisWidth - 1, plotHeight);
    Painting::drawTabular(painter, QRectF(0, plot.top(), axisWidth - axisGap, axisHeight), Qt::AlignRight,
                          topText);
    Painting::drawTabular(painter, QRectF(0, plot.bottom() - axisHeight, axisWidth - axisGap, axisHeight),
                          Qt::AlignRight, QStringLiteral("0"));
    const QRectF times(plot.left(), plot.bottom() + axisGap, plot.width(), axisHeight);
    Painting::drawTabular(painter, times, Qt::AlignLeft, timeText(m_seconds));
    Painting::drawTabular(painter, times, Qt::AlignRight, tr("now"));
    painter.setPen(QPen(Theme::color(Role::separator), 1));
    for (const double height : {plot.top(), plot.center().y(), plot.bottom()})
        painter.drawLine(QPointF(plot.left(), height), QPointF(plot.right(), height));

    QPolygonF line;
    for (const Point& point : m_points)
        line.append(QPointF(plot.right() - point.secondsAgo / m_seconds * plot.width(),
                            plot.bottom() - point.value / top * plot.height()));
    painter.setRenderHint(QPainter::Antialiasing);
    if (line.size() > 1) {
        QPolygonF below = line;
        below.append(QPointF(line.last().x(), plot.bottom()));
        below.append(QPointF(line.first().x(), plot.bottom()));
        QPainterPath area;
        area.addPolygon(below);
        painter.fillPath(area, Theme::color(m_role, 0.15));
    }
    painter.setPen(QPen(Theme::color(m_role), 1.5));
    painter.drawPolyline(line);
    if (line.size() == 1)
        painter.drawPoint(line.first());
}
