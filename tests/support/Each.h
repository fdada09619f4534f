#pragma once

#include <QList>

#include <functional>

/// Returns the results of `read`, a member or a function, for each element.
template <typename List, typename Read> auto each(const List& list, Read read) {
    QList<std::decay_t<decltype(std::invoke(read, *std::begin(list)))>> result;
    for (const auto& element : list)
        result.append(std::invoke(read, element));
    return result;
}
