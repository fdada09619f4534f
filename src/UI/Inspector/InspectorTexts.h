#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>

class AppModel;
struct ProcessInspection;

/// What the inspector says of a process.
namespace InspectorTexts {

/// Returns what it is in words: "MCP server context7 for claude in ~/src/app". `seen` is null until the
/// process was inspected.
QString whatItIs(const AppModel& model, const ProcSample& process, const ProcessInspection* seen);
/// Returns the title of the session that it belongs to, empty for none.
QString sessionOf(const AppModel& model, const ProcSample& process);
/// Returns its parent, the parent of that and so on, as far as they are listed, 12 at most.
QList<ProcSample> parentsOf(const AppModel& model, const ProcSample& process);
/// Returns the locale's short date and time, and the age: "11/26/26 9:41 AM, 3.2h ago".
QString started(const ProcSample& process, Instant now);
/// Returns ":3000, :5173".
QString ports(const QList<quint16>& ports);

} // namespace InspectorTexts
