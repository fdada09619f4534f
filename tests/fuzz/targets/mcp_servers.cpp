#include "Core/Mcp/MCPInspector.h"
#include "Core/Sampling/LaunchedProgram.h"
#include "fuzz/Fuzz.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Reads a process per line: name, path and arguments, separated by TABs. Each is the parent of the next but
/// one.
QList<ProcSample> processesIn(const QByteArray& input) {
    QList<ProcSample> processes;
    for (const QByteArray& line : input.split('\n')) {
        const QStringList fields = QString::fromUtf8(line).split(u'\t');
        const QStringList arguments = fields.value(2).split(u' ');
        const auto pid = static_cast<qint32>(processes.size() + 1);
        processes.append({.pid = pid,
                          .parentPid = pid - 2,
                          .name = fields.value(0),
                          .executablePath = fields.value(1),
                          .arguments = fields.value(2),
                          .rssBytes = static_cast<quint64>(line.size() % 7),
                          .program = LaunchedProgram::read(fields.value(1), arguments).program});
    }
    return processes;
}

/// Returns whether the text has a mark, by a plain search.
bool isServerText(const QString& text) {
    QString lower = text;
    for (QChar& character : lower)
        character = character.toLower();
    static const QRegularExpression marks(
        u"modelcontextprotocol|mcp-server|mcp_server|stitch|composio-social|hostinger-mcp|memory-server|"
        "filesystem-server|puppeteer-mcp|playwright-mcp|supabase-mcp|context7|[a-z0-9_]-mcp(?![a-z0-9])"_s);
    return lower.contains(marks);
}

/// Returns whether the process may be a server. A host or a launcher with a mark is none.
bool mayBeServer(const ProcSample& process) {
    return isServerText(process.name) || isServerText(process.executablePath) ||
           isServerText(process.program);
}

bool isInOrder(const MCPInspector::LiveServer& one, const MCPInspector::LiveServer& next) {
    return one.isOrphan == next.isOrphan ? one.rssBytes >= next.rssBytes : one.isOrphan;
}

void describesItsProcess(const MCPInspector::LiveServer& server, const QList<ProcSample>& processes) {
    const ProcSample& process = processes[server.pid - 1];
    Fuzz::require(mayBeServer(process) && !MCPInspector::isHost(process));
    Fuzz::require(server.name == process.name && server.rssBytes >= process.rssBytes);
    Fuzz::require(server.displayLabel == process.name || process.arguments.contains(server.displayLabel));
    Fuzz::require(server.parentPid > 0 || (server.isOrphan && server.parentName == u"(init or gone)"));
}

} // namespace

/// A table of processes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QList<ProcSample> processes = processesIn(Fuzz::bytes(data, size));
    const MCPInspector::Report report{.configured = {}, .live = MCPInspector::detectLive(processes)};
    Fuzz::require(report.live.size() <=
                  std::count_if(processes.begin(), processes.end(), &MCPInspector::isMCPServerProcess));
    quint64 orphanBytes = 0;
    for (qsizetype i = 0; i < report.live.size(); ++i) {
        describesItsProcess(report.live[i], processes);
        Fuzz::require(i == 0 || isInOrder(report.live[i - 1], report.live[i]));
        orphanBytes += i < report.orphanCount() ? report.live[i].rssBytes : 0;
    }
    Fuzz::require(orphanBytes == report.orphanBytes());
    return 0;
}
