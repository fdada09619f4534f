#include "UI/Kit/TextLabel.h"

#include "Core/Formatters.h"

#include <QEvent>

TextLabel::TextLabel(Theme::TextStyle style, std::optional<QFont::Weight> weight, QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    Theme::useFont(this, style, weight);
}

TextLabel* TextLabel::secondary() {
    setForegroundRole(QPalette::PlaceholderText);
    return this;
}

TextLabel* TextLabel::tinted(Theme::Role role) {
    m_tint = role;
    QPalette own = palette();
    own.setColor(QPalette::WindowText, Theme::color(role));
    setPalette(own);
    return this;
}

void TextLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange && m_tint)
        tinted(*m_tint);
    QLabel::changeEvent(event);
}

TextLabel* TextLabel::wrapped() {
    setWordWrap(true);
    return this;
}

void TextLabel::setPlainText(const QString& text) {
    const QString shown = Formatters::visible(text);
    if (shown != this->text())
        setText(shown);
}
