#pragma once

#include "Core/Sampling/ProcSample.h"

#include <memory>

class Applications;

/// Tells the programs that a person uses directly, and those that serve all programs of the user. An agent
/// may have opened one; that does not make it a part of the agent's session.
class DirectUse {
public:
    explicit DirectUse(std::shared_ptr<Applications> applications);

    /// Returns true for terminals and their multiplexers, for editors, for browsers that no program
    /// controls, for every other application of the menu, for containers, and for the daemons of a login.
    bool contains(const ProcSample& process) const;
    /// Returns whether the process waits for the crash of another, with which it ends.
    static bool isCrashHandler(const ProcSample& process);

private:
    std::shared_ptr<Applications> m_applications;
};
