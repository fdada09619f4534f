#pragma once

#include <QString>

#include <chrono>

class LinuxApplications;

namespace Tools {

enum class QuitOutcome { Quit, NotFound, Ambiguous, StillRunning };

/// How long an application may take to end.
struct QuitTimeouts {
    std::chrono::milliseconds afterAsking{10'000};
    std::chrono::milliseconds beforeForce{2'000};   ///< instead of afterAsking when forced
    std::chrono::milliseconds withoutWindow{7'000}; ///< until one that closed its windows gets SIGTERM
    std::chrono::milliseconds afterEachSignal{1'000};
};

/// Asks the application `name` to quit and waits for all its processes to end; `forced` then kills the rest.
///
/// Its processes are those of this user that belong to the application of that name in the menu, else that
/// id, else that program, and those that run from a bundle NAME.app. It is asked by its action "quit" on the
/// session bus, else by closing its windows on the X display, else by its slot "quit" on the bus. Without any
/// of these, or when it only went to the tray, its main process gets SIGTERM. Never touches this process, its
/// parent, or another process of the parent's program.
QuitOutcome quitApplication(const QString& name, bool forced, LinuxApplications& applications,
                            const QuitTimeouts& timeouts = {});

} // namespace Tools
