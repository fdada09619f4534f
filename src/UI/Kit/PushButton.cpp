#include "UI/Kit/PushButton.h"

#include "UI/Kit/Spinner.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>

using Theme::Role;

namespace {

constexpr int buttonSymbolSize = 15;
constexpr int symbolGap = 6;
constexpr int buttonPadding = 12;
constexpr int smallPadding = 10;

} // namespace

PushButton::PushButton(const QString& text, Look look, QString symbol, QWidget* parent)
    : QPushButton(text, parent)
    , m_look(look)
    , m_symbol(std::move(symbol))
    , m_spinner(new Spinner(this)) {
    setFont(Theme::font(Theme::TextStyle::body, QFont::Medium));
    setFixedHeight(Theme::controlHeight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAutoDefault(false);
    m_spinner->hide();
}

void PushButton::setSymbol(const QString& symbol) {
    m_symbol = symbol;
    updateGeometry();
    update();
}

void PushButton::setTint(Role tint) {
    m_tint = tint;
    update();
}

void PushButton::setSmall() {
    m_isSmall = true;
    setFont(Theme::font(Theme::TextStyle::callout, QFont::Medium));
    setFixedHeight(Theme::smallControlHeight);
}

void PushButton::setBusy(bool busy) {
    m_isBusy = busy;
    m_spinner->setVisible(busy);
    placeSpinner();
    updateGeometry();
    update();
}

int PushButton::contentWidth() const {
    const int lead = hasLead() ? buttonSymbolSize + symbolGap : 0;
    return lead + fontMetrics().horizontalAdvance(caption());
}

QSize PushButton::sizeHint() const {
    return {contentWidth() + 2 * (m_isSmall ? smallPadding : buttonPadding), height()};
}

void PushButton::resizeEvent(QResizeEvent* event) {
    QPushButton::resizeEvent(event);
    placeSpinner();
}

void PushButton::placeSpinner() {
    m_spinner->move((width() - contentWidth()) / 2, (height() - m_spinner->height()) / 2);
}

QColor PushButton::textColor() const {
    const double opacity = isEnabled() ? 1 : Theme::disabledOpacity;
    if (m_look == Look::prominent && isEnabled())
        return Qt::white;
    if (m_look == Look::destructive)
        return Theme::color(Role::red, opacity);
    if (m_look == Look::borderless)
        return Theme::color(m_tint, opacity);
    return Theme::color(Role::primaryText, opacity);
}

void PushButton::drawGround(QPainter& painter) const {
    if (m_look == Look::prominent && isEnabled()) {
        const QColor fill = Theme::tileColor(m_tint);
        Painting::drawCard(painter, rect(), Theme::controlRadius,
                           isDown() ? fill.darker(125) : (underMouse() ? fill.darker(110) : fill));
        if (hasFocus()) // the ring's colour cannot be seen on the fill
            Painting::drawCard(painter, QRectF(rect()).adjusted(2, 2, -2, -2), Theme::controlRadius - 2,
                               Qt::transparent, QColor(255, 255, 255, 190));
        return;
    }
    if (m_look != Look::borderless)
        Painting::drawCard(painter, rect(), Theme::controlRadius);
    Painting::drawFeedback(painter, *this, Theme::controlRadius, 0.7);
}

void PushButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawGround(painter);
    QRectF area = rect();
    area.setLeft((width() - contentWidth()) / 2);
    painter.setFont(font());
    painter.setPen(textColor());
    if (hasLead()) {
        const QRectF lead(area.left(), 0, buttonSymbolSize, height());
        if (!m_isBusy)
            Symbols::draw(painter, m_symbol, textColor(), lead, buttonSymbolSize);
        area.setLeft(lead.right() + symbolGap);
    }
    Painting::drawTabular(painter, area, Qt::AlignLeft, caption());
}
