#include "Core/Cleanup/CacheScanner.h"

#include "support/Each.h"
#include "support/FakePlatform.h"
#include "support/Listing.h"
#include "support/PlacesThatHang.h"
#include "support/TemporaryHome.h"

#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Measure = CleanupRule::Measure;

class CacheScannerTest : public testing::Test {
protected:
    const CleanupRule oldFiles{.measure = CleanupRule::Measure::oldFiles, .olderThanDays = 30};

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

TEST_F(CacheScannerTest, ParsesSizes) {
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
    const CacheTarget docker{.name = u"Docker"_s, .rule = {.measure = Measure::containers}};
    tools->answer = [](const ToolRequest& request) {
        const bool asksForVolumes = request.arguments.last().contains(u"docker volume ls");
        return ScriptedTools::exited(
            0, asksForVolumes
                   ? "Welcome back!\nvolume\tdata\nvolume\tb4f2\nvolumes end\n"
                   : "Welcome back!\n\nImages\t1.2GB\t800MB (66%)\nContainers\t0B\t0B\nVolumes\t3GB\n");
    };
    const CacheTarget target = scanned(docker);
    EXPECT_EQ(target.sizeBytes, 4200000000U);
    const QList<CacheEntry> expected = {
        {u"Images"_s, 1200000000}, {u"Containers"_s, 0}, {u"Volumes"_s, 3000000000}};
    EXPECT_EQ(target.details, expected);
    EXPECT_EQ(target.notes, QStringList(u"The tool calls 762.9 MB of it reclaimable."_s));
    EXPECT_EQ(target.volumes, QStringList({u"data"_s, u"b4f2"_s}));
    EXPECT_EQ(CacheScanner::parseVolumes("volume\tdata\n"), std::nullopt) << "cut short";
    EXPECT_EQ(target.lastScanned, fakes.clock->wall);
    EXPECT_EQ(tools->commandLines().value(1),
              u"/bin/sh -lc command -v docker >/dev/null 2>&1 && docker system df --format "
              "'{{.Type}}\\t{{.Size}}\\t{{.Reclaimable}}' 2>/dev/null || true"_s);
    for (const ToolRequest& request : tools->requests.mid(1))
        EXPECT_EQ(request.timeout, std::chrono::minutes(2));

    answerEverythingWith({});
    const CacheTarget gone = scanned(target);
    EXPECT_EQ(gone.sizeBytes, 0U) << "a missing tool leaves no old figures";
    EXPECT_TRUE(gone.details.isEmpty() && gone.notes.isEmpty() && gone.volumes == QStringList());
}

TEST_F(CacheScannerTest, AddsUpAllOldFilesAndKeepsTheFirstHundred) {
    const QString folder = home.makeFolder(u"folder"_s);
    QList<std::pair<QByteArray, quint64>> files;
    for (quint64 i = 1; i <= 2500; ++i)
        files.append({"deep/caf\xe9 " + QByteArray::number(i) + "\nof many", i});
    answerEverythingWith(listingOf(files));

    const CacheTarget target = scanned({.name = u"x"_s, .paths = {folder}, .rule = oldFiles});
    EXPECT_EQ(target.sizeBytes, 2500U * 2501 / 2);
    ASSERT_EQ(target.details.size(), 100);
    EXPECT_EQ(target.details.first(),
              (CacheEntry{folder + u"/deep/"_s + QFile::decodeName("caf\xe9 100\nof many"), 100}));
    EXPECT_EQ(target.details.last().sizeBytes, 1U);
    EXPECT_EQ(target.listed, (QList<ListedFolder>{{folder, target.sizeBytes, listingOf(files), folder}}));
}

TEST_F(CacheScannerTest, SaysWhyAFolderIsLeftAlone) {
    const QString refused = home.makeFolder(u"refused"_s);
    const QString unread = home.makeFolder(u"unread"_s);
    places->objections[refused] = u"It is not a cache."_s;
    places->objections[home.path(u"missing"_s)] = u"Nobody needs to know."_s;
    tools->answer = [](const ToolRequest&) {
        return ToolResult{.launched = true, .exitStatus = 1, .output = "1024 x", .errorLine = u"No way"_s};
    };
    for (const CleanupRule& rule : {CleanupRule(), oldFiles}) {
        const CacheTarget target =
            scanned({.name = u"x"_s, .paths = {refused, home.path(u"missing"_s), unread}, .rule = rule});
        EXPECT_EQ(target.notes,
                  QStringList({u"It is not a cache."_s, unread + u" cannot be cleaned: No way."_s}));
        EXPECT_EQ(each(target.listed, &ListedFolder::path), QStringList(unread));
        EXPECT_EQ(target.listed.first().listing, QByteArray()) << "a partial listing is useless";
    }
}

TEST_F(CacheScannerTest, MeasuresAFolderThatCannotBeListedWithoutTheActionLog) {
    const QString logs = home.makeFolder(u"Library/Logs"_s);
    const QString record = home.makeFolder(u"Library/Logs/Tavrin"_s);
    tools->answer = [=](const ToolRequest& request) {
        if (request.launchPath == u"cleanup")
            return ScriptedTools::exited(1);
        return ScriptedTools::exited(0, request.arguments.last() == record ? "30 x" : "100 x");
    };
    EXPECT_EQ(scanned({.name = u"x"_s, .paths = {logs}}).sizeBytes, 70U * 1024);
}

TEST_F(CacheScannerTest, TellsEachListingOnceWhatIsInUseAndWhatStays) {
    const QStringList folders = {home.makeFolder(u"one"_s), home.makeFolder(u"two"_s)};
    tools->answer = [](const ToolRequest& request) {
        return ScriptedTools::exited(0, request.arguments.first() == u"open" ? QByteArray("64:7\0", 5)
                                                                             : listingOf({{"a", 9}}));
    };
    const CleanupRule rule{.excludes = {u"*.lock"_s, u"~/mine"_s}};
    EXPECT_EQ(scanned({.name = u"x"_s, .paths = folders, .rule = rule}).sizeBytes, 18U);
    ASSERT_EQ(tools->requests.size(), 3) << "the folders are not measured again";
    for (const ToolRequest& request : tools->requests.mid(1)) {
        EXPECT_EQ(request.input, QByteArray("64:7\0", 5));
        EXPECT_TRUE(request.arguments.contains(u"--used"));
        EXPECT_TRUE(request.arguments.join(u' ').contains(
            u"--exclude *.lock --exclude %1/mine "_s.arg(QDir::homePath())));
    }
}

TEST_F(CacheScannerTest, KeepsTheLastFiguresOfAnOldFileTargetWithoutItsFolder) {
    for (const QStringList& nowhere : {QStringList(), QStringList(home.path(u"missing"_s))}) {
        places->elsewhere[u"~/Downloads"_s] = nowhere;
        const CacheTarget before{.name = u"x"_s,
                                 .paths = {u"~/Downloads"_s},
                                 .sizeBytes = 7,
                                 .details = {{u"/a"_s, 7}},
                                 .rule = oldFiles};
        const CacheTarget after = scanned(before);
        EXPECT_EQ(after.sizeBytes, 7U);
        EXPECT_EQ(after.details, before.details);
        EXPECT_EQ(after.lastScanned, fakes.clock->wall);
    }
    EXPECT_EQ(tools->requests.size(), 2) << "only what is in use was asked";
}

TEST_F(CacheScannerTest, MeasuresEachExistingPlaceOfATargetOnce) {
    const QString small = home.makeFolder(u"small"_s);
    const QString large = home.makeFolder(u"large"_s);
    const QString inside = home.makeFolder(u"large/inside"_s);
    const QString symlink = home.path(u"symlink"_s);
    ASSERT_TRUE(QFile::link(small, symlink));
    tools->answer = [=](const ToolRequest& request) {
        return ScriptedTools::exited(0, listingOf({{"a", request.arguments.last() == large ? 30 : 2}}));
    };
    const QStringList paths = {symlink, small, home.path(u"missing"_s), inside, large, small, large + u"/"_s};
    const CacheTarget target = scanned({.name = u"x"_s, .paths = paths});
    const QList<CacheEntry> expected = {{large, 30}, {small, 2}};
    EXPECT_EQ(target.details, expected);
    EXPECT_EQ(target.sizeBytes, 32U);

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
    tools->suspended = true;
    tools->answer = [](const ToolRequest& request) {
        const bool isLargest = request.arguments.last().contains(u"largest");
        return ScriptedTools::exited(0, listingOf({{"a", isLargest ? 9 : 1}}));
    };
    QList<CleanupProgress> progress;
    CacheScanner scanner(platform, [&](const CleanupProgress& now) { progress.append(now); });
    auto scan = scanner.scan(targets);
    EXPECT_TRUE(tools->release(u"open"_s));
    EXPECT_TRUE(QTest::qWaitFor([this] { return tools->requests.size() == 5; })) << "one path of each target";

    const auto finish = [&](const QString& name) {
        for (const auto& folder : {u"/1"_s, u"/2"_s}) {
            const qsizetype before = tools->requests.size();
            EXPECT_TRUE(tools->release(home.path(name + folder)));
            EXPECT_LE(tools->requests.size(), before + 1) << "one tool of a target at a time";
        }
    };
    for (const auto& name : {u"largest"_s, u"equal two"_s, u"equal one"_s})
        finish(name);
    EXPECT_FALSE(scan.isReady());
    const QString hangs = u"hangs"_s;
    EXPECT_EQ(progress, (QList<CleanupProgress>{{hangs, 1, 4, 18}, {hangs, 2, 4, 20}, {hangs, 3, 4, 22}}));

    finish(hangs);
    EXPECT_EQ(progress.last(), (CleanupProgress{{}, 4, 4, 24}));
    EXPECT_EQ(each(QCoro::waitFor(scan), &CacheTarget::name),
              QStringList({u"largest"_s, u"equal two"_s, u"equal one"_s, u"hangs"_s}));
}

TEST_F(CacheScannerTest, AFileServerThatIsGoneHoldsUpNothingElse) {
    const auto hanging = std::make_shared<PlacesThatHang>();
    hanging->silent = home.path(u"gone"_s);
    platform.places = hanging;
    answerEverythingWith(listingOf({{"a", 9}}));
    const CacheTarget before{.name = u"hangs"_s,
                             .paths = {home.path(), hanging->silent},
                             .sizeBytes = 7,
                             .details = {{u"/a"_s, 7}},
                             .listed = {{u"/a"_s, 7, listingOf({{"a", 7}})}}};
    CacheScanner scanner(platform, {}, std::chrono::milliseconds(100));
    auto scan = scanner.scan({before, {.name = u"answers"_s, .paths = {home.path()}}});
    QElapsedTimer timer;
    timer.start();
    QCoreApplication::processEvents();
    EXPECT_LT(timer.elapsed(), 90) << "the windows go on";
    const QList<CacheTarget> targets = QCoro::waitFor(scan);
    EXPECT_EQ(each(targets, &CacheTarget::sizeBytes), QList<quint64>({9, 7}));
    CacheTarget after = before;
    after.notes = {hanging->silent + u" does not answer."_s};
    EXPECT_EQ(targets.last(), after);
    hanging->answer();
}

} // namespace
