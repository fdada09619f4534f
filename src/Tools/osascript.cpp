#include "Platform/Linux/LinuxApplications.h"
#include "Tools/AppleScript.h"
#include "Tools/Purge.h"
#include "Tools/QuitApplication.h"

#include <QCoreApplication>

#include <filesystem>
#include <iostream>
#include <string_view>
#include <system_error>

namespace {

using Tools::AppleScript;
using Tools::QuitOutcome;

/// Returns the path of our own `purge` beside this program.
std::string purgeTool() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).replace_filename("purge");
}

const char* errorText(QuitOutcome outcome) {
    switch (outcome) {
    case QuitOutcome::NotFound:
        return "application not found";
    case QuitOutcome::Ambiguous:
        return "several applications of that name are running";
    case QuitOutcome::StillRunning:
        return "application did not quit";
    case QuitOutcome::Quit:
        break;
    }
    return nullptr;
}

} // namespace

/// Tells applications to quit: `osascript -e SCRIPT`, for the scripts in Tools/AppleScript.h. Status 0 on
/// success, 1 on failure, 2 for other scripts and arguments.
int main(int argc, char** argv) {
    const QCoreApplication program(argc, argv);
    if (argc != 3 || std::string_view(argv[1]) != "-e") {
        std::cerr << "usage: osascript -e SCRIPT\n";
        return 2;
    }
    const auto script = Tools::parseAppleScript(argv[2]);
    if (!script) {
        std::cerr << "osascript: this script is not understood\n";
        return 2;
    }
    if (script->verb == AppleScript::Verb::Purge)
        return Tools::runAsAdministrator(purgeTool(), "/usr/bin/pkexec");
    const bool forced = script->verb == AppleScript::Verb::QuitWithoutSaving;
    LinuxApplications applications;
    const QString name = QString::fromStdString(script->application);
    if (const char* text = errorText(Tools::quitApplication(name, forced, applications))) {
        std::cerr << "osascript: " << text << '\n';
        return 1;
    }
    return 0;
}
