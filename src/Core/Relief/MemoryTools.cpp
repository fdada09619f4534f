#include "Core/Relief/MemoryTools.h"

#include "Platform/ToolRunner.h"

using namespace Qt::StringLiterals;

namespace {

ToolRequest scriptRequest(const QString& script) {
    ToolRequest request;
    request.launchPath = u"/usr/bin/osascript"_s;
    request.arguments = QStringList({u"-e"_s, script});
    return request;
}

Cleaner::MemoryAnswer answerOf(bool done, const ToolResult& result) {
    return {.done = done, .reason = done ? QString() : result.complaint};
}

} // namespace

QCoro::Task<Cleaner::MemoryAnswer> Cleaner::memoryPressure(std::shared_ptr<ToolRunner> tools) {
    ToolRequest request;
    request.launchPath = u"/usr/bin/memory_pressure"_s;
    request.arguments = QStringList({u"-l"_s, u"warn"_s});
    request.terminateAfter = std::chrono::milliseconds(1500);
    const ToolResult result = co_await tools->run(request);
    co_return answerOf(result.launched, result);
}

QCoro::Task<Cleaner::MemoryAnswer> Cleaner::deepPurge(std::shared_ptr<ToolRunner> tools) {
    const ToolRequest request =
        scriptRequest(u"do shell script \"/usr/sbin/purge\" with administrator privileges"_s);
    const ToolResult result = co_await tools->run(request);
    co_return answerOf(result.succeeded(), result);
}

QCoro::Task<bool> Cleaner::runOsascript(std::shared_ptr<ToolRunner> tools, QString script) {
    const ToolRequest request = scriptRequest(script);
    const ToolResult result = co_await tools->run(request);
    co_return result.succeeded();
}
