#include "Platform/Unix/DescriptorLimit.h"
#include "Platform/Unix/UnixToolRunner.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

QCoro::Task<ToolResult> runShell(QString command) {
    ToolRequest request;
    request.launchPath = u"/bin/sh"_s;
    request.arguments = QStringList({u"-c"_s, command});
    request.captureOutput = true;
    UnixToolRunner runner;
    const ToolResult result = co_await runner.run(request);
    co_return result;
}

} // namespace

/// A program like ours that runs a shell command as its tool:
///   tool_host wait COMMAND    prints the output of the command
///   tool_host leave COMMAND   ends while the command runs
///   tool_host where PATH      prints the program for a launch path
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 3)
        return 2;
    if (std::string_view(argv[1]) == "where") {
        std::puts(qPrintable(UnixToolRunner().programFor(QString::fromLocal8Bit(argv[2]))));
        return 0;
    }
    DescriptorLimit::raised();
    auto task = runShell(QString::fromLocal8Bit(argv[2]));
    if (std::string_view(argv[1]) == "leave") {
        QTimer::singleShot(500, &application, &QCoreApplication::quit);
        return QCoreApplication::exec();
    }
    const ToolResult result = QCoro::waitFor(task);
    std::fwrite(result.output.data(), 1, static_cast<size_t>(result.output.size()), stdout);
    return result.exitStatus;
}
