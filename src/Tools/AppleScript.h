#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The three scripts that are understood. No other text means anything, so none can do anything.
namespace Tools {

struct AppleScript {
    enum class Verb { Quit, QuitWithoutSaving, Purge };
    Verb verb = Verb::Quit;
    std::string application; ///< empty for Purge
};

/// Reads `tell application "NAME" to quit`, the same followed by ` saving no`, and the administrator's purge
/// to the letter. In NAME a double quote is written as backslash and quote; every other character, a
/// backslash among them, stands for itself. Nothing for any other text, for an empty name and for one with
/// a slash or a control character in it.
std::optional<AppleScript> parseAppleScript(std::string_view source);

} // namespace Tools
