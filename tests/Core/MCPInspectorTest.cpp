#include "Core/MCPInspector.h"
#include "Core/MCPConfiguration.h"
#include "support/Each.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::ConfiguredServer;
using MCPInspector::LiveServer;

ProcSample process(qint32 pid, const QString& name, const QString& arguments = {}, qint32 parent = 0,
                   quint64 rssBytes = 0) {
    return {.pid = pid, .parentPid = parent, .name = name, .arguments = arguments, .rssBytes = rssBytes};
}

bool isServer(const QString& arguments) {
    return !MCPInspector::detectLive({process(1, u"node"_s, arguments)}).isEmpty();
}

/// A folder as the current one, for as long as it lives.
struct WorkingFolder {
    explicit WorkingFolder(const QString& folder) { QDir::setCurrent(folder); }
    ~WorkingFolder() { QDir::setCurrent(before); }
    QString before = QDir::currentPath();
};

struct MCPConfigurationTest : testing::Test {
    TemporaryHome home;
    WorkingFolder project{home.makeFolder(u"project"_s)};
    MCPConfiguration configuration;

    QStringList names() { return each(configuration.readConfigured(), &ConfiguredServer::name); }
};

} // namespace

TEST(MCPInspectorTest, TellsServersByTheirMarks) {
    for (const auto& text : {u"npx -y @modelcontextprotocol/server-filesystem"_s, u"/opt/MCP-Server-github"_s,
                             u"-m mcp_server_git"_s, u"foo-mcp"_s, u"foo-mcp@1.2"_s, u"x9_-mcp/run"_s,
                             u"stitch"_s, u"@upstash/context7"_s, u"foo-mcpx bar-mcp"_s})
        EXPECT_TRUE(isServer(text)) << qPrintable(text);
    for (const auto& text :
         {u""_s, u"mymcp"_s, u"foo-mcpx"_s, u"-mcp"_s, u"run --mcp"_s, u"foo-mcp2"_s, u"mcp"_s})
        EXPECT_FALSE(isServer(text)) << qPrintable(text);
}

TEST(MCPInspectorTest, OrphansAreThoseWithoutAClaudeHost) {
    ProcSample inBundle = process(12, u"node"_s);
    inBundle.executablePath = u"/Applications/Claude.app/node"_s;
    const QList<ProcSample> processes = {process(10, u"claude"_s),
                                         process(11, u"zsh"_s),
                                         inBundle,
                                         process(13, u"Code Helper (Plugin)"_s),
                                         process(1, u"a-mcp"_s, u"a"_s, 10, 1000),
                                         process(2, u"b-mcp"_s, u"b"_s, 11, 100),
                                         process(3, u"c-mcp"_s, u"c"_s, 12, 900),
                                         process(4, u"d-mcp"_s, u"d"_s, 13, 1000),
                                         process(5, u"e-mcp"_s, u"e"_s, 99, 300),
                                         process(6, u"f-mcp"_s, u"f"_s, 11, 100)};
    const MCPInspector::Report report{.configured = {}, .live = MCPInspector::detectLive(processes)};
    EXPECT_EQ(each(report.live, &LiveServer::pid), (QList<qint32>{5, 2, 6, 1, 4, 3}));
    EXPECT_EQ(report.orphanCount(), 3);
    EXPECT_EQ(report.orphanBytes(), 500U);
    EXPECT_EQ(report.live[0].parentName, u"(launchd or gone)"_s);
    EXPECT_EQ(report.live[1].parentName, u"zsh"_s);
    EXPECT_EQ(MCPInspector::Report().orphanBytes(), 0U);
}

TEST(MCPInspectorTest, TheLabelIsTheFirstTellingPiece) {
    const auto label = [](const QString& arguments) {
        return MCPInspector::detectLive({process(1, u"x-mcp"_s, arguments)}).value(0).displayLabel;
    };
    EXPECT_EQ(label(u"node /opt/x/bin/mcp-server-github --stdio"_s), u"/opt/x/bin/mcp-server-github"_s);
    EXPECT_EQ(label(u"npx  -y @upstash/context7-mcp mcp-server"_s), u"@upstash/context7-mcp"_s);
    EXPECT_EQ(label(u"a@b MCP-SERVER x-mcp"_s), u"x-mcp"_s);
    EXPECT_EQ(label(QString()), u"x-mcp"_s);
}

TEST_F(MCPConfigurationTest, TheFirstOfANameWinsAcrossTheThreeFiles) {
    home.makeFile(u".claude.json"_s, R"({"x": 1, "mcpServers": {
        "zeta": {"command": "npx", "args": ["-y", "pkg"], "env": {}}, "Beta": {}, "alpha": 7}})");
    home.makeFile(
        u".claude/mcp.json"_s,
        R"({"mcpServers": {"zeta": {"command": "other"}, "two": {"args": ["a", 1], "command": 5}}})");
    home.makeFile(u"project/.mcp.json"_s, R"({"mcpServers": {"two": {}, "three": {"command": "c"}}})");
    EXPECT_EQ(configuration.readConfigured(),
              (QList<ConfiguredServer>{{u"Beta"_s, u"?"_s, {}, u"user"_s},
                                       {u"alpha"_s, u"?"_s, {}, u"user"_s},
                                       {u"zeta"_s, u"npx"_s, {u"-y"_s, u"pkg"_s}, u"user"_s},
                                       {u"two"_s, u"?"_s, {}, u"user (alt)"_s},
                                       {u"three"_s, u"c"_s, {}, u"project (cwd)"_s}}));
}

TEST_F(MCPConfigurationTest, AnUnreadableFileHidesNoOther) {
    home.makeFile(u"project/.mcp.json"_s, R"({"mcpServers": {"kept": {}}})");
    for (const QByteArray content : {"", "{", "[]", "{}", "{\"mcpServers\": []}", "{\"mcpServers\": null}",
                                     "{\"mcpServers\": {\"cut\": {}", "\xff\xfe\x00"}) {
        home.makeFile(u".claude.json"_s, content);
        EXPECT_EQ(names(), QStringList(u"kept"_s)) << content.constData();
    }
}

TEST_F(MCPConfigurationTest, AnEditShowsAndAnUnchangedFileIsNotReadAgain) {
    EXPECT_EQ(names(), QStringList());
    const QString path = home.makeFile(u".claude.json"_s, R"({"mcpServers": {"one": {}}})");
    EXPECT_EQ(names(), QStringList(u"one"_s));

    struct stat before {};
    ASSERT_EQ(stat(QFile::encodeName(path).constData(), &before), 0);
    home.makeFile(u".claude.json"_s, R"({"mcpServers": {"two": {}}})");
    const timespec times[] = {before.st_atim, before.st_mtim};
    ASSERT_EQ(utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
    EXPECT_EQ(names(), QStringList(u"one"_s)); // to all appearance unchanged, and so not read

    home.makeFile(u".claude.json"_s, R"({"mcpServers": {"three": {}}})");
    EXPECT_EQ(names(), QStringList(u"three"_s));
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(names(), QStringList());
}

TEST_F(MCPConfigurationTest, WhatIsNoOrdinaryFileIsNeverOpened) {
    ASSERT_EQ(mkfifo(QFile::encodeName(home.path(u".claude.json"_s)).constData(), 0600), 0);
    home.makeFolder(u".claude/mcp.json"_s);
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, home.path(u"project/.mcp.json"_s)));
    EXPECT_EQ(names(), QStringList());
}

TEST_F(MCPConfigurationTest, AFileBeyondTheBoundIsNotRead) {
    const QByteArray servers = R"({"mcpServers": {"one": {}}})";
    home.makeFile(u".claude.json"_s, servers.leftJustified(8 << 20));
    EXPECT_EQ(names(), QStringList(u"one"_s));
    home.makeFile(u".claude.json"_s, servers.leftJustified(50 << 20));
    EXPECT_EQ(names(), QStringList());
}
