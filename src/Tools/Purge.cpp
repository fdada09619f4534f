#include "Tools/Purge.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
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

int Tools::runAsAdministrator(const std::string& program, const std::string& pkexec) {
    if (access(program.c_str(), X_OK) != 0) {
        std::cerr << "osascript: " << program << ": " << std::strerror(errno) << '\n';
        return 1;
    }
    execl(pkexec.c_str(), pkexec.c_str(), program.c_str(), nullptr);
    std::cerr << "osascript: " << pkexec << ": " << std::strerror(errno) << '\n';
    return 1;
}
