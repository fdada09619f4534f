#include "Core/Mcp/MCPConfiguration.h"

#include "support/Each.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::ConfiguredServer;

/// Sets the working directory for its lifetime.
struct WorkingDirectory {
    explicit WorkingDirectory(const QString& folder) { QDir::setCurrent(folder); }
    ~WorkingDirectory() { QDir::setCurrent(before); }
    QString before = QDir::currentPath();
};

struct MCPConfigurationTest : testing::Test {
    TemporaryHome home;
    WorkingDirectory project{home.makeFolder(u"project"_s)};
    MCPConfiguration configuration;

    QStringList names() { return each(configuration.readConfigured(), &ConfiguredServer::name); }
    bool comesTo(const QStringList& expected) {
        return QTest::qWaitFor([&] { return names() == expected && !configuration.isUnknown(); }, 60'000);
    }
    /// Writes one server after so many MiB of history.
    void makeLargeFile(int megabytes, const QByteArray& server) {
        const QByteArray entry = "{\"display\": \"" + QByteArray(1000, 'x') + "\", \"pasted\": {}},";
        QByteArray text = "{\"history\": [";
        while (text.size() < qsizetype(megabytes) << 20)
            text += entry;
        home.makeFile(u".claude.json"_s, text + "1], \"mcpServers\": {\"" + server + "\": {}}}");
    }
};

} // namespace

TEST_F(MCPConfigurationTest, TheFirstOfANameWinsAcrossTheFiles) {
    const std::pair<QString, QByteArray> files[] = {
        {u".claude.json"_s, R"({"projects": {"HOME/src/app": {"mcpServers": {"g": {}, "d": {}, "c": {}}}},
                                "mcpServers": {"b": {"command": "npx", "args": ["-y"]}, "a": {}}})"},
        {u".claude/mcp.json"_s, R"({"mcpServers": {"b": {"command": "other"}, "c": {}}})"},
        {u"project/.mcp.json"_s, R"({"mcpServers": {"c": {}, "d": {}}})"},
        {u".cursor/mcp.json"_s, R"({"mcpServers": {"g": {}, "h": {}}})"},
        {u".config/Code/User/mcp.json"_s, R"({"servers": {"h": {}, "i": {"url": "http://x"}} /* c */})"},
        {u".gemini/settings.json"_s, R"({"mcpServers": {"i": {}, "j": {"httpUrl": "http://x"}}})"},
        {u".codex/config.toml"_s, "[mcp_servers.j]\n[mcp_servers.k]\ncommand = 'npx'\n"},
    };
    for (auto [name, content] : files)
        home.makeFile(name, content.replace("HOME", QFile::encodeName(home.path())));
    const QList<ConfiguredServer> all = {{u"a"_s, u"?"_s, {}, u"user"_s},
                                         {u"b"_s, u"npx"_s, {u"-y"_s}, u"user"_s},
                                         {u"c"_s, u"?"_s, {}, u"user (alt)"_s},
                                         {u"d"_s, u"?"_s, {}, u"project (cwd)"_s},
                                         {u"g"_s, u"?"_s, {}, u"project ~/src/app"_s},
                                         {u"h"_s, u"?"_s, {}, u"cursor"_s},
                                         {u"i"_s, u"?"_s, {}, u"VS Code"_s},
                                         {u"j"_s, u"?"_s, {}, u"gemini"_s},
                                         {u"k"_s, u"npx"_s, {}, u"codex"_s}};
    EXPECT_EQ(configuration.readConfigured(), all);
    EXPECT_FALSE(configuration.isUnknown());
    home.makeFile(u".claude.json"_s, "{");
    EXPECT_EQ(names(), (QStringList{u"b"_s, u"c"_s, u"d"_s, u"g"_s, u"h"_s, u"i"_s, u"j"_s, u"k"_s}));

    home.makeFile(u"xdg/Code/User/mcp.json"_s, R"({"servers": {"elsewhere": {}}})");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path(u"xdg"_s)));
    const auto elsewhere = MCPConfiguration().readConfigured();
    EXPECT_TRUE(each(elsewhere, &ConfiguredServer::name).contains(u"elsewhere"_s));
}

TEST_F(MCPConfigurationTest, AChangedFileIsReadAndAnUnchangedOneIsNot) {
    EXPECT_EQ(names(), QStringList());
    const QString path = home.makeFile(u".claude.json"_s, R"({"mcpServers": {"one": {}}})");
    EXPECT_EQ(names(), QStringList(u"one"_s));

    struct stat before {};
    ASSERT_EQ(stat(QFile::encodeName(path).constData(), &before), 0);
    home.makeFile(u".claude.json"_s, R"({"mcpServers": {"two": {}}})");
    const timespec times[] = {before.st_atim, before.st_mtim};
    ASSERT_EQ(utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
    EXPECT_EQ(names(), QStringList(u"one"_s)); // its status is unchanged

    home.makeFile(u".claude.json"_s, R"({"mcpServers": {"three": {}}})");
    EXPECT_EQ(names(), QStringList(u"three"_s));
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(names(), QStringList());
}

TEST_F(MCPConfigurationTest, OnlyRegularFilesAreOpened) {
    ASSERT_EQ(mkfifo(QFile::encodeName(home.path(u".claude.json"_s)).constData(), 0600), 0);
    home.makeFolder(u".claude/mcp.json"_s);
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, home.path(u"project/.mcp.json"_s)));
    EXPECT_EQ(names(), QStringList());
    EXPECT_FALSE(configuration.isUnknown());
}

TEST_F(MCPConfigurationTest, TheServersStayWhileALargeFileIsRead) {
    makeLargeFile(8, "one");
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(names(), QStringList());
    EXPECT_LT(timer.elapsed(), 100);
    EXPECT_TRUE(configuration.isUnknown());
    ASSERT_TRUE(comesTo({u"one"_s}));

    makeLargeFile(2, "two");
    EXPECT_EQ(names(), QStringList(u"one"_s));
    EXPECT_FALSE(configuration.isUnknown());
    ASSERT_TRUE(comesTo({u"two"_s}));
    ASSERT_TRUE(QFile::remove(home.path(u".claude.json"_s)));
    EXPECT_EQ(names(), QStringList());
}

TEST_F(MCPConfigurationTest, AFileThatChangesWhileItIsReadIsReadAgain) {
    makeLargeFile(4, "one");
    EXPECT_EQ(names(), QStringList());
    makeLargeFile(4, "two"); // over the old content: the read may see parts of both
    for (QStringList seen; seen.isEmpty() || configuration.isUnknown(); seen = names())
        EXPECT_TRUE(seen.isEmpty() || seen == QStringList(u"two"_s)) << qPrintable(seen.join(u' '));
    EXPECT_EQ(names(), QStringList(u"two"_s));

    makeLargeFile(4, "three");
    EXPECT_EQ(names(), QStringList(u"two"_s));
    home.makeFile(u"new"_s, R"({"mcpServers": {"four": {}}})"); // replaces the open file
    ASSERT_EQ(rename(QFile::encodeName(home.path(u"new"_s)), QFile::encodeName(home.path(u".claude.json"_s))),
              0);
    EXPECT_TRUE(comesTo({u"four"_s}));
}

TEST_F(MCPConfigurationTest, AReadStopsWithItsOwner) {
    makeLargeFile(20, "one");
    QElapsedTimer timer;
    {
        MCPConfiguration abandoned;
        abandoned.readConfigured();
        QTest::qSleep(50); // well into the file
        ASSERT_TRUE(abandoned.isUnknown());
        timer.start();
    }
    EXPECT_LT(timer.elapsed(), 200); // the whole takes seconds
}
