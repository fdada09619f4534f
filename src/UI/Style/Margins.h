#pragma once

#include <QGuiApplication>
#include <QMargins>

/// Returns the margins that a layout needs. Those of `margins` are for one that runs from left to right.
inline QMargins mirrored(const QMargins& margins) {
    return QGuiApplication::isRightToLeft()
               ? QMargins(margins.right(), margins.top(), margins.left(), margins.bottom())
               : margins;
}
