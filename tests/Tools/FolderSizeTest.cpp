#include "Tools/FolderSize.h"

#include "Tools/LinkedFiles.h"
#include "Tools/ToolProcess.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace Tools;

namespace {

const QString systemsDu = u"/usr/bin/du"_s;

QString ownDu() {
    return QDir(QCoreApplication::applicationDirPath()).filePath(u"../libexec/tavrin/du"_s);
}

EndedTool runToEnd(const QString& program, const QStringList& arguments, const QString& folder = {}) {
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    process.waitForFinished(60'000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

/// Compares ours with the system's, `prefix` being a program that runs them. Returns what ours did.
EndedTool expectSame(const QString& path, const QString& folder = {}, QStringList prefix = {}) {
    const auto measure = [&](const QString& du) {
        QStringList command = prefix + QStringList{du, u"-sk"_s, u"-x"_s, path};
        const QString program = command.takeFirst();
        return runToEnd(program, command, folder);
    };
    const EndedTool ours = measure(ownDu());
    const EndedTool theirs = measure(systemsDu);
    EXPECT_EQ(ours.output, theirs.output) << qPrintable(path);
    EXPECT_EQ(ours.status, theirs.status) << qPrintable(path);
    EXPECT_EQ(ours.error.isEmpty(), theirs.error.isEmpty()) << ours.error.constData();
    return ours;
}

quint64 blocksOf(const QString& path, const FolderWalkLimits& limits = {}) {
    const auto size = measureFolder(
        path.toStdString(), [](const UnreadEntry& entry) { ADD_FAILURE() << entry.path; }, limits);
    return size ? size->blocks : 0;
}

void makeRawFile(const QString& folder, const std::string& name) {
    const std::string path = folder.toStdString() + '/' + name;
    const int file = open(path.c_str(), O_CREAT | O_WRONLY, 0600);
    EXPECT_EQ(write(file, path.c_str(), path.size()), static_cast<ssize_t>(path.size()));
    close(file);
}

void makeLink(const QString& from, const QString& to) {
    ASSERT_EQ(link(from.toUtf8().constData(), to.toUtf8().constData()), 0);
}

/// Makes a folder in a folder, that many times, each with a folder beside it.
void makeDeepTree(const QString& top, int depth) {
    int folder = open(top.toUtf8().constData(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < depth; ++i) {
        ASSERT_EQ(mkdirat(folder, "a", 0700), 0);
        ASSERT_EQ(mkdirat(folder, "deeper", 0700), 0);
        ASSERT_EQ(mkdirat(folder, "z", 0700), 0);
        const int next = openat(folder, "deeper", O_RDONLY | O_DIRECTORY);
        close(folder);
        folder = next;
    }
    close(folder);
}

} // namespace

TEST(FolderSize, IsWhatTheSystemSaysWhateverAFolderContains) {
    const TemporaryFolder tree;
    const QString folder = tree.makeFolder(u"folder"_s);
    EXPECT_EQ(expectSame(folder).status, 0);
    for (const int bytes : {0, 1, 60, 4096, 4097, 300'000})
        tree.makeFile(u"folder/inner/file%1"_s.arg(bytes), QByteArray(bytes, 'x'));
    for (const std::string& name : {std::string("two\nlines"), std::string("caf\xe9\xff"),
                                    std::string(255, 'n'), std::string("..."), std::string(" ")})
        makeRawFile(folder, name);
    tree.makeFile(u"outside/file"_s, QByteArray(50'000, 'x'));
    for (const auto& target : {u"outside"_s, u"outside/file"_s, u"nothing"_s, u"folder"_s})
        ASSERT_TRUE(
            QFile::link(tree.path(target), tree.path(u"folder/to "_s + QFileInfo(target).fileName())));
    makeLink(tree.path(u"folder/inner/file300000"_s), tree.path(u"folder/again"_s));
    makeLink(tree.path(u"folder/inner/file300000"_s), tree.path(u"folder/inner/and again"_s));
    makeLink(tree.path(u"outside/file"_s), tree.path(u"folder/also outside"_s));
    QFile sparse(tree.makeFile(u"folder/sparse"_s));
    ASSERT_TRUE(sparse.resize(qint64(1) << 40));
    ASSERT_EQ(mkfifo(tree.path(u"folder/pipe"_s).toUtf8().constData(), 0600), 0);

    const EndedTool ended = expectSame(folder);
    EXPECT_EQ(ended.status, 0) << ended.error.constData();
    EXPECT_GT(ended.output.split('\t').front().toInt(), 350);
    for (const auto& way : {u"/"_s, u"///"_s, u"/inner/file4097"_s, u"/to folder"_s, u"/to outside/"_s,
                            u"/to nothing"_s, u"/to nothing/"_s, u"/missing"_s, u"/pipe"_s})
        expectSame(folder + way);
    for (const auto& way : {u"."_s, u"to folder"_s, u"./inner//"_s, u"../"_s})
        expectSame(way, folder);
    EXPECT_EQ(runToEnd(u"/bin/rm"_s, {u"-r"_s, folder}).status, 0); // Qt cannot name all of it
}

TEST(FolderSize, IsTheSameForAnyNumberOfThreadsAndDescriptors) {
    const TemporaryFolder tree;
    constexpr int folders = 3000; // more than one reading returns
    for (int i = 0; i < folders; ++i) {
        const QString folder = tree.makeFolder(u"wide/folder with a long name, number %1"_s.arg(i));
        tree.makeFile(u"wide/file %1"_s.arg(i), QByteArray(i, 'x'));
        if (i % 3 == 0)
            tree.makeFile(u"wide/folder with a long name, number %1/inner/file"_s.arg(i));
        makeLink(tree.path(u"wide/file %1"_s.arg(i / 2)), folder + u"/link"_s);
    }
    const quint64 kib = expectSame(tree.path()).output.split('\t').front().toULongLong();
    for (const FolderWalkLimits& limits :
         {FolderWalkLimits{.threads = 1}, FolderWalkLimits{.threads = 64},
          FolderWalkLimits{.threads = 1, .openFolders = 1}, FolderWalkLimits{.threads = 3, .openFolders = 2}})
        EXPECT_EQ((blocksOf(tree.path(), limits) + 1) / 2, kib)
            << limits.threads << ' ' << limits.openFolders;
    expectSame(tree.path(), {}, {u"/usr/bin/prlimit"_s, u"--nofile=40"_s});
}

TEST(FolderSize, GoesDeeperThanAPathCanBe) {
    const TemporaryFolder tree;
    const QString top = tree.makeFolder(u"deep"_s);
    makeDeepTree(top, 5000);
    EXPECT_EQ(expectSame(top).status, 0);
    expectSame(top, {}, {u"/usr/bin/prlimit"_s, u"--nofile=100"_s, u"--stack=1048576"_s});
    EXPECT_EQ(runToEnd(u"/bin/rm"_s, {u"-r"_s, top}).status, 0);
}

TEST(FolderSize, ReportsWhatCannotBeReadAndCountsTheRest) {
    const TemporaryFolder tree;
    constexpr int closed = 25;
    for (int i = 0; i < closed; ++i)
        tree.makeFile(u"folder/closed\n%1/file"_s.arg(i), QByteArray(10'000, 'x'));
    tree.makeFile(u"folder/listed/file"_s, QByteArray(10'000, 'x'));
    tree.makeFile(u"folder/open/file"_s, QByteArray(10'000, 'x'));
    const auto setMode = [&tree](const QString& below, mode_t mode) {
        ASSERT_EQ(chmod(tree.path(below).toUtf8().constData(), mode), 0);
    };
    for (int i = 0; i < closed; ++i)
        setMode(u"folder/closed\n%1"_s.arg(i), 0);
    for (const auto& below : {u""_s, u"folder"_s, u"folder/open"_s})
        setMode(below, 0755);
    setMode(u"folder/listed"_s, 0444);
    const QString copy = tree.path(u"du"_s); // the build tree may be closed to the other user
    ASSERT_TRUE(QFile::copy(ownDu(), copy));
    const auto measure = [](const QString& du, const QString& path) {
        QStringList command{du, u"-sk"_s, u"-x"_s, path};
        if (geteuid() == 0)
            command = QStringList{u"/usr/bin/setpriv"_s, u"--reuid=65534"_s, u"--regid=65534"_s,
                                  u"--clear-groups"_s} +
                      command;
        const QString program = command.takeFirst();
        return runToEnd(program, command);
    };
    for (const auto& below :
         {u"folder"_s, u"folder/closed\n0"_s, u"folder/listed"_s, u"folder/listed/file"_s}) {
        const EndedTool ours = measure(copy, tree.path(below));
        const EndedTool theirs = measure(systemsDu, tree.path(below));
        EXPECT_EQ(ours.output, theirs.output) << qPrintable(below);
        EXPECT_EQ(ours.status, 1) << qPrintable(below);
        EXPECT_EQ(theirs.status, 1) << qPrintable(below);
        EXPECT_TRUE(ours.error.contains("Permission denied\n")) << ours.error.constData();
    }
    const QByteArray said = measure(copy, tree.path(u"folder"_s)).error;
    EXPECT_EQ(said.count('\n'), 21) << said.constData();
    EXPECT_TRUE(said.endsWith("du: 6 more cannot be read\n")) << said.constData();
    for (int i = 0; i < closed; ++i)
        setMode(u"folder/closed\n%1"_s.arg(i), 0700);
    setMode(u"folder/listed"_s, 0700);
}

TEST(FolderSize, StaysOnItsFileSystemAndOutOfItself) {
    const TemporaryFolder tree;
    tree.makeFile(u"top/a/b/file"_s, QByteArray(20'000, 'x'));
    tree.makeFile(u"beside/file"_s, QByteArray(30'000, 'x'));
    for (const auto& below : {u"top/a/other"_s, u"top/loop/here"_s, u"top/bound"_s, u"top/wider"_s})
        tree.makeFolder(below);
    tree.makeFile(u"top/bound file"_s);
    const auto inOwnMounts = [&tree](const QString& command) {
        return runToEnd(u"/usr/bin/unshare"_s, {u"-rm"_s, u"/bin/sh"_s, u"-ec"_s, command}, tree.path());
    };
    if (inOwnMounts(u"mount -t tmpfs none top/a/other"_s).status != 0)
        GTEST_SKIP() << "nothing can be mounted here";
    const QString mounts = u"mount -t tmpfs none top/a/other; echo text >top/a/other/file; "
                           "mount --bind top top/loop/here; mount --bind beside top/bound; "
                           "mount --bind . top/wider; mount --bind beside/file 'top/bound file'; "_s;
    for (const auto& path : {u"top"_s, u"top/a"_s, u"top/a/other"_s, u"top/loop"_s, u"."_s}) {
        const EndedTool theirs = inOwnMounts(mounts + systemsDu + u" -sk -x "_s + path);
        const EndedTool ours = inOwnMounts(mounts + ownDu() + u" -sk -x "_s + path);
        EXPECT_EQ(theirs.status, 0) << theirs.error.constData();
        EXPECT_EQ(ours.status, 0) << ours.error.constData();
        EXPECT_EQ(ours.output, theirs.output);
    }
}

TEST(FolderSize, EndsWithATreeThatChangesMeanwhile) {
    const TemporaryFolder tree;
    for (int i = 0; i < 300; ++i)
        tree.makeFile(u"tree/%1/%2/file"_s.arg(i % 20).arg(i), QByteArray(5000, 'x'));
    const quint64 atFirst = blocksOf(tree.path());
    const std::jthread meddler([&tree](const std::stop_token& stop) {
        for (int i = 0; !stop.stop_requested(); ++i) {
            const QString folder = tree.path(u"tree/%1"_s.arg(i % 20));
            QFile::rename(folder, folder + u" away"_s);
            QDir(folder + u" away/%1"_s.arg(i % 300)).removeRecursively();
            QFile::rename(folder + u" away"_s, folder);
        }
    });
    for (int i = 0; i < 100; ++i) {
        const auto size = measureFolder(tree.path().toStdString(), [](const UnreadEntry& entry) {
            EXPECT_TRUE(entry.error == ENOENT) << entry.path << ": " << entry.error;
        });
        ASSERT_TRUE(size.has_value());
        EXPECT_LE(size->blocks, 2 * atFirst);
    }
}

TEST(FolderSize, CountsALinkForItsShareOnceThereAreTooManyToRemember) {
    const TemporaryFolder tree;
    for (int i = 0; i < 3; ++i) {
        tree.makeFile(u"one/file%1"_s.arg(i), QByteArray(40'000, 'x'));
        makeLink(tree.path(u"one/file%1"_s.arg(i)), tree.path(u"one/link%1"_s.arg(i)));
    }
    const auto size = measureFolder(tree.path().toStdString(), {}, {.linkedFiles = 1});
    ASSERT_TRUE(size.has_value());
    EXPECT_TRUE(size->isEstimate);
    EXPECT_EQ(size->blocks, blocksOf(tree.path()));
}

TEST(LinkedFiles, RemembersAsManyAsItMay) {
    constexpr ino_t bound = 10'000;
    LinkedFiles files(bound);
    for (ino_t inode = 0; inode < bound; ++inode)
        EXPECT_EQ(files.add(inode << 20), LinkedFiles::Seen::first) << inode;
    for (ino_t inode = 0; inode < bound; ++inode)
        EXPECT_EQ(files.add(inode << 20), LinkedFiles::Seen::again) << inode;
    EXPECT_EQ(files.add(1), LinkedFiles::Seen::unknown);
    for (ino_t inode = 0; inode < bound; inode += 3)
        files.remove(inode << 20);
    for (ino_t inode = 0; inode < bound; ++inode)
        EXPECT_EQ(files.contains(inode << 20), inode % 3 != 0) << inode;
}
