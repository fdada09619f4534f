#pragma once

#include <QIcon>
#include <QStringList>

/// Icons that carry figures by themselves, for trays that have no room for text.
namespace FigureIcon {

/// None: the program's pulse line. One: the figure over the whole icon. Two: one above the other, the upper
/// in the colour of the CPU, the lower in that of memory. On a badge of its own, so that it can be read on a
/// light and on a dark tray.
QIcon make(const QStringList& figures);

} // namespace FigureIcon
