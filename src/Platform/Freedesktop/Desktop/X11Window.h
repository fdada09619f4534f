#pragma once

#include <QtGlobal>

class QWidget;

/// What the extended window manager hints offer and Qt does not. Under Wayland these do nothing.
namespace X11Window {

bool isX11();

/// On every desktop; holds for the window's next mapping too.
void setOnAllDesktops(QWidget* window);
/// In the task bar and pager, or not.
void setSkipTaskbar(QWidget* window, bool skip);
/// To the front with the keyboard, as if the user had picked it from a pager.
void activate(QWidget* window);
/// Whether a compositor runs, without which nothing can be translucent.
bool isComposited();
/// The window of the tray that takes in windows (XEmbed); 0 for none.
quint32 tray();

} // namespace X11Window
