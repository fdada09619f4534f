#include "Tools/UserProcess.h"

#include "Platform/Linux/ProcStat.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <charconv>
#include <climits>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

namespace {

constexpr std::string_view bundleEnding = ".app/";

std::string linkTarget(const std::string& link) {
    char room[PATH_MAX];
    const auto length = readlink(link.c_str(), room, sizeof room);
    std::string target(room, length > 0 ? static_cast<size_t>(length) : 0);
    // The kernel's mark of a program that was replaced on disk, as an update does.
    constexpr std::string_view replaced = " (deleted)";
    if (target.ends_with(replaced))
        target.resize(target.size() - replaced.size());
    return target;
}

std::string textOf(const std::string& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

/// The figure behind `key` in `status` (proc(5)); of several the first.
long statusFigure(const std::string& folder, const std::string& key) {
    std::ifstream status(folder + "status");
    for (std::string line; std::getline(status, line);) {
        long figure = 0;
        if (line.starts_with(key) && std::istringstream(line.substr(key.size())) >> figure)
            return figure;
    }
    return -1;
}

/// The real user id (proc(5), status). The owner of the folder would not do: it is root for a program that
/// keeps its memory from being read.
bool isOwn(const std::string& folder) {
    return statusFigure(folder, "Uid:") == static_cast<long>(getuid());
}

std::string_view lastComponent(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

} // namespace

namespace Tools {

UserProcess::UserProcess(pid_t pid, int descriptor)
    : m_pid(pid)
    , m_descriptor(descriptor) {}

UserProcess::UserProcess(UserProcess&& other) noexcept
    : m_pid(other.m_pid)
    , m_parentPid(other.m_parentPid)
    , m_startTicks(other.m_startTicks)
    , m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_executable(std::move(other.m_executable)) {}

UserProcess& UserProcess::operator=(UserProcess&& other) noexcept {
    std::swap(m_pid, other.m_pid);
    std::swap(m_parentPid, other.m_parentPid);
    std::swap(m_startTicks, other.m_startTicks);
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_executable, other.m_executable);
    return *this;
}

UserProcess::~UserProcess() {
    if (m_descriptor >= 0)
        close(m_descriptor);
}

std::optional<UserProcess> UserProcess::open(pid_t pid) {
    const int descriptor = pid > 1 ? static_cast<int>(syscall(SYS_pidfd_open, pid, 0)) : -1;
    if (descriptor < 0)
        return std::nullopt;
    UserProcess process(pid, descriptor);
    const std::string folder = "/proc/" + std::to_string(pid) + '/';
    if (!isOwn(folder))
        return std::nullopt;
    process.m_executable = linkTarget(folder + "exe");
    if (const auto stat = ProcStat::parse(textOf(folder + "stat"))) {
        process.m_parentPid = stat->parentPid;
        process.m_startTicks = stat->startTicks;
    }
    // Alive after the reading, so that what was read is of the process that the descriptor holds.
    if (process.m_executable.empty() || process.hasEnded())
        return std::nullopt;
    return process;
}

std::string_view UserProcess::programName() const {
    return lastComponent(m_executable);
}

std::string_view UserProcess::bundle() const {
    const std::string_view path = m_executable;
    const auto end = path.find(bundleEnding);
    return end == std::string_view::npos ? std::string_view() : lastComponent(path.substr(0, end));
}

bool UserProcess::hasEnded() const {
    pollfd ended{m_descriptor, POLLIN, 0};
    return poll(&ended, 1, 0) != 0;
}

void UserProcess::signal(int number) const {
    syscall(SYS_pidfd_send_signal, m_descriptor, number, nullptr, 0);
}

std::vector<UserProcess> userProcesses(const std::function<bool(const UserProcess&)>& isWanted) {
    std::vector<UserProcess> processes;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        pid_t pid = 0;
        if (std::from_chars(name.data(), name.data() + name.size(), pid).ptr != name.data() + name.size())
            continue;
        auto process = UserProcess::open(pid);
        if (process && isWanted(*process))
            processes.push_back(std::move(*process));
    }
    return processes;
}

} // namespace Tools
