#pragma once

#include "Platform/Signals.h"

/// Signals through pidfd_open(2) and pidfd_send_signal(2). Where the kernel or a sandbox does not offer
/// those, through kill(2), each time after a look at the start time of whoever has the id (proc(5), stat:
/// 22).
class LinuxSignals : public Signals {
public:
    std::shared_ptr<ProcessHandle> hold(qint32 pid) override;
};
