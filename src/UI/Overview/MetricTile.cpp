#include "UI/Overview/MetricTile.h"

#include "Core/Formatters.h"
#include "UI/Overview/Sparkline.h"
#include "UI/Style/Painting.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length metricTileHeight{148};

} // namespace

MetricTile::MetricTile(QWidget* parent)
    : QAbstractButton(parent)
    , m_sparkline(new Sparkline(this)) {
    Theme::fixHeight(this, metricTileHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::cardPadding, Theme::cardPadding, Theme::cardPadding,
                               Theme::cardPadding);
    column->addStretch();
    column->addWidget(m_sparkline);
}

void MetricTile::set(const Metric& metric) {
    if (metric == m_metric)
        return;
    m_metric = metric;
    tintSparkline();
    setToolTip(Formatters::toolTip(metric.toolTip));
    if (!underMouse() && !hasFocus())
        m_marked = -1;
    describe();
    update();
}

/// Says the figure, or that of the marked moment.
void MetricTile::describe() {
    m_sparkline->mark(m_marked);
    setAccessibleName(QStringLiteral("%1 %2").arg(m_metric.title, m_metric.value));
    if (m_marked >= 0 && m_marked < m_metric.history.size())
        setAccessibleDescription(markText().join(QStringLiteral(", ")));
    else
        setAccessibleDescription(m_metric.sub.value_or(QString()));
}

/// Returns the time and the figure of the marked moment.
QStringList MetricTile::markText() const {
    return {Formatters::timeOfDay(m_metric.times.value(m_marked)),
            Formatters::percent(m_metric.history.value(m_marked))};
}

void MetricTile::moveMark(qsizetype index) {
    const qsizetype last = m_metric.history.size() - 1;
    const qsizetype wanted = index < 0 || last < 1 ? -1 : std::min(index, last);
    if (wanted == m_marked)
        return;
    m_marked = wanted;
    describe();
    QAccessibleEvent spoken(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&spoken);
    update();
}

void MetricTile::mouseMoveEvent(QMouseEvent* event) {
    const double pointer = Painting::mirrored(event->position(), rect(), layoutDirection()).x();
    const double share = (pointer - m_sparkline->x()) / std::max(1, m_sparkline->width());
    moveMark(std::lround(std::clamp(share, 0.0, 1.0) * static_cast<double>(m_metric.history.size() - 1)));
    QAbstractButton::mouseMoveEvent(event);
}

void MetricTile::leaveEvent(QEvent* event) {
    moveMark(-1);
    QAbstractButton::leaveEvent(event);
    update();
}

void MetricTile::focusOutEvent(QFocusEvent* event) {
    moveMark(-1);
    QAbstractButton::focusOutEvent(event);
}

void MetricTile::keyPressEvent(QKeyEvent* event) {
    const qsizetype last = m_metric.history.size() - 1;
    const auto step = std::max<qsizetype>(1, last / std::max(1, m_sparkline->width() / 2));
    const qsizetype from = m_marked < 0 ? last : m_marked;
    const bool isEarlier =
        event->key() == (layoutDirection() == Qt::RightToLeft ? Qt::Key_Right : Qt::Key_Left);
    if (isEarlier)
        moveMark(std::max<qsizetype>(0, from - step));
    else if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)
        moveMark(from + step);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void MetricTile::tintSparkline() {
    m_sparkline->set(m_metric.history, Theme::color(m_metric.accent));
    m_sparkline->setSecond(m_metric.pressure, Theme::color(Role::purple));
}

void MetricTile::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        tintSparkline();
    QAbstractButton::changeEvent(event);
}

void MetricTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    Painting::drawCard(painter, rect(), Theme::tileRadius);
    Painting::drawFeedback(painter, *this, Theme::tileRadius, 0.5);
    paintFigures(painter);
    paintScale(painter);
}

/// Draws the range of the line and its span of time, or the time and the figure of the marked moment.
void MetricTile::paintScale(QPainter& painter) {
    if (m_metric.history.size() < 2)
        return;
    Painting::setTextStyle(painter, TextStyle::caption2, Role::secondaryText);
    const double height = Painting::lineHeight(painter.font());
    const QRectF line(Theme::cardPadding, m_sparkline->y() - height - Theme::textGap,
                      width() - 2 * Theme::cardPadding, height);
    QStringList texts{tr("0–%1").arg(Formatters::percent(std::max(1.0, std::ranges::max(m_metric.history)))),
                      Formatters::duration(m_metric.times.last() - m_metric.times.first())};
    if (m_marked >= 0) {
        texts = markText();
        painter.setPen(Theme::color(Role::primaryText));
    }
    Painting::drawTabular(painter, line, Qt::AlignLeft, texts.first());
    Painting::drawTabular(painter, line, Qt::AlignRight, texts.last());
}

void MetricTile::paintFigures(QPainter& painter) {
    QRectF line = QRectF(rect()).adjusted(Theme::cardPadding, Theme::cardPadding, -Theme::cardPadding, 0);
    const auto next = [&](TextStyle style, QFont::Weight weight, Role role) {
        Painting::setTextStyle(painter, style, role, weight);
        line.setHeight(Painting::lineHeight(painter.font()));
    };
    next(TextStyle::caption, QFont::Medium, Role::secondaryText);
    Painting::drawElided(painter, line, Qt::ElideRight, m_metric.title);
    line.translate(0, line.height() + Theme::textGap);

    next(TextStyle::title, QFont::DemiBold, m_metric.accent);
    Painting::drawTabular(painter, line, Qt::AlignLeft, m_metric.value);
    line.translate(0, line.height() + Theme::textGap);

    if (!m_metric.sub)
        return;
    next(TextStyle::caption2, QFont::Normal, Role::secondaryText);
    const bool isTooWide = painter.fontMetrics().horizontalAdvance(*m_metric.sub) > line.width();
    const QString between = QStringLiteral(" • ");
    for (const QString& part : isTooWide ? m_metric.sub->split(between) : QStringList(*m_metric.sub)) {
        Painting::drawTabular(painter, line, Qt::AlignLeft, part);
        line.translate(0, line.height());
    }
}
