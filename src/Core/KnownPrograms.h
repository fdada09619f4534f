#pragma once

#include "Core/Models.h"

#include <QStringView>

/// The programs of this system that are known by name: the group each belongs to, and whether it runs MCP
/// servers of its own. One table, so that a new agent or editor is one row.
namespace KnownPrograms {

struct Program {
    const char16_t* name; ///< last component of the executable, the script without its ending, the module or
                          ///< the package, in lower case
    ProcGroup group;
    bool hostsServers = false; ///< an agent, or an editor that runs agents
};

/// The row of exactly that name, letter case aside; null for a name that is not known.
const Program* find(QStringView name);

/// The row of what the process runs: found by its name, its executable or its `program`. Null when none of
/// them is known.
const Program* of(const ProcSample& process);

} // namespace KnownPrograms
