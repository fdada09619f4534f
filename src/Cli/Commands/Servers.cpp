#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"

using namespace Qt::StringLiterals;

namespace {

QString serversText(const QJsonObject& document, const TableStyle& style) {
    const QJsonArray servers = document.value(u"servers"_s).toArray();
    if (servers.isEmpty())
        return u"No MCP servers are running.\n"_s;
    const Column state = {.title = u"STATE"_s, .text = [](const QJsonObject& server) {
                              return server.value(u"is_orphan"_s).toBool() ? u"orphan"_s : u"in use"_s;
                          }};
    return Table::of({Column::ofNumber(u"PID"_s, u"pid"_s), Column::ofBytes(u"RESIDENT"_s, u"rss_bytes"_s),
                      state, Column::ofText(u"PARENT"_s, u"parent_name"_s, 2),
                      Column::ofText(u"SERVER"_s, u"label"_s)},
                     servers, style);
}

ExitStatus runServers(Run& run) {
    const QJsonObject document = QCoro::waitFor(run.machine.report(Report::Kind::servers));
    run.output.print(document,
                     [&run](const QJsonObject& each) { return serversText(each, run.output.style()); });
    return ExitStatus::done;
}

} // namespace

Command Commands::servers() {
    return {.name = u"servers"_s,
            .summary = u"Lists the running MCP servers, orphans first"_s,
            .run = runServers};
}
