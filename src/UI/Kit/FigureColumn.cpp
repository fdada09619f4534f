#include "UI/Kit/FigureColumn.h"

#include "UI/Style/Painting.h"

#include <QPainter>

using Theme::Role;
using Theme::TextStyle;

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
    const double lines = Painting::lineHeight(Theme::font(TextStyle::caption)) +
                         Painting::lineHeight(Theme::font(TextStyle::headline));
    return {40, static_cast<int>(lines) + Theme::textGap};
}

void FigureColumn::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    QRectF line(rect());
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    line.setHeight(Painting::lineHeight(painter.font()));
    Painting::drawElided(painter, line, Qt::ElideRight, m_label);
    line.translate(0, line.height() + Theme::textGap);
    Painting::setTextStyle(painter, TextStyle::headline, Role::primaryText);
    line.setHeight(Painting::lineHeight(painter.font()));
    Painting::drawTabular(painter, line, Qt::AlignLeft, m_figure);
}
