#pragma once

#include <QPolygonF>

/// Returns the lowest and the highest point of each column of pixels. More cannot be seen, and stroking the
/// thousands of a long history takes tens of milliseconds.
QPolygonF thinnedLine(const QPolygonF& line);
