#include "Tools/ProcessPaths.h"

#include "Tools/Folder.h"

#include <climits>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>

using namespace Tools;

namespace {

constexpr std::size_t maxArguments = 1 << 20;

bool isAtOrBelow(const std::string& path, const std::string& folder) {
    return path.starts_with(folder) &&
           (path.size() == folder.size() || folder.ends_with('/') || path[folder.size()] == '/');
}

std::string targetOf(const Folder& folder, const std::string& name) {
    char target[PATH_MAX];
    const ssize_t length = readlinkat(folder.descriptor(), name.c_str(), target, sizeof target);
    return length > 0 ? std::string(target, static_cast<std::size_t>(length)) : std::string();
}

std::string beginOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string text(maxArguments, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

/// Returns the paths of one process, some of them more than once.
std::vector<std::string> pathsOf(const Folder& process, const std::string& path) {
    std::vector<std::string> paths{targetOf(process, "cwd"), targetOf(process, "exe")};
    const auto open = process.openBelow("fd");
    const auto files = open ? open->names() : std::nullopt;
    for (const std::string& name : files.value_or(std::vector<std::string>()))
        paths.push_back(targetOf(*open, name));
    std::ifstream maps(path + "/maps");
    for (std::string line; std::getline(maps, line);) {
        const std::size_t start = line.find('/');
        if (start != std::string::npos &&
            (paths.empty() || line.compare(start, line.npos, paths.back()) != 0))
            paths.push_back(line.substr(start));
    }
    const std::string arguments = beginOf(path + "/cmdline");
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
    const auto proc = Folder::open(procFolder);
    const auto names = proc ? proc->names() : std::nullopt;
    const std::string own = std::to_string(getpid());
    for (const std::string& name : names.value_or(std::vector<std::string>())) {
        const bool isProcess = std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
        const auto process = isProcess && name != own ? proc->openBelow(name) : std::nullopt;
        if (!process)
            continue;
        const std::string path = procFolder + '/' + name;
        std::string command = beginOf(path + "/comm");
        while (command.ends_with('\n'))
            command.pop_back();
        for (std::string& used : pathsOf(*process, path)) {
            const auto holdsIt = [&used](const std::string& folder) { return isAtOrBelow(used, folder); };
            if (std::ranges::any_of(folders, holdsIt))
                m_paths.emplace_back(std::move(used), command);
        }
    }
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
