#include "Tools/Background.h"
#include "Tools/ProjectLeftovers.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <iterator>
#include <mutex>
#include <optional>
#include <span>
#include <stop_token>
#include <string_view>
#include <thread>

using namespace Tools;
using namespace std::string_view_literals;

namespace {

constexpr int usageError = 2;
constexpr auto repeatAfter = std::chrono::seconds(5);

/// Returns the path without symlinks, or an empty optional with errno set.
std::optional<std::string> resolved(const char* path) {
    char* found = realpath(path, nullptr);
    if (!found)
        return std::nullopt;
    std::string whole = found;
    std::free(found);
    return whole;
}

/// Prints what is found, and ten times a second at most "at FOLDER", ended by NUL, of where the search is. A
/// large folder that takes long to measure is printed again, as what goes on is no place that does not
/// answer. A thread of its own prints that, so that the last one is the folder that does not answer.
class Records {
public:
    void look(const std::string& folder) {
        const std::lock_guard lock(m_mutex);
        m_folder = folder;
        ++m_looks;
        if (m_printed.empty())
            printPlace();
    }
    void print(const std::string& text) {
        const std::lock_guard lock(m_mutex);
        std::cout << text << std::flush;
    }

private:
    void printPlaces(const std::stop_token& stop) {
        std::unique_lock lock(m_mutex);
        while (!m_wait.wait_for(lock, stop, std::chrono::milliseconds(100), [] { return false; }) &&
               !stop.stop_requested()) {
            const bool goesOn =
                m_looks != m_looksPrinted && std::chrono::steady_clock::now() > m_printedAt + repeatAfter;
            if (m_folder != m_printed || goesOn)
                printPlace();
        }
    }
    void printPlace() {
        m_printed = m_folder;
        m_looksPrinted = m_looks;
        m_printedAt = std::chrono::steady_clock::now();
        std::cout << "at " << m_printed << '\0' << std::flush;
    }

    std::mutex m_mutex;
    std::condition_variable_any m_wait;
    std::string m_folder;
    std::string m_printed;
    std::uint64_t m_looks = 0;
    std::uint64_t m_looksPrinted = 0;
    std::chrono::steady_clock::time_point m_printedAt;
    std::jthread m_printer{[this](const std::stop_token& stop) { printPlaces(stop); }};
};

/// Takes each "--exclude PATTERN" off the front.
Excludes takeExcludes(std::span<char*>& arguments) {
    Excludes excludes;
    for (; arguments.size() > 2 && arguments[0] == "--exclude"sv; arguments = arguments.subspan(2))
        excludes.add(arguments[1]);
    return excludes;
}

int find(std::span<char*> arguments, const Excludes& excludes) {
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
    Records records;
    findLeftovers(
        folders, processes, excludes,
        [&records](const LeftoverProject& project) { records.print(project.text()); },
        [&records](const std::string& folder) { records.look(folder); });
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

/// Finds what builds have left in projects. `project_leftovers find [--exclude PATTERN]... /FOLDER...` prints
/// each project as LeftoverProject::text does, and between them "at FOLDER", ended by NUL, of where it looks.
/// `project_leftovers users` reads a folder without symlinks in its path, ended by NUL, from standard input
/// and prints "user NAME", ended by NUL, of each running program that works in it. Status 1 when a folder
/// does not exist, 2 for other arguments.
int main(int argc, char** argv) {
    const std::span<char*> arguments(argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0));
    const std::string_view verb = arguments.empty() ? "" : arguments.front();
    if (verb == "users" && arguments.size() == 1)
        return printUsers();
    std::span<char*> folders = arguments.subspan(arguments.empty() ? 0 : 1);
    const Excludes excludes = takeExcludes(folders);
    const bool isValid = verb == "find" && !folders.empty() &&
                         std::ranges::all_of(folders, [](const char* folder) { return *folder == '/'; });
    if (!isValid) {
        std::cerr << "usage: project_leftovers find [--exclude PATTERN]... /FOLDER...\n       "
                     "project_leftovers users\n";
        return usageError;
    }
    return find(folders, excludes);
}
