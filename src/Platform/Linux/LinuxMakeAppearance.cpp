#include "Platform/Linux/LinuxAppearance.h"
#include "Platform/Platform.h"

std::unique_ptr<Appearance> Platform::makeAppearance() {
    return std::make_unique<LinuxAppearance>();
}
