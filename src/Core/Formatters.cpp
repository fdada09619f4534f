#include "Core/Formatters.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRegularExpression>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Formatters {
namespace {

constexpr double secondsPerMinute = 60;
constexpr double secondsPerHour = 3600;

/// Returns whether the character at `i` joins those beside it into one, as in many emoji.
bool joins(QTextBoundaryFinder& clusters, const QString& text, qsizetype i) {
    constexpr char16_t zeroWidthJoiner = u'\u200d';
    if (text[i] != zeroWidthJoiner || i == 0 || i + 1 == text.size())
        return false;
    clusters.setPosition(i);
    const bool beginsOne = clusters.isAtBoundary();
    clusters.setPosition(i + 1);
    return !beginsOne && !clusters.isAtBoundary();
}

QChar picture(QChar character) {
    constexpr char16_t controlPictures = u'\u2400';
    constexpr char16_t deletePicture = u'\u2421';
    constexpr char16_t replacement = u'\ufffd';
    if (character.unicode() < 0x20)
        return QChar(static_cast<char16_t>(controlPictures + character.unicode()));
    return character.unicode() == 0x7f ? QChar(deletePicture) : QChar(replacement);
}

/// Formats as printf's "%.Nf" in the C locale.
QString plain(double value, int decimals) {
    std::array<char, 400> buffer; // the largest double has 309 digits before the dot
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals)
            .ptr;
    return QString::fromLatin1(buffer.data(), end - buffer.data());
}

/// A size of at least 1,024 bytes in the unit that fits it.
struct Size {
    QString number;
    const char* unit; ///< in English, with %1 for the number
};

Size scaled(quint64 count) {
    constexpr std::array units = {
        QT_TRANSLATE_NOOP("Formatters", "%1 KB"), QT_TRANSLATE_NOOP("Formatters", "%1 MB"),
        QT_TRANSLATE_NOOP("Formatters", "%1 GB"), QT_TRANSLATE_NOOP("Formatters", "%1 TB"),
        QT_TRANSLATE_NOOP("Formatters", "%1 PB"), QT_TRANSLATE_NOOP("Formatters", "%1 EB")};
    constexpr double step = 1024;
    double value = static_cast<double>(count) / step;
    std::size_t unit = 0;
    // A value that rounds up to 1024 of a unit is one of the next.
    while (unit + 1 < units.size() && (value >= step || plain(value, 1) == QStringLiteral("1024.0"))) {
        value /= step;
        ++unit;
    }
    QString number = plain(value, 1);
    if (number.endsWith(QStringLiteral(".0")))
        number.chop(2);
    return {.number = number, .unit = units[unit]};
}

QString withDecimalSign(QString number) {
    return number.replace(u'.', QLocale().decimalPoint());
}

} // namespace

QString fixed(double value, int decimals) {
    return withDecimalSign(plain(value, decimals));
}

QString duration(double seconds) {
    if (!std::isfinite(seconds) || seconds < 0)
        seconds = 0;
    if (seconds < secondsPerMinute)
        return QCoreApplication::translate("Formatters", "%1s", "seconds").arg(fixed(seconds, 0));
    if (seconds < secondsPerHour)
        return QCoreApplication::translate("Formatters", "%1m", "minutes")
            .arg(fixed(std::round(seconds / secondsPerMinute), 0));
    return QCoreApplication::translate("Formatters", "%1h", "hours").arg(fixed(seconds / secondsPerHour, 1));
}

QString bytes(quint64 count) {
    if (count < 1024)
        return QCoreApplication::translate("Formatters", "%n byte(s)", nullptr, int(count));
    const Size size = scaled(count);
    return QCoreApplication::translate("Formatters", size.unit).arg(withDecimalSign(size.number));
}

QString bytesForLog(quint64 count) {
    if (count < 1024)
        return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? "byte" : "bytes"));
    const Size size = scaled(count);
    return QString::fromLatin1(size.unit).arg(size.number);
}

QString ago(double seconds) {
    struct Unit {
        double seconds;
        const char* text;
    };
    constexpr std::array units = {Unit{365.0 * 86400, QT_TRANSLATE_N_NOOP("Formatters", "%n year(s) ago")},
                                  Unit{30.0 * 86400, QT_TRANSLATE_N_NOOP("Formatters", "%n month(s) ago")},
                                  Unit{7.0 * 86400, QT_TRANSLATE_N_NOOP("Formatters", "%n week(s) ago")},
                                  Unit{86400, QT_TRANSLATE_N_NOOP("Formatters", "%n day(s) ago")},
                                  Unit{3600, QT_TRANSLATE_N_NOOP("Formatters", "%n hour(s) ago")},
                                  Unit{60, QT_TRANSLATE_N_NOOP("Formatters", "%n minute(s) ago")},
                                  Unit{1, QT_TRANSLATE_N_NOOP("Formatters", "%n second(s) ago")}};
    for (const Unit& unit : units) {
        if (!(seconds >= unit.seconds))
            continue;
        return QCoreApplication::translate("Formatters", unit.text, nullptr,
                                           static_cast<int>(seconds / unit.seconds));
    }
    return QCoreApplication::translate("Formatters", "just now");
}

QString timeFormat(const QLocale& locale) {
    static const QRegularExpression zone(QStringLiteral("\\s*\\(?t+\\)?"));
    QStringList parts = locale.timeFormat(QLocale::LongFormat).split(u'\'');
    for (qsizetype i = 0; i < parts.size(); i += 2) // what stands between quotes is text
        parts[i].remove(zone);
    return parts.join(u'\'').trimmed();
}

QString timeOfDay(double seconds, QLocale::FormatType format) {
    const QLocale locale;
    const QTime time = QDateTime::fromMSecsSinceEpoch(std::llround(seconds * 1000)).time();
    return format == QLocale::LongFormat ? locale.toString(time, timeFormat(locale))
                                         : locale.toString(time, format);
}

QString percent(double value) {
    return QCoreApplication::translate("Formatters", "%1%").arg(fixed(std::isfinite(value) ? value : 0, 0));
}

QString list(const QStringList& items) {
    return items.join(QCoreApplication::translate("Formatters", ", ", "between the items of a list"));
}

QString sentence(const QString& words) {
    return QCoreApplication::translate("Formatters", "%1.", "a sentence").arg(words);
}

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

QString visible(const QString& text) {
    if (std::none_of(text.begin(), text.end(), isInvisible))
        return text;
    QString result = text;
    QTextBoundaryFinder clusters(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype i = 0; i < result.size(); ++i) {
        if (isInvisible(result[i]) && !joins(clusters, text, i))
            result[i] = picture(result[i]);
    }
    return result;
}

QString toolTip(const QString& text) {
    if (text.isEmpty())
        return {};
    return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(text.toHtmlEscaped());
}

} // namespace Formatters
