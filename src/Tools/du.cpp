#include "Tools/Background.h"
#include "Tools/FolderSize.h"
#include "Tools/Texts.h"

#include <cerrno>
#include <cstring>
#include <iostream>
#include <string_view>

using namespace Tools;

namespace {

constexpr int usageError = 2;
constexpr std::uint64_t maxMessages = 20;

void complain(const UnreadEntry& entry) {
    std::cerr << "du: cannot " << (entry.isFolder ? "read folder " : "access ") << printable(entry.path)
              << ": " << std::strerror(entry.error) << '\n';
}

/// Leaves one slash at the end, as it asks for the target of a symlink.
std::string withoutSurplusSlashes(std::string path) {
    while (path.size() > 2 && path.ends_with("//"))
        path.pop_back();
    return path == "//" ? "/" : path;
}

} // namespace

/// Prints what a folder or file takes in KiB: `du -sk -x PATH`, as the system's `du` does (see
/// measureFolder). Status 1 when something could not be read, with the first reasons on standard error, or
/// there were more hard links than it remembers; 2 for other arguments.
int main(int argc, char** argv) {
    if (argc != 4 || std::string_view(argv[1]) != "-sk" || std::string_view(argv[2]) != "-x" ||
        *argv[3] == '\0') {
        std::cerr << "usage: du -sk -x PATH\n";
        return usageError;
    }
    workBehindAll();
    const std::string path = withoutSurplusSlashes(argv[3]);
    std::uint64_t messages = 0;
    const auto size = measureFolder(path, [&messages](const UnreadEntry& entry) {
        if (++messages <= maxMessages)
            complain(entry);
    });
    if (!size) {
        complain({path, errno, false});
        return 1;
    }
    if (size->unread > maxMessages)
        std::cerr << "du: " << size->unread - maxMessages << " more cannot be read\n";
    if (size->isEstimate)
        std::cerr << "du: too many hard links to remember, the size is an estimate\n";
    std::cout << (size->blocks + 1) / 2 << '\t' << path << std::endl;
    return size->unread == 0 && !size->isEstimate && std::cout ? 0 : 1;
}
