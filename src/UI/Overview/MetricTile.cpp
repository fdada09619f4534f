#include "UI/Overview/MetricTile.h"

#include "Core/Formatters.h"
#include "UI/Overview/Sparkline.h"
#include "UI/Style/Painting.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length metricTileHeight{130};

} // namespace

MetricTile::MetricTile(QWidget* parent)
    : QWidget(parent)
    , m_sparkline(new Sparkline(this)) {
    Theme::fixHeight(this, metricTileHeight);
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
    setAccessibleName(QStringLiteral("%1 %2").arg(metric.title, metric.value));
    setAccessibleDescription(metric.sub.value_or(QString()));
    setToolTip(Formatters::toolTip(metric.toolTip));
    update();
}

void MetricTile::tintSparkline() {
    m_sparkline->set(m_metric.history, Theme::color(m_metric.accent));
    m_sparkline->setSecond(m_metric.pressure, Theme::color(Role::purple));
}

void MetricTile::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        tintSparkline();
    QWidget::changeEvent(event);
}

void MetricTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    Painting::drawCard(painter, rect(), Theme::tileRadius);
    paintFigures(painter);
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
    Painting::drawTabular(painter, line, Qt::AlignLeft, *m_metric.sub);
}
