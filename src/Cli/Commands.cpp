#include "Cli/Commands.h"

QList<Command> Commands::all() {
    return {status(),       groups(),   processes(), sessions(), servers(), alerts(),
            caches(),       projects(), log(),       watch(),    free(),    endSession(),
            endLeftOvers(), quit(),     preset(),    clean(),    mcp()};
}
