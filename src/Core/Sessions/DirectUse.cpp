#include "Core/Sessions/DirectUse.h"

#include "Core/Grouping/KnownPrograms.h"
#include "Core/Sampling/LaunchedProgram.h"
#include "Core/Sampling/ProgramPath.h"
#include "Platform/Applications.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// Options of a browser that a program controls.
constexpr std::array<QStringView, 5> automationOptions = {
    u"--headless", u"--remote-debugging-", u"--enable-automation", u"--marionette", u"-juggler"};

/// The beginnings of the names of daemons that are started once for a login.
constexpr std::array<QStringView, 11> loginDaemons = {
    u"at-spi", u"dbus-",   u"dconf-service", u"dirmngr",  u"gnome-keyring", u"gpg-agent",
    u"gvfs",   u"keyboxd", u"pipewire",      u"scdaemon", u"ssh-agent"};

bool isControlled(const ProcSample& browser) {
    return std::ranges::any_of(automationOptions,
                               [&browser](QStringView option) { return browser.arguments.contains(option); });
}

bool isLoginDaemon(const QString& name) {
    return std::ranges::any_of(loginDaemons,
                               [&name](QStringView beginning) { return name.startsWith(beginning); });
}

} // namespace

DirectUse::DirectUse(std::shared_ptr<Applications> applications)
    : m_applications(std::move(applications)) {}

bool DirectUse::contains(const ProcSample& process) const {
    if (process.group == ProcGroup::containers)
        return true;
    if (process.group == ProcGroup::browsers)
        return !isControlled(process);
    const auto* known = KnownPrograms::of(process);
    if (known && known->group == ProcGroup::ides && known->hostsServers)
        return true;
    const QStringView file = ProgramPath::lastComponent(process.executablePath);
    if (LaunchedProgram::isInterpreter(file.isEmpty() ? QStringView(process.name) : file))
        return false;
    return process.group == ProcGroup::terminals || isLoginDaemon(process.name) ||
           m_applications->ofProgram(process.executablePath).has_value();
}

bool DirectUse::isCrashHandler(const ProcSample& process) {
    const QStringView file = ProgramPath::lastComponent(process.executablePath);
    return file.endsWith(u"crashpad_handler") || file == u"crashhelper";
}
