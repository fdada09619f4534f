#include "Tools/QuitApplication.h"

#include "Platform/Linux/LinuxApplications.h"
#include "Tools/DesktopWindows.h"
#include "Tools/SessionBus.h"
#include "Tools/UserProcess.h"

#include <QSet>

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <thread>
#include <tuple>

namespace {

using namespace std::chrono_literals;
using Tools::DesktopWindow;
using Tools::DesktopWindows;
using Tools::QuitTimeouts;
using Tools::UserProcess;

/// Returns whether the process only starts the application or speaks for it, and ends with it.
bool isLauncher(const UserProcess& process) {
    const auto name = QString::fromUtf8(process.programName().data(), process.programName().size());
    return DesktopEntries::isInterpreter(name) || name == u"xdg-dbus-proxy";
}

/// The processes of one application, listed once: those that start later are not touched.
class RunningApplication {
public:
    RunningApplication(const QString& name, LinuxApplications& applications);

    bool isRunning() const { return !m_processes.empty(); }
    /// Returns whether several applications of that name are running.
    bool isAmbiguous() const { return m_ids.size() > 1; }
    void ask();
    void signal(int number);
    /// Returns whether all its processes end within `time`.
    bool endsWithin(std::chrono::milliseconds time);
    /// Returns the same after `ask`. One that only closed its windows gets a signal after `withoutWindow`.
    bool quitsWithin(std::chrono::milliseconds time, std::chrono::milliseconds withoutWindow);

private:
    bool isOurs(const UserProcess& process) const;
    bool belongs(const UserProcess& process, const QString& name, const QStringList& ids,
                 LinuxApplications& applications);
    QList<qint32> pids() const;
    std::vector<DesktopWindow> windows();
    bool askOnBus(bool (Tools::SessionBus::*manner)(const QString&));
    bool closeWindows();
    std::vector<const UserProcess*> mainProcesses() const;
    void terminateMain();

    DesktopWindows m_desktop;
    Tools::SessionBus m_bus;
    std::string m_parentExecutable;
    QSet<QString> m_ids; ///< of the processes' applications
    std::vector<UserProcess> m_processes;
    bool m_hasClosedWindows = false;
};

RunningApplication::RunningApplication(const QString& name, LinuxApplications& applications) {
    if (const auto parent = UserProcess::open(getppid()))
        m_parentExecutable = parent->executable();
    const QStringList ids = applications.idsOf(name);
    m_processes = Tools::userProcesses([&](const UserProcess& process) {
        return !isOurs(process) && belongs(process, name, ids, applications);
    });
}

bool RunningApplication::isOurs(const UserProcess& process) const {
    return process.pid() == getpid() || process.pid() == getppid() ||
           process.executable() == m_parentExecutable;
}

bool RunningApplication::belongs(const UserProcess& process, const QString& name, const QStringList& ids,
                                 LinuxApplications& applications) {
    if (const auto bundle = process.bundle(); !bundle.empty())
        return bundle == name.toStdString();
    const auto application = applications.ofProcess(process.pid());
    // An application in a sandbox may have no entry, and its id as its only name.
    if (!application || (!ids.contains(application->id) && application->id != name))
        return false;
    m_ids.insert(application->id);
    return true;
}

QList<qint32> RunningApplication::pids() const {
    QList<qint32> result;
    for (const auto& process : m_processes) {
        if (!process.hasEnded())
            result.append(process.pid());
    }
    return result;
}

std::vector<DesktopWindow> RunningApplication::windows() {
    auto open = m_desktop.list();
    const QList<qint32> ours = pids();
    std::erase_if(
        open, [&ours](const DesktopWindow& window) { return !window.pid || !ours.contains(*window.pid); });
    return open;
}

/// Tries first what lets the application prompt for unsaved work.
void RunningApplication::ask() {
    if (!askOnBus(&Tools::SessionBus::activateQuit) && !closeWindows() &&
        !askOnBus(&Tools::SessionBus::callQuit))
        terminateMain();
}

bool RunningApplication::askOnBus(bool (Tools::SessionBus::*manner)(const QString&)) {
    bool isAsked = false;
    for (const QString& name : m_bus.namesOf(pids()))
        isAsked = (m_bus.*manner)(name) || isAsked;
    return isAsked;
}

bool RunningApplication::closeWindows() {
    const auto open = windows();
    for (const auto& window : open)
        m_desktop.close(window.id);
    m_hasClosedWindows = !open.empty();
    return m_hasClosedWindows;
}

/// Returns the processes of the application's own program that none of the others started. Crash handlers
/// have no parent among them either, but run another program and start later.
std::vector<const UserProcess*> RunningApplication::mainProcesses() const {
    const bool isScript = std::all_of(m_processes.begin(), m_processes.end(), isLauncher);
    std::vector<const UserProcess*> programs;
    for (const auto& process : m_processes) {
        if (isScript || !isLauncher(process))
            programs.push_back(&process);
    }
    auto mains = programs;
    std::erase_if(mains, [&programs](const UserProcess* process) {
        return std::any_of(programs.begin(), programs.end(), [process](const UserProcess* other) {
            return other->pid() == process->parentPid();
        });
    });
    const auto oldest =
        std::min_element(mains.begin(), mains.end(), [](const UserProcess* left, const UserProcess* right) {
            return std::tuple(left->startTicks(), left->pid()) <
                   std::tuple(right->startTicks(), right->pid());
        });
    if (oldest == mains.end())
        return mains;
    const std::string executable = (*oldest)->executable();
    std::erase_if(mains,
                  [&executable](const UserProcess* process) { return process->executable() != executable; });
    return mains;
}

/// Spares the helpers: they end with the main process, and some take a signal for a crash.
void RunningApplication::terminateMain() {
    for (const UserProcess* process : mainProcesses())
        process->signal(SIGTERM);
}

void RunningApplication::signal(int number) {
    for (const auto& process : m_processes)
        process.signal(number);
}

bool RunningApplication::endsWithin(std::chrono::milliseconds time) {
    const auto hasEnded = [](const UserProcess& process) { return process.hasEnded(); };
    const auto end = std::chrono::steady_clock::now() + time;
    while (!std::all_of(m_processes.begin(), m_processes.end(), hasEnded)) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(20ms);
    }
    return true;
}

bool RunningApplication::quitsWithin(std::chrono::milliseconds time,
                                     std::chrono::milliseconds withoutWindow) {
    if (!m_hasClosedWindows || withoutWindow >= time)
        return endsWithin(time);
    if (endsWithin(withoutWindow))
        return true;
    if (windows().empty())
        terminateMain();
    return endsWithin(time - withoutWindow);
}

} // namespace

Tools::QuitOutcome Tools::quitApplication(const QString& name, bool forced, LinuxApplications& applications,
                                          const QuitTimeouts& timeouts) {
    RunningApplication application(name, applications);
    if (!application.isRunning())
        return QuitOutcome::NotFound;
    if (application.isAmbiguous())
        return QuitOutcome::Ambiguous;
    application.ask();
    if (application.quitsWithin(forced ? timeouts.beforeForce : timeouts.afterAsking, timeouts.withoutWindow))
        return QuitOutcome::Quit;
    if (!forced)
        return QuitOutcome::StillRunning;
    for (const int number : {SIGTERM, SIGKILL}) {
        application.signal(number);
        if (application.endsWithin(timeouts.afterEachSignal))
            return QuitOutcome::Quit;
    }
    return QuitOutcome::StillRunning;
}
