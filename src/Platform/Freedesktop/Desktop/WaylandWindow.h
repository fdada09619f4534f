#pragma once

#include <QGuiApplication>

/// Tells whether a Wayland compositor decides on windows. It places them all, and Qt reports each at (0, 0).
namespace WaylandWindow {

inline bool isWayland() {
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

/// Returns true for X11 in a Wayland session, where input outside our own windows is hidden.
inline bool isXWayland() {
    return QGuiApplication::platformName() == u"xcb" && qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

} // namespace WaylandWindow
