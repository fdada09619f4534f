#pragma once

#include "Platform/ToolRunner.h"

/// Runs programs as children of low CPU and I/O priority that end with this program, with nothing on their
/// standard input. Output that nobody asked for, and all of standard error, is dropped. A child that outlives
/// `terminateAfter`, counted from its launch, gets SIGTERM and, a second later, SIGKILL. Needs a running
/// event loop.
class LinuxToolRunner : public ToolRunner {
public:
    /// A program that cannot be launched answers at once.
    QCoro::Task<ToolResult> run(ToolRequest request) override;
};
