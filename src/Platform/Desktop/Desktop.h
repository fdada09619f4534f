#pragma once

#include <functional>
#include <memory>

class DesktopApplication;
class FileChooser;
class FloatingPanel;
class Notifications;
class Popover;
class StatusItem;

/// The services of a desktop.
struct Desktop {
    std::shared_ptr<StatusItem> statusItem;
    std::shared_ptr<Popover> popover;
    std::shared_ptr<DesktopApplication> application;
    std::shared_ptr<Notifications> notifications;
    std::shared_ptr<FileChooser> fileChooser; ///< null where there is none
    std::function<std::unique_ptr<FloatingPanel>()> makePanel;

    /// Makes the services of the desktop this program was built for. Needs a running QApplication.
    static Desktop native();
};
