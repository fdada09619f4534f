#include "Core/Iso8601.h"

#include <array>
#include <cstdio>

namespace {

using namespace std::chrono;

/// Characters of "2026-11-16T14:23:43", before the zone.
constexpr qsizetype dateTimeLength = 19;
constexpr qsizetype offsetLength = 6;
/// The range of Instant in whole seconds: the years from 1677 to 2262.
constexpr auto earliest = time_point_cast<seconds>(Instant::min());
constexpr auto latest = time_point_cast<seconds>(Instant::max());

/// Returns the number in `text[from, from + width)`, or -1 when that is not all digits.
int number(QByteArrayView text, qsizetype from, qsizetype width) {
    int value = 0;
    for (qsizetype i = from; i < from + width; ++i) {
        const char digit = text[i];
        if (digit < '0' || digit > '9')
            return -1;
        value = value * 10 + (digit - '0');
    }
    return value;
}

bool isInRange(int value, int max) {
    return value >= 0 && value <= max;
}

std::optional<seconds> zoneOffset(QByteArrayView zone) {
    if (zone == "Z")
        return seconds(0);
    if (zone.size() != offsetLength || (zone[0] != '+' && zone[0] != '-') || zone[3] != ':')
        return std::nullopt;
    const int hour = number(zone, 1, 2);
    const int minute = number(zone, 4, 2);
    if (!isInRange(hour, 23) || !isInRange(minute, 59))
        return std::nullopt;
    const seconds offset = hours(hour) + minutes(minute);
    return zone[0] == '-' ? -offset : offset;
}

bool hasSeparators(QByteArrayView text) {
    return text[4] == '-' && text[7] == '-' && text[10] == 'T' && text[13] == ':' && text[16] == ':';
}

} // namespace

QByteArray Iso8601::format(Instant instant) {
    const auto day = floor<days>(instant);
    const year_month_day date(day);
    const hh_mm_ss time(floor<seconds>(instant) - day);
    std::array<char, 64> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", int(date.year()),
                      unsigned(date.month()), unsigned(date.day()), int(time.hours().count()),
                      int(time.minutes().count()), int(time.seconds().count()));
    return QByteArray(text.data(), length);
}

std::optional<Instant> Iso8601::parse(QByteArrayView text) {
    if (text.size() <= dateTimeLength || !hasSeparators(text))
        return std::nullopt;
    const int yearNumber = number(text, 0, 4);
    const int monthNumber = number(text, 5, 2);
    const int dayNumber = number(text, 8, 2);
    if (yearNumber < 0 || monthNumber < 0 || dayNumber < 0)
        return std::nullopt;
    const year_month_day date(year(yearNumber), month(static_cast<unsigned>(monthNumber)),
                              day(static_cast<unsigned>(dayNumber)));
    const int hour = number(text, 11, 2);
    const int minute = number(text, 14, 2);
    const int second = number(text, 17, 2);
    const auto offset = zoneOffset(text.sliced(dateTimeLength));
    if (!date.ok() || !isInRange(hour, 23) || !isInRange(minute, 59) || !isInRange(second, 59) || !offset)
        return std::nullopt;
    const sys_seconds local = sys_days(date) + hours(hour) + minutes(minute) + seconds(second);
    const sys_seconds instant = local - *offset;
    if (instant < earliest || instant > latest)
        return std::nullopt;
    return instant;
}
