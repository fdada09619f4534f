#include "UI/Kit/PopUpButton.h"

#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>

#include <algorithm>

using Theme::Role;

namespace {

constexpr int padding = 10;
constexpr int chevronSize = 11;
constexpr int gap = 6;

} // namespace

PopUpButton::PopUpButton(const QString& label, QWidget* parent)
    : QComboBox(parent)
    , m_label(label.isEmpty() ? QString() : label + QStringLiteral(": ")) {
    setFont(Theme::font(Theme::TextStyle::body));
    setFixedHeight(Theme::controlHeight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(label);
}

QSize PopUpButton::sizeHint() const {
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(i)));
    const int label = fontMetrics().horizontalAdvance(m_label);
    return {label + widest + 2 * padding + gap + chevronSize, Theme::controlHeight};
}

void PopUpButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::drawCard(painter, rect(), Theme::controlRadius);
    if (isEnabled() && underMouse())
        Painting::drawCard(painter, rect(), Theme::controlRadius, Theme::color(Role::hoverFill, 0.7));
    const double opacity = isEnabled() ? 1 : Theme::disabledOpacity;
    QRectF line = QRectF(rect()).adjusted(padding, 0, -padding, 0);
    Symbols::draw(painter, QStringLiteral("chevron.down"), Theme::color(Role::secondaryText, opacity),
                  QRectF(line.right() - chevronSize, 0, chevronSize, height()), chevronSize);
    line.setRight(line.right() - chevronSize - gap);
    painter.setFont(font());
    painter.setPen(Theme::color(Role::secondaryText, opacity));
    Painting::drawElided(painter, line, Qt::ElideRight, m_label);
    line.setLeft(line.left() + QFontMetricsF(font()).horizontalAdvance(m_label));
    painter.setPen(Theme::color(Role::primaryText, opacity));
    Painting::drawElided(painter, line.adjusted(0, 0, 1, 0), Qt::ElideRight, currentText());
    if (hasFocus())
        Painting::drawFocusRing(painter, rect(), Theme::controlRadius);
}
