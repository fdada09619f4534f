#pragma once

#include <QIcon>
#include <QStringList>

/// Icons with figures, for trays that have no room for text.
namespace FigureIcon {

/// Returns a badge with the figures, which can be read on a light and on a dark tray. Of two figures, CPU is
/// above and memory below, each in its colour. Without a figure it shows the program's pulse line.
QIcon make(const QStringList& figures);

} // namespace FigureIcon
