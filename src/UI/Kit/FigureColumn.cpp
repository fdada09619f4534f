#include "UI/Kit/FigureColumn.h"

#include "UI/Style/Painting.h"

#include <QPainter>

#include <cmath>

using Theme::Role;
using Theme::TextStyle;

namespace {

QFont labelFont() {
    return Theme::font(TextStyle::caption);
}
QFont figureFont() {
    return Theme::font(TextStyle::headline);
}
double height(const QFont& font) {
    return std::ceil(QFontMetricsF(font).height());
}

} // namespace

FigureColumn::FigureColumn(QString label, QWidget* parent)
    : QWidget(parent)
    , m_label(std::move(label)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void FigureColumn::setFigure(const QString& figure) {
    if (figure == m_figure)
        return;
    m_figure = figure;
    setAccessibleName(QStringLiteral("%1 %2").arg(m_label, m_figure));
    update();
}

QSize FigureColumn::sizeHint() const {
    return {40, static_cast<int>(::height(labelFont()) + Theme::textGap + ::height(figureFont()))};
}

void FigureColumn::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRectF line(rect());
    line.setHeight(::height(labelFont()));
    painter.setFont(labelFont());
    painter.setPen(Theme::color(Role::secondaryText));
    Painting::drawElided(painter, line, Qt::ElideRight, m_label);
    line.translate(0, line.height() + Theme::textGap);
    line.setHeight(::height(figureFont()));
    painter.setFont(figureFont());
    painter.setPen(Theme::color(Role::primaryText));
    Painting::drawTabular(painter, line, Qt::AlignLeft, m_figure);
}
