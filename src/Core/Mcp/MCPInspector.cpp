#include "Core/Mcp/MCPInspector.h"

#include "Core/Grouping/KnownPrograms.h"
#include "Core/Grouping/PatternMatcher.h"
#include "Core/Sampling/LaunchedProgram.h"
#include "Core/Sampling/ProgramPath.h"
#include "Platform/Words.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::LiveServer;

enum ServerFact : PatternMatcher::Facts {
    serverName = 1 << 0,
    mcpSuffix = 1 << 1, ///< "-mcp" occurs; the characters around it decide
};

constexpr QStringView suffix = u"-mcp";

constexpr auto serverNames = {"modelcontextprotocol", "mcp-server",     "mcp_server",    "stitch",
                              "composio-social",      "hostinger-mcp",  "memory-server", "filesystem-server",
                              "puppeteer-mcp",        "playwright-mcp", "supabase-mcp",  "context7"};

/// Finds all marks in one pass, because every process is tested on every tick.
const PatternMatcher& marks() {
    static const PatternMatcher matcher = [] {
        QList<PatternMatcher::Pattern> patterns{{"-mcp", mcpSuffix}};
        for (const char* name : serverNames)
            patterns.append({name, serverName});
        return PatternMatcher(patterns);
    }();
    return matcher;
}

bool isLetterOrDigit(QChar character) {
    const char16_t lower = character.toLower().unicode();
    return (lower >= u'a' && lower <= u'z') || (lower >= u'0' && lower <= u'9');
}

/// Returns whether "foo-mcp" occurs as a word, as in "foo-mcp@1.2", but not "foo-mcpx" or "-mcp" alone.
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

/// Returns the part of a path that tells of the program: without the user's home, and without the project of
/// a package.
QStringView tellingPart(QStringView path) {
    const qsizetype packages = path.lastIndexOf(u"/node_modules/");
    return packages < 0 ? ProgramPath::withoutPrefix(path) : path.sliced(packages);
}

bool tellsServer(const ProcSample& process) {
    if (tellsServer(process.name) || tellsServer(tellingPart(process.program)))
        return true;
    if (process.program == process.executablePath)
        return false;
    return tellsServer(tellingPart(process.executablePath)) &&
           !LaunchedProgram::isInterpreter(ProgramPath::lastComponent(process.executablePath));
}

/// Returns whether the path is of an editor's own runtime, whose file name is a common one.
bool isPartOfEditor(const QString& path) {
    return path.contains("/code-server/"_L1) || path.endsWith("/jbr/bin/java"_L1);
}

/// The process tree by PID. It can contain a cycle, because a PID may be reused while the list is read.
class Ancestry {
public:
    explicit Ancestry(const QList<ProcSample>& processes) {
        m_byPid.reserve(processes.size());
        for (const ProcSample& process : processes) {
            m_byPid.insert(process.pid, &process);
            ++m_children[process.parentPid];
        }
    }

    const ProcSample* parent(const ProcSample& process) const { return m_byPid.value(process.parentPid); }
    int children(const ProcSample& process) const { return m_children.value(process.pid); }
    /// Returns the nearest ancestor that `isWanted`, null when there is none.
    template <typename Wanted> const ProcSample* above(const ProcSample& process, Wanted isWanted) const {
        const ProcSample* ancestor = parent(process);
        for (int step = 0; ancestor && step < maxSteps; ++step, ancestor = parent(*ancestor)) {
            if (isWanted(*ancestor))
                return ancestor;
        }
        return nullptr;
    }

private:
    static constexpr int maxSteps = 256;

    QHash<qint32, const ProcSample*> m_byPid;
    QHash<qint32, int> m_children;
};

bool isLauncher(const ProcSample& process) {
    const QString file = ProgramPath::lastComponent(process.executablePath).toString();
    const QStringList arguments = process.arguments.split(u' ', Qt::SkipEmptyParts);
    return LaunchedProgram::read(file, QStringList(file) + arguments).isLauncher &&
           !MCPInspector::isHost(process);
}

/// Returns the ancestors that only wait for the server, from its parent upwards.
QList<const ProcSample*> launchersOf(const ProcSample& server, const Ancestry& ancestry) {
    QList<const ProcSample*> launchers;
    const ProcSample* ancestor = ancestry.parent(server);
    while (ancestor && ancestry.children(*ancestor) == 1 && isLauncher(*ancestor) &&
           !launchers.contains(ancestor)) {
        launchers.append(ancestor);
        ancestor = ancestry.parent(*ancestor);
    }
    return launchers;
}

QString displayLabel(const ProcSample& process) {
    for (const QStringView piece : QStringView(process.arguments).split(u' ', Qt::SkipEmptyParts)) {
        if (piece.contains("modelcontextprotocol"_L1) || piece.contains("mcp-server"_L1) ||
            piece.startsWith(u'@'))
            return piece.toString();
    }
    return process.name;
}

bool isKept(const LiveServer& server, const ProcSample* parent) {
    using Kind = ProcessKeeper::Kind;
    if (server.keeper.kind != Kind::service)
        return server.keeper.kind == Kind::container;
    if (server.keeper.mainPid == 0)
        return parent && parent->name == "systemd"_L1;
    return server.pid == server.keeper.mainPid ||
           std::ranges::any_of(server.launchers, [&server](const ProcessIdentity& launcher) {
               return launcher.pid == server.keeper.mainPid;
           });
}

LiveServer describe(const ProcSample& process, const QList<const ProcSample*>& launchers,
                    const Ancestry& ancestry, const MCPInspector::KeeperOf& keeperOf) {
    const ProcSample* host = ancestry.above(process, &MCPInspector::isHost);
    const ProcSample& top = launchers.isEmpty() ? process : *launchers.last();
    const ProcSample* parent = host ? host : ancestry.parent(top);
    LiveServer server{.pid = process.pid,
                      .parentPid = parent ? parent->pid : top.parentPid,
                      .name = process.name,
                      .displayLabel = displayLabel(process),
                      .rssBytes = process.rssBytes,
                      .idleSeconds = process.idleSeconds,
                      .parentName = parent ? parent->name
                                           : QCoreApplication::translate("MCPInspector", "(%1 or gone)")
                                                 .arg(Words::native().initProcess),
                      .startTime = process.startTime};
    for (const ProcSample* launcher : launchers) {
        server.launchers.append(launcher->identity());
        server.rssBytes += launcher->rssBytes;
    }
    if (host)
        server.host = host->identity();
    else if (keeperOf)
        server.keeper = keeperOf(process);
    server.isOrphan = !host && !isKept(server, parent);
    return server;
}

bool comesFirst(const LiveServer& one, const LiveServer& other) {
    if (one.isOrphan != other.isOrphan)
        return one.isOrphan;
    return one.rssBytes > other.rssBytes;
}

} // namespace

int MCPInspector::Report::orphanCount() const {
    return static_cast<int>(std::ranges::count(live, true, &LiveServer::isOrphan));
}

quint64 MCPInspector::Report::orphanBytes() const {
    quint64 total = 0;
    for (const LiveServer& server : live)
        total += server.isOrphan ? server.rssBytes : 0;
    return total;
}

bool MCPInspector::isMCPServerProcess(const ProcSample& process) {
    return tellsServer(process) && !isHost(process);
}

bool MCPInspector::isHost(const ProcSample& process) {
    const auto* known = KnownPrograms::of(process);
    if ((known && known->hostsServers) || isPartOfEditor(process.executablePath))
        return true;
    const QStringView path = ProgramPath::withoutPrefix(process.executablePath);
    const bool soundsLikeHost = process.name.contains("claude"_L1, Qt::CaseInsensitive) ||
                                path.contains("claude"_L1, Qt::CaseInsensitive) ||
                                process.name.contains("code helper"_L1, Qt::CaseInsensitive);
    return soundsLikeHost && !tellsServer(process);
}

QList<LiveServer> MCPInspector::detectLive(const QList<ProcSample>& processes, const KeeperOf& keeperOf) {
    QList<const ProcSample*> servers;
    for (const ProcSample& process : processes) {
        if (isMCPServerProcess(process))
            servers.append(&process);
    }
    if (servers.isEmpty())
        return {};
    const Ancestry ancestry(processes);
    QHash<const ProcSample*, QList<const ProcSample*>> launchers;
    QSet<const ProcSample*> folded;
    for (const ProcSample* server : servers) {
        const auto waiting = launchersOf(*server, ancestry);
        folded += QSet<const ProcSample*>(waiting.begin(), waiting.end());
        launchers.insert(server, waiting);
    }
    QList<LiveServer> live;
    for (const ProcSample* server : servers) {
        if (!folded.contains(server))
            live.append(describe(*server, launchers.value(server), ancestry, keeperOf));
    }
    std::ranges::stable_sort(live, comesFirst);
    return live;
}
