#include "Platform/Linux/KernelText.h"

#include <charconv>

namespace {

template <typename Number> std::optional<Number> take(std::string_view& text) {
    const auto start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos)
        return std::nullopt;
    text.remove_prefix(start);
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc())
        return std::nullopt;
    text.remove_prefix(static_cast<size_t>(end - text.data()));
    return number;
}

} // namespace

namespace KernelText {

std::optional<quint64> takeNumber(std::string_view& text) {
    return take<quint64>(text);
}

std::optional<qint64> takeSignedNumber(std::string_view& text) {
    return take<qint64>(text);
}

std::optional<std::string_view> valueOf(std::string_view text, std::string_view key) {
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        if (line.starts_with(key))
            return line.substr(key.size());
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return std::nullopt;
}

std::optional<quint64> numberOf(std::string_view text, std::string_view key) {
    auto value = valueOf(text, key);
    return value ? takeNumber(*value) : std::nullopt;
}

} // namespace KernelText
