#include "Cli/TextWidth.h"

#include <QList>

#include <algorithm>
#include <cwchar>

namespace {

/// Returns 1 where the locale does not know the character.
int widthOf(char32_t character) {
    const int width = wcwidth(static_cast<wchar_t>(character));
    return width < 0 ? 1 : width;
}

} // namespace

int TextWidth::of(const QString& text) {
    int width = 0;
    for (const uint character : text.toUcs4())
        width += widthOf(character);
    return width;
}

QString TextWidth::cut(const QString& text, int width) {
    if (of(text) <= width)
        return text;
    QString result;
    int used = 0;
    for (const char32_t character : text.toUcs4()) {
        used += widthOf(character);
        if (used > width - 1)
            break;
        result += QString::fromUcs4(&character, 1);
    }
    return width < 1 ? QString() : result + QChar(u'…');
}

QString TextWidth::padded(const QString& text, int width, bool isRight) {
    const QString space(std::max(0, width - of(text)), u' ');
    return isRight ? space + text : text + space;
}
