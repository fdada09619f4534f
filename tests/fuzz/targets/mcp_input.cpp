#include "Cli/Machine.h"
#include "Cli/Mcp/McpServer.h"
#include "fuzz/Fuzz.h"
#include "fuzz/ScriptedMachine.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

void check(const QJsonObject& message) {
    Fuzz::require(message.value(u"jsonrpc"_s) == u"2.0"_s && message.contains(u"id"_s));
    Fuzz::require(message.contains(u"result"_s) != message.contains(u"error"_s));
}

} // namespace

/// The answer of a running program, then what a client sends, a message on each line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QList<QByteArray> parts = Fuzz::texts(Fuzz::bytes(data, size), 2);
    Fuzz::ScriptedMachine scripted(parts[0]);
    const Environment environment = scripted.environment();
    Machine machine(environment, {.hasCpu = false});
    McpServer server(machine, {u"1.2.3"_s, 90});
    qsizetype answers = 0;
    bool isFinished = false;
    QObject::connect(&server, &McpServer::answered, &server, [&answers](const QJsonObject& message) {
        check(message);
        ++answers;
    });
    QObject::connect(&server, &McpServer::finished, &server, [&isFinished] { isFinished = true; });
    const QList<QByteArray> lines = parts[1].split('\n');
    for (const QByteArray& line : lines)
        server.take(line);
    server.finish();
    for (int turn = 0; turn < 1000 && !isFinished; ++turn)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 10);
    Fuzz::require(isFinished && answers <= lines.size());
    Fuzz::require(scripted.signalsSent() == 0);
    return 0;
}
