#include "Tools/Cleanup.h"

#include "Tools/ToolProcess.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <ctime>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::string_literals;
using namespace Tools;

namespace {

EndedTool run(const QStringList& arguments, const QByteArray& input = {}) {
    return runTool(u"cleanup"_s, arguments, input);
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
    const std::string text = listing.text();
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
    tree.makeFile(u"folder/small"_s, "x");
    const QByteArray text = run({u"list"_s, tree.path()}).output;
    const auto listing = CleanupListing::parse(text.toStdString());
    ASSERT_TRUE(listing && listing->entries.size() == 1);
    QProcess du;
    du.start(u"du"_s, {u"-sk"_s, tree.path(u"folder"_s)});
    ASSERT_TRUE(du.waitForFinished());
    EXPECT_EQ(listing->entries.front().bytes,
              du.readAllStandardOutput().split('\t').front().toULongLong() * 1024);
    EXPECT_GE(listing->entries.front().bytes, 100'000u);
}

TEST(Cleanup, RefusesWhatItDoesNotUnderstand) {
    const TemporaryFolder tree;
    const QString folder = tree.path();
    for (const QStringList& arguments :
         {QStringList{}, QStringList{u"list"_s}, QStringList{u"list"_s, u"relative"_s},
          QStringList{u"empty"_s, folder}, QStringList{u"list"_s, u"--older-than"_s, folder},
          QStringList{u"list"_s, u"--older-than"_s, u"7d"_s, folder},
          QStringList{u"list"_s, u"--force"_s, folder}})
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

TEST(Cleanup, GoesAsDeepAsAPathCanBe) {
    const TemporaryFolder tree;
    std::string path = tree.makeFolder(u"folder"_s).toStdString();
    for (int i = 0; path.size() + 2 < 4096; ++i) {
        path += "/d";
        ASSERT_EQ(mkdir(path.c_str(), 0700), 0);
    }
    const QStringList arguments = {u"remove"_s, tree.path(u"folder"_s)};
    const EndedTool ended = run(arguments, run({u"list"_s, tree.path(u"folder"_s)}).output);
    EXPECT_EQ(ended.status, 0) << ended.error.constData();
    EXPECT_TRUE(QDir(tree.path(u"folder"_s)).isEmpty());
}
