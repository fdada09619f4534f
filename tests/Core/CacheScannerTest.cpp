#include "Core/CacheScanner.h"

#include "support/Each.h"
#include "support/FakePlatform.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace Qt::StringLiterals;

namespace {

const QString docker = u"Docker"_s;

class CacheScannerTest : public testing::Test {
protected:
    CacheTarget scanned(const CacheTarget& target) {
        CacheScanner scanner(platform);
        return QCoro::waitFor(scanner.scan({target})).value(0);
    }

    void answerEverythingWith(const QByteArray& output, int status = 0) {
        tools->answer = [=](const ToolRequest&) { return ScriptedTools::exited(status, output); };
    }

    TemporaryHome home;
    FakePlatform fakes;
    std::shared_ptr<ScriptedTools> tools = fakes.tools;
    std::shared_ptr<FakePlaces> places = fakes.places;
    Platform platform = fakes.platform();
};

TEST_F(CacheScannerTest, ParsesSizesAndNeverFaults) {
    const std::pair<const char*, quint64> cases[] = {
        {"1.5GB", 1500000000},
        {"12.3MB", 12300000},
        {"512B", 512},
        {"2TB", 2000000000000},
        {"3KB", 3000},
        {"0B", 0},
        {"42", 42},
        {"7.9", 7},
        {" \t1.5 GB\t ", 1500000000},
        {"18446744073709549568", 18446744073709549568U},
    };
    for (const auto& [text, bytes] : cases)
        EXPECT_EQ(CacheScanner::parseSize(QString::fromUtf8(text)), bytes) << text;
    const QString none = u"1.2kB||B|GB|-1GB|nan|inf|-infB|1e300TB|1e999|18446744073709551616|twelve MB"_s;
    for (const QString& text : none.split(u'|'))
        EXPECT_EQ(CacheScanner::parseSize(text), 0U) << text.toStdString();
}

TEST_F(CacheScannerTest, ListsTheContainerReportInItsOrder) {
    answerEverythingWith("Welcome back!\n\nImages\t1.2GB\t800MB (66%)\nContainers\t0B\t0B\nVolumes\t3GB\n");
    const CacheTarget target = scanned({.name = docker});
    EXPECT_EQ(target.sizeBytes, 4200000000U);
    const QList<CacheEntry> expected = {
        {u"Images"_s, 1200000000}, {u"Containers"_s, 0}, {u"Volumes"_s, 3000000000}};
    EXPECT_EQ(target.details, expected);
    EXPECT_EQ(target.lastScanned, fakes.clock->wall);
    EXPECT_EQ(tools->commandLines(),
              QStringList(u"/bin/sh -lc command -v docker >/dev/null 2>&1 && docker system df --format "
                          "'{{.Type}}\\t{{.Size}}\\t{{.Reclaimable}}' 2>/dev/null || true"_s));
    EXPECT_EQ(tools->requests.first().terminateAfter, std::chrono::minutes(2));

    answerEverythingWith({});
    EXPECT_EQ(scanned(target).sizeBytes, 0U) << "of a tool that is gone nothing is left from before";
    EXPECT_TRUE(scanned(target).details.isEmpty());
}

TEST_F(CacheScannerTest, AsksForOldFilesByTheTargetsExactName) {
    const QString root = home.makeFolder(u"old"_s);
    for (const auto& path : {u"/tmp"_s, u"~/Downloads"_s, u"~/Desktop"_s})
        places->elsewhere[path] = {root};
    const std::pair<QString, QString> cases[] = {
        {u"Old /tmp (>7d)"_s, u"/usr/bin/find %1 -type f -mtime +7 -print0"_s},
        {u"Old Downloads (>30d)"_s, u"/usr/bin/find %1 -type f -mtime +30 -print0"_s},
        {u"Old Desktop screenshots (>30d)"_s, u"/usr/bin/find %1 -type f -mtime +30 -name Screen* -print0"_s},
        {u"old downloads (>30d)"_s, u"/usr/bin/du -sk -x %1"_s},
    };
    for (const auto& [name, command] : cases) {
        tools->requests.clear();
        scanned({.name = name, .paths = {root}});
        EXPECT_EQ(tools->commandLines(), QStringList(command.arg(root)));
    }
}

TEST_F(CacheScannerTest, AddsUpAllOldFilesAndKeepsTheFirstHundred) {
    places->elsewhere[u"~/Downloads"_s] = {home.path()};
    QByteArray listing;
    for (int i = 1; i <= 250; ++i)
        listing += home.makeFile(u"file %1\nof many"_s.arg(i), QByteArray(i, 'x')).toUtf8() + '\0';
    listing += home.path(u"vanished"_s).toUtf8() + '\0';
    answerEverythingWith(listing);

    const CacheTarget target = scanned({.name = u"Old Downloads (>30d)"_s});
    EXPECT_EQ(target.sizeBytes, 250U * 251 / 2);
    ASSERT_EQ(target.details.size(), 100);
    EXPECT_EQ(target.details.first(), (CacheEntry{home.path(u"file 100\nof many"_s), 100}));
    EXPECT_EQ(target.details.last(), (CacheEntry{home.path(u"file 1\nof many"_s), 1}));
}

TEST_F(CacheScannerTest, MeasuresAnOldFileWhoseNameIsNoText) {
    places->elsewhere[u"~/Downloads"_s] = {home.path()};
    const QByteArray name = home.path().toUtf8() + "/caf\xe9";
    std::ofstream(name.toStdString()) << "12345";
    answerEverythingWith(name + '\0' + home.makeFile(u"plain"_s, "123").toUtf8() + '\0');
    EXPECT_EQ(scanned({.name = u"Old Downloads (>30d)"_s}).sizeBytes, 8U);
    std::filesystem::remove(name.toStdString()); // the temporary folder cannot
}

TEST_F(CacheScannerTest, KeepsTheLastFiguresOfAnOldFileTargetWithoutItsFolder) {
    for (const QStringList& nowhere : {QStringList(), QStringList(home.path(u"missing"_s))}) {
        places->elsewhere[u"~/Downloads"_s] = nowhere;
        const CacheTarget before{
            .name = u"Old Downloads (>30d)"_s, .sizeBytes = 7, .details = {{u"/a"_s, 7}}};
        const CacheTarget after = scanned(before);
        EXPECT_EQ(after.sizeBytes, 7U);
        EXPECT_EQ(after.details, before.details);
        EXPECT_EQ(after.lastScanned, fakes.clock->wall);
    }
    EXPECT_TRUE(tools->requests.isEmpty());
}

TEST_F(CacheScannerTest, MeasuresEachExistingPlaceOfATargetOnce) {
    const QString small = home.makeFolder(u"small"_s);
    const QString large = home.makeFolder(u"large"_s);
    const QString inside = home.makeFolder(u"large/inside"_s);
    const QString link = home.path(u"link"_s);
    ASSERT_TRUE(QFile::link(small, link));
    tools->answer = [=](const ToolRequest& request) {
        const bool isLarge = request.arguments.last() == large;
        return ScriptedTools::exited(isLarge ? 0 : 1, isLarge ? "30\t" + large.toUtf8() + "\n" : " 2\tx\n");
    };
    const QStringList paths = {link, small, home.path(u"missing"_s), inside, large, small, large + u"/"_s};
    const CacheTarget target = scanned({.name = u"x"_s, .paths = paths});
    const QList<CacheEntry> expected = {{large, 30 * 1024}, {small, 2 * 1024}};
    EXPECT_EQ(target.details, expected);
    EXPECT_EQ(target.sizeBytes, 32U * 1024);

    for (const char* useless : {"", "du: cannot read\n", "-4 x", "4k x"}) {
        answerEverythingWith(useless);
        EXPECT_EQ(scanned({.name = u"x"_s, .paths = {large}}).details, (QList<CacheEntry>{{large, 0}}))
            << useless;
    }
}

TEST_F(CacheScannerTest, MeasuresAllTargetsAtOnceAndReturnsThemLargestFirst) {
    QList<CacheTarget> targets;
    for (const auto& name : {u"hangs"_s, u"equal one"_s, u"equal two"_s, u"largest"_s})
        targets.append(
            {.name = name, .paths = {home.makeFolder(name + u"/1"_s), home.makeFolder(name + u"/2"_s)}});
    tools->held = true;
    tools->answer = [](const ToolRequest& request) {
        return ScriptedTools::exited(0, request.arguments.last().contains(u"largest") ? "9 x" : "1 x");
    };
    QList<CleanupProgress> progress;
    CacheScanner scanner(platform, [&](const CleanupProgress& now) { progress.append(now); });
    auto scan = scanner.scan(targets);
    EXPECT_EQ(tools->requests.size(), 4) << "one path of each target";

    for (const auto& name : {u"largest"_s, u"equal two"_s, u"equal one"_s}) {
        const qsizetype before = tools->requests.size();
        EXPECT_TRUE(tools->release(home.path(name + u"/1"_s)));
        EXPECT_EQ(tools->requests.size(), before + 1) << "the next path of the same target";
        EXPECT_TRUE(tools->release(home.path(name + u"/2"_s)));
    }
    EXPECT_FALSE(scan.isReady());
    const QString hangs = u"hangs"_s;
    EXPECT_EQ(progress, (QList<CleanupProgress>{{hangs, 1, 4}, {hangs, 2, 4}, {hangs, 3, 4}}));

    EXPECT_TRUE(tools->release(home.path(u"hangs/1"_s)));
    EXPECT_TRUE(tools->release(home.path(u"hangs/2"_s)));
    EXPECT_EQ(progress.last(), (CleanupProgress{{}, 4, 4}));
    EXPECT_EQ(each(QCoro::waitFor(scan), &CacheTarget::name),
              QStringList({u"largest"_s, u"equal two"_s, u"equal one"_s, u"hangs"_s}));
}

} // namespace
