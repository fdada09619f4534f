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
using Tools::QuitPatience;
using Tools::UserProcess;

/// Whether it only starts the application or speaks for it, and ends with it.
bool isLauncher(const UserProcess& process) {
    const auto name = QString::fromUtf8(process.programName().data(), process.programName().size());
    return DesktopEntries::isInterpreter(name) || name == u"xdg-dbus-proxy";
}

/// The processes of one application, taken once: what starts later is not touched.
class RunningApplication {
public:
    RunningApplication(const QString& name, LinuxApplications& applications);

    bool isRunning() const { return !m_processes.empty(); }
    /// Whether applications that only share a name are running.
    bool isAmbiguous() const { return m_ids.size() > 1; }
    void ask();
    void signal(int number);
    /// Whether all of it is gone within `time`.
    bool endsWithin(std::chrono::milliseconds time);
    /// The same for one that was asked: where it has only put away its windows, its main process is told too.
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
    QSet<QString> m_ids; ///< of the applications that the processes belong to
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
    // What runs in a sandbox need not have an entry; its id is all the name it has.
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

/// The ways that let it ask back come first.
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

/// Those of the application's own program that no other of its processes started. Crash handlers are children
/// of nobody either, but run another program, and later.
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

/// Not the helpers: they end with it, and some take a signal for a crash.
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
                                          const QuitPatience& patience) {
    RunningApplication application(name, applications);
    if (!application.isRunning())
        return QuitOutcome::NotFound;
    if (application.isAmbiguous())
        return QuitOutcome::Ambiguous;
    application.ask();
    if (application.quitsWithin(forced ? patience.beforeForce : patience.afterAsking, patience.withoutWindow))
        return QuitOutcome::Quit;
    if (!forced)
        return QuitOutcome::StillRunning;
    for (const int number : {SIGTERM, SIGKILL}) {
        application.signal(number);
        if (application.endsWithin(patience.afterEachSignal))
            return QuitOutcome::Quit;
    }
    return QuitOutcome::StillRunning;
}
