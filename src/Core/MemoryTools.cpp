#include "Core/MemoryTools.h"

#include "Platform/ToolRunner.h"

using namespace Qt::StringLiterals;

QCoro::Task<bool> Cleaner::memoryPressure(std::shared_ptr<ToolRunner> tools) {
    ToolRequest request;
    request.launchPath = u"/usr/bin/memory_pressure"_s;
    request.arguments = QStringList({u"-l"_s, u"warn"_s});
    request.terminateAfter = std::chrono::milliseconds(1500);
    const ToolResult result = co_await tools->run(request);
    co_return result.launched;
}

QCoro::Task<bool> Cleaner::deepPurge(std::shared_ptr<ToolRunner> tools) {
    return runOsascript(std::move(tools),
                        u"do shell script \"/usr/sbin/purge\" with administrator privileges"_s);
}

QCoro::Task<bool> Cleaner::runOsascript(std::shared_ptr<ToolRunner> tools, QString script) {
    ToolRequest request;
    request.launchPath = u"/usr/bin/osascript"_s;
    request.arguments = QStringList({u"-e"_s, script});
    const ToolResult result = co_await tools->run(request);
    co_return result.succeeded();
}
