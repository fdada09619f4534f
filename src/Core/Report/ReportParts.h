#pragma once

#include "Core/Memory/SummedMemory.h"
#include "Core/Report/Report.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>
#include <optional>

/// What the documents have in common.
namespace ReportParts {

/// JSON has whole numbers to 2^63.
inline QJsonValue number(quint64 value) {
    return static_cast<qint64>(std::min(value, quint64(std::numeric_limits<qint64>::max())));
}
inline QJsonValue number(std::optional<quint64> value) {
    return value ? number(*value) : QJsonValue();
}
inline QJsonValue known(bool isKnown, quint64 value) {
    return isKnown ? number(value) : QJsonValue();
}
/// Rounds to two decimals.
inline double rounded(double value) {
    return std::isfinite(value) ? std::round(value * 100) / 100 : 0;
}
inline QJsonValue cpu(const Report::Origin& origin, double percent) {
    return origin.hasCpu ? QJsonValue(rounded(percent)) : QJsonValue();
}
/// Returns an unknown text as null.
inline QJsonValue textOrNull(const QString& text) {
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}
inline QJsonValue timeOrNull(const std::optional<Instant>& instant) {
    return instant ? Report::time(*instant) : QJsonValue();
}

inline QJsonObject memory(const SummedMemory& sum) {
    constexpr QStringView certainties[] = {u"exact", u"at_least", u"about"};
    return {{QStringLiteral("memory_bytes"), number(sum.bytes)},
            {QStringLiteral("memory_certainty"), certainties[static_cast<int>(sum.certainty)].toString()},
            {QStringLiteral("swap_bytes"), number(sum.swapBytes)},
            {QStringLiteral("rss_bytes"), number(sum.residentBytes)}};
}

template <typename List, typename Convert> QJsonArray arrayOf(const List& list, Convert convert) {
    QJsonArray array;
    for (const auto& element : list)
        array.append(convert(element));
    return array;
}

} // namespace ReportParts
