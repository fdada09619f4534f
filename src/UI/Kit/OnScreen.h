#pragma once

#include <QWidget>

/// Whether a person could see the widget; one that is not on screen does no work for a tick.
inline bool isOnScreen(const QWidget* widget) {
    return widget->isVisible() && !widget->window()->isMinimized();
}
