#pragma once

#include "Cli/Table.h"

/// Alerts as lines for people.
namespace SeverityText {

/// Returns a line for each alert, with its severity in colour.
QString lines(const QJsonArray& alerts, const TableStyle& style);

} // namespace SeverityText
