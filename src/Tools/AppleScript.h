#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The three scripts that are understood.
namespace Tools {

struct AppleScript {
    enum class Verb { Quit, QuitWithoutSaving, Purge };
    Verb verb = Verb::Quit;
    std::string application; ///< empty for Purge
};

/// Parses `tell application "NAME" to quit`, the same with ` saving no`, and the administrator's purge. In
/// NAME a double quote is escaped by a backslash; every other character, backslashes included, stands for
/// itself. Returns an empty optional for any other text, and for a NAME that is empty or has a slash or
/// control character.
std::optional<AppleScript> parseAppleScript(std::string_view source);

} // namespace Tools
