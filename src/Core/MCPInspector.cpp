#include "Core/MCPInspector.h"

#include "Core/PatternMatcher.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::LiveServer;

enum Fact : PatternMatcher::Facts {
    serverName = 1 << 0,
    mcpSuffix = 1 << 1, ///< "-mcp" occurs; what stands around it decides
};

constexpr QStringView suffix = u"-mcp";

/// Every process is tested on every tick, so the texts are searched for all marks in one pass. No mark holds
/// a blank, so none could span two of the three texts.
const PatternMatcher& marks() {
    static const PatternMatcher matcher({{"modelcontextprotocol", serverName},
                                         {"mcp-server", serverName},
                                         {"mcp_server", serverName},
                                         {"stitch", serverName},
                                         {"composio-social", serverName},
                                         {"hostinger-mcp", serverName},
                                         {"memory-server", serverName},
                                         {"filesystem-server", serverName},
                                         {"puppeteer-mcp", serverName},
                                         {"playwright-mcp", serverName},
                                         {"supabase-mcp", serverName},
                                         {"context7", serverName},
                                         {"-mcp", mcpSuffix}});
    return matcher;
}

bool isLetterOrDigit(QChar character) {
    const char16_t lower = character.toLower().unicode();
    return (lower >= u'a' && lower <= u'z') || (lower >= u'0' && lower <= u'9');
}

/// "foo-mcp" as a word of its own: "foo-mcp@1.2" and "foo-mcp/x", but neither "foo-mcpx" nor " -mcp".
bool hasSuffixWord(QStringView text) {
    qsizetype at = text.indexOf(suffix, 0, Qt::CaseInsensitive);
    for (; at >= 0; at = text.indexOf(suffix, at + 1, Qt::CaseInsensitive)) {
        const qsizetype end = at + suffix.size();
        const bool follows = at > 0 && (isLetterOrDigit(text[at - 1]) || text[at - 1] == u'_');
        if (follows && (end == text.size() || !isLetterOrDigit(text[end])))
            return true;
    }
    return false;
}

bool tellsServer(QStringView text) {
    const auto found = marks().search(text);
    return (found & serverName) || ((found & mcpSuffix) && hasSuffixWord(text));
}

bool isMCPServerProcess(const ProcSample& process) {
    return tellsServer(process.name) || tellsServer(process.executablePath) || tellsServer(process.arguments);
}

bool isClaudeHost(const ProcSample& process) {
    return process.name.contains("claude"_L1, Qt::CaseInsensitive) ||
           process.executablePath.contains("claude"_L1, Qt::CaseInsensitive) ||
           process.name.contains("code helper"_L1, Qt::CaseInsensitive);
}

QString displayLabel(const ProcSample& process) {
    for (const QStringView piece : QStringView(process.arguments).split(u' ', Qt::SkipEmptyParts)) {
        if (piece.contains("modelcontextprotocol"_L1) || piece.contains("mcp-server"_L1) ||
            piece.startsWith(u'@'))
            return piece.toString();
    }
    return process.name;
}

LiveServer describe(const ProcSample& process, const ProcSample* parent) {
    return {.pid = process.pid,
            .parentPid = process.parentPid,
            .name = process.name,
            .displayLabel = displayLabel(process),
            .rssBytes = process.rssBytes,
            .idleSeconds = process.idleSeconds,
            .parentName = parent ? parent->name : u"(launchd or gone)"_s,
            .isOrphan = !parent || !isClaudeHost(*parent)};
}

bool comesFirst(const LiveServer& one, const LiveServer& other) {
    if (one.isOrphan != other.isOrphan)
        return one.isOrphan;
    return one.rssBytes > other.rssBytes;
}

} // namespace

int MCPInspector::Report::orphanCount() const {
    return static_cast<int>(
        std::count_if(live.begin(), live.end(), [](const LiveServer& server) { return server.isOrphan; }));
}

quint64 MCPInspector::Report::orphanBytes() const {
    quint64 total = 0;
    for (const LiveServer& server : live)
        total += server.isOrphan ? server.rssBytes : 0;
    return total;
}

QList<LiveServer> MCPInspector::detectLive(const QList<ProcSample>& processes) {
    QList<const ProcSample*> servers;
    for (const ProcSample& process : processes) {
        if (isMCPServerProcess(process))
            servers.append(&process);
    }
    if (servers.isEmpty())
        return {};
    QHash<qint32, const ProcSample*> byPid;
    byPid.reserve(processes.size());
    for (const ProcSample& process : processes)
        byPid.insert(process.pid, &process);
    QList<LiveServer> live;
    for (const ProcSample* server : servers)
        live.append(describe(*server, byPid.value(server->parentPid)));
    std::stable_sort(live.begin(), live.end(), comesFirst);
    return live;
}
