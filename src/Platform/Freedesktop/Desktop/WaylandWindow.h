#pragma once

#include <QGuiApplication>

/// Where a compositor decides what an X11 program decides for itself. It places every window; to Qt each
/// one's top left corner is the origin.
namespace WaylandWindow {

inline bool isWayland() {
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

/// X11 in the session of a compositor, which tells us of clicks and keys in our own windows alone.
inline bool isXWayland() {
    return QGuiApplication::platformName() == u"xcb" && qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

} // namespace WaylandWindow
