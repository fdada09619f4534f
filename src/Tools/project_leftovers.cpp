#include "Tools/Background.h"
#include "Tools/ProjectLeftovers.h"

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <iterator>
#include <optional>
#include <span>
#include <string_view>

using namespace Tools;

namespace {

constexpr int usageError = 2;

/// Returns the path without symlinks, or an empty optional with errno set.
std::optional<std::string> resolved(const char* path) {
    char* found = realpath(path, nullptr);
    if (!found)
        return std::nullopt;
    std::string whole = found;
    std::free(found);
    return whole;
}

/// Prints "at FOLDER", ended by NUL, ten times a second at most.
class PlaceRecords {
public:
    void operator()(const std::string& folder) {
        const auto now = std::chrono::steady_clock::now();
        if (now < m_next)
            return;
        std::cout << "at " << folder << '\0' << std::flush;
        m_next = now + std::chrono::milliseconds(100);
    }

private:
    std::chrono::steady_clock::time_point m_next;
};

int find(std::span<char*> arguments) {
    workBehindAll();
    std::vector<std::string> folders;
    int status = 0;
    for (const char* argument : arguments) {
        const auto folder = resolved(argument);
        if (folder) {
            folders.push_back(*folder);
            continue;
        }
        if (status == 0)
            std::cerr << argument << ": " << std::strerror(errno) << '\n';
        status = 1;
    }
    const ProcessPaths processes("/proc", folders);
    PlaceRecords places;
    findLeftovers(
        folders, processes, [](const LeftoverProject& project) { std::cout << project.text() << std::flush; },
        std::ref(places));
    return std::cout ? status : 1;
}

int printUsers() {
    const std::string text{std::istreambuf_iterator<char>(std::cin), {}};
    const std::size_t end = text.find('\0');
    if (!text.starts_with('/') || end == std::string::npos) {
        std::cerr << "no folder on standard input\n";
        return usageError;
    }
    const std::string folder = text.substr(0, end);
    for (const std::string& user : ProcessPaths("/proc", {folder}).usersOf(folder))
        std::cout << "user " << user << '\0';
    std::cout << std::flush;
    return std::cout ? 0 : 1;
}

} // namespace

/// Finds what builds have left in projects. `project_leftovers find /FOLDER...` prints each project as
/// LeftoverProject::text does, and between them "at FOLDER", ended by NUL, of where it looks.
/// `project_leftovers users` reads a folder without symlinks in its path, ended by NUL, from standard input
/// and prints "user NAME", ended by NUL, of each running program that works in it. Status 1 when a folder
/// does not exist, 2 for other arguments.
int main(int argc, char** argv) {
    const std::span<char*> arguments(argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0));
    const std::string_view verb = arguments.empty() ? "" : arguments.front();
    if (verb == "users" && arguments.size() == 1)
        return printUsers();
    bool isValid = verb == "find" && arguments.size() > 1;
    for (const char* folder : arguments.subspan(isValid ? 1 : arguments.size()))
        isValid = isValid && *folder == '/';
    if (!isValid) {
        std::cerr << "usage: project_leftovers find /FOLDER...\n       project_leftovers users\n";
        return usageError;
    }
    return find(arguments.subspan(1));
}
