#pragma once

#include <QtGlobal>

class QWidget;

/// The extended window manager hints that Qt lacks. No-ops under Wayland.
namespace X11Window {

bool isX11();

/// Shows the window on every desktop, now and at its next mapping.
void setOnAllDesktops(QWidget* window);
/// Hides the window from task bar and pager.
void setSkipTaskbar(QWidget* window, bool skip);
/// Keeps a window that belongs to no task out of task bar and pager, now and at its next mapping.
void keepOffTaskbar(QWidget* window);
/// Raises the window and gives it the keyboard, as a pager does.
void activate(QWidget* window);
/// Returns whether a compositor runs, which translucent windows need.
bool isComposited();
/// Returns the window of the XEmbed tray, or 0.
quint32 tray();

} // namespace X11Window
