#pragma once

#include <QAnyStringView>
#include <QString>

#include <array>
#include <optional>

/// The raw string of one case. An enumeration specialises `rawValueTable<E>` with one row per case, in the
/// order of declaration. A string that is also shown is marked for `Translations::of`.
template <typename E> struct RawValueRow {
    E value;
    QAnyStringView raw;
};
template <typename E> RawValueRow(E, QAnyStringView) -> RawValueRow<E>;

template <typename E> inline constexpr auto rawValueTable = nullptr;

template <typename E> QString rawValue(E value) {
    for (const auto& row : rawValueTable<E>) {
        if (row.value == value)
            return row.raw.toString();
    }
    return {};
}

/// Returns the case with exactly that raw value, or an empty optional.
template <typename E> std::optional<E> fromRawValue(QStringView text) {
    for (const auto& row : rawValueTable<E>) {
        if (row.raw == text)
            return row.value;
    }
    return std::nullopt;
}

template <typename E> constexpr auto allCases() {
    std::array<E, rawValueTable<E>.size()> cases{};
    std::size_t count = 0;
    for (const auto& row : rawValueTable<E>)
        cases[count++] = row.value;
    return cases;
}
