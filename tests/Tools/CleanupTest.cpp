#include "Tools/Cleanup.h"

#include "Tools/ToolProcess.h"
#include "support/TemporaryFolder.h"

#include <QDirIterator>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <sstream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::string_literals;
using namespace Tools;

namespace {

EndedTool run(const QStringList& arguments, const QByteArray& input = {}) {
    return runTool(u"cleanup"_s, arguments, input);
}

std::string textOf(const CleanupListing& listing) {
    std::ostringstream text;
    listing.write(text);
    return text.str();
}

/// Lists the last of the arguments. Returns an empty listing after a failure.
CleanupListing listed(const QStringList& arguments, const QByteArray& input = {}) {
    const EndedTool ended = run(QStringList(u"list"_s) + arguments, input);
    EXPECT_EQ(ended.status, 0) << ended.error.constData();
    return CleanupListing::parse(ended.output.toStdString()).value_or(CleanupListing());
}

const CleanupListing::Entry& entryIn(const CleanupListing& listing, const std::string& path) {
    static const CleanupListing::Entry none;
    const auto found = std::ranges::find(listing.entries, path, &CleanupListing::Entry::path);
    return found == listing.entries.end() ? none : *found;
}

/// Returns what the system's `du` counts.
quint64 usage(const QString& path) {
    QProcess du;
    du.start(u"/usr/bin/du"_s, {u"-sk"_s, u"-x"_s, path});
    du.waitForFinished();
    return du.readAllStandardOutput().split('\t').front().toULongLong() * 1024;
}

/// Returns the paths of all below a folder, sorted.
QStringList allBelow(const QString& folder) {
    QStringList paths;
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext())
        paths.append(QDir(folder).relativeFilePath(each.next()));
    paths.sort();
    return paths;
}

/// The clock of status changes may be a few milliseconds behind that of listings.
void waitForTheNextTick() {
    QThread::msleep(20);
}

} // namespace

TEST(Cleanup, AListingReadsBackAsItWasWrittenAndAPartOfOneIsNone) {
    const CleanupListing listing{
        .device = 64,
        .inode = ~ino_t(0),
        .bytes = 5000,
        .listed = 77,
        .entries = {{.inode = 1, .bytes = 5000, .path = "deep/two\nlines"},
                    {.inode = 2, .modified = -5, .isFolder = true, .path = " caf\xe9 "},
                    {.inode = 3, .isFolder = true, .isInUse = true, .path = "-"}}};
    const std::string text = textOf(listing);
    EXPECT_EQ(CleanupListing::parse(text), listing);
    for (std::size_t length = 0; length < text.size(); ++length) {
        const auto part = CleanupListing::parse(text.substr(0, length));
        EXPECT_TRUE(!part || part->entries.size() < 3) << length;
        EXPECT_TRUE(!part || text[length - 1] == '\0') << length;
    }
    for (const std::string& other :
         {"1:2 0 0\n"s, "1:2 0\0"s, "1:2 0 0\0-1 0 0 - a\0"s, "1:2 0 0\0001 x 0 - a\0"s,
          "1:2 0 0\0001 2 0 - \0"s, "1:2 0 0\0001 2 0 ud a\0"s, "1:2 0 0\0001 2 0 -\0"s, "1:2 0 0\0\0"s,
          "1:2 0 0\00099999999999999999999 0 0 - a\0"s})
        EXPECT_FALSE(CleanupListing::parse(std::string_view(other).substr(0, other.size()))) << other;
}

TEST(Cleanup, KnowsPicturesAndRecordingsByTheirFirstBytes) {
    const std::pair<std::string, bool> cases[] = {
        {"\x89PNG\r\n\x1a\n...."s, true},
        {"\xff\xd8\xff\xe0"s, true},
        {"RIFF\1\2\3\4WEBPVP8 "s, true},
        {"RIFF\1\2\3\4WAVEfmt "s, false},
        {"\0\0\0\040ftypmp42"s, true},
        {"\0\0\0\040ftypavif"s, true},
        {"\0\0\0\040ftypM4A "s, false},
        {"\x1a\x45\xdf\xa3"s, true},
        {"BM\1\2\3\4\0\0\0\0\x36"s, true},
        {"BMW, a screenplay"s, false},
        {"FADE IN"s, false},
        {"%PDF-1.7"s, false},
        {""s, false},
    };
    for (const auto& [head, isOne] : cases)
        EXPECT_EQ(isPicture(head), isOne) << head;
}

TEST(Cleanup, AFolderIsListedWithWhatAllBelowItTakes) {
    const TemporaryFolder tree;
    tree.makeFile(u"folder/inner/big"_s, QByteArray(100'000, 'x'));
    tree.makeFile(u"..hidden/file"_s, QByteArray(30'000, 'x'));
    for (int i = 0; i < 2000; ++i) // enough for several threads
        tree.makeFile(u"many/%1/file %2"_s.arg(i % 50).arg(i), QByteArray(i, 'x'));
    QFile sparse(tree.makeFile(u"sparse"_s));
    ASSERT_TRUE(sparse.resize(qint64(1) << 40));
    const QString big = tree.path(u"folder/inner/big"_s);
    const timespec times[] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, big.toUtf8().constData(), times, 0), 0);
    ASSERT_EQ(utimensat(AT_FDCWD, tree.path(u"sparse"_s).toUtf8().constData(), times, 0), 0);

    const CleanupListing listing = listed({tree.path()});
    ASSERT_EQ(listing.entries.size(), 3u);
    EXPECT_EQ(listing.bytes, usage(tree.path())) << "with what is not listed";
    for (const char* name : {"folder", "many", "sparse"})
        EXPECT_EQ(entryIn(listing, name).bytes, usage(tree.path(QString::fromUtf8(name)))) << name;
    EXPECT_EQ(entryIn(listing, "sparse").modified, 1'000'000'000);
    EXPECT_GT(entryIn(listing, "folder").modified, 1'000'000'000) << "the newest below it";
    EXPECT_TRUE(entryIn(listing, "folder").isFolder && !entryIn(listing, "sparse").isFolder);

    ASSERT_EQ(link(big.toUtf8().constData(), tree.path(u"many/link"_s).toUtf8().constData()), 0);
    const CleanupListing linked = listed({tree.path()});
    EXPECT_EQ(linked.bytes, usage(tree.path())) << "a file with two links counts once";
    EXPECT_EQ(entryIn(linked, "folder").bytes + entryIn(linked, "many").bytes,
              entryIn(listing, "folder").bytes + entryIn(listing, "many").bytes);
}

TEST(Cleanup, AFolderInsideIsListedWithPathsFromTheFolder) {
    const TemporaryFolder tree;
    const QString root = tree.makeFolder(u"root"_s);
    tree.makeFile(u"root/a/b/file"_s, QByteArray(9000, 'x'));
    tree.makeFile(u"root/a/b/..two dots"_s);
    tree.makeFile(u"root/a/b/c/deep"_s, QByteArray(50'000, 'x'));
    tree.makeFile(u"root/beside"_s, QByteArray(50'000, 'x'));
    ASSERT_TRUE(QFile::link(tree.path(u"root/a"_s), tree.path(u"root/link"_s)));
    const QByteArray odd = "caf\xe9\xff\n" + QByteArray(249, 'n');
    const QByteArray oddPath = root.toUtf8() + "/a/" + odd;
    ASSERT_EQ(mkdir(oddPath.constData(), 0700), 0);
    ASSERT_EQ(mkdir((oddPath + "/x").constData(), 0700), 0);

    const CleanupListing listing = listed({u"--in"_s, root}, "a/b");
    EXPECT_EQ(listing.bytes, usage(tree.path(u"root/a/b"_s)));
    EXPECT_EQ(listing.inode, listed({root}).inode);
    ASSERT_EQ(listing.entries.size(), 3u);
    EXPECT_TRUE(entryIn(listing, "a/b/c").isFolder);
    EXPECT_EQ(entryIn(listing, "a/b/file").bytes, usage(tree.path(u"root/a/b/file"_s)));
    const CleanupListing inOdd = listed({u"--in"_s, root}, "a/" + odd);
    ASSERT_EQ(inOdd.entries.size(), 1u);
    EXPECT_EQ(inOdd.entries.front().path, ("a/" + odd + "/x").toStdString());

    for (const char* path : {"..", "../root/a", "a/../..", "/tmp", "", "a//b", "./a", "a/"})
        EXPECT_EQ(run({u"list"_s, u"--in"_s, root}, path).status, 2) << path;
    for (const char* path : {"link", "link/b", "missing", "beside"})
        EXPECT_EQ(run({u"list"_s, u"--in"_s, root}, path).status, 1) << path;

    CleanupListing chosen = listing; // of several depths
    std::erase_if(chosen.entries, [](const auto& entry) { return entry.path == "a/b/file"; });
    chosen.entries.push_back(entryIn(listed({root}), "beside"));
    chosen.entries.push_back(inOdd.entries.front());
    const QByteArray input = QByteArray::fromStdString(textOf(chosen));
    EXPECT_EQ(run({u"remove"_s, root}, input).status, 0);
    EXPECT_FALSE(QFileInfo::exists(tree.path(u"root/a/b/c"_s)) ||
                 QFileInfo::exists(tree.path(u"root/beside"_s)));
    EXPECT_TRUE(QFileInfo::exists(tree.path(u"root/a/b/file"_s)));
    EXPECT_EQ(rmdir(oddPath.constData()), 0) << "its entry is gone, and it is left";
}

TEST(Cleanup, MarksWhatRunningProgramsUse) {
    const TemporaryFolder tree;
    for (const auto& name : {u"opened/deep/file"_s, u"mapped/file"_s, u"unused/file"_s, u"below/work/file"_s})
        tree.makeFile(name);
    tree.makeFolder(u"run"_s);
    ASSERT_TRUE(QFile::copy(u"/bin/sleep"_s, tree.path(u"run/sleep"_s)));
    QFile opened(tree.path(u"opened/deep/file"_s));
    QFile mapped(tree.path(u"mapped/file"_s));
    ASSERT_TRUE(opened.open(QIODevice::ReadOnly) && mapped.open(QIODevice::ReadOnly) && mapped.map(0, 1));
    mapped.close();
    QProcess sleeper;
    sleeper.setWorkingDirectory(tree.path(u"below/work"_s));
    sleeper.start(tree.path(u"run/sleep"_s), {u"60"_s});
    ASSERT_TRUE(sleeper.waitForStarted());

    const QByteArray used = run({u"open"_s}).output;
    for (const CleanupListing& listing : {listed({tree.path()}), listed({u"--used"_s, tree.path()}, used)}) {
        for (const auto& [name, isUsed] :
             {std::pair("opened", true), std::pair("mapped", true), std::pair("run", true),
              std::pair("below", true), std::pair("unused", false)})
            EXPECT_EQ(entryIn(listing, name).isInUse, isUsed) << name;
    }
    const CleanupListing inside =
        listed({u"--in"_s, u"--used"_s, tree.path()}, "opened" + QByteArray(1, '\0') + used);
    EXPECT_TRUE(entryIn(inside, "opened/deep").isInUse);
    EXPECT_EQ(run({u"list"_s, u"--used"_s, tree.path()}, "64:x").status, 2);
    sleeper.kill();
    sleeper.waitForFinished();
}

TEST(Cleanup, WhatCameAfterTheListingStaysBelowAListedFolder) {
    const TemporaryFolder tree;
    for (const auto& name : {u"cache/old"_s, u"cache/deep/old"_s, u"cache/gone/old"_s,
                             u"cache/deep/changed"_s, u"top"_s, u"beside/moved"_s})
        tree.makeFile(name, QByteArray(5000, 'x'));
    const auto makeLink = [&tree](const QString& from, const QString& to) {
        ASSERT_EQ(link(tree.path(from).toUtf8().constData(), tree.path(to).toUtf8().constData()), 0);
    };
    makeLink(u"cache/old"_s, u"cache/deep/its link"_s);
    makeLink(u"cache/gone/old"_s, u"top link"_s);
    waitForTheNextTick();
    const QByteArray listing = run({u"list"_s, tree.path()}).output;
    waitForTheNextTick();
    tree.makeFile(u"cache/deep/new"_s);
    tree.makeFile(u"cache/deep/changed"_s);
    tree.makeFolder(u"cache/new folder"_s);
    tree.makeFile(u"top"_s); // which was listed itself
    tree.makeFile(u"new at top"_s);
    ASSERT_TRUE(QFile::remove(tree.path(u"top link"_s))); // by another clean, which changes the other link
    ASSERT_TRUE(QFile::rename(tree.path(u"beside/moved"_s), tree.path(u"cache/new folder/moved"_s)));

    const EndedTool ended = run({u"remove"_s, tree.path()}, listing);
    EXPECT_EQ(ended.status, 0) << ended.error.constData();
    const QStringList left = {u"cache"_s,          u"cache/deep"_s,       u"cache/deep/changed"_s,
                              u"cache/deep/new"_s, u"cache/new folder"_s, u"cache/new folder/moved"_s,
                              u"new at top"_s};
    EXPECT_EQ(allBelow(tree.path()), left);

    for (const QByteArray& absurd : {QByteArray("0"), QByteArray("9000000000000000000")}) {
        tree.makeFile(u"cache/deep/new"_s);
        QByteArray text = run({u"list"_s, tree.path()}).output;
        const qsizetype end = text.indexOf('\0');
        const qsizetype start = text.lastIndexOf(' ', end) + 1;
        text.replace(start, end - start, absurd);
        waitForTheNextTick();
        tree.makeFile(u"cache/deep/newer"_s);
        EXPECT_EQ(run({u"remove"_s, tree.path()}, text).status, 0);
        EXPECT_EQ(allBelow(tree.path()), QStringList()) << absurd.constData();
    }
}

TEST(Cleanup, WhatIsExcludedStaysAndIsNotCounted) {
    const TemporaryFolder tree;
    const QString root = tree.makeFolder(u"root"_s);
    for (const auto& name : {u"root/a/keep.db"_s, u"root/a/file"_s, u"root/b/mine/file"_s, u"root/b/file"_s,
                             u"root/node/x"_s, u"root/c/node/x"_s})
        tree.makeFile(name, QByteArray(9000, 'x'));
    ASSERT_TRUE(QFile::link(root, tree.path(u"way"_s)));
    const quint64 all = usage(root);
    const QStringList options = {
        u"--exclude"_s, u"*.db"_s, u"--exclude"_s, tree.path(u"way/b/mine/"_s), u"--exclude"_s,
        u"node"_s,      root};
    const QStringList stays = {u"a"_s, u"a/keep.db"_s, u"b"_s,        u"b/mine"_s, u"b/mine/file"_s,
                               u"c"_s, u"c/node"_s,    u"c/node/x"_s, u"node"_s,   u"node/x"_s};
    quint64 kept = 0;
    for (const auto& name : {u"root/a/keep.db"_s, u"root/b/mine"_s, u"root/node"_s, u"root/c/node"_s})
        kept += usage(tree.path(name));
    const CleanupListing listing = listed(options);
    EXPECT_EQ(listing.bytes, all - kept);
    EXPECT_EQ(listing.entries.size(), 3u);
    // A listing that was made before they were excluded.
    EXPECT_EQ(run(QStringList(u"remove"_s) + options, run({u"list"_s, root}).output).status, 0);
    EXPECT_EQ(allBelow(root), stays);

    const QStringList old = {u"--older-than"_s, u"7"_s, u"--now"_s,
                             QString::number(std::time(nullptr) + 9 * 86400)};
    EXPECT_TRUE(listed(old + options).entries.empty());
    EXPECT_EQ(run(QStringList(u"remove"_s) + old + options,
                  run(QStringList(u"list"_s) + old + QStringList(root)).output)
                  .status,
              0);
    EXPECT_EQ(allBelow(root), stays);
    for (const QString& above : {root, tree.path(), root + u"*"_s, u"root"_s}) {
        const CleanupListing none = listed({u"--exclude"_s, above, root});
        EXPECT_TRUE(none.entries.empty() && none.bytes == 0) << qPrintable(above);
    }
    EXPECT_EQ(listed({u"--exclude"_s, u"c"_s, u"--in"_s, root}, "c").bytes, 0u);
}

TEST(Cleanup, TellsWhatIsGoneAndStopsWhenAskedTo) {
    const TemporaryFolder tree;
    constexpr int files = 30'000;
    for (int i = 0; i < 100; ++i)
        tree.makeFolder(u"%1"_s.arg(i));
    for (int i = 0; i < files; ++i) {
        const QByteArray path = tree.path(u"%1/%2"_s.arg(i % 100).arg(i)).toUtf8();
        close(open(path.constData(), O_CREAT | O_WRONLY, 0600));
    }
    tree.makeFile(u"0/content"_s, QByteArray(100'000, 'x'));
    const QString link = tree.path(u"1/link"_s);
    ASSERT_EQ(::link(tree.path(u"0/content"_s).toUtf8().constData(), link.toUtf8().constData()), 0);
    const CleanupListing before = listed({tree.path()});
    const QByteArray listing = QByteArray::fromStdString(textOf(before));

    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + u"/../libexec/tavrin/cleanup"_s,
                  {u"remove"_s, tree.path()});
    process.write(listing);
    process.closeWriteChannel();
    ASSERT_TRUE(process.waitForReadyRead());
    process.terminate();
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    const QByteArrayList lines = process.readAllStandardOutput().split('\n');
    ASSERT_GE(lines.size(), 3);
    EXPECT_TRUE(lines[lines.size() - 2].startsWith("volume ")) << lines.last().constData();
    const int removed = lines[lines.size() - 3].split(' ').last().toInt();
    EXPECT_EQ(removed, files + 102 - allBelow(tree.path()).size());
    EXPECT_TRUE(removed > 0 && removed < files);

    const QByteArrayList rest = run({u"remove"_s, tree.path()}, listing).output.split('\n');
    EXPECT_TRUE(allBelow(tree.path()).isEmpty());
    const auto bytesIn = [](const QByteArray& line) { return line.split(' ').first().toULongLong(); };
    EXPECT_EQ(bytesIn(lines[lines.size() - 3]) + bytesIn(rest[rest.size() - 3]),
              before.bytes - usage(tree.path()));
    EXPECT_TRUE(rest[rest.size() - 2].startsWith("volume ")) << "and no other after it";
}

TEST(Cleanup, RefusesWhatItDoesNotUnderstand) {
    const TemporaryFolder tree;
    const QString folder = tree.path();
    for (const QStringList& arguments :
         {QStringList{}, QStringList{u"list"_s}, QStringList{u"list"_s, u"relative"_s},
          QStringList{u"empty"_s, folder}, QStringList{u"list"_s, u"--older-than"_s, folder},
          QStringList{u"list"_s, u"--older-than"_s, u"7d"_s, folder},
          QStringList{u"list"_s, u"--force"_s, folder}, QStringList{u"open"_s, folder},
          QStringList{u"list"_s, u"--exclude"_s, folder}})
        EXPECT_EQ(run(arguments).status, 2) << qPrintable(arguments.join(u' '));
    tree.makeFile(u"file"_s);
    for (const QByteArray& input : {QByteArray(), QByteArray("file"), QByteArray("1:2\0003 4 file", 12)})
        EXPECT_EQ(run({u"remove"_s, folder}, input).status, 2) << input.constData();
    EXPECT_TRUE(QFileInfo::exists(tree.path(u"file"_s)));
}

TEST(Cleanup, RemovesFromTheFolderThatWasListedAndNoOther) {
    const TemporaryFolder tree;
    const QString folder = tree.makeFolder(u"folder"_s);
    const QString outside = tree.makeFile(u"outside/file"_s);
    tree.makeFile(u"folder/file"_s);
    const QByteArray listing = run({u"list"_s, folder}).output;

    ASSERT_TRUE(QDir().rename(folder, tree.path(u"was"_s)));
    EXPECT_EQ(run({u"remove"_s, folder}, listing).status, 0) << "it is gone, and nothing is left to do";
    ASSERT_TRUE(QFile::link(tree.path(u"outside"_s), folder));
    for (const QString& verb : {u"list"_s, u"remove"_s}) {
        const EndedTool linked = run({verb, folder}, listing);
        EXPECT_EQ(linked.status, 1);
        EXPECT_FALSE(linked.error.isEmpty());
    }
    QFile::remove(folder);
    ASSERT_TRUE(QDir().rename(tree.path(u"outside"_s), folder));
    EXPECT_EQ(run({u"remove"_s, folder}, listing).error, "this is not the folder that was listed");
    EXPECT_TRUE(QFileInfo::exists(tree.path(u"folder/file"_s)));
    EXPECT_EQ(run({u"remove"_s, tree.path(u"was"_s)}, listing).status, 0) << "the one that was listed";
    EXPECT_FALSE(QFileInfo::exists(tree.path(u"was/file"_s)));
    EXPECT_FALSE(QFileInfo::exists(outside));
}

TEST(Cleanup, FollowsNoSymlinkToAListedFile) {
    const TemporaryFolder tree;
    const QString folder = tree.makeFolder(u"folder"_s);
    for (const auto& file : {u"folder/deep/old"_s, u"outside/old"_s})
        tree.makeFile(file);
    const QStringList options = {u"--older-than"_s, u"7"_s, u"--now"_s,
                                 QString::number(std::time(nullptr) + 9 * 86400), folder};
    const QByteArray listing = run(QStringList(u"list"_s) + options).output;
    EXPECT_TRUE(listing.endsWith(" - deep/old" + QByteArray(1, '\0')));
    ASSERT_TRUE(QDir().rename(tree.path(u"folder/deep"_s), tree.path(u"was"_s)));
    ASSERT_TRUE(QFile::link(tree.path(u"outside"_s), tree.path(u"folder/deep"_s)));
    run(QStringList(u"remove"_s) + options, listing);
    EXPECT_TRUE(QFileInfo::exists(tree.path(u"outside/old"_s)));
}

TEST(Cleanup, KeepsWhatItIsToldToAndWhatContainsIt) {
    const TemporaryFolder tree;
    const QString record = tree.makeFile(u"logs/ours/deep/record"_s);
    tree.makeFile(u"logs/ours/other"_s);
    tree.makeFile(u"logs/file"_s);
    tree.makeFile(u"elsewhere/record"_s);
    ASSERT_TRUE(QFile::link(tree.path(u"elsewhere"_s), tree.path(u"logs/link"_s)));
    const QStringList options = {
        u"--keep"_s, tree.path(u"logs/ours/deep"_s), u"--keep"_s,         tree.path(u"logs/link"_s),
        u"--keep"_s, tree.path(u"logs/missing"_s),   tree.path(u"logs"_s)};
    const QByteArray listing = run(QStringList(u"list"_s) + options).output;
    EXPECT_EQ(run(QStringList(u"remove"_s) + options, listing).status, 0);
    EXPECT_TRUE(QFileInfo::exists(record));
    EXPECT_TRUE(QFileInfo(tree.path(u"logs/link"_s)).isSymLink());
    EXPECT_EQ(QDir(tree.path(u"logs/ours"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList(u"deep"_s));
    EXPECT_FALSE(QFileInfo::exists(tree.path(u"logs/file"_s)));
}

TEST(Cleanup, GoesDeeperThanAPathCanBe) {
    const TemporaryFolder tree;
    const QString top = tree.makeFolder(u"folder"_s);
    int folder = open(top.toUtf8().constData(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < 2100; ++i) {
        ASSERT_EQ(mkdirat(folder, "d", 0700), 0);
        const char* beside = i % 200 == 0 ? "a" : "z"; // these levels are worked on again on the way up
        ASSERT_TRUE(i % 100 != 0 || mkdirat(folder, beside, 0700) == 0);
        const int next = openat(folder, "d", O_RDONLY | O_DIRECTORY);
        close(folder);
        folder = next;
    }
    close(folder);
    const QByteArray listing = run({u"list"_s, top}).output;
    EXPECT_EQ(CleanupListing::parse(listing.toStdString())->bytes, usage(top));
    const EndedTool ended = run({u"remove"_s, top}, listing);
    EXPECT_EQ(ended.status, 0) << ended.error.constData();
    EXPECT_TRUE(QDir(top).isEmpty());
}
