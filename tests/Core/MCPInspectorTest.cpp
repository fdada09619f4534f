#include "Core/Mcp/MCPInspector.h"

#include "Core/Mcp/ServerWatch.h"
#include "Core/Sampling/LaunchedProgram.h"
#include "support/Each.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::LiveServer;

/// Makes a sample of an executable and its arguments, separated by spaces.
ProcSample process(qint32 pid, const QString& name, const QString& arguments = {}, qint32 parent = 0,
                   quint64 rssBytes = 0, const QString& path = {}) {
    const QStringList words = arguments.split(u' ', Qt::SkipEmptyParts);
    const QString executable = path.isEmpty() ? u"/usr/bin/"_s + name : path;
    return {.pid = pid,
            .parentPid = parent,
            .name = name,
            .executablePath = executable,
            .arguments = words.size() > 1 ? words.sliced(1).join(u' ') : arguments,
            .rssBytes = rssBytes,
            .program = LaunchedProgram::read(executable, words).program};
}

bool isServer(const QString& name, const QString& arguments, const QString& path = {}) {
    return MCPInspector::isMCPServerProcess(process(1, name, arguments, 0, 0, path));
}

} // namespace

TEST(MCPInspectorTest, TheProgramMakesAServerAndNotItsArguments) {
    EXPECT_TRUE(isServer(u"python3"_s, u"python3 -m mcp_server_git"_s));
    EXPECT_TRUE(isServer(u"mcp-server-time"_s, u"mcp-server-time"_s));
    EXPECT_TRUE(isServer(u"node"_s, u"node /home/u/src/app/node_modules/.bin/mcp-server-filesystem /p"_s));
    EXPECT_TRUE(isServer(u"docker"_s, u"docker run -i --rm ghcr.io/a/b-mcp-server"_s));
    const std::pair<QString, QString> others[] = {
        {u"claude"_s, u"claude --mcp-config mcp-servers.json"_s},
        {u"vim"_s, u"vim mcp-server.md"_s},
        {u"tail"_s, u"tail -f mcp-server.log"_s},
        {u"grep"_s, u"grep -r modelcontextprotocol ."_s},
        {u"bash"_s, u"bash"_s},
        {u"node"_s, u"node eslint.js --config mcp-server.json"_s},
        {u"node"_s, u"node /home/u/src/mcp-server/node_modules/.bin/vite"_s},
        {u"docker"_s, u"docker build -t mcp-server ."_s},
        {u"code"_s, u"code /home/u/mcp-server"_s},
    };
    for (const auto& [name, arguments] : others)
        EXPECT_FALSE(isServer(name, arguments)) << qPrintable(arguments);
    EXPECT_FALSE(isServer(u"python3"_s, u"python3 manage.py"_s, u"/opt/mcp-server/venv/bin/python3"_s));
    const QString inHome = QDir::homePath() + u"/mcp-server.d/tool"_s;
    EXPECT_TRUE(isServer(u"tool"_s, u"tool"_s, inHome)); // only the home itself is left out
}

TEST(MCPInspectorTest, RecognisesEveryHost) {
    QList<ProcSample> hosts;
    const std::tuple<const char*, const char*, const char*> unusual[] = {
        {"claude", "claude", "/home/u/.local/share/claude/versions/2.1.4"},
        {"claude", "claude", "/usr/bin/node"},
        {"node", "node /usr/lib/node_modules/@anthropic-ai/claude-code/cli.js", "/usr/bin/node"},
        {"node", "node /home/u/.npm/bin/codex", "/usr/bin/node"},
        {"node", "node --max-old-space-size=4096 /usr/bin/gemini", "/usr/bin/node"},
        {"node", "node /x/node_modules/@qwen-code/qwen-code/cli.js", "/usr/bin/node"},
        {"python3", "python3 /home/u/.local/bin/aider", "/usr/bin/python3.11"},
        {"Code Helper (Plugin)", "code --type=utility", "/usr/share/code/code"},
        {"node", "node out/server-main.js", "/home/u/.vscode-server/cli/servers/x/server/node"},
        {"node", "node out/server-main.js", "/home/u/.vscodium-server/bin/x/node"},
        {"node", "node out/node/entry.js", "/usr/lib/code-server/lib/node"},
        {"java", "java com.intellij.idea.Main", "/opt/idea-IU-251/jbr/bin/java"},
    };
    for (const auto& [name, arguments, path] : unusual)
        hosts.append(process(10, QString::fromUtf8(name), QString::fromUtf8(arguments), 0, 0,
                             QString::fromUtf8(path)));
    const QString plain = u"codex opencode goose crush amp cursor-agent copilot code code-insiders codium "
                          "cursor windsurf trae zed-editor pycharm claude-desktop"_s;
    for (const QString& name : plain.split(u' '))
        hosts.append(process(10, name, name));
    for (const ProcSample& host : std::as_const(hosts)) {
        EXPECT_TRUE(MCPInspector::isHost(host)) << qPrintable(host.name + host.executablePath);
        const auto live = MCPInspector::detectLive(
            {host, process(11, u"sh"_s, u"sh"_s, 10), process(12, u"node"_s, u"node a-mcp"_s, 11)});
        ASSERT_EQ(live.size(), 1);
        EXPECT_FALSE(live[0].isOrphan) << qPrintable(host.name + host.executablePath);
        EXPECT_EQ(live[0].parentPid, 10);
    }
    for (const auto& [name, arguments] : {std::pair(u"bash"_s, u"bash"_s),
                                          {u"node"_s, u"node vite.js"_s},
                                          {u"tmux"_s, u"tmux"_s},
                                          {u"claude-mcp-server"_s, u"claude-mcp-server"_s}}) {
        EXPECT_FALSE(MCPInspector::isHost(process(1, name, arguments))) << qPrintable(name);
    }
}

TEST(MCPInspectorTest, AServerIsOneRowWithItsLaunchersAndItsHost) {
    const ProcSample host = process(10, u"claude"_s, u"claude"_s, 2, 900);
    const QList<ProcSample> npx = {
        host,
        process(11, u"node"_s, u"node /usr/bin/npx -y @modelcontextprotocol/server-filesystem"_s, 10, 50),
        process(12, u"sh"_s, u"sh -c mcp-server-filesystem"_s, 11, 1),
        process(13, u"node"_s, u"node /x/.bin/mcp-server-filesystem /p"_s, 12, 100)};
    const QList<ProcSample> uvx = {host, process(11, u"uv"_s, u"uv tool uvx mcp-server-git"_s, 10, 30),
                                   process(12, u"python3"_s, u"python3 /x/bin/mcp-server-git"_s, 11, 100)};
    const QList<ProcSample> direct = {host, process(12, u"node"_s, u"node /x/a-mcp"_s, 10, 100)};
    for (const auto& [tree, bytes, launchers] :
         {std::tuple(npx, 151ULL, 2), std::tuple(uvx, 130ULL, 1), std::tuple(direct, 100ULL, 0)}) {
        for (const bool isHosted : {true, false}) {
            const QList<ProcSample> processes = isHosted ? tree : tree.sliced(1);
            const auto live = MCPInspector::detectLive(processes);
            ASSERT_EQ(live.size(), 1);
            EXPECT_EQ(live[0].pid, processes.last().pid);
            EXPECT_EQ(live[0].rssBytes, bytes);
            EXPECT_EQ(live[0].launchers.size(), launchers);
            EXPECT_EQ(live[0].isOrphan, !isHosted);
            EXPECT_EQ(live[0].parentName, isHosted ? u"claude"_s : u"(init or gone)"_s);
        }
    }
    // A shell with another child, and a server that runs another, are rows of their own.
    auto busy = npx;
    busy.append(process(14, u"sleep"_s, u"sleep 1"_s, 12));
    EXPECT_EQ(MCPInspector::detectLive(busy).size(), 2);
    const auto nested = MCPInspector::detectLive({host, process(11, u"node"_s, u"node /x/proxy-mcp"_s, 10),
                                                  process(12, u"node"_s, u"node /x/a-mcp"_s, 11)});
    ASSERT_EQ(nested.size(), 2);
    EXPECT_FALSE(nested[0].isOrphan || nested[1].isOrphan);
}

TEST(MCPInspectorTest, AChainEndsAtAHostOrInAnOrphan) {
    const ProcSample init = process(1, u"systemd"_s);
    const ProcSample server = process(30, u"node"_s, u"node /x/a-mcp"_s, 20);
    const auto under = [&](const ProcSample& parent) {
        return MCPInspector::detectLive({init, process(10, u"code"_s, u"code"_s, 1), parent, server});
    };
    const std::tuple<const char*, ProcSample, bool> chains[] = {
        {"an editor's extension", process(20, u"Code Helper (Plugin)"_s, u"code --type=utility"_s, 10),
         false},
        {"a subreaper", process(20, u"systemd"_s, u"systemd --user"_s, 1), true},
        {"a host that renamed itself",
         process(20, u"worker"_s, u"worker"_s, 1, 0, u"/home/u/.local/share/claude/versions/2.1.4"_s), false},
        {"a host whose title is gone", process(20, u"claude"_s, {}, 1, 0, u"/usr/bin/node"_s), false},
        {"a terminal's shell", process(20, u"zsh"_s, u"zsh"_s, 1), true},
        {"an id that is not listed", process(21, u"claude"_s, u"claude"_s, 1), true},
    };
    for (const auto& [what, parent, isOrphan] : chains) {
        const auto live = under(parent);
        ASSERT_EQ(live.size(), 1) << what;
        EXPECT_EQ(live[0].isOrphan, isOrphan) << what;
    }
    // Between its fork and its exec a server is still a copy of its host.
    EXPECT_TRUE(
        MCPInspector::detectLive({process(20, u"claude"_s, u"claude --mcp-config mcp-server.json"_s),
                                  process(30, u"claude"_s, u"claude --mcp-config mcp-server.json"_s, 20)})
            .isEmpty());
}

TEST(MCPInspectorTest, AServerWithAKeeperIsNoOrphan) {
    using Kind = ProcessKeeper::Kind;
    const QList<ProcSample> processes = {process(1, u"systemd"_s), process(5, u"zsh"_s),
                                         process(6, u"sh"_s, u"sh -c a-mcp"_s, 1),
                                         process(7, u"a-mcp"_s, {}, 6), process(8, u"b-mcp"_s, {}, 5)};
    const std::tuple<ProcessKeeper, bool, bool> cases[] = {
        {{}, true, true},
        {{.kind = Kind::container, .name = "docker-1.scope"}, false, false},
        {{.kind = Kind::service, .name = "a.service", .mainPid = 6}, false, true},
        {{.kind = Kind::service, .name = "a.service", .mainPid = 7}, false, true},
        {{.kind = Kind::service, .name = "term.service", .mainPid = 4}, true, true}, // started in a terminal
        {{.kind = Kind::service, .name = "a.service"}, false, true},                 // of another user
    };
    for (const auto& [keeper, first, second] : cases) {
        auto live = MCPInspector::detectLive(processes, [&keeper](const ProcSample&) { return keeper; });
        std::ranges::sort(live, {}, &LiveServer::pid);
        ASSERT_EQ(live.size(), 2);
        EXPECT_EQ(live[0].isOrphan, first) << keeper.name.toStdString() << keeper.mainPid;
        EXPECT_EQ(live[1].isOrphan, second) << keeper.name.toStdString() << keeper.mainPid;
    }
}

TEST(MCPInspectorTest, OrphansComeFirstThenTheLargest) {
    const QList<ProcSample> processes = {process(10, u"claude"_s),
                                         process(11, u"zsh"_s),
                                         process(1, u"a-mcp"_s, {}, 10, 1000),
                                         process(2, u"b-mcp"_s, {}, 11, 100),
                                         process(3, u"c-mcp"_s, {}, 10, 900),
                                         process(5, u"e-mcp"_s, {}, 99, 300),
                                         process(6, u"f-mcp"_s, {}, 11, 100)};
    const MCPInspector::Report report{.configured = {}, .live = MCPInspector::detectLive(processes)};
    EXPECT_EQ(each(report.live, &LiveServer::pid), (QList<qint32>{5, 2, 6, 1, 3}));
    EXPECT_EQ(report.orphanCount(), 3);
    EXPECT_EQ(report.orphanBytes(), 500U);
    EXPECT_EQ(report.live[0].parentName, u"(init or gone)"_s);
    EXPECT_EQ(report.live[1].parentName, u"zsh"_s);
}

TEST(ServerWatchTest, SaysWhyAServerIsInUseOrAnOrphan) {
    FakePlatform fakes;
    ServerWatch watch(fakes.processes, fakes.clock);
    const auto reason = [&watch](const QList<ProcSample>& processes) {
        return watch.detectLive(processes).value(0).reason;
    };
    const ProcSample host = process(2927, u"claude"_s);
    ProcSample server = process(30, u"a-mcp"_s, {}, 2927);
    fakes.processes->add(2927, {.folder = QFile::encodeName(QDir::homePath() + u"/src/app"_s)});
    EXPECT_EQ(reason({host, server}), u"in use by claude (2927) in ~/src/app"_s);
    fakes.processes->processes[2927].folder = "/elsewhere"; // asked once
    EXPECT_EQ(reason({host, server}), u"in use by claude (2927) in ~/src/app"_s);

    const ProcSample interpreted = process(2928, u"node"_s, u"node /usr/bin/qwen"_s);
    const ProcSample its = process(32, u"a-mcp"_s, {}, 2928);
    EXPECT_EQ(reason({interpreted, its}), u"in use by qwen (2928)"_s);
    EXPECT_EQ(reason({host, server}), u"in use by claude (2927) in /elsewhere"_s);

    server.parentPid = 1;
    EXPECT_EQ(reason({host, server}), u"orphan: no longer below its host claude (2927)"_s);
    const QString ended =
        u"orphan: its host claude (2927) ended at "_s +
        QLocale().toString(QDateTime::fromSecsSinceEpoch(1'700'000'000).time(), QLocale::ShortFormat);
    EXPECT_EQ(reason({server}), ended);
    fakes.clock->advance(7200);
    server.idleSeconds = 3 * 3600 + 100;
    EXPECT_EQ(reason({server}), ended + u", no CPU for 3 h"_s);
    EXPECT_EQ(reason({}), QString());
    server.idleSeconds = 720;
    EXPECT_EQ(reason({server}), u"orphan: no agent or editor above it, no CPU for 12 min"_s);

    fakes.processes->add(
        31, {.keeper = {.kind = ProcessKeeper::Kind::service, .name = "a.service", .mainPid = 31}});
    EXPECT_EQ(reason({process(31, u"a-mcp"_s)}), u"run by the service manager as a.service"_s);
}

TEST(MCPInspectorTest, TheLabelIsTheFirstArgumentWithAMark) {
    const auto label = [](const QString& arguments) {
        ProcSample server = process(1, u"x-mcp"_s);
        server.arguments = arguments;
        return MCPInspector::detectLive({server}).value(0).displayLabel;
    };
    EXPECT_EQ(label(u"node /opt/x/bin/mcp-server-github --stdio"_s), u"/opt/x/bin/mcp-server-github"_s);
    EXPECT_EQ(label(u"npx  -y @upstash/context7-mcp mcp-server"_s), u"@upstash/context7-mcp"_s);
    EXPECT_EQ(label(u"a@b MCP-SERVER x-mcp"_s), u"x-mcp"_s);
    EXPECT_EQ(label(QString()), u"x-mcp"_s);
}
