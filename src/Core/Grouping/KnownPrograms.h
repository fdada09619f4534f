#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QStringView>

/// The programs of this system that are known by name: the group each belongs to, and whether it runs MCP
/// servers of its own. The names are in `KnownProgramsTable.h`.
namespace KnownPrograms {

struct Program {
    QStringView name; ///< as in the table, in lower case
    ProcGroup group;
    bool hostsServers = false; ///< an agent, or an editor that runs agents
};

/// Returns the row of exactly that name in any case, null for an unknown one.
const Program* find(QStringView name);

/// Returns the row of what the process runs: found by its name, its executable or its `program`, at last by
/// the hidden folders that its executable is in. Returns null when all are unknown.
const Program* of(const ProcSample& process);

/// Returns whether a name or a folder, in any case, contains a pattern of that group and is known to be
/// something else. A folder directly in the user's home folder begins with "~/".
bool onlySoundsLike(ProcGroup group, QStringView name);

} // namespace KnownPrograms
