#include "Tools/Cleanup.h"
#include "Tools/Background.h"
#include "Tools/Texts.h"

#include <sys/resource.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <iostream>
#include <iterator>
#include <span>

using namespace Tools;

namespace {

constexpr int usageError = 2;

enum class Verb { list, check, remove, open };

struct Command {
    Verb verb = Verb::list;
    CleanupScope scope = {};
    bool isInside = false;    ///< the relative path of the folder to list comes first on standard input
    bool isUsedKnown = false; ///< what is used follows
};

std::optional<long> number(const char* text) {
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(text, &end, 10);
    return errno != 0 || end == text || *end != '\0' ? std::nullopt : std::optional(value);
}

/// Keeps a symlink with its target.
void keep(CleanupScope& scope, const char* path) {
    struct stat status {};
    if (lstat(path, &status) == 0)
        scope.kept.emplace(status.st_dev, status.st_ino);
    if (stat(path, &status) == 0)
        scope.kept.emplace(status.st_dev, status.st_ino);
}

std::optional<Verb> verbOf(std::string_view text) {
    const std::pair<std::string_view, Verb> verbs[] = {
        {"list", Verb::list}, {"check", Verb::check}, {"remove", Verb::remove}, {"open", Verb::open}};
    for (const auto& [name, verb] : verbs) {
        if (text == name)
            return verb;
    }
    return std::nullopt;
}

/// Takes an option without a value.
bool takeFlag(Command& command, std::string_view option) {
    CleanupScope& scope = command.scope;
    const std::pair<std::string_view, bool*> flags[] = {{"--screenshots", &scope.screenshotsOnly},
                                                        {"--shared", &scope.isShared},
                                                        {"--in", &command.isInside},
                                                        {"--used", &command.isUsedKnown}};
    for (const auto& [name, flag] : flags) {
        if (option == name)
            return *flag = true;
    }
    return false;
}

bool takeOption(CleanupScope& scope, std::string_view option, const char* value) {
    if (option == "--keep") {
        keep(scope, value);
    } else if (option == "--exclude") {
        scope.excludes.add(value);
        if (*value == '/')
            keep(scope, value); // by any path
    } else if (option == "--older-than" && number(value)) {
        scope.olderThanDays = number(value);
    } else if (option == "--now" && number(value)) {
        scope.now = *number(value);
    } else {
        return false;
    }
    return true;
}

std::optional<Command> parse(std::span<char*> arguments) {
    const auto verb = verbOf(arguments.empty() ? "" : arguments.front());
    if (!verb)
        return std::nullopt;
    Command command{.verb = *verb};
    if (command.verb == Verb::open)
        return arguments.size() == 1 ? std::optional(command) : std::nullopt;
    if (arguments.size() < 2 || *arguments.back() != '/')
        return std::nullopt;
    command.scope.top = arguments.back();
    const std::span<char*> options = arguments.subspan(1, arguments.size() - 2);
    for (std::size_t i = 0; i < options.size(); ++i) {
        if (takeFlag(command, options[i]))
            continue;
        if (i + 1 == options.size() || !takeOption(command.scope, options[i], options[i + 1]))
            return std::nullopt;
        ++i;
    }
    return command;
}

std::string readInput() {
    return {std::istreambuf_iterator<char>(std::cin), {}};
}

/// Returns whether it names a folder by names only.
bool isPlainPath(std::string_view path) {
    while (!path.empty()) {
        const std::string_view name = path.substr(0, path.find('/'));
        if (name.empty() || name == "." || name == "..")
            return false;
        if (name.size() == path.size())
            return true;
        path.remove_prefix(name.size() + 1);
    }
    return false;
}

int complain(const std::string& what, int status) {
    std::cerr << printable(what) << '\n';
    return status;
}

void use(CleanupScope& scope, dev_t device, const std::set<FileIdentity>& files) {
    for (const auto& [itsDevice, inode] : files) {
        if (itsDevice == device)
            scope.used.insert(inode);
    }
}

int list(const Folder& folder, Command& command) {
    std::string input = command.isInside || command.isUsedKnown ? readInput() : std::string();
    std::string inside;
    if (command.isInside) {
        inside = input.substr(0, input.find('\0'));
        input.erase(0, inside.size() + 1);
        if (!isPlainPath(inside))
            return complain("no relative path on standard input", usageError);
    }
    const auto used = command.isUsedKnown ? parseFiles(input) : openFiles("/proc");
    if (!used)
        return complain("no list of files on standard input", usageError);
    use(command.scope, folder.device(), *used);
    const auto listing = listEntries(folder, inside, command.scope);
    if (!listing)
        return complain(std::strerror(errno), 1);
    listing->write(std::cout);
    std::cout.flush();
    return std::cout ? 0 : 1;
}

volatile std::sig_atomic_t isStopped = 0;

void stop(int /*signal*/) {
    isStopped = 1;
}

/// Prints "BYTES ENTRIES" of what is gone, ten times a second at most.
class ProgressLines {
public:
    bool operator()(const Removed& removed) {
        const auto now = std::chrono::steady_clock::now();
        if (removed.entries > m_printed && now >= m_next) {
            print(removed);
            m_next = now + std::chrono::milliseconds(100);
        }
        return isStopped == 0;
    }
    void print(const Removed& removed) {
        m_printed = removed.entries;
        std::cout << removed.bytes << ' ' << removed.entries << std::endl;
    }

private:
    std::uint64_t m_printed = 0;
    std::chrono::steady_clock::time_point m_next;
};

std::optional<std::uint64_t> freeBytes(const Folder& folder) {
    struct statvfs volume {};
    if (fstatvfs(folder.descriptor(), &volume) != 0)
        return std::nullopt;
    return volume.f_bavail * volume.f_frsize;
}

int remove(const Folder& folder, const CleanupListing& listing, const CleanupScope& scope) {
    std::signal(SIGTERM, stop);
    const auto before = freeBytes(folder);
    ProgressLines lines;
    const Remainder left = removeEntries(folder, listing, scope, std::ref(lines));
    lines.print(left.removed);
    const auto after = freeBytes(folder);
    if (before && after)
        std::cout << "volume " << *before << ' ' << *after << std::endl;
    if (left.isStopped)
        return complain("it was stopped", 1);
    if (left.count > 0)
        return complain(std::to_string(left.count) + " entries are left, " + left.first +
                            " for one: " + std::strerror(left.error),
                        1);
    return 0;
}

int workOnListing(const Folder& folder, Command& command) {
    const auto listing = CleanupListing::parse(readInput());
    if (!listing)
        return complain("no listing on standard input", usageError);
    if (listing->device != folder.device() || listing->inode != folder.inode())
        return complain("this is not the folder that was listed", 1);
    if (command.scope.isShared)
        use(command.scope, folder.device(), openFiles("/proc"));
    if (command.verb == Verb::remove)
        return remove(folder, *listing, command.scope);
    checkEntries(folder, *listing, command.scope).write(std::cout);
    std::cout.flush();
    return std::cout ? 0 : 1;
}

void raiseDescriptorLimit() {
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace

/// Lists and removes the contents of a folder:
///
/// * `cleanup list [OPTION...] FOLDER` prints a listing (see CleanupListing). With `--in` it is of a folder
///   in FOLDER: its relative path is on standard input, up to a NUL or the end. With `--used` the output of
///   `cleanup open` is there, behind that path; otherwise it looks for used files itself.
/// * `cleanup check [OPTION...] FOLDER` reads a listing from standard input and prints what of it would go.
/// * `cleanup remove [OPTION...] FOLDER` reads a listing and removes what it lists. It prints lines of
///   "BYTES ENTRIES", what is gone so far, and at the end "volume BEFORE AFTER", the free bytes of the file
///   system, if it tells them. SIGTERM ends it between two entries.
/// * `cleanup open` prints what running programs use (see openFiles).
///
/// Errors are about FOLDER. Status 1 when the folder is a symlink, cannot be opened, is not the listed one,
/// or something is left; 2 for other arguments.
int main(int argc, char** argv) {
    std::optional<Command> command = parse({argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0)});
    if (!command) {
        std::cerr << "usage: cleanup list|check|remove [--older-than DAYS --now SECONDS] [--screenshots]"
                     " [--shared] [--keep PATH]... [--exclude PATTERN]... [--in] [--used] /FOLDER\n"
                     "       cleanup open\n";
        return usageError;
    }
    std::ios::sync_with_stdio(false);
    if (command->verb != Verb::remove)
        workBehindAll();
    if (command->verb == Verb::open) {
        std::cout << textOf(openFiles("/proc")) << std::flush;
        return std::cout ? 0 : 1;
    }
    raiseDescriptorLimit();
    const auto folder = Folder::open(command->scope.top);
    if (!folder) {
        const bool isDone = command->verb == Verb::remove && errno == ENOENT;
        return complain(std::strerror(errno), isDone ? 0 : 1);
    }
    return command->verb == Verb::list ? list(*folder, *command) : workOnListing(*folder, *command);
}
