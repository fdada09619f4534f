#include "Tools/Cleanup.h"

#include <sys/resource.h>

#include <cerrno>
#include <cstring>
#include <iostream>
#include <iterator>
#include <span>

using namespace Tools;

namespace {

constexpr int usageError = 2;

struct Command {
    bool removes = false;
    CleanupScope scope;
    std::string root;
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

std::optional<Command> parse(std::span<char*> arguments) {
    const std::string_view verb = arguments.empty() ? "" : arguments.front();
    if (arguments.size() < 2 || (verb != "list" && verb != "remove") || *arguments.back() != '/')
        return std::nullopt;
    Command command{.removes = verb == "remove", .scope = {}, .root = arguments.back()};
    const std::span<char*> options = arguments.subspan(1, arguments.size() - 2);
    for (std::size_t i = 0; i < options.size(); ++i) {
        const std::string_view option = options[i];
        const char* value = i + 1 < options.size() ? options[i + 1] : nullptr;
        if (option == "--screenshots") {
            command.scope.screenshotsOnly = true;
        } else if (option == "--shared") {
            command.scope.isShared = true;
        } else if (option == "--keep" && value) {
            keep(command.scope, value);
            ++i;
        } else if (option == "--older-than" && value && number(value)) {
            command.scope.olderThanDays = number(value);
            ++i;
        } else if (option == "--now" && value && number(value)) {
            command.scope.now = *number(value);
            ++i;
        } else {
            return std::nullopt;
        }
    }
    return command;
}

int removeListed(const Folder& folder, const CleanupScope& scope) {
    const std::string text{std::istreambuf_iterator<char>(std::cin), {}};
    const auto listing = CleanupListing::parse(text);
    if (!listing) {
        std::cerr << "no listing on standard input\n";
        return usageError;
    }
    if (listing->device != folder.device() || listing->inode != folder.inode()) {
        std::cerr << "this is not the folder that was listed\n";
        return 1;
    }
    const Remainder left = removeEntries(folder, *listing, scope);
    if (left.count > 0)
        std::cerr << left.count << " entries are left, " << left.first
                  << " for one: " << std::strerror(left.error) << '\n';
    return left.count == 0 ? 0 : 1;
}

void raiseDescriptorLimit() {
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace

/// Lists and removes the contents of a folder: `cleanup list [OPTION...] FOLDER` prints a listing (see
/// CleanupListing), `cleanup remove [OPTION...] FOLDER` reads one from standard input and removes what it
/// lists. Errors are about FOLDER. Status 1 when the folder is a symlink, cannot be opened, is not the listed
/// one, or something is left; 2 for other arguments.
int main(int argc, char** argv) {
    std::optional<Command> command = parse({argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0)});
    if (!command) {
        std::cerr << "usage: cleanup list|remove [--older-than DAYS --now SECONDS] [--screenshots] [--shared]"
                     " [--keep PATH]... /FOLDER\n";
        return usageError;
    }
    raiseDescriptorLimit();
    const auto folder = Folder::open(command->root);
    if (!folder) {
        const bool isGone = errno == ENOENT;
        std::cerr << std::strerror(errno) << '\n';
        return command->removes && isGone ? 0 : 1;
    }
    command->scope.keepOpenFiles();
    if (command->removes)
        return removeListed(*folder, command->scope);
    std::cout << listEntries(*folder, command->scope).text() << std::flush;
    return std::cout ? 0 : 1;
}
