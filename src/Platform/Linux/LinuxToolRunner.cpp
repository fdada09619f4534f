#include "Platform/Linux/LinuxToolRunner.h"

#include "Platform/Linux/DescriptorLimit.h"

#include <QCoroFuture>
#include <QProcess>
#include <QPromise>
#include <QTimer>

#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr std::chrono::seconds graceAfterTerminate{1};

/// In the child, before its program: only calls that are safe after a fork.
void prepareChild(pid_t parent, const rlimit& descriptors) {
    constexpr int niceness = 10;
    // ioprio_set(2), whose header C++ cannot read: the class in the upper bits, the level in the lower 13.
    constexpr int thisProcess = 1;
    constexpr int bestEffort = 2;
    constexpr int lowestLevel = 7;
    setpriority(PRIO_PROCESS, 0, niceness);
    syscall(SYS_ioprio_set, thisProcess, 0, bestEffort << 13 | lowestLevel);
    setrlimit(RLIMIT_NOFILE, &descriptors);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) // it ended before the line above
        _exit(1);
}

void configure(QProcess& process, bool captureOutput) {
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (!captureOutput)
        process.setStandardOutputFile(QProcess::nullDevice());
    process.setChildProcessModifier(
        [parent = getpid(), descriptors = DescriptorLimit::atStart()] { prepareChild(parent, descriptors); });
}

/// Done once the process ended or could not be launched.
QFuture<void> endOf(const QProcess& process) {
    const auto promise = std::make_shared<QPromise<void>>();
    promise->start();
    QObject::connect(&process, &QProcess::stateChanged, [promise](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            promise->finish();
    });
    return promise->future();
}

void terminateLater(QProcess* process, std::chrono::milliseconds time) {
    QTimer::singleShot(time, process, [process] {
        process->terminate();
        QTimer::singleShot(graceAfterTerminate, process, &QProcess::kill);
    });
}

} // namespace

QCoro::Task<ToolResult> LinuxToolRunner::run(ToolRequest request) {
    QProcess process;
    configure(process, request.captureOutput);
    QFuture<void> ended = endOf(process);
    process.start(request.launchPath, request.arguments);
    if (request.terminateAfter)
        terminateLater(&process, *request.terminateAfter);
    co_await ended;

    ToolResult result;
    result.launched = process.error() != QProcess::FailedToStart;
    if (result.launched && process.exitStatus() == QProcess::NormalExit)
        result.exitStatus = process.exitCode();
    if (request.captureOutput)
        result.output = process.readAllStandardOutput();
    co_return result;
}
