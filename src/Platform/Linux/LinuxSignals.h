#pragma once

#include "Platform/Signals.h"

/// Signals through pidfd_open(2) and pidfd_send_signal(2); through kill(2) where the kernel or a sandbox
/// does not offer those.
class LinuxSignals : public Signals {
public:
    std::shared_ptr<ProcessHandle> hold(qint32 pid) override;
};
