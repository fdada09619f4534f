#include "Platform/Freedesktop/FreedesktopLoginItem.h"

#include "support/Files.h"
#include "support/TemporaryHome.h"

#include <QProcess>
#include <QStorageInfo>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

struct LoginItemTest : testing::Test {
    TemporaryHome home;
    QString entry = home.path(u".config/autostart/tavrin.desktop"_s);

    /// Makes a program that writes its own path to the file `started`.
    QString makeProgram(const QString& below) const {
        return home.makeProgram(below, "#!/bin/sh\nprintf %s \"$0 $*\" > \"$HOME/started.new\"\n"
                                       "mv \"$HOME/started.new\" \"$HOME/started\"\n");
    }
    QStringList autostartFolder() const {
        return QDir(home.path(u".config/autostart"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }
};

/// Returns the output of the tool, with a prefix when it fails.
QByteArray errorsOf(const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(tool, arguments);
    if (!process.waitForFinished())
        return "could not be run: " + process.errorString().toUtf8();
    return process.exitCode() == 0 ? process.readAll() : "failed: " + process.readAll();
}

} // namespace

TEST_F(LoginItemTest, DesktopsStartTheProgramWhereverItIs) {
    for (const QString& folder :
         {u"plain"_s, u"two words"_s, u"it's \"quoted\""_s, u"100%u %% off"_s, u"back\\slash\\n"_s,
          u"$HOME `id` ~ & ; | < > * ? # ( )"_s, u"line\nand\ttab"_s, u"größe 測試"_s, u"a=b"_s}) {
        const QString program = makeProgram(folder + u"/tavrin"_s);
        FreedesktopLoginItem item(program);
        EXPECT_EQ(item.registerItem(), Outcome::success()) << qPrintable(folder);
        EXPECT_EQ(errorsOf(u"desktop-file-validate"_s, {entry}), QByteArray()) << qPrintable(folder);
        EXPECT_EQ(errorsOf(u"gio"_s, {u"launch"_s, entry}), QByteArray()) << qPrintable(folder);
        const QString started = home.path(u"started"_s);
        EXPECT_TRUE(QTest::qWaitFor([&started] { return QFile::exists(started); }));
        EXPECT_EQ(QString::fromUtf8(contentOf(started)), program + u" --hidden"_s);
        QFile::remove(started);
    }
    EXPECT_EQ(autostartFolder(), QStringList(u"tavrin.desktop"_s));
}

TEST_F(LoginItemTest, UnregisteringLeavesNothingAndIsIdempotent) {
    FreedesktopLoginItem item(u"/usr/bin/tavrin"_s);
    EXPECT_EQ(item.unregisterItem(), Outcome::success()); // not even a folder
    EXPECT_EQ(item.registerItem(), Outcome::success());
    EXPECT_EQ(item.registerItem(), Outcome::success());
    home.makeFile(u".config/autostart/other.desktop"_s);
    EXPECT_EQ(item.unregisterItem(), Outcome::success());
    EXPECT_EQ(item.unregisterItem(), Outcome::success());
    EXPECT_EQ(autostartFolder(), QStringList(u"other.desktop"_s));
}

TEST_F(LoginItemTest, OnlyAnInstalledProgramTakesThePlaceOfOneThatIsGone) {
    const QString gone = home.path(u"old \\ place\n/tavrin"_s);
    const QString other = makeProgram(u"other/tavrin"_s);
    const QString built = makeProgram(u"build/tavrin"_s);
    home.makeFile(u"build/CMakeCache.txt"_s);
    const QString installed = makeProgram(u"bin/tavrin"_s);
    EXPECT_FALSE(FreedesktopLoginItem(built).isInstalled());
    EXPECT_TRUE(FreedesktopLoginItem(installed).isInstalled());
    FreedesktopLoginItem(installed).replaceGoneProgram();
    EXPECT_FALSE(QFile::exists(entry)) << "nothing was registered";
    for (const auto& [before, program, after] :
         {std::tuple{gone, built, gone}, std::tuple{gone, installed, installed},
          std::tuple{other, installed, other}}) {
        FreedesktopLoginItem(before).registerItem();
        FreedesktopLoginItem(program).replaceGoneProgram();
        EXPECT_EQ(contentOf(entry), FreedesktopLoginItem::entry(after)) << qPrintable(before + program);
    }
}

TEST_F(LoginItemTest, FollowsTheConfigurationFolder) {
    qputenv("XDG_CONFIG_HOME", home.path(u"elsewhere"_s).toUtf8());
    EXPECT_EQ(FreedesktopLoginItem(u"/usr/bin/tavrin"_s).registerItem(), Outcome::success());
    EXPECT_TRUE(contentOf(home.path(u"elsewhere/autostart/tavrin.desktop"_s))
                    .contains("\nExec=\"/usr/bin/tavrin\" --hidden\nTryExec=/usr/bin/tavrin\n"));
    EXPECT_FALSE(QFile::exists(entry));
}

TEST_F(LoginItemTest, SaysWhyItCannot) {
    const QString program = u"/usr/bin/tavrin"_s;
    const bool isReadOnly = QStorageInfo(u"/sys"_s).isReadOnly(); // as in most containers
    /// Obstacle, program, and the ends of the reasons on registering and unregistering.
    const std::tuple<std::function<void()>, QString, QString, QString> cases[] = {
        {[] {}, {}, u"The program's own file cannot be found."_s, {}},
        {[this] { home.makeFile(u".config/autostart"_s); }, program, u"autostart: Not a directory"_s, {}},
        {[this] { home.makeFolder(u".config/autostart/tavrin.desktop"_s); }, program,
         u"Filename refers to a directory"_s, u"tavrin.desktop: Is a directory"_s},
        {[this] { // where even root can make no file
             home.makeFolder(u".config"_s);
             QFile::link(u"/sys/kernel"_s, home.path(u".config/autostart"_s));
         },
         program,
         u"tavrin.desktop: "_s + (isReadOnly ? u"Read-only file system"_s : u"Permission denied"_s),
         {}},
    };
    for (const auto& [obstacle, path, onRegister, onUnregister] : cases) {
        obstacle();
        FreedesktopLoginItem item(path);
        const Outcome registering = item.registerItem();
        EXPECT_FALSE(registering.done);
        EXPECT_TRUE(registering.reason.endsWith(onRegister)) << qPrintable(registering.reason);
        const Outcome unregistering = item.unregisterItem();
        EXPECT_TRUE(unregistering.reason.endsWith(onUnregister)) << qPrintable(unregistering.reason);
        EXPECT_EQ(unregistering.done, onUnregister.isEmpty());
        QDir(home.path(u".config"_s)).removeRecursively();
    }
}

TEST_F(LoginItemTest, AWriteThatFailsLeavesTheEntryThatWasThere) {
    ASSERT_EQ(FreedesktopLoginItem(u"/old/tavrin"_s).registerItem(), Outcome::success());
    const QByteArray before = contentOf(entry);
    QStringList reasons;
    for (const rlim_t room : {0, 20}) { // bytes that the disk still takes
        const FullDisk full(room);
        reasons.append(FreedesktopLoginItem(u"/new/tavrin"_s).registerItem().reason);
    }
    EXPECT_TRUE(reasons[0].endsWith(u"tavrin.desktop: File too large"_s)) << qPrintable(reasons[0]);
    EXPECT_TRUE(reasons[1].contains(u"tavrin.desktop: "_s)) << qPrintable(reasons[1]);
    EXPECT_EQ(contentOf(entry), before);
    EXPECT_EQ(autostartFolder(), QStringList(u"tavrin.desktop"_s));
}
