#pragma once

#include "Core/Alerts/Alert.h"

#include <QIcon>
#include <QStringList>

#include <optional>

/// Icons with figures, for trays that have no room for text.
namespace FigureIcon {

/// Returns a badge with the figures, which can be read on a light and on a dark tray. Of two figures, CPU is
/// above and memory below, each in its colour. Without a figure it shows the program's pulse line. The worst
/// alert is a mark at the right edge, whose shape tells the severity where colours do not show.
QIcon make(const QStringList& figures, std::optional<Alert::Severity> worst = {});

/// Returns the mark alone.
QIcon mark(Alert::Severity severity);

} // namespace FigureIcon
