#include "UI/Kit/Graph.h"

#include "Core/Formatters.h"
#include "UI/Kit/LinePoints.h"
#include "UI/Style/Painting.h"

#include <QAccessible>
#include <QDateTime>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr int graphPadding = 12;
constexpr int axisGap = 6;
constexpr int legendGap = 16;
constexpr Theme::Length legendDot{8};
constexpr Theme::Length plotHeight{140};
constexpr Theme::Length smallPlotHeight{44};
constexpr int scaleSteps = 2;

QString timeText(double seconds, QLocale::FormatType format) {
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(std::llround(seconds * 1000)).time(), format);
}

double captionHeight() {
    return Painting::lineHeight(Theme::font(TextStyle::caption));
}

} // namespace

Graph::Graph(QString title, Unit unit, QWidget* parent)
    : QWidget(parent)
    , m_title(std::move(title))
    , m_unit(unit) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    describe();
}

void Graph::setSmall() {
    m_isSmall = true;
    updateGeometry();
}

void Graph::set(Data shown) {
    const bool isOtherLegend = shown.series.size() != m_data.series.size();
    m_data = std::move(shown);
    if (isOtherLegend)
        updateGeometry();
    describe();
    update();
}

QString Graph::text(Unit unit, double value) {
    switch (unit) {
    case Unit::percent:
        return Formatters::percent(value);
    case Unit::degrees:
        return tr("%1 °C").arg(Formatters::fixed(value, 0));
    case Unit::bytesPerSecond:
        return tr("%1/s", "bytes in a second")
            .arg(Formatters::bytes(static_cast<quint64>(std::max(value, 0.0))));
    case Unit::bytes:
        break;
    }
    return Formatters::bytes(static_cast<quint64>(std::max(value, 0.0)));
}

double Graph::roundTop(Unit unit, double largest) {
    const bool isBytes = unit == Unit::bytes || unit == Unit::bytesPerSecond;
    double scale = 1;
    while (isBytes && largest / scale >= 1024)
        scale *= 1024;
    const double wanted = std::max(largest / scale, 1.0);
    double power = 1;
    while (wanted > 10 * power)
        power *= 10;
    for (const double step : {1.0, 2.0, 5.0, 10.0}) {
        if (wanted <= step * power)
            return step * power * scale;
    }
    return wanted * scale;
}

double Graph::top() const {
    if (m_data.top > 0)
        return m_data.top;
    double largest = 0;
    for (qsizetype i = 0; i < m_data.times.size(); ++i) {
        double sum = 0;
        for (const Series& series : m_data.series) {
            sum = m_data.isStacked ? sum + series.values[i] : series.values[i];
            largest = std::max(largest, sum);
        }
    }
    return roundTop(m_unit, largest);
}

qsizetype Graph::shownIndex() const {
    const qsizetype last = m_data.times.size() - 1;
    if (!m_cursor || last < 0)
        return last;
    const auto after = std::ranges::lower_bound(m_data.times, *m_cursor);
    const qsizetype index = std::min<qsizetype>(after - m_data.times.begin(), last);
    const bool isNearerBefore =
        index > 0 && *m_cursor - m_data.times[index - 1] < m_data.times[index] - *m_cursor;
    return isNearerBefore ? index - 1 : index;
}

/// Returns the names with the figures of the moment that is shown.
QList<std::pair<QString, Role>> Graph::legend() const {
    QList<std::pair<QString, Role>> result;
    const qsizetype index = shownIndex();
    for (const Series& series : m_data.series) {
        const QString figure = index < 0 ? QStringLiteral("—") : text(m_unit, series.values[index]);
        result.append(
            {m_isSmall || series.name.isEmpty() ? figure : QStringLiteral("%1 %2").arg(series.name, figure),
             series.role});
    }
    return result;
}

void Graph::describe() {
    QStringList spoken{m_title};
    if (m_cursor && shownIndex() >= 0)
        spoken.append(timeText(m_data.times[shownIndex()], QLocale::LongFormat));
    for (const auto& [entry, role] : legend())
        spoken.append(entry);
    setAccessibleName(spoken.join(QStringLiteral(", ")));
}

void Graph::moveCursor(std::optional<double> time) {
    if (time == m_cursor)
        return;
    m_cursor = time;
    describe();
    QAccessibleEvent spoken(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&spoken);
    update();
}

void Graph::mouseMoveEvent(QMouseEvent* event) {
    const QRectF area = plot();
    if (m_data.times.size() < 2)
        return;
    const double share = std::clamp((event->position().x() - area.left()) / area.width(), 0.0, 1.0);
    moveCursor(m_data.times.first() + share * (m_data.times.last() - m_data.times.first()));
}

void Graph::leaveEvent(QEvent*) {
    moveCursor(std::nullopt);
}

void Graph::focusOutEvent(QFocusEvent* event) {
    moveCursor(std::nullopt);
    QWidget::focusOutEvent(event);
}

void Graph::keyPressEvent(QKeyEvent* event) {
    const qsizetype last = m_data.times.size() - 1;
    const auto step = std::max<qsizetype>(1, last / std::max(1, static_cast<int>(plot().width()) / 4));
    std::optional<qsizetype> index;
    if (event->key() == Qt::Key_Left)
        index = shownIndex() - step;
    else if (event->key() == Qt::Key_Right)
        index = shownIndex() + step;
    else if (event->key() == Qt::Key_Home)
        index = 0;
    else if (event->key() == Qt::Key_End)
        index = last;
    if (event->key() == Qt::Key_Escape && m_cursor)
        return moveCursor(std::nullopt);
    if (index && last >= 0)
        moveCursor(m_data.times[std::clamp<qsizetype>(*index, 0, last)]);
    else
        QWidget::keyPressEvent(event);
}

/// Returns how many lines the legend takes, in the order in which `paintHead` places its entries.
int Graph::legendLines(int width) const {
    if (m_isSmall)
        return 0;
    const QFontMetricsF metrics(Theme::font(TextStyle::caption));
    double left = 0;
    int lines = 1;
    for (const Series& series : m_data.series) {
        // the longest figure, so that the graph keeps its height while figures change
        const double entry = legendDot + axisGap + metrics.horizontalAdvance(series.name) +
                             metrics.horizontalAdvance(QStringLiteral(" 0,000.0 GB/s")) + legendGap;
        if (left > 0 && left + entry > width - 2 * graphPadding) {
            ++lines;
            left = 0;
        }
        left += entry;
    }
    return lines;
}

QSize Graph::sizeHint() const {
    const int width = Theme::scaled(m_isSmall ? 160 : 480);
    return {width, heightForWidth(width)};
}

int Graph::heightForWidth(int width) const {
    const double line = captionHeight() + Theme::textGap;
    const double head = (1 + legendLines(width)) * line + axisGap;
    const double foot = m_isSmall ? 0 : line + axisGap;
    return static_cast<int>(2 * graphPadding + head + foot) + (m_isSmall ? smallPlotHeight : plotHeight);
}

QRectF Graph::plot() const {
    const double line = captionHeight() + Theme::textGap;
    QRectF area = QRectF(rect()).adjusted(graphPadding, graphPadding, -graphPadding, -graphPadding);
    area.setTop(area.top() + (1 + legendLines(width())) * line + axisGap);
    if (m_isSmall)
        return area;
    area.setBottom(area.bottom() - line - axisGap);
    area.setLeft(area.left() + Painting::tabularWidth(Theme::font(TextStyle::caption), text(m_unit, top())) +
                 axisGap);
    return area;
}

double Graph::x(const QRectF& area, qsizetype index) const {
    const double span = m_data.times.last() - m_data.times.first();
    return span > 0 ? area.left() + (m_data.times[index] - m_data.times.first()) / span * area.width()
                    : area.right();
}

void Graph::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::drawCard(painter, rect());
    const QRectF area = plot();
    paintHead(painter);
    paintAxes(painter, area);
    if (m_data.times.size() > 1)
        paintSeries(painter, area);
    paintCursor(painter, area);
    if (hasFocus())
        Painting::drawFocusRing(painter, rect(), Theme::cardRadius);
}

void Graph::paintHead(QPainter& painter) const {
    const double height = captionHeight();
    QRectF line(graphPadding, graphPadding, width() - 2 * graphPadding, height);
    Painting::setTextStyle(painter, TextStyle::caption, Role::primaryText, QFont::DemiBold);
    Painting::drawElided(painter, line, Qt::ElideRight, m_title);
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    const auto entries = legend();
    if (m_isSmall) {
        Painting::drawTabular(painter, line, Qt::AlignRight,
                              entries.isEmpty() ? QString() : entries[0].first);
        return;
    }
    if (m_cursor && shownIndex() >= 0)
        Painting::drawTabular(painter, line, Qt::AlignRight,
                              timeText(m_data.times[shownIndex()], QLocale::LongFormat).section(u' ', 0, 1));
    const double step = height + Theme::textGap;
    line.translate(0, step);
    double left = line.left();
    for (const auto& [entry, role] : entries) {
        const double needed = legendDot + axisGap + Painting::tabularWidth(painter.font(), entry);
        if (left > line.left() && left + needed > line.right()) {
            line.translate(0, step);
            left = line.left();
        }
        const QRectF dot(left, line.center().y() - legendDot / 2.0, legendDot, legendDot);
        Painting::drawCard(painter, dot, legendDot / 2.0, Theme::color(role));
        Painting::drawTabular(painter, QRectF(dot.right() + axisGap, line.top(), needed, height),
                              Qt::AlignLeft, entry);
        left += needed + legendGap;
    }
}

void Graph::paintAxes(QPainter& painter, const QRectF& area) const {
    const double largest = top();
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    for (int step = 0; step <= scaleSteps; ++step) {
        const double y = qRound(area.bottom() - area.height() * step / scaleSteps);
        painter.fillRect(QRectF(area.left(), y, area.width(), 1), Theme::color(Role::separator));
        if (m_isSmall)
            continue;
        const QRectF label(graphPadding, y - captionHeight() / 2, area.left() - axisGap - graphPadding,
                           captionHeight());
        Painting::drawTabular(painter, label, Qt::AlignRight, text(m_unit, largest * step / scaleSteps));
    }
    if (m_isSmall || m_data.times.size() < 2)
        return;
    const QRectF foot(area.left(), area.bottom() + axisGap, area.width(), captionHeight());
    const double first = m_data.times.first();
    const double last = m_data.times.last();
    const QLocale::FormatType format = QLocale::ShortFormat;
    Painting::drawTabular(painter, foot, Qt::AlignLeft, timeText(first, format));
    Painting::drawTabular(painter, foot, Qt::AlignHCenter, timeText((first + last) / 2, format));
    Painting::drawTabular(painter, foot, Qt::AlignRight, timeText(last, format));
}

void Graph::paintSeries(QPainter& painter, const QRectF& area) const {
    const double largest = top();
    QList<double> base(m_data.times.size(), 0);
    QList<std::pair<QPolygonF, Role>> lines;
    for (const Series& series : m_data.series) {
        QPolygonF line;
        line.reserve(m_data.times.size());
        for (qsizetype i = 0; i < m_data.times.size(); ++i) {
            const double value = base[i] + series.values[i];
            line.append({x(area, i), area.bottom() - std::min(value / largest, 1.0) * area.height()});
            if (m_data.isStacked)
                base[i] = value;
        }
        lines.prepend({thinnedLine(line), series.role});
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& [line, role] : std::as_const(lines)) {
        if (m_data.isStacked) {
            QPolygonF ground = line;
            ground << QPointF(line.last().x(), area.bottom()) << QPointF(line.first().x(), area.bottom());
            QPainterPath path;
            path.addPolygon(ground);
            painter.fillPath(path, Theme::color(Role::cardFill)); // hides what stands behind
            painter.fillPath(path, Theme::color(role, 0.35));
        }
        painter.setPen(QPen(Theme::color(role), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin));
        painter.drawPolyline(line);
    }
    painter.restore();
}

void Graph::paintCursor(QPainter& painter, const QRectF& area) const {
    const qsizetype index = shownIndex();
    if (!m_cursor || index < 0 || m_data.times.size() < 2)
        return;
    painter.fillRect(QRectF(qRound(x(area, index)), area.top(), 1, area.height()),
                     Theme::color(Role::secondaryText));
}
