#pragma once

#include "Cli/Table.h"
#include "Core/Report/Report.h"

class AppModel;
class QCommandLineParser;

/// What the commands that act have in common.
namespace Actions {

/// Returns the start of an action's document. It has no kind of `Report::Kind`, but the name of the command.
QJsonObject head(const QString& command, const Report::Origin& origin);

/// Returns the processes as a table, and as a document.
QString text(const QList<ProcSample>& processes, const TableStyle& style);
QJsonArray list(const QList<ProcSample>& processes, const Report::Origin& origin);

/// Returns the line "This gives back 12 MB of memory and 3 MB of swap.", with "at most" where the figure is
/// rough.
QString text(const MemoryReturn& givesBack);

/// Returns the listed processes of these PIDs.
QList<ProcSample> samples(const AppModel& model, const QList<qint32>& pids);

/// Reads a number of an option. Returns the fallback where it is absent, and an empty optional for a text
/// that is no number from 0 on.
std::optional<double> number(const QCommandLineParser& options, const QString& name, double fallback);

} // namespace Actions
