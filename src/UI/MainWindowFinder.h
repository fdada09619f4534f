#pragma once

class DesktopApplication;

/// Bringing the main window forward, from the panel and from the floating widget.
namespace MainWindowFinder {

/// What to take when there is neither a main window nor any other but settings.
enum class Fallback { anyWindow, nothing };

/// Gives the program its task bar entry back if it had none, then brings forward the window with a main
/// window's title, else the first one that is not the settings, else what `fallback` says.
void open(DesktopApplication& application, Fallback fallback);

} // namespace MainWindowFinder
