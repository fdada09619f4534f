#pragma once

#include <chrono>
#include <string>

namespace Tools {

enum class QuitOutcome { Quit, NotFound, StillRunning };

/// How long an application gets to end by itself.
struct QuitPatience {
    std::chrono::milliseconds afterClosing{10'000};
    std::chrono::milliseconds beforeForce{2'000}; ///< instead of afterClosing when it will be forced
    std::chrono::milliseconds afterEachSignal{1'000};
};

/// Asks the application `name` to quit and waits for all of it to end; `forced` then ends what is left. A
/// name of the desktop's menu means the processes of that application and their windows; any other the
/// processes that run from NAME.app, and the windows of that class, instance or program, letter case aside.
/// It is asked on the session's bus where it has an action for that, else by closing its windows, and where
/// it has none by SIGTERM to its main process. Never touches this process, its parent, or another process of
/// the parent's program.
QuitOutcome quitApplication(const std::string& name, bool forced, const QuitPatience& patience = {});

} // namespace Tools
