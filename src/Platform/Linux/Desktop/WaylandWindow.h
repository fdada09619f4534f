#pragma once

#include <QGuiApplication>

/// Where a compositor decides what an X11 program decides for itself. It places every window; to Qt each
/// one's top left corner is the origin.
namespace WaylandWindow {

inline bool isWayland() {
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

} // namespace WaylandWindow
