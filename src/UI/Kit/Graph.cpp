#include "UI/Kit/Graph.h"

#include "Core/Formatters.h"
#include "UI/Kit/LinePoints.h"
#include "UI/Style/Painting.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr int cardInset = 12;
constexpr int axisGap = 8;
constexpr int legendGap = 16;
constexpr Theme::Length legendDot{8};
constexpr Theme::Length plotHeights[] = {{140}, {56}, {44}}; ///< in the order of Graph::Size
constexpr int usualWidths[] = {480, 200, 160};
constexpr int scaleSteps = 2;

double captionHeight() {
    return Painting::lineHeight(Theme::font(TextStyle::caption));
}

} // namespace

Graph::Graph(QString title, Unit unit, Size size, QWidget* parent)
    : QWidget(parent)
    , m_title(std::move(title))
    , m_unit(unit)
    , m_size(size) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    describe();
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
    if (std::isnan(value))
        return QStringLiteral("—");
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
    constexpr double kib = 1024;
    const bool isBytes = unit == Unit::bytes || unit == Unit::bytesPerSecond;
    double scale = isBytes ? kib : 1;
    while (isBytes && largest / scale > 500)
        scale *= kib;
    const double wanted = std::max(largest / scale, isBytes ? 1.0 : 10.0);
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
            largest = std::max(largest, sum); // which leaves out what is not known
        }
    }
    return roundTop(m_unit, largest);
}

bool Graph::hasLegend() const {
    return m_data.series.size() > 1 || (m_data.series.size() == 1 && !m_data.series[0].name.isEmpty());
}

bool Graph::isDrawable() const {
    return m_data.times.size() > 1;
}

int Graph::padding() const {
    return m_size == Size::compact ? 0 : cardInset;
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
            {series.name.isEmpty() ? figure : QStringLiteral("%1 %2").arg(series.name, figure), series.role});
    }
    return result;
}

/// Returns the time of the chosen moment, else the note.
QString Graph::momentText() const {
    return m_cursor && shownIndex() >= 0 ? Formatters::timeOfDay(m_data.times[shownIndex()]) : m_data.note;
}

void Graph::describe() {
    QStringList spoken{m_title};
    if (const QString moment = momentText(); !moment.isEmpty())
        spoken.append(moment);
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
    if (!isDrawable())
        return;
    const QRectF area = plot();
    const double pointer = Painting::mirrored(event->position(), rect(), layoutDirection()).x();
    const double share = std::clamp((pointer - area.left()) / area.width(), 0.0, 1.0);
    moveCursor(m_data.times.first() + share * (m_data.times.last() - m_data.times.first()));
}

void Graph::leaveEvent(QEvent*) {
    moveCursor(std::nullopt);
}

void Graph::focusOutEvent(QFocusEvent* event) {
    moveCursor(std::nullopt);
    QWidget::focusOutEvent(event);
}

/// Returns the moment that a key leads to, -1 for another key.
qsizetype Graph::indexForKey(int key) const {
    const qsizetype last = m_data.times.size() - 1;
    const auto step = std::max<qsizetype>(1, last / std::max(1, static_cast<int>(plot().width()) / 4));
    const int earlier = layoutDirection() == Qt::RightToLeft ? Qt::Key_Right : Qt::Key_Left;
    if (key == Qt::Key_Home)
        return 0;
    if (key == Qt::Key_End)
        return last;
    if (key == Qt::Key_Left || key == Qt::Key_Right)
        return std::clamp<qsizetype>(shownIndex() + (key == earlier ? -step : step), 0, last);
    return -1;
}

void Graph::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && m_cursor)
        return moveCursor(std::nullopt);
    const qsizetype index = m_data.times.isEmpty() ? -1 : indexForKey(event->key());
    if (index >= 0)
        moveCursor(m_data.times[index]);
    else
        QWidget::keyPressEvent(event);
}

/// Returns how many lines the legend takes, in the order in which `paintLegend` places its entries.
int Graph::legendLines(int width) const {
    if (!hasLegend())
        return 0;
    const QFontMetricsF metrics(Theme::font(TextStyle::caption));
    double left = 0;
    int lines = 1;
    for (const Series& series : m_data.series) {
        // the longest figure, so that the graph keeps its height while figures change
        const double entry = legendDot + axisGap + metrics.horizontalAdvance(series.name) +
                             metrics.horizontalAdvance(QStringLiteral(" 0,000.0 GB/s")) + legendGap;
        if (left > 0 && left + entry > width - 2 * padding()) {
            ++lines;
            left = 0;
        }
        left += entry;
    }
    return lines;
}

QSize Graph::sizeHint() const {
    const int width = Theme::scaled(usualWidths[static_cast<int>(m_size)]);
    return {width, heightForWidth(width)};
}

int Graph::heightForWidth(int width) const {
    const double line = captionHeight() + Theme::textGap;
    const double head = (1 + legendLines(width)) * line + axisGap;
    const double foot = hasAxes() ? line + axisGap : 0;
    return static_cast<int>(2 * padding() + head + foot) + plotHeights[static_cast<int>(m_size)];
}

QRectF Graph::plot() const {
    const double line = captionHeight() + Theme::textGap;
    QRectF area = QRectF(rect()).adjusted(padding(), padding(), -padding(), -padding());
    area.setTop(area.top() + (1 + legendLines(width())) * line + axisGap);
    if (!hasAxes())
        return area;
    area.setBottom(area.bottom() - line - axisGap);
    double widest = 0;
    for (int step = 0; step <= scaleSteps; ++step)
        widest = std::max(widest, Painting::tabularWidth(Theme::font(TextStyle::caption), scaleText(step)));
    area.setLeft(area.left() + widest + axisGap);
    return area;
}

QString Graph::scaleText(int step) const {
    return text(m_unit, top() * step / scaleSteps);
}

double Graph::x(const QRectF& area, qsizetype index) const {
    const double span = m_data.times.last() - m_data.times.first();
    return span > 0 ? area.left() + (m_data.times[index] - m_data.times.first()) / span * area.width()
                    : area.right();
}

void Graph::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    const bool isOnCard = m_size == Size::compact;
    if (!isOnCard)
        Painting::drawCard(painter, rect());
    const QRectF area = plot();
    paintHead(painter);
    paintAxes(painter, area);
    if (isDrawable()) {
        for (const Run& run : runs())
            paintRun(painter, area, run);
        paintCursor(painter, area);
    }
    if (hasFocus())
        Painting::drawFocusRing(painter, isOnCard ? area.adjusted(-2, -2, 0, 2) : QRectF(rect()),
                                isOnCard ? Theme::controlRadius : Theme::cardRadius);
}

void Graph::paintHead(QPainter& painter) const {
    QRectF line(padding(), padding(), width() - 2 * padding(), captionHeight());
    QStringList parts;
    if (const QString moment = momentText(); hasAxes() && !moment.isEmpty())
        parts.append(moment);
    if (const auto entries = legend(); !hasLegend() && !entries.isEmpty())
        parts.append(entries[0].first);
    const QString figure = parts.join(QStringLiteral(" • "));
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    const double figureWidth = Painting::tabularWidth(painter.font(), figure);
    Painting::drawTabular(painter, Painting::takeRight(line, figureWidth), Qt::AlignRight, figure);
    Painting::setTextStyle(painter, TextStyle::caption, Role::primaryText, QFont::DemiBold);
    Painting::drawElided(painter, line, Qt::ElideRight, m_title);
    line.setRight(width() - padding());
    if (hasLegend())
        paintLegend(painter, line.translated(0, captionHeight() + Theme::textGap));
}

void Graph::paintLegend(QPainter& painter, QRectF line) const {
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    double left = line.left();
    for (const auto& [entry, role] : legend()) {
        const double needed = legendDot + axisGap + Painting::tabularWidth(painter.font(), entry);
        if (left > line.left() && left + needed > line.right()) {
            line.translate(0, line.height() + Theme::textGap);
            left = line.left();
        }
        const QRectF dot(left, line.center().y() - legendDot / 2.0, legendDot, legendDot);
        Painting::drawCard(painter, dot, legendDot / 2.0, Theme::color(role));
        Painting::drawTabular(
            painter, QRectF(dot.right() + axisGap, line.top(), needed - legendDot - axisGap, line.height()),
            Qt::AlignLeft, entry);
        left += needed + legendGap;
    }
}

void Graph::paintAxes(QPainter& painter, const QRectF& area) const {
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    for (int step = 0; step <= scaleSteps; ++step) {
        const double y = qRound(area.bottom() - area.height() * step / scaleSteps);
        painter.fillRect(QRectF(area.left(), y, area.width(), 1), Theme::color(Role::separator));
        if (!hasAxes())
            continue;
        const QRectF label(padding(), y - captionHeight() / 2, area.left() - axisGap - padding(),
                           captionHeight());
        Painting::drawTabular(painter, label, Qt::AlignRight, scaleText(step));
    }
    if (hasAxes())
        paintTimes(painter, area);
}

/// Draws the times below, or why there is no line yet.
void Graph::paintTimes(QPainter& painter, const QRectF& area) const {
    const QRectF foot(area.left(), area.bottom() + axisGap, area.width(), captionHeight());
    if (!isDrawable())
        return Painting::drawElided(painter, foot, Qt::ElideRight,
                                    tr("The line begins with the next figure."));
    const double first = m_data.times.first();
    const double last = m_data.times.last();
    constexpr double shortest = 120; // below it two of the times are the same minute
    const auto timeText = [span = last - first](double time) {
        return Formatters::timeOfDay(time, span > shortest ? QLocale::ShortFormat : QLocale::LongFormat);
    };
    Painting::drawTabular(painter, foot, Qt::AlignLeft, timeText(first));
    if (foot.width() > 4 * Painting::tabularWidth(painter.font(), timeText(first)))
        Painting::drawTabular(painter, foot, Qt::AlignHCenter, timeText((first + last) / 2));
    Painting::drawTabular(painter, foot, Qt::AlignRight, timeText(last));
}

QList<Graph::Run> Graph::runs() const {
    const auto isKnown = [this](qsizetype index) {
        return std::ranges::none_of(
            m_data.series, [index](const Series& series) { return std::isnan(series.values[index]); });
    };
    QList<Run> result;
    for (qsizetype begin = 0; begin < m_data.times.size();) {
        qsizetype end = begin;
        while (end < m_data.times.size() && isKnown(end))
            ++end;
        if (end > begin)
            result.append({begin, end});
        begin = end + 1;
    }
    return result;
}

void Graph::paintRun(QPainter& painter, const QRectF& area, Run run) const {
    const double largest = top();
    QList<double> base(run.end - run.begin, 0);
    QList<std::pair<QPolygonF, Role>> lines;
    for (const Series& series : m_data.series) {
        QPolygonF line;
        line.reserve(base.size());
        for (qsizetype i = run.begin; i < run.end; ++i) {
            const double value = base[i - run.begin] + series.values[i];
            line.append({x(area, i), area.bottom() - std::min(value / largest, 1.0) * area.height()});
            if (m_data.isStacked)
                base[i - run.begin] = value;
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
    if (m_cursor)
        painter.fillRect(QRectF(qRound(x(area, shownIndex())), area.top(), 1, area.height()),
                         Theme::color(Role::secondaryText));
}
