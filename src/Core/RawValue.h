#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

/// The raw strings of a closed set of cases. An enumeration takes part by specialising `rawValueTable<E>`
/// with one row per case, in the order of declaration.
template <typename E> struct RawValueRow {
    E value;
    QStringView raw;
};

template <typename E> inline constexpr auto rawValueTable = nullptr;

template <typename E> QString rawValue(E value) {
    for (const auto& row : rawValueTable<E>) {
        if (row.value == value)
            return row.raw.toString();
    }
    return {};
}

/// Empty for a text that is no case's raw value; the comparison is exact.
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
