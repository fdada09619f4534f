#include "UI/Kit/TextLabel.h"

#include "Core/Formatters.h"

TextLabel::TextLabel(Theme::TextStyle style, std::optional<QFont::Weight> weight, QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setFont(Theme::font(style, weight));
}

TextLabel* TextLabel::secondary() {
    setForegroundRole(QPalette::PlaceholderText);
    return this;
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
