#include "Platform/Linux/LinuxRelief.h"
#include "Tools/AppleScript.h"
#include "fuzz/Fuzz.h"

namespace {

using Verb = Tools::AppleScript::Verb;

/// Checks that the script for an application of that name reads back, or is rejected as a whole.
void nameComesThrough(const QByteArray& utf8) {
    const QString name = QString::fromUtf8(utf8);
    for (const bool force : {false, true}) {
        const auto script = Tools::parseAppleScript(LinuxRelief::quitScript(name, force).toStdString());
        if (!script)
            continue;
        Fuzz::require(script->application == name.toStdString());
        Fuzz::require(script->verb == (force ? Verb::QuitWithoutSaving : Verb::Quit));
    }
}

} // namespace

/// A script, or the name of an application.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray input = Fuzz::bytes(data, size);
    nameComesThrough(input);
    const auto script = Tools::parseAppleScript(input.toStdString());
    if (!script || !QUtf8StringView(input).isValidUtf8())
        return 0;
    if (script->verb == Verb::Purge) {
        Fuzz::require(script->application.empty());
        return 0;
    }
    const QString name = QString::fromStdString(script->application);
    const bool force = script->verb == Verb::QuitWithoutSaving;
    Fuzz::require(LinuxRelief::quitScript(name, force).toUtf8() == input);
    return 0;
}
