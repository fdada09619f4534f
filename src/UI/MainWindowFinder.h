#pragma once

class DesktopApplication;

/// Finds the main window, for the panel and for the floating widget.
namespace MainWindowFinder {

/// The window to bring forward when there is none but the settings.
enum class Fallback { anyWindow, nothing };

/// Gives the program a task bar entry if it has none. Brings forward the window with a main window's title,
/// else the first one that is not the settings, else what `fallback` says.
void open(DesktopApplication& application, Fallback fallback);

} // namespace MainWindowFinder
