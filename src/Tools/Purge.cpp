#include "Tools/Purge.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>

int Tools::dropCleanCaches(const std::string& dropFile) {
    if (geteuid() != 0) {
        std::cerr << "purge: only the administrator may drop caches\n";
        return 1;
    }
    sync();
    const int file = open(dropFile.c_str(), O_WRONLY | O_CLOEXEC);
    const bool dropped = file >= 0 && write(file, "1", 1) == 1;
    if (!dropped)
        std::cerr << "purge: " << dropFile << ": " << std::strerror(errno) << '\n';
    if (file >= 0)
        close(file);
    return dropped ? 0 : 1;
}

std::string Tools::whyUntrusted(const std::string& program) {
    constexpr mode_t writableByOthers = S_IWGRP | S_IWOTH;
    std::error_code error;
    auto path = std::filesystem::canonical(program, error);
    if (error)
        return program + ": " + error.message();
    for (;; path = path.parent_path()) {
        struct stat status {};
        const bool isRoots = stat(path.c_str(), &status) == 0 && status.st_uid == 0;
        if (!isRoots || (status.st_mode & writableByOthers) != 0)
            return "the administrator runs nothing that others can change: " + path.string();
        if (std::filesystem::exists(path / "CMakeCache.txt", error))
            return "the administrator runs nothing from a build tree: " + path.string();
        if (path == path.root_path())
            return {};
    }
}

int Tools::runAsAdministrator(const std::string& program, const std::string& pkexec) {
    if (access(program.c_str(), X_OK) != 0) {
        std::cerr << "osascript: " << program << ": " << std::strerror(errno) << '\n';
        return 1;
    }
    if (const std::string reason = whyUntrusted(program); !reason.empty()) {
        std::cerr << "osascript: " << reason << '\n';
        return 1;
    }
    // The internal agent would prompt on a terminal, where it might wait for ever.
    execl(pkexec.c_str(), pkexec.c_str(), "--disable-internal-agent", program.c_str(), nullptr);
    std::cerr << "osascript: " << pkexec << ": " << std::strerror(errno) << '\n';
    return 1;
}
