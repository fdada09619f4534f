#include "Platform/Child.h"
#include "Platform/CleanupFixture.h"

#include <QCoreApplication>
#include <QProcess>

#include <fstream>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Cleaner::CleanResult;

namespace {

QByteArray mountNamespace() {
    return QFile::symLinkTarget(u"/proc/self/ns/mnt"_s).toUtf8();
}

/// Run by the last test only, in a private mount namespace with an empty /tmp.
class InPrivateMount : public CleanupOnDisk {
protected:
    void SetUp() override {
        const QByteArray outside = qgetenv("TAVRIN_MOUNTS_OUTSIDE");
        ASSERT_TRUE(!outside.isEmpty() && outside != mountNamespace())
            << "would touch the machine's own files";
        ASSERT_EQ(mount("tmpfs", "/tmp", "tmpfs", 0, "size=1m,nr_inodes=0"), 0);
    }
    void TearDown() override { EXPECT_EQ(umount2("/tmp", MNT_DETACH), 0); }
};

TEST_F(InPrivateMount, StaysOnTheDiskOfTheFolder) {
    const TemporaryHome ours;
    const QString beside = ours.makeFolder(u".npm/disk"_s);
    const QString inside = ours.makeFolder(u".npm/deep/disk"_s);
    ours.makeFile(u".npm/deep/file"_s);
    for (const QString& disk : {beside, inside}) {
        ASSERT_EQ(mount("tmpfs", disk.toUtf8().constData(), "tmpfs", 0, nullptr), 0);
        std::ofstream((disk + u"/precious"_s).toStdString()) << "x";
    }
    const CacheTarget npm = scanned(target(u"npm / pnpm / yarn"_s));
    EXPECT_FALSE(clean(npm).done) << "something that was listed is left";
    for (const QString& disk : {beside, inside}) {
        EXPECT_TRUE(QFileInfo::exists(disk + u"/precious"_s));
        ASSERT_EQ(umount(disk.toUtf8().constData()), 0);
    }
    EXPECT_EQ(entries(ours.path(u".npm/deep"_s)), QStringList(u"disk"_s));
    EXPECT_TRUE(clean(u"~/.npm"_s).done);
    EXPECT_TRUE(entries(ours.path(u".npm"_s)).isEmpty());
}

TEST_F(InPrivateMount, RefusesACacheHomeThatIsTmpOrADisk) {
    const TemporaryHome ours;
    const QString disk = ours.makeFolder(u"a disk"_s);
    ASSERT_EQ(mount("tmpfs", disk.toUtf8().constData(), "tmpfs", 0, nullptr), 0);
    const std::pair<QString, QString> cases[] = {{u"/tmp"_s, u"all programs share it"_s},
                                                 {disk, u"a whole file system is mounted there"_s}};
    for (const auto& [folder, reason] : cases) {
        qputenv("XDG_CACHE_HOME", folder.toUtf8());
        std::ofstream((folder + u"/precious"_s).toStdString()) << "x";
        const CacheTarget caches = scanned(target(u"User caches"_s));
        EXPECT_EQ(caches.notes, QStringList(u"%1 is left alone: %2."_s.arg(folder, reason)));
        EXPECT_FALSE(clean(caches).done);
        EXPECT_TRUE(QFileInfo::exists(folder + u"/precious"_s));
    }
    EXPECT_EQ(umount(disk.toUtf8().constData()), 0);
}

TEST_F(InPrivateMount, CleansAFullDisk) {
    const TemporaryHome ours;
    ours.makeFolder(u".npm"_s);
    std::ofstream fill(ours.path(u".npm/fill"_s).toStdString());
    while (fill << std::string(4096, 'x') << std::flush) {
    }
    fill.close();
    EXPECT_EQ(std::filesystem::space("/tmp").available, 0U);
    const CleanResult result = clean(u"~/.npm"_s);
    EXPECT_TRUE(result.done);
    EXPECT_GT(result.freedBytes, 900U * 1024);
}

TEST_F(InPrivateMount, EmptiesAFolderOfMoreEntriesThanAShellCanPass) {
    const TemporaryHome ours;
    const std::string cache = ours.makeFolder(u".npm"_s).toStdString() + "/entry number ";
    for (int i = 0; i < 200000; ++i)
        close(open((cache + std::to_string(i)).c_str(), O_CREAT | O_WRONLY, 0600));
    EXPECT_TRUE(clean(scanned(target(u"npm / pnpm / yarn"_s))).done);
    EXPECT_TRUE(entries(ours.path(u".npm"_s)).isEmpty());
}

void listenAt(int socket, const char* path) {
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    qstrncpy(address.sun_path, path, sizeof address.sun_path);
    ASSERT_EQ(bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
}

TEST_F(InPrivateMount, LeavesInTmpWhatProgramsWorkWith) {
    std::filesystem::create_directories("/tmp/old folder/.X11-unix");
    const std::pair<const char*, bool> files[] = {
        {"/tmp/new", true},          {"/tmp/old", false},
        {"/tmp/.X7-lock", true},     {"/tmp/old folder/deep", false},
        {"/tmp/.s.db.lock", true},   {"/tmp/stale.lock", false},
        {"/tmp/open", true},         {"/tmp/mapped", true},
        {"/tmp/.X11-unixed", false},
    };
    for (const auto& [path, stays] : files)
        std::ofstream(path) << "x";
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    listenAt(server, "/tmp/.s.db");
    age(u"/tmp/new"_s, 0);
    const Child user([](int test) {
        const int opened = open("/tmp/open", O_RDONLY);
        const int mapped = open("/tmp/mapped", O_RDONLY);
        mmap(nullptr, 1, PROT_READ, MAP_PRIVATE, mapped, 0);
        close(mapped);
        static_cast<void>(!write(test, opened < 0 ? "-" : "r", 1));
        pause();
    });
    ASSERT_EQ(user.heard(), 'r');

    const CacheTarget tmp = scanned(target(u"Old /tmp (>7d)"_s));
    EXPECT_EQ(tmp.sizeBytes, 4U);
    EXPECT_TRUE(clean(tmp).done);
    for (const auto& [path, stays] : files)
        EXPECT_EQ(std::filesystem::exists(path), stays) << path;
    EXPECT_TRUE(std::filesystem::exists("/tmp/old folder/.X11-unix"));
    EXPECT_TRUE(std::filesystem::exists("/tmp/.s.db"));
    close(server);
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
                 {u"-rm"_s, QCoreApplication::applicationFilePath(), u"--gtest_filter=InPrivateMount.*"_s});
    ASSERT_TRUE(inside.waitForFinished(90000));
    const QByteArray report = inside.readAll();
    EXPECT_EQ(inside.exitCode(), 0) << report.toStdString();
    EXPECT_TRUE(report.contains("[  PASSED  ] 5 tests")) << report.toStdString();
}

} // namespace
