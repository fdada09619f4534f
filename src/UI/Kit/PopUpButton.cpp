#include "UI/Kit/PopUpButton.h"

#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>

#include <algorithm>

using Theme::Role;

namespace {

constexpr int popUpPadding = 10;
constexpr int popUpChevronSize = 11;
constexpr int popUpGap = 6;

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
    return {label + widest + 2 * popUpPadding + popUpGap + popUpChevronSize, Theme::controlHeight};
}

void PopUpButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::drawCard(painter, rect(), Theme::controlRadius);
    if (isEnabled() && underMouse())
        Painting::drawCard(painter, rect(), Theme::controlRadius, Theme::color(Role::hoverFill, 0.7));
    const double opacity = isEnabled() ? 1 : Theme::disabledOpacity;
    QRectF line = QRectF(rect()).adjusted(popUpPadding, 0, -popUpPadding, 0);
    Symbols::draw(painter, QStringLiteral("chevron.down"), Theme::color(Role::secondaryText, opacity),
                  QRectF(line.right() - popUpChevronSize, 0, popUpChevronSize, height()), popUpChevronSize);
    line.setRight(line.right() - popUpChevronSize - popUpGap);
    painter.setFont(font());
    painter.setPen(Theme::color(Role::secondaryText, opacity));
    Painting::drawElided(painter, line, Qt::ElideRight, m_label);
    line.setLeft(line.left() + QFontMetricsF(font()).horizontalAdvance(m_label));
    painter.setPen(Theme::color(Role::primaryText, opacity));
    Painting::drawElided(painter, line.adjusted(0, 0, 1, 0), Qt::ElideRight, currentText());
    if (hasFocus())
        Painting::drawFocusRing(painter, rect(), Theme::controlRadius);
}
