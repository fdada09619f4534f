#include "Core/CacheScanner.h"
#include "Core/Cleaner.h"
#include "Platform/Child.h"
#include "Platform/Clock.h"
#include "Platform/Linux/LinuxPlaces.h"
#include "Platform/Linux/LinuxToolRunner.h"
#include "Platform/Platform.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <pwd.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Cleaner::CleanResult;

// The scanner and the cleaner with the system's own tools, on folders that these tests make.

namespace {

/// Root may do anything; where the tests run as root these tools run as nobody.
class OrdinaryUsersTools : public LinuxToolRunner {
public:
    QCoro::Task<ToolResult> run(ToolRequest request) override {
        if (geteuid() == 0) {
            request.arguments =
                QStringList{u"--reuid=65534"_s, u"--regid=65534"_s, u"--clear-groups"_s, request.launchPath} +
                request.arguments;
            request.launchPath = u"/usr/bin/setpriv"_s;
        }
        return LinuxToolRunner::run(request);
    }
};

class CleanupOnDisk : public testing::Test {
protected:
    CleanResult clean(const QString& path) { return clean(CacheTarget{.name = u"x"_s, .paths = {path}}); }
    CleanResult clean(const CacheTarget& target) {
        return QCoro::waitFor(Cleaner::clean(target, tools, places));
    }

    CacheTarget scanned(const CacheTarget& target) {
        Platform platform;
        platform.tools = tools;
        platform.places = places;
        platform.clock = std::make_shared<SystemClock>();
        CacheScanner scanner(platform);
        return QCoro::waitFor(scanner.scan({target})).value(0);
    }

    static QStringList entries(const QString& folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    static void age(const QString& path, int days) {
        using Files = std::filesystem::file_time_type::clock;
        std::filesystem::last_write_time(path.toStdString(), Files::now() - days * 24h - 1h);
    }

    TemporaryHome home;
    std::shared_ptr<ToolRunner> tools = std::make_shared<LinuxToolRunner>();
    std::shared_ptr<Places> places = std::make_shared<LinuxPlaces>();
};

TEST_F(CleanupOnDisk, EmptiesAFolderWhateverItsEntriesAreCalled) {
    const QString name = u"a \"cache\"; it's $HOME\n`x` *"_s;
    const QString cache = home.makeFolder(name);
    for (const auto& entry :
         {u"plain"_s, u".hidden"_s, u"-rf"_s, u"--no-preserve-root"_s, u"it's \"quoted\""_s, u"two\nlines"_s,
          u"deep/er/file"_s, u".config/x"_s, u"$(touch y)"_s, u"*"_s})
        home.makeFile(name + u'/' + entry, QByteArray(5000, 'x'));
    std::ofstream(cache.toStdString() + "/caf\xe9") << "x";
    const QString outside = home.makeFile(u"outside/precious"_s);
    ASSERT_TRUE(QFile::link(home.path(u"outside"_s), cache + u"/link"_s));
    ASSERT_TRUE(QFile::link(outside, cache + u"/.link"_s));
    ASSERT_TRUE(QFile::link(outside, cache + u"/deep/link"_s));
    home.makeFile(name + u"/..stays"_s);

    const CacheTarget target{.name = u"x"_s, .paths = {cache}};
    const quint64 size = scanned(target).sizeBytes;
    const CleanResult result = clean(target);
    EXPECT_TRUE(result.success);
    EXPECT_EQ(entries(cache), QStringList(u"..stays"_s));
    EXPECT_EQ(result.freedBytes, size - scanned(target).sizeBytes);
    EXPECT_GE(result.freedBytes, 8U * 4096);
    EXPECT_TRUE(QFileInfo::exists(outside));

    ASSERT_TRUE(QFile::remove(cache + u"/..stays"_s));
    EXPECT_EQ(clean(target), (CleanResult{true, 0})) << "an empty folder";
}

TEST_F(CleanupOnDisk, LeavesALinkedFolderAlone) {
    const QString precious = home.makeFile(u"elsewhere/precious"_s);
    ASSERT_TRUE(QFile::link(home.path(u"elsewhere"_s), home.path(u".npm"_s)));
    EXPECT_EQ(clean(u"~/.npm"_s), (CleanResult{false, 0}));
    EXPECT_TRUE(QFileInfo::exists(precious));

    home.makeFile(u"Ablage/old"_s);
    age(home.path(u"Ablage/old"_s), 40);
    ASSERT_TRUE(QFile::link(home.path(u"Ablage"_s), home.path(u"Downloads"_s)));
    clean({.name = u"Old Downloads (>30d)"_s, .paths = {u"~/Downloads"_s}});
    EXPECT_TRUE(QFileInfo::exists(home.path(u"Ablage/old"_s)));
}

TEST_F(CleanupOnDisk, ReportsWhatMayNotBeDeletedAndDeletesTheRest) {
    tools = std::make_shared<OrdinaryUsersTools>();
    const QString cache = home.makeFolder(u"cache"_s);
    home.makeFile(u"cache/kept/file"_s);
    home.makeFile(u"cache/goes/file"_s);
    home.makeFile(u"second/file"_s);
    for (const auto& below : {u""_s, u"cache"_s, u"cache/goes"_s, u"second"_s})
        ASSERT_EQ(chmod(home.path(below).toUtf8().constData(), 0777), 0);
    ASSERT_EQ(chmod(home.path(u"cache/kept"_s).toUtf8().constData(), 0555), 0);

    const CleanResult result = clean({.name = u"x"_s, .paths = {cache, home.path(u"second"_s)}});
    EXPECT_FALSE(result.success);
    EXPECT_EQ(entries(cache), QStringList(u"kept"_s));
    EXPECT_TRUE(entries(home.path(u"second"_s)).isEmpty()) << "the next path is cleaned all the same";
    chmod(home.path(u"cache/kept"_s).toUtf8().constData(), 0755);
}

TEST_F(CleanupOnDisk, DeletesOnlyOldScreenshots) {
    const std::tuple<QString, int, bool> files[] = {
        {u"Screenshot 1.png"_s, 40, false},
        {u"deep/Screen 2"_s, 32, false},
        {u"Screenshot new.png"_s, 29, true},
        {u"Screen edge"_s, 30, true},
        {u"Letter"_s, 400, true},
        {u"My Screen"_s, 400, true},
    };
    for (const auto& [name, days, stays] : files)
        age(home.makeFile(u"Desktop/"_s + name), days);
    age(home.makeFolder(u"Desktop/Screen folder"_s), 400);
    const CacheTarget target{.name = u"Old Desktop screenshots (>30d)"_s, .paths = {u"~/Desktop"_s}};
    EXPECT_EQ(scanned(target).sizeBytes, 2U);
    EXPECT_EQ(clean(target), (CleanResult{true, 0}));
    for (const auto& [name, days, stays] : files)
        EXPECT_EQ(QFileInfo::exists(home.path(u"Desktop/"_s + name)), stays) << name.toStdString();
    EXPECT_TRUE(QFileInfo::exists(home.path(u"Desktop/Screen folder"_s)));
}

TEST_F(CleanupOnDisk, EmptiesTheTrashOfLinux) {
    for (const auto& file : {u"files/old"_s, u"info/old.trashinfo"_s, u"keep"_s})
        home.makeFile(u".local/share/Trash/"_s + file);
    const CacheTarget trash{.name = u"Trash"_s, .paths = {u"~/.Trash"_s}};
    EXPECT_EQ(scanned(trash).details.size(), 2);
    EXPECT_TRUE(clean(trash).success);
    EXPECT_TRUE(entries(home.path(u".local/share/Trash/files"_s)).isEmpty());
    EXPECT_TRUE(entries(home.path(u".local/share/Trash/info"_s)).isEmpty());
    EXPECT_EQ(entries(home.path(u".local/share/Trash"_s)).size(), 3);
}

/// Makes and removes files in two folders without end, in the second one old ones; says 'r' each time.
const std::string comeAndGo = R"(while :; do
        mkdir -p "$1/busy"
        for file in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30; do
            for place in "$1" "$1/busy" "$2"; do printf %4096d 0 >"$place/passing-$file"; done
        done
        touch -d 2001-01-01 "$2"/passing-*
        printf r >&0
        rm -rf "$1"/passing-* "$1/busy" "$2"/passing-*
    done 2>/dev/null)";

TEST_F(CleanupOnDisk, TellsTheTruthWhileFilesComeAndGo) {
    constexpr quint64 stable = 4 << 20;
    constexpr quint64 passing = 1 << 20; // more than what comes and goes ever takes
    const CacheTarget cache{.name = u"x"_s, .paths = {home.makeFolder(u"cache"_s)}};
    const CacheTarget downloads{.name = u"Old Downloads (>30d)"_s, .paths = {u"~/Downloads"_s}};
    home.makeFile(u"cache/stable/file"_s, QByteArray(stable, 'x'));
    age(home.makeFile(u"Downloads/old"_s, QByteArray(stable, 'x')), 40);
    home.makeFile(u"Downloads/new"_s);
    Child tenant("/bin/sh", {"sh", "-c", comeAndGo, "sh", home.path(u"cache"_s).toStdString(),
                             home.path(u"Downloads"_s).toStdString()});
    ASSERT_EQ(tenant.heard(), 'r');

    for (int round = 0; round < 20; ++round) {
        for (const CacheTarget& target : {cache, downloads}) {
            const CacheTarget measured = scanned(target);
            EXPECT_TRUE(measured.lastScanned);
            EXPECT_GE(measured.sizeBytes, stable) << target.name.toStdString();
            EXPECT_LE(measured.sizeBytes, stable + passing) << target.name.toStdString();
        }
    }
    const CleanResult result = clean(cache); // which may fail: a folder fills again before it is removed
    EXPECT_FALSE(QFileInfo::exists(home.path(u"cache/stable"_s)));
    EXPECT_GE(result.freedBytes, stable - passing);
    EXPECT_LE(result.freedBytes, stable + passing);
    for (int round = 0; round < 20; ++round)
        clean(downloads);
    EXPECT_FALSE(QFileInfo::exists(home.path(u"Downloads/old"_s)));
    EXPECT_TRUE(QFileInfo::exists(home.path(u"Downloads/new"_s)));

    tenant.end();
    EXPECT_TRUE(clean(cache).success);
    EXPECT_TRUE(entries(home.path(u"cache"_s)).isEmpty());
    for (const QString& file : entries(home.path(u"Downloads"_s)).filter(u"passing"_s))
        age(home.path(u"Downloads/"_s + file), 40); // for which the tenant may have had no time
    EXPECT_TRUE(clean(downloads).success);
    EXPECT_EQ(entries(home.path(u"Downloads"_s)), QStringList(u"new"_s));
}

/// For caches that real tools have made in a home folder of their own; docs/testing.md tells how.
TEST_F(CleanupOnDisk, DISABLED_MeasuresAndEmptiesCachesMadeByTools) {
    const QString folder = qEnvironmentVariable("TAVRIN_CACHES_HOME");
    const passwd* user = getpwuid(getuid());
    ASSERT_TRUE(QFileInfo(folder).isDir());
    ASSERT_NE(QFileInfo(folder).canonicalFilePath(),
              QFileInfo(QFile::decodeName(user->pw_dir)).canonicalFilePath());
    qputenv("HOME", folder.toUtf8());
    for (const CacheTarget& target : CacheTarget::defaults().first(3)) {
        const CacheTarget measured = scanned(target);
        for (const CacheEntry& entry : measured.details) {
            QProcess du;
            du.start(u"du"_s, {u"-sk"_s, entry.path});
            ASSERT_TRUE(du.waitForFinished());
            EXPECT_EQ(entry.sizeBytes, du.readAll().split('\t').first().toULongLong() * 1024);
        }
        const CleanResult result = clean(target);
        EXPECT_TRUE(result.success);
        EXPECT_EQ(measured.sizeBytes - result.freedBytes, scanned(target).sizeBytes);
        for (const CacheEntry& entry : measured.details)
            EXPECT_TRUE(entries(entry.path).isEmpty()) << entry.path.toStdString();
        std::printf("%s: %llu bytes, freed %llu\n", qPrintable(target.name), measured.sizeBytes,
                    result.freedBytes);
    }
}

QByteArray mountNamespace() {
    return QFile::symLinkTarget(u"/proc/self/ns/mnt"_s).toUtf8();
}

/// Run by the test below in a mount namespace of its own, where /tmp is an empty disk of 1 MiB.
class DISABLED_InPrivateMount : public CleanupOnDisk {
protected:
    void SetUp() override {
        const QByteArray outside = qgetenv("TAVRIN_MOUNTS_OUTSIDE");
        ASSERT_TRUE(!outside.isEmpty() && outside != mountNamespace())
            << "would touch the machine's own files";
        ASSERT_EQ(mount("tmpfs", "/tmp", "tmpfs", 0, "size=1m"), 0);
    }
    void TearDown() override { EXPECT_EQ(umount2("/tmp", MNT_DETACH), 0); }
};

TEST_F(DISABLED_InPrivateMount, LeavesAFolderWithAMountInsideAlone) {
    const TemporaryHome ours;
    const QString inside = ours.makeFolder(u".npm/disk"_s);
    ours.makeFile(u".npm/file"_s);
    ASSERT_EQ(mount("tmpfs", inside.toUtf8().constData(), "tmpfs", 0, nullptr), 0);
    const QString precious = ours.makeFile(u".npm/disk/precious"_s);
    const CacheTarget target{.name = u"x"_s, .paths = {u"~/.npm"_s}};
    EXPECT_EQ(clean(target), (CleanResult{false, 0}));
    EXPECT_TRUE(QFileInfo::exists(precious));
    ASSERT_EQ(umount(inside.toUtf8().constData()), 0);
    EXPECT_TRUE(clean(target).success);
}

TEST_F(DISABLED_InPrivateMount, CleansAFullDisk) {
    const TemporaryHome ours;
    ours.makeFolder(u".npm"_s);
    std::ofstream fill(ours.path(u".npm/fill"_s).toStdString());
    while (fill << std::string(4096, 'x') << std::flush) {
    }
    fill.close();
    EXPECT_EQ(std::filesystem::space("/tmp").available, 0U);
    const CleanResult result = clean({.name = u"x"_s, .paths = {u"~/.npm"_s}});
    EXPECT_TRUE(result.success);
    EXPECT_GT(result.freedBytes, 900U * 1024);
}

TEST_F(DISABLED_InPrivateMount, ReportsMoreEntriesThanTheShellCanPass) {
    const TemporaryHome ours;
    const std::string cache = ours.makeFolder(u".npm"_s).toStdString() + "/entry number ";
    for (int i = 0; i < 200000; ++i)
        close(open((cache + std::to_string(i)).c_str(), O_CREAT | O_WRONLY, 0600));
    EXPECT_EQ(clean({.name = u"x"_s, .paths = {u"~/.npm"_s}}), (CleanResult{false, 0}));
    EXPECT_EQ(QDir(ours.path(u".npm"_s)).entryList(QDir::Files).size(), 200000);
}

TEST_F(DISABLED_InPrivateMount, DeletesOnlyOldFilesOfTmp) {
    places =
        std::make_shared<LinuxPlaces>("/dev/null"); // mounts under the machine's own /tmp are still listed
    for (const char* path : {"/tmp/new", "/tmp/old"})
        std::ofstream(path) << "x";
    std::filesystem::create_directory("/tmp/old folder");
    const auto longAgo = std::filesystem::file_time_type::clock::now() - 24h * 9;
    for (const char* path : {"/tmp/old", "/tmp/old folder"})
        std::filesystem::last_write_time(path, longAgo);
    EXPECT_TRUE(clean({.name = u"Old /tmp (>7d)"_s, .paths = {u"/tmp"_s}}).success);
    EXPECT_EQ(QDir(u"/tmp"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList({u"new"_s, u"old folder"_s}));
}

TEST(CleanupInPrivateMount, LosesNothingOutsideATarget) {
    QProcess probe;
    probe.start(u"unshare"_s, {u"-rm"_s, u"true"_s});
    if (!probe.waitForFinished() || probe.exitCode() != 0)
        GTEST_SKIP() << "this machine allows no private mounts";
    QProcess inside;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TAVRIN_MOUNTS_OUTSIDE"_s, QString::fromUtf8(mountNamespace()));
    inside.setProcessEnvironment(environment);
    inside.setProcessChannelMode(QProcess::MergedChannels);
    inside.start(u"unshare"_s,
                 {u"-rm"_s, QCoreApplication::applicationFilePath(), u"--gtest_also_run_disabled_tests"_s,
                  u"--gtest_filter=DISABLED_InPrivateMount.*"_s});
    ASSERT_TRUE(inside.waitForFinished(60000));
    const QByteArray report = inside.readAll();
    EXPECT_EQ(inside.exitCode(), 0) << report.toStdString();
    EXPECT_TRUE(report.contains("Running 4 tests")) << report.toStdString();
}

} // namespace
