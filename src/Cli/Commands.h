#pragma once

#include "Cli/Command.h"

/// Every command of tavrinctl, each in a file of its own.
namespace Commands {

Command status();
Command groups();
Command processes();
Command sessions();
Command servers();
Command alerts();
Command caches();
Command projects();
Command log();
Command watch();
Command free();
Command endSession();
Command endLeftOvers();
Command quit();
Command preset();
Command clean();
Command mcp();

/// Returns all, in the order of the help.
QList<Command> all();

} // namespace Commands
