#include "Tools/MemoryReclaim.h"

#include <unistd.h>

#include <cstring>
#include <iostream>
#include <string_view>

namespace {

constexpr int cannotStart = 126;

} // namespace

/// Reclaims memory: `memory_pressure -l warn`. The amount is bounded, and SIGTERM interrupts the kernel too.
/// Status 0 when the kernel was asked, 126 (a shell's for a program that it cannot start) when that is
/// unsupported, 2 for other arguments.
int main(int argc, char** argv) {
    if (argc != 3 || std::string_view(argv[1]) != "-l" || std::string_view(argv[2]) != "warn") {
        std::cerr << "usage: memory_pressure -l warn\n";
        return 2;
    }
    const auto group = Tools::reclaimableGroup("/proc", getuid());
    if (!group) {
        std::cerr << "memory_pressure: no control group of this session can be asked to give memory back\n";
        return cannotStart;
    }
    const int error = Tools::reclaim(*group, {});
    if (error != 0) {
        std::cerr << "memory_pressure: " << *group << ": " << std::strerror(error) << '\n';
        return cannotStart;
    }
    return 0;
}
