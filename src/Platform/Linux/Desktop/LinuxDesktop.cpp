#include "Platform/Desktop/Desktop.h"
#include "Platform/Linux/Desktop/LinuxDesktopApplication.h"
#include "Platform/Linux/Desktop/LinuxFloatingPanel.h"
#include "Platform/Linux/Desktop/LinuxPopover.h"
#include "Platform/Linux/Desktop/LinuxStatusItem.h"

Desktop Desktop::native() {
    return {.statusItem = std::make_shared<LinuxStatusItem>(),
            .popover = std::make_shared<LinuxPopover>(),
            .application = std::make_shared<LinuxDesktopApplication>(),
            .makePanel = [] { return std::make_unique<LinuxFloatingPanel>(); }};
}
