#include "Tools/ProcessPaths.h"

#include "Tools/ProcessFolder.h"

#include <climits>
#include <unistd.h>

#include <algorithm>

using namespace Tools;

namespace {

bool isAtOrBelow(const std::string& path, const std::string& folder) {
    return path.starts_with(folder) &&
           (path.size() == folder.size() || folder.ends_with('/') || path[folder.size()] == '/');
}

std::string targetOf(int folder, const char* link) {
    char target[PATH_MAX];
    const ssize_t length = readlinkat(folder, link, target, sizeof target);
    return length > 0 ? std::string(target, static_cast<std::size_t>(length)) : std::string();
}

/// Returns the paths of one process, some of them more than once.
std::vector<std::string> pathsOf(const ProcessFolder& process) {
    std::vector<std::string> paths;
    process.forEachLink([&paths](int folder, const char* link) { paths.push_back(targetOf(folder, link)); });
    process.forEachMapped([&paths](const std::string& path) { paths.push_back(path); });
    const std::string arguments = process.text("cmdline");
    for (std::size_t at = 0; at < arguments.size();) {
        const std::size_t end = std::min(arguments.find('\0', at), arguments.size());
        if (arguments[at] == '/')
            paths.push_back(arguments.substr(at, end - at));
        at = end + 1;
    }
    return paths;
}

} // namespace

ProcessPaths::ProcessPaths(const std::string& procFolder, const std::vector<std::string>& folders) {
    ProcessFolder::forEach(procFolder, [&](const ProcessFolder& process) {
        std::string command = process.text("comm");
        while (command.ends_with('\n'))
            command.pop_back();
        for (std::string& used : pathsOf(process)) {
            const auto holdsIt = [&used](const std::string& folder) { return isAtOrBelow(used, folder); };
            if (std::ranges::any_of(folders, holdsIt))
                m_paths.emplace_back(std::move(used), command);
        }
    });
    std::ranges::sort(m_paths);
    const auto surplus = std::ranges::unique(m_paths);
    m_paths.erase(surplus.begin(), surplus.end());
}

std::vector<std::string> ProcessPaths::usersOf(const std::string& folder) const {
    std::vector<std::string> users;
    auto at = std::ranges::lower_bound(m_paths, std::pair(folder, std::string()));
    for (; at != m_paths.end() && at->first.starts_with(folder); ++at) {
        if (isAtOrBelow(at->first, folder))
            users.push_back(at->second);
    }
    std::ranges::sort(users);
    const auto surplus = std::ranges::unique(users);
    users.erase(surplus.begin(), surplus.end());
    return users;
}
