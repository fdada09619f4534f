#pragma once

#include <charconv>
#include <string>
#include <string_view>

namespace Tools {

/// Takes a number and the character `end` off the front. Returns false when they are not there.
template <typename T> bool takeNumber(std::string_view& text, T& number, char end) {
    const auto [rest, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || rest == text.data() + text.size() || *rest != end)
        return false;
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()) + 1);
    return true;
}

/// Keeps a text on one line of a terminal.
inline std::string printable(std::string text) {
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7f')
            c = '?';
    }
    return text;
}

} // namespace Tools
