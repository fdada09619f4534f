#include "Tools/Purge.h"

#include <iostream>

/// Drops the machine's clean file caches: `purge`. Needs root. Status 2 for any argument.
int main(int argc, char**) {
    if (argc != 1) {
        std::cerr << "usage: purge\n";
        return 2;
    }
    return Tools::dropCleanCaches("/proc/sys/vm/drop_caches");
}
