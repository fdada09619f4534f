#pragma once

#include <QString>

#include <chrono>

class LinuxApplications;

namespace Tools {

enum class QuitOutcome { Quit, NotFound, Ambiguous, StillRunning };

/// How long an application gets to end by itself.
struct QuitPatience {
    std::chrono::milliseconds afterAsking{10'000};
    std::chrono::milliseconds beforeForce{2'000};   ///< instead of afterAsking when it will be forced
    std::chrono::milliseconds withoutWindow{7'000}; ///< for one that closed its windows and is still there
    std::chrono::milliseconds afterEachSignal{1'000};
};

/// Asks the application `name` to quit and waits for all of it to end; `forced` then ends what is left.
///
/// Its processes are those of this user that `applications` says belong to the one of that name (in the menu;
/// else that id; else that program), and those that run from a bundle NAME.app. It is asked by its action
/// "quit" on the session's bus, else by closing its windows on the X display, else by its slot "quit" on the
/// bus. Where it has none of these, and where it only went to the tray, its main process gets SIGTERM. Never
/// touches this process, its parent, or another process of the parent's program.
QuitOutcome quitApplication(const QString& name, bool forced, LinuxApplications& applications,
                            const QuitPatience& patience = {});

} // namespace Tools
