#pragma once

#include <chrono>
#include <string>

namespace Tools {

enum class QuitOutcome { Quit, NotFound, HasNoWindow, StillRunning };

/// How long an application gets to end by itself.
struct QuitPatience {
    std::chrono::milliseconds afterClosing{10'000};
    std::chrono::milliseconds beforeForce{2'000}; ///< instead of afterClosing when it will be forced
    std::chrono::milliseconds afterEachSignal{1'000};
};

/// Closes the windows of the application `name` and waits for its processes to end; `forced` then ends what
/// is left. Its windows are those of that class, instance or program, letter case aside; its processes those
/// of this user that run from NAME.app, run a program NAME, or show such a window and are called like it. An
/// application without a window cannot be asked, only forced. Never touches this process, its parent, or
/// another process of the parent's program.
QuitOutcome quitApplication(const std::string& name, bool forced, const QuitPatience& patience = {});

} // namespace Tools
