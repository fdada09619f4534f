#include "Tools/QuitApplication.h"

#include "Platform/Linux/LinuxApplications.h"
#include "Tools/DesktopWindows.h"
#include "Tools/SessionBus.h"
#include "Tools/UserProcess.h"

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <thread>

namespace {

using namespace std::chrono_literals;
using Tools::DesktopWindow;
using Tools::DesktopWindows;
using Tools::equalNames;
using Tools::UserProcess;

/// The windows and processes of one application, taken once: what starts later is not touched. Where the
/// desktop's menu knows the name, the application is what the menu means; a program that is merely called
/// alike is not.
class Target {
public:
    explicit Target(const std::string& name);

    bool hasWindows() const { return !m_windows.empty(); }
    bool hasProcesses() const { return !m_processes.empty(); }
    /// Asks by the way that the application offers: its action on the session's bus, its windows, else a
    /// signal to its main process alone.
    void ask();
    void close();
    void cutOff();
    void signal(int number);
    /// Whether all of it is gone within `time`.
    bool endsWithin(std::chrono::milliseconds time);

private:
    bool isMeant(const UserProcess& process, const std::string& name);
    bool isOurs(const UserProcess& process) const;
    const UserProcess* mainProcess() const;
    void addWindow(const DesktopWindow& window, const std::string& name);
    bool holds(pid_t pid) const;
    std::vector<DesktopWindow> openWindows();

    LinuxApplications m_applications;
    QStringList m_ids; ///< of the menu's entries; empty for a name that only a bundle or a window has
    DesktopWindows m_desktop;
    std::string m_parentExecutable;
    std::vector<DesktopWindow> m_windows;
    std::vector<UserProcess> m_processes;
};

Target::Target(const std::string& name)
    : m_ids(m_applications.idsOf(QString::fromStdString(name))) {
    if (const auto parent = UserProcess::open(getppid()))
        m_parentExecutable = parent->executable();
    m_processes = Tools::userProcesses(
        [&](const UserProcess& process) { return isMeant(process, name) && !isOurs(process); });
    for (const auto& window : m_desktop.list())
        addWindow(window, name);
}

bool Target::isMeant(const UserProcess& process, const std::string& name) {
    if (process.belongsTo(name))
        return true;
    const auto application = m_ids.isEmpty() ? std::nullopt : m_applications.ofProcess(process.pid());
    return application && m_ids.contains(application->id);
}

bool Target::isOurs(const UserProcess& process) const {
    return process.pid() == getpid() || process.pid() == getppid() ||
           process.executable() == m_parentExecutable;
}

bool Target::holds(pid_t pid) const {
    return std::any_of(m_processes.begin(), m_processes.end(),
                       [pid](const UserProcess& process) { return process.pid() == pid; });
}

void Target::addWindow(const DesktopWindow& window, const std::string& name) {
    auto process = window.pid ? UserProcess::open(*window.pid) : std::nullopt;
    const bool hasName = equalNames(window.instance, name) || equalNames(window.className, name);
    if (!m_ids.isEmpty() && !(process && holds(process->pid())))
        return;
    if (!hasName && !(process && (process->isCalled(name) || holds(process->pid()))))
        return;
    if (process && isOurs(*process))
        return;
    m_windows.push_back(window);
    // The id is the client's own word, and in a container it is the container's number for the process: it
    // may name a stranger here. Only a process that goes by the same name is taken for the application.
    const bool isConfirmed = process && (process->isCalled(name) || process->isCalled(window.className) ||
                                         process->isCalled(window.instance));
    if (isConfirmed && !holds(process->pid()))
        m_processes.push_back(std::move(*process));
}

/// The one that no other of them has started; null where nothing runs.
const UserProcess* Target::mainProcess() const {
    const auto main =
        std::find_if(m_processes.begin(), m_processes.end(),
                     [this](const UserProcess& process) { return !holds(process.parentPid()); });
    return main == m_processes.end() ? nullptr : &*main;
}

void Target::ask() {
    Tools::SessionBus bus;
    QList<qint32> pids;
    for (const auto& process : m_processes)
        pids.append(process.pid());
    for (const QString& name : pids.isEmpty() ? QStringList() : bus.namesOf(pids)) {
        if (bus.activateQuit(name) || bus.callQuit(name))
            return;
    }
    if (hasWindows())
        close();
    else if (const UserProcess* main = mainProcess())
        main->signal(SIGTERM);
}

void Target::close() {
    for (const auto& window : m_windows)
        m_desktop.close(window.id);
}

void Target::cutOff() {
    for (const auto& window : openWindows())
        m_desktop.cutOff(window.id);
}

void Target::signal(int number) {
    for (const auto& process : m_processes)
        process.signal(number);
}

/// Compared as a whole: the next program to show a window may get the id of one that was closed.
std::vector<DesktopWindow> Target::openWindows() {
    auto open = m_desktop.list();
    std::erase_if(open, [this](const DesktopWindow& window) {
        return std::find(m_windows.begin(), m_windows.end(), window) == m_windows.end();
    });
    return open;
}

bool Target::endsWithin(std::chrono::milliseconds time) {
    const auto hasEnded = [](const UserProcess& process) { return process.hasEnded(); };
    const auto end = std::chrono::steady_clock::now() + time;
    while (true) {
        if (std::all_of(m_processes.begin(), m_processes.end(), hasEnded) && openWindows().empty())
            return true;
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(20ms);
    }
}

} // namespace

Tools::QuitOutcome Tools::quitApplication(const std::string& name, bool forced,
                                          const QuitPatience& patience) {
    Target application(name);
    if (!application.hasWindows() && !application.hasProcesses())
        return QuitOutcome::NotFound;
    application.ask();
    if (application.endsWithin(forced ? patience.beforeForce : patience.afterClosing))
        return QuitOutcome::Quit;
    if (!forced)
        return QuitOutcome::StillRunning;
    application.cutOff();
    for (const int number : {SIGTERM, SIGKILL}) {
        application.signal(number);
        if (application.endsWithin(patience.afterEachSignal))
            return QuitOutcome::Quit;
    }
    return QuitOutcome::StillRunning;
}
