#pragma once

#include <functional>

class QMenu;

/// The menu of the whole program, the same on the status item and in the main window.
namespace AppMenu {

/// `open` brings the main window forward.
void fill(QMenu& menu, std::function<void()> open);

} // namespace AppMenu
