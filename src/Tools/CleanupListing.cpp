#include "Tools/CleanupListing.h"

#include <charconv>

using namespace Tools;

namespace {

/// Takes a number and the character after it off the front.
template <typename T> bool takeNumber(std::string_view& text, T& number, char end) {
    const auto [rest, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || rest == text.data() + text.size() || *rest != end)
        return false;
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()) + 1);
    return true;
}

} // namespace

std::string CleanupListing::text() const {
    std::string text = std::to_string(device) + ':' + std::to_string(inode) + '\0';
    for (const Entry& entry : entries) {
        text += std::to_string(entry.inode) + ' ' + std::to_string(entry.bytes) + ' ' + entry.path;
        text += '\0';
    }
    return text;
}

std::optional<CleanupListing> CleanupListing::parse(std::string_view text) {
    CleanupListing listing;
    if (!takeNumber(text, listing.device, ':') || !takeNumber(text, listing.inode, '\0'))
        return std::nullopt;
    while (!text.empty()) {
        Entry entry;
        if (!takeNumber(text, entry.inode, ' ') || !takeNumber(text, entry.bytes, ' '))
            return std::nullopt;
        const std::size_t end = text.find('\0');
        if (end == std::string_view::npos || end == 0)
            return std::nullopt;
        entry.path = text.substr(0, end);
        listing.entries.push_back(std::move(entry));
        text.remove_prefix(end + 1);
    }
    return listing;
}
