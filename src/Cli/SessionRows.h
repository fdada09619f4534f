#pragma once

#include "Cli/Table.h"

/// The sessions of a document as tables.
namespace SessionRows {

QString text(const QJsonObject& document, const TableStyle& style);

} // namespace SessionRows
