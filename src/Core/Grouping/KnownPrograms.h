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

/// The row of exactly that name, letter case aside; null for a name that is not known.
const Program* find(QStringView name);

/// The row of what the process runs: found by its name, its executable or its `program`, at last by the
/// hidden folders that its executable is in. Null when none of them is known.
const Program* of(const ProcSample& process);

/// Whether a name or a folder, letter case aside, is known for holding a pattern of that group and being
/// something else. A folder right in the user's home folder begins with "~/".
bool onlySoundsLike(ProcGroup group, QStringView name);

} // namespace KnownPrograms
