#include "Tools/UserProcess.h"

#include "Platform/Linux/KernelFile.h"
#include "Platform/Linux/KernelText.h"
#include "Platform/Linux/ProcFolder.h"
#include "Platform/Linux/ProcStat.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace {

constexpr std::string_view bundleEnding = ".app/";

/// Compares the real user id (proc(5), status). The owner of the folder is root for a process whose memory is
/// protected from reading.
bool isOwn(const std::string& folder) {
    std::array<char, 4096> buffer;
    return KernelText::numberOf(KernelFile(folder + "status").read(buffer), "Uid:") == getuid();
}

std::string_view lastComponent(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

} // namespace

namespace Tools {

UserProcess::UserProcess(pid_t pid)
    : m_pid(pid)
    , m_handle(pid) {}

std::optional<UserProcess> UserProcess::open(pid_t pid) {
    if (pid <= 1)
        return std::nullopt;
    UserProcess process(pid);
    const std::string folder = "/proc/" + std::to_string(pid) + '/';
    if (!process.m_handle.isOpen() || !isOwn(folder))
        return std::nullopt;
    process.m_executable = KernelFile::programBehind(AT_FDCWD, (folder + "exe").c_str()).toStdString();
    if (const auto stat = ProcStat::read(KernelFile(folder + "stat"))) {
        process.m_parentPid = stat->parentPid;
        process.m_startTicks = stat->startTicks;
    }
    // Alive after the reads, so they are of the process of the descriptor.
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

std::vector<UserProcess> userProcesses(const std::function<bool(const UserProcess&)>& isWanted) {
    std::vector<UserProcess> processes;
    ProcFolder folder("/proc");
    for (const ProcFolder::Row& row : folder.rows()) {
        auto process = UserProcess::open(row.pid);
        if (process && isWanted(*process))
            processes.push_back(std::move(*process));
    }
    return processes;
}

} // namespace Tools
