#pragma once

#include "Platform/Signals.h"

/// Sends signals by pidfd_open(2) and pidfd_send_signal(2). Where the kernel or a sandbox lacks those, it
/// uses kill(2) after a check of the process's start time (proc(5), stat: 22).
class LinuxSignals : public Signals {
public:
    std::shared_ptr<ProcessHandle> hold(qint32 pid) override;
};
