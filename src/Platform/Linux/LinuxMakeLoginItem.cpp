#include "Platform/Linux/LinuxLoginItem.h"
#include "Platform/Platform.h"

std::unique_ptr<LoginItem> Platform::makeLoginItem() {
    return std::make_unique<LinuxLoginItem>();
}
