#pragma once

#include "Core/RawValue.h"

#include <array>

class ProcessHandle;

/// The outcome for one process: it ended on request; it was killed; no signal could be delivered; the system
/// denied permission.
enum class KillOutcome { quit, forced, ignored, denied };

template <>
inline constexpr std::array rawValueTable<KillOutcome> = {
    RawValueRow{KillOutcome::quit, u"quit"},
    RawValueRow{KillOutcome::forced, u"forced"},
    RawValueRow{KillOutcome::ignored, u"ignored"},
    RawValueRow{KillOutcome::denied, u"denied"},
};

/// Asks a process to end.
KillOutcome askToEnd(ProcessHandle& process);
/// Kills a process that did not end when it was asked. One that is gone by now, or that may no longer be
/// signalled, counts as `quit`.
KillOutcome killIfPresent(ProcessHandle& process);
/// Returns whether the process has ended. A failed question says nothing about its end.
bool hasEnded(ProcessHandle& process);
