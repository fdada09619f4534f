#include "Platform/Desktop/Desktop.h"
#include "Platform/Freedesktop/Desktop/FreedesktopDesktopApplication.h"
#include "Platform/Freedesktop/Desktop/FreedesktopFloatingPanel.h"
#include "Platform/Freedesktop/Desktop/FreedesktopNotifications.h"
#include "Platform/Freedesktop/Desktop/FreedesktopPopover.h"
#include "Platform/Freedesktop/Desktop/FreedesktopStatusItem.h"
#include "Platform/Freedesktop/Desktop/PortalFileChooser.h"

Desktop Desktop::native() {
    return {.statusItem = std::make_shared<FreedesktopStatusItem>(),
            .popover = std::make_shared<FreedesktopPopover>(),
            .application = std::make_shared<FreedesktopDesktopApplication>(),
            .notifications = std::make_shared<FreedesktopNotifications>(),
            .fileChooser = std::make_shared<PortalFileChooser>(),
            .makePanel = [] { return std::make_unique<FreedesktopFloatingPanel>(); }};
}
