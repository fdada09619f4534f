#include "UI/Kit/PopUpButton.h"

#include "UI/Style/Painting.h"

#include <QStyleOption>
#include <QStylePainter>

using Theme::Role;

PopUpButton::PopUpButton(const QString& label, QWidget* parent)
    : QComboBox(parent)
    , m_label(label.isEmpty() ? QString() : label + QStringLiteral(": ")) {
    Theme::useFont(this, Theme::TextStyle::body);
    Theme::fixHeight(this, Theme::controlHeight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(label);
}

QSize PopUpButton::sizeHint() const {
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(i)));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize text(fontMetrics().horizontalAdvance(m_label) + widest, 0);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
}

void PopUpButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    Painting::mirror(painter, *this);
    const double opacity = isEnabled() ? 1 : Theme::disabledOpacity;
    QRectF line = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    painter.setPen(Theme::color(Role::secondaryText, opacity));
    Painting::drawElided(painter, line, Qt::ElideRight, m_label);
    line.setLeft(line.left() + QFontMetricsF(font()).horizontalAdvance(m_label));
    painter.setPen(Theme::color(Role::primaryText, opacity));
    Painting::drawElided(painter, line.adjusted(0, 0, 1, 0), Qt::ElideRight, currentText());
}
