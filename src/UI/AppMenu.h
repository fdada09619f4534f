#pragma once

#include <functional>

class QMenu;

/// The menu of the program, on the status item and in the main window.
namespace AppMenu {

/// Adds the entries. `open` brings the main window forward, `openSettings` the settings window.
void fill(QMenu& menu, std::function<void()> open, std::function<void()> openSettings);

} // namespace AppMenu
