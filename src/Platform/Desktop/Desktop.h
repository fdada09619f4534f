#pragma once

#include <functional>
#include <memory>

class DesktopApplication;
class FloatingPanel;
class Popover;
class StatusItem;

/// What the program asks of a desktop, beside the operating system below it.
struct Desktop {
    std::shared_ptr<StatusItem> statusItem;
    std::shared_ptr<Popover> popover;
    std::shared_ptr<DesktopApplication> application;
    std::function<std::unique_ptr<FloatingPanel>()> makePanel;

    /// The answers of the desktop that the program runs on. Needs a running QApplication.
    static Desktop native();
};
