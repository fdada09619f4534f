#include "Platform/Linux/LinuxRelief.h"

#include "Platform/Log.h"
#include "Platform/ToolRunner.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

enum class DoneWhen { launched, succeeded };

ToolRequest scriptRequest(const QString& script) {
    return {.launchPath = u"/usr/bin/osascript"_s, .arguments = {u"-e"_s, script}};
}

QCoro::Task<Outcome> runTool(std::shared_ptr<ToolRunner> tools, ToolRequest request, DoneWhen when) {
    const ToolResult result = co_await tools->run(request);
    const bool done = when == DoneWhen::launched ? result.launched : result.succeeded();
    if (!done) {
        qCWarning(Log::relief) << "not done:" << request.launchPath << "status" << result.exitStatus;
        qCDebug(Log::relief) << request.arguments << result.errorLine;
    }
    co_return done ? Outcome::success() : Outcome::failure(result.errorLine);
}

} // namespace

LinuxRelief::LinuxRelief(std::shared_ptr<ToolRunner> tools)
    : m_tools(std::move(tools)) {}

QString LinuxRelief::quitScript(const QString& name, bool force) {
    const QString escaped = QString(name).replace(u'"', u"\\\""_s);
    return u"tell application \""_s + escaped + (force ? u"\" to quit saving no"_s : u"\" to quit"_s);
}

QCoro::Task<Outcome> LinuxRelief::quitApplication(QString name, bool force) {
    return runTool(m_tools, scriptRequest(quitScript(name, force)), DoneWhen::succeeded);
}

QCoro::Task<Outcome> LinuxRelief::reclaimMemory() {
    const ToolRequest request{.launchPath = u"/usr/bin/memory_pressure"_s,
                              .arguments = {u"-l"_s, u"warn"_s},
                              .timeout = std::chrono::milliseconds(1500)};
    return runTool(m_tools, request, DoneWhen::launched);
}

QCoro::Task<Outcome> LinuxRelief::dropCaches(std::stop_token stop) {
    ToolRequest request =
        scriptRequest(u"do shell script \"/usr/sbin/purge\" with administrator privileges"_s);
    request.stop = stop;
    return runTool(m_tools, request, DoneWhen::succeeded);
}
