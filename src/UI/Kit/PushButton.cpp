#include "UI/Kit/PushButton.h"

#include "UI/Kit/Spinner.h"
#include "UI/Style/Symbols.h"

#include <QStyleOption>

using Theme::Role;

PushButton::PushButton(const QString& text, Look look, QString symbol, QWidget* parent)
    : QPushButton(text, parent)
    , m_look(look)
    , m_symbol(std::move(symbol))
    , m_spinner(new Spinner(this)) {
    Theme::useFont(this, Theme::TextStyle::body, QFont::Medium);
    Theme::fixHeight(this, Theme::controlHeight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setIconSize(m_spinner->size());
    setFlat(look == Look::borderless);
    setAutoDefault(false);
    m_spinner->hide();
    showLead();
}

void PushButton::setSymbol(const QString& symbol) {
    m_symbol = symbol;
    showLead();
}

void PushButton::setTint(Role tint) {
    m_tint = tint;
    update();
}

void PushButton::setSmall() {
    Theme::useFont(this, Theme::TextStyle::callout, QFont::Medium);
}

void PushButton::setBusy(bool busy) {
    m_isBusy = busy;
    m_spinner->setVisible(busy);
    showLead();
    placeSpinner();
}

void PushButton::showLead() {
    const bool hasLead = m_isBusy || !m_symbol.isEmpty();
    setIcon(hasLead ? Symbols::icon(m_isBusy ? QString() : m_symbol) : QIcon());
}

void PushButton::resizeEvent(QResizeEvent* event) {
    QPushButton::resizeEvent(event);
    placeSpinner();
}

void PushButton::placeSpinner() {
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    m_spinner->move(contents.left(), (height() - m_spinner->height()) / 2);
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

void PushButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    option->features.setFlag(QStyleOptionButton::DefaultButton, m_look == Look::prominent && isEnabled());
    option->palette.setColor(QPalette::Button, Theme::tileColor(m_tint));
    option->palette.setColor(QPalette::ButtonText, textColor());
}
