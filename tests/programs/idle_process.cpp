#include <signal.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

/// Allocates memory, prints "idle" and sleeps: idle_process MIB polite|stubborn [ARGUMENT...]. A stubborn one
/// ignores SIGTERM. Further arguments have no effect.
int main(int argc, char** argv) {
    if (argc < 3)
        return 2;
    if (std::string_view(argv[2]) == "stubborn")
        signal(SIGTERM, SIG_IGN);
    // Written to, or the kernel would map the same empty page everywhere.
    const std::vector<char> memory(static_cast<std::size_t>(std::atoi(argv[1])) << 20, 'x');
    std::puts("idle");
    std::fflush(stdout);
    for (;;)
        pause();
}
