#include "Platform/Desktop/Desktop.h"
#include "Platform/Freedesktop/Desktop/FreedesktopDesktopApplication.h"
#include "Platform/Freedesktop/Desktop/FreedesktopFloatingPanel.h"
#include "Platform/Freedesktop/Desktop/FreedesktopNotifications.h"
#include "Platform/Freedesktop/Desktop/FreedesktopPopover.h"
#include "Platform/Freedesktop/Desktop/FreedesktopStatusItem.h"

Desktop Desktop::native() {
    return {.statusItem = std::make_shared<FreedesktopStatusItem>(),
            .popover = std::make_shared<FreedesktopPopover>(),
            .application = std::make_shared<FreedesktopDesktopApplication>(),
            .notifications = std::make_shared<FreedesktopNotifications>(),
            .makePanel = [] { return std::make_unique<FreedesktopFloatingPanel>(); }};
}
