#include "Tools/QuitApplication.h"

#include "Tools/DesktopWindows.h"
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

/// The windows and processes of one application, taken once: what starts later is not touched.
class Application {
public:
    explicit Application(const std::string& name);

    bool hasWindows() const { return !m_windows.empty(); }
    bool hasProcesses() const { return !m_processes.empty(); }
    void close();
    void cutOff();
    void signal(int number);
    /// Whether all of it is gone within `time`.
    bool endsWithin(std::chrono::milliseconds time);

private:
    bool isOurs(const UserProcess& process) const;
    void addWindow(const DesktopWindow& window, const std::string& name);
    bool holds(pid_t pid) const;
    std::vector<DesktopWindow> openWindows();

    DesktopWindows m_desktop;
    std::string m_parentExecutable;
    std::vector<DesktopWindow> m_windows;
    std::vector<UserProcess> m_processes;
};

Application::Application(const std::string& name) {
    if (const auto parent = UserProcess::open(getppid()))
        m_parentExecutable = parent->executable();
    m_processes = Tools::userProcesses(
        [&](const UserProcess& process) { return process.belongsTo(name) && !isOurs(process); });
    for (const auto& window : m_desktop.list())
        addWindow(window, name);
}

bool Application::isOurs(const UserProcess& process) const {
    return process.pid() == getpid() || process.pid() == getppid() ||
           process.executable() == m_parentExecutable;
}

bool Application::holds(pid_t pid) const {
    return std::any_of(m_processes.begin(), m_processes.end(),
                       [pid](const UserProcess& process) { return process.pid() == pid; });
}

void Application::addWindow(const DesktopWindow& window, const std::string& name) {
    auto process = window.pid ? UserProcess::open(*window.pid) : std::nullopt;
    const bool hasName = equalNames(window.instance, name) || equalNames(window.className, name);
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

void Application::close() {
    for (const auto& window : m_windows)
        m_desktop.close(window.id);
}

void Application::cutOff() {
    for (const auto& window : openWindows())
        m_desktop.cutOff(window.id);
}

void Application::signal(int number) {
    for (const auto& process : m_processes)
        process.signal(number);
}

/// Compared as a whole: the next program to show a window may get the id of one that was closed.
std::vector<DesktopWindow> Application::openWindows() {
    auto open = m_desktop.list();
    std::erase_if(open, [this](const DesktopWindow& window) {
        return std::find(m_windows.begin(), m_windows.end(), window) == m_windows.end();
    });
    return open;
}

bool Application::endsWithin(std::chrono::milliseconds time) {
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
    Application application(name);
    if (!application.hasWindows() && !application.hasProcesses())
        return QuitOutcome::NotFound;
    if (!application.hasWindows() && !forced)
        return QuitOutcome::HasNoWindow;
    if (application.hasWindows()) {
        application.close();
        if (application.endsWithin(forced ? patience.beforeForce : patience.afterClosing))
            return QuitOutcome::Quit;
    }
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
