#include "UI/Optimize/StatBox.h"

#include "UI/Style/Painting.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using Theme::TextStyle;

namespace {

constexpr int statPadding = 10;
constexpr Theme::Length minStatWidth{92};
constexpr double letterSpacing = 0.5;

QFont labelFont() {
    QFont font = Theme::font(TextStyle::caption);
    font.setLetterSpacing(QFont::AbsoluteSpacing, letterSpacing);
    return font;
}

QFont valueFont() {
    return Theme::font(TextStyle::title3, QFont::DemiBold);
}

} // namespace

StatBox::StatBox(QString label, QWidget* parent)
    : QWidget(parent)
    , m_label(std::move(label)) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void StatBox::set(const QString& value, Theme::Role role) {
    if (value == m_value && role == m_role)
        return;
    m_value = value;
    m_role = role;
    setAccessibleName(m_label + u' ' + m_value);
    updateGeometry();
    update();
}

QSize StatBox::sizeHint() const {
    const int heights = QFontMetrics(labelFont()).height() + QFontMetrics(valueFont()).height();
    const double text =
        std::max(Painting::tabularWidth(labelFont(), m_label), Painting::tabularWidth(valueFont(), m_value));
    return {std::max<int>(minStatWidth, static_cast<int>(std::ceil(text)) + 1 + 2 * statPadding),
            heights + Theme::textGap + 2 * statPadding};
}

void StatBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    Painting::drawCard(painter, rect(), Theme::controlRadius, Theme::color(m_role, 0.1));
    QRectF area = QRectF(rect()).adjusted(statPadding, statPadding, -statPadding, -statPadding);
    const double labelHeight = QFontMetricsF(labelFont()).height();
    painter.setFont(labelFont());
    painter.setPen(Theme::color(Theme::Role::secondaryText));
    Painting::drawElided(painter, QRectF(area.left(), area.top(), area.width(), labelHeight), Qt::ElideRight,
                         m_label);
    area.setTop(area.top() + labelHeight + Theme::textGap);
    painter.setFont(valueFont());
    painter.setPen(Theme::color(m_role));
    Painting::drawTabular(painter, area, Qt::AlignLeft, m_value);
}
