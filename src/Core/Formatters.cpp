#include "Core/Formatters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Formatters {
namespace {

constexpr double secondsPerMinute = 60;
constexpr double secondsPerHour = 3600;

bool isInvisible(QChar character) {
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

QChar picture(QChar character) {
    constexpr char16_t controlPictures = u'\u2400';
    constexpr char16_t deletePicture = u'\u2421';
    constexpr char16_t replacement = u'\ufffd';
    if (character.unicode() < 0x20)
        return QChar(static_cast<char16_t>(controlPictures + character.unicode()));
    return character.unicode() == 0x7f ? QChar(deletePicture) : QChar(replacement);
}

} // namespace

QString fixed(double value, int decimals) {
    std::array<char, 400> room; // the largest double has 309 digits before the dot
    const auto end =
        std::to_chars(room.data(), room.data() + room.size(), value, std::chars_format::fixed, decimals).ptr;
    return QString::fromLatin1(room.data(), end - room.data());
}

QString duration(double seconds) {
    if (!std::isfinite(seconds) || seconds < 0)
        seconds = 0;
    if (seconds < secondsPerMinute)
        return fixed(seconds, 0) + u's';
    if (seconds < secondsPerHour)
        return fixed(std::round(seconds / secondsPerMinute), 0) + u'm';
    return fixed(seconds / secondsPerHour, 1) + u'h';
}

QString bytes(quint64 count) {
    constexpr std::array<QStringView, 6> units = {u"KB", u"MB", u"GB", u"TB", u"PB", u"EB"};
    constexpr double step = 1024;
    if (count < 1024)
        return count == 1 ? QStringLiteral("1 byte") : QStringLiteral("%1 bytes").arg(count);
    double value = static_cast<double>(count) / step;
    std::size_t unit = 0;
    // A value that rounds up to 1024 of a unit is one of the next.
    while (unit + 1 < units.size() && (value >= step || fixed(value, 1) == QStringLiteral("1024.0"))) {
        value /= step;
        ++unit;
    }
    QString number = fixed(value, 1);
    if (number.endsWith(QStringLiteral(".0")))
        number.chop(2);
    return QStringLiteral("%1 %2").arg(number, units[unit]);
}

QString ago(double seconds) {
    struct Unit {
        double seconds;
        QStringView name;
    };
    constexpr std::array units = {Unit{365.0 * 86400, u"year"},
                                  Unit{30.0 * 86400, u"month"},
                                  Unit{7.0 * 86400, u"week"},
                                  Unit{86400, u"day"},
                                  Unit{3600, u"hour"},
                                  Unit{60, u"minute"},
                                  Unit{1, u"second"}};
    for (const Unit& unit : units) {
        if (!(seconds >= unit.seconds))
            continue;
        const auto count = static_cast<qint64>(seconds / unit.seconds);
        const QString text = QStringLiteral("%1 %2").arg(count).arg(unit.name);
        return (count == 1 ? text : text + u's') + QStringLiteral(" ago");
    }
    return QStringLiteral("just now");
}

QString percent(double value) {
    return fixed(std::isfinite(value) ? value : 0, 0) + u'%';
}

QString visible(const QString& text) {
    if (std::none_of(text.begin(), text.end(), isInvisible))
        return text;
    QString result = text;
    for (QChar& character : result) {
        if (isInvisible(character))
            character = picture(character);
    }
    return result;
}

} // namespace Formatters
