#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Mcp/McpServer.h"
#include "Cli/Output.h"
#include "Platform/Identity.h"
#include "Platform/Terminal.h"
#include "Platform/TerminationRequest.h"

#include <QEventLoop>

using namespace Qt::StringLiterals;

namespace {

ExitStatus runMcp(Run& run) {
    McpServer server(run.machine, {run.environment.version, run.environment.platform.identity->processId()});
    const TerminationRequest termination;
    QEventLoop loop;
    Terminal& terminal = run.output.terminal();
    QObject::connect(&server, &McpServer::answered, &loop, [&](const QJsonObject& message) {
        run.output.printJson(message, false);
        if (!run.output.isWritten())
            loop.quit();
    });
    QObject::connect(&terminal, &Terminal::lineRead, &server, &McpServer::take);
    QObject::connect(&terminal, &Terminal::inputEnded, &server, &McpServer::finish);
    QObject::connect(&server, &McpServer::finished, &loop, &QEventLoop::quit);
    QObject::connect(&termination, &TerminationRequest::received, &loop, &QEventLoop::quit);
    terminal.listen();
    loop.exec();
    return ExitStatus::done;
}

} // namespace

Command Commands::mcp() {
    return {.name = u"mcp"_s,
            .summary = u"Serves coding agents by the Model Context Protocol, read only"_s,
            .run = runMcp};
}
