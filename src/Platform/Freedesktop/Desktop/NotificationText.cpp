#include "Platform/Freedesktop/Desktop/NotificationText.h"

#include <algorithm>

namespace {

constexpr qsizetype maxTitle = 120;
constexpr qsizetype maxBody = 600;
constexpr qsizetype maxAction = 40;

/// Control characters end a text early or break a line, and marks of direction turn what follows around.
bool isHarmful(QChar character) {
    constexpr char16_t zeroWidthNonJoiner = 0x200C;
    constexpr char16_t zeroWidthJoiner = 0x200D;
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format: // the joiners are part of words and of emoji
        return character != zeroWidthNonJoiner && character != zeroWidthJoiner;
    default:
        return false;
    }
}

QString cut(QString text, qsizetype length) {
    if (text.size() <= length)
        return text;
    text.truncate(length - 1);
    if (text.back().isHighSurrogate())
        text.chop(1);
    return text + u'…';
}

QString plain(QString text, qsizetype length, bool mayBreak) {
    text.truncate(4 * length); // cleans no more than can be shown
    std::ranges::replace_if(
        text,
        [mayBreak](QChar character) { return isHarmful(character) && !(mayBreak && character == u'\n'); },
        QChar(u' '));
    return cut(text.trimmed(), length);
}

} // namespace

QString NotificationText::title(const QString& text) {
    return plain(text, maxTitle, false);
}

QString NotificationText::body(const QString& text, bool hasMarkup) {
    const QString shown = plain(text, maxBody, true);
    return hasMarkup ? shown.toHtmlEscaped() : shown;
}

QString NotificationText::action(const QString& text) {
    return plain(text, maxAction, false);
}
