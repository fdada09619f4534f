#include "Tools/AppleScript.h"

#include <algorithm>

namespace {

using Tools::AppleScript;
using Verb = AppleScript::Verb;

constexpr std::string_view purge = "do shell script \"/usr/sbin/purge\" with administrator privileges";
constexpr std::string_view tell = "tell application \"";

/// Returns the name between the outer quotes, or an empty optional for an unescaped quote.
std::optional<std::string> unescaped(std::string_view text) {
    std::string name;
    for (const char character : text) {
        if (character == '"') {
            if (name.empty() || name.back() != '\\')
                return std::nullopt;
            name.pop_back();
        }
        name += character;
    }
    return name;
}

bool canBeApplication(std::string_view name) {
    const auto isForbidden = [](unsigned char character) {
        return character < ' ' || character == 0x7f || character == '/';
    };
    return !name.empty() && std::none_of(name.begin(), name.end(), isForbidden);
}

} // namespace

std::optional<AppleScript> Tools::parseAppleScript(std::string_view source) {
    if (source == purge)
        return AppleScript{Verb::Purge, {}};
    if (!source.starts_with(tell))
        return std::nullopt;
    source.remove_prefix(tell.size());
    for (const auto& [ending, verb] : {std::pair(std::string_view("\" to quit"), Verb::Quit),
                                       std::pair(std::string_view("\" to quit saving no"), //
                                                 Verb::QuitWithoutSaving)}) {
        if (!source.ends_with(ending))
            continue;
        const auto name = unescaped(source.substr(0, source.size() - ending.size()));
        if (name && canBeApplication(*name))
            return AppleScript{verb, *name};
    }
    return std::nullopt;
}
