#include "Core/Cleanup/CacheScanner.h"
#include "Core/ReliefFixture.h"
#include "support/Listing.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A model whose tools are scripted: 2 MiB are in the npm folder and 1 MiB in the logs.
struct CacheCleanupTest : ReliefTest {
    QString npm = home.makeFolder(u".npm"_s);
    QString logs = home.makeFolder(u"Library/Logs"_s);
    QString failing = u"nothing"_s;
    std::shared_ptr<FakePlaces> places = fakes.places;
    CacheCleanup& cleanup = model->cleanup();

    CacheCleanupTest() {
        places->elsewhere[u"/tmp"_s] = {home.path(u"no such folder"_s)};
        for (const CacheTarget& target : CacheTarget::defaults()) {
            for (const QString& path : target.paths) {
                if (path.startsWith(u'~'))
                    places->elsewhere[path] = {home.path(path.mid(2))};
            }
        }
        tools->answer = [this](const ToolRequest& request) {
            if (request.launchPath == u"/usr/bin/du") {
                const QString path = request.arguments.last();
                return ScriptedTools::exited(0, path == npm ? "2048 x" : path == logs ? "1024 x" : "0 x");
            }
            const bool removes = request.arguments.first() == u"remove";
            const QString path = request.arguments.last();
            const quint64 bytes = path == npm ? 2 << 20 : path == logs ? 1 << 20 : 0;
            if (removes) // more than was listed, of small files
                return ScriptedTools::exited(path == failing ? 1 : 0, path == npm
                                                                          ? "9999999 1\nvolume 50 40\n"
                                                                          : "4096 1\nvolume 9 12\n");
            return ScriptedTools::exited(0, listingOf({{"all", bytes}}));
        };
    }
    CacheTarget target(const QString& name) const {
        for (const CacheTarget& one : cleanup.targets()) {
            if (one.name == name)
                return one;
        }
        return {};
    }
    bool awaitRequests(qsizetype count) {
        return QTest::qWaitFor([&] { return tools->requests.size() == count; });
    }
    void releaseAll() {
        for (qsizetype i = 0; i < tools->requests.size(); ++i)
            tools->release(tools->requests[i].arguments.last());
    }
};

TEST_F(CacheCleanupTest, CleansOnlyWhatWasMeasuredAndLogsEachTarget) {
    const auto nothing = QCoro::waitFor(cleanup.cleanAll(cleanup.targetsToClean()));
    EXPECT_EQ(nothing, std::pair(0, quint64(0)));
    EXPECT_TRUE(logged().isEmpty());
    EXPECT_EQ(target(u"User logs"_s).sizeBytes, 1024U * 1024) << "it has measured all the same";
    EXPECT_EQ(cleanup.targets().first().name, u"npm / pnpm / yarn"_s);

    failing = logs;
    const auto cleaned = QCoro::waitFor(cleanup.cleanAll(cleanup.targetsToClean()));
    EXPECT_EQ(cleaned, std::pair(1, quint64(0)));
    EXPECT_EQ(logged(),
              QStringList({u"clean [batch] User logs fail"_s, u"clean [batch] npm / pnpm / yarn ok"_s}));
    EXPECT_EQ(cleanup.report().volumeBytes, -7) << "other programs wrote meanwhile";
    EXPECT_FALSE(cleanup.isCleaning());
    EXPECT_FALSE(cleanup.isScanning());
}

TEST_F(CacheCleanupTest, LeavesAloneWhatTheUserExcludes) {
    const QStringList excludes = {u"*.db, and more"_s, u"/a \"path\""_s};
    settings.preferences.cleanupExcludes.set(excludes);
    EXPECT_EQ(Preferences(settings.path).cleanupExcludes(), excludes);
    QCoro::waitFor(cleanup.clean(target(u"npx cache"_s)));
    int asked = 0;
    for (const ToolRequest& request : tools->requests) {
        if (request.launchPath != u"cleanup" || request.arguments.first() == u"open")
            continue;
        ++asked;
        for (const QString& pattern : excludes)
            EXPECT_TRUE(request.arguments.contains(pattern)) << qPrintable(request.arguments.first());
    }
    EXPECT_GE(asked, 2);
}

TEST_F(CacheCleanupTest, CleansOneTargetAndMeasuresAgain) {
    QCoro::waitFor(cleanup.clean(target(u"npx cache"_s)));
    EXPECT_EQ(logged(), QStringList(u"clean npx cache ok"_s));
    EXPECT_EQ(target(u"npx cache"_s).lastScanned, fakes.clock->wall);
}

TEST_F(CacheCleanupTest, PublishesTheProgress) {
    QCoro::waitFor(cleanup.rescan());
    const qsizetype before = tools->requests.size();
    tools->suspended = true;
    auto scan = cleanup.rescan();
    ASSERT_TRUE(cleanup.isScanning() && tools->release(u"open"_s));
    EXPECT_EQ(cleanup.scanProgress()->total, cleanup.targets().size());
    ASSERT_TRUE(awaitRequests(before + 4)) << "three wait for a tool";
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return cleanup.scanProgress()->done == cleanup.targets().size() - 3; }));
    EXPECT_EQ(cleanup.scanProgress()->target, u"npm / pnpm / yarn"_s);
    const auto published = cleanup.targets();
    EXPECT_TRUE(tools->release(logs));
    EXPECT_EQ(cleanup.scanProgress()->bytes, 1u << 20);
    EXPECT_EQ(cleanup.targets(), published) << "results land only together";

    const qsizetype ofTheScan = tools->requests.size();
    auto cleaning = cleanup.cleanAll(cleanup.targetsToClean());
    auto other = cleanup.clean(target(u"Docker"_s));
    EXPECT_EQ(*cleanup.cleanProgress(), (CleanupProgress{u"Docker"_s, 0, 3, 0, 3 << 20}));
    ASSERT_TRUE(awaitRequests(ofTheScan + 2));
    tools->suspended = false;
    while (tools->release(npm))
        ;
    EXPECT_TRUE(QTest::qWaitFor([this] { return cleanup.cleanProgress()->done == 2; }));
    EXPECT_EQ(cleanup.cleanProgress()->bytes, (2 << 20) + 4096) << "what it says, and no more than there was";
    EXPECT_TRUE(tools->release(u"docker system prune -af --volumes && echo 'tavrin: done'"_s));
    EXPECT_FALSE(cleanup.isCleaning());
    EXPECT_TRUE(tools->release(u"-lc"_s)) << "the container report of the scan";
    EXPECT_TRUE(QTest::qWaitFor([&] { return other.isReady() && cleaning.isReady() && scan.isReady(); }));
}

TEST_F(CacheCleanupTest, CancelEndsRunningCleansAndStartsNoMore) {
    QCoro::waitFor(cleanup.rescan());
    tools->requests.clear();
    tools->suspended = true;
    auto cleaning = cleanup.cleanAll(cleanup.targetsToClean());
    auto other = cleanup.clean(target(u"Docker"_s));
    ASSERT_TRUE(awaitRequests(2));
    cleanup.cancel();
    for (const ToolRequest& request : tools->requests)
        EXPECT_TRUE(request.stop.stop_requested());
    auto later = cleanup.clean(target(u"User logs"_s));
    ASSERT_TRUE(awaitRequests(3));
    EXPECT_FALSE(tools->requests.last().stop.stop_requested()) << "started after the cancel";
    tools->suspended = false;
    releaseAll();
    EXPECT_TRUE(QTest::qWaitFor([&] { return cleaning.isReady() && other.isReady() && later.isReady(); }));
    EXPECT_FALSE(cleanup.isCleaning());
    auto log = logged();
    log.sort();
    EXPECT_EQ(log, QStringList({u"clean Docker fail"_s, u"clean User logs ok"_s,
                                u"clean [batch] npm / pnpm / yarn fail"_s}));
}

TEST_F(CacheCleanupTest, AnOlderScanNeverReplacesANewerOne) {
    tools->suspended = true;
    auto older = cleanup.rescan();
    tools->suspended = false;
    QCoro::waitFor(cleanup.rescan());
    const auto newest = cleanup.targets();
    tools->answer = [](const ToolRequest&) { return ScriptedTools::exited(0, "99999 x"); };
    releaseAll();
    EXPECT_TRUE(QTest::qWaitFor([&] { return older.isReady(); }));
    EXPECT_EQ(cleanup.targets(), newest);
}

TEST_F(CacheCleanupTest, ThePlansDoNotDependOnTheName) {
    QList<CacheTarget> targets = CacheTarget::defaults();
    places->elsewhere[u"/tmp"_s] = {home.path(u"everybody's"_s)};
    for (const QStringList& folders : places->elsewhere) {
        for (const QString& folder : folders)
            ASSERT_TRUE(QDir().mkpath(folder));
    }
    const auto plansOf = [&](CacheTarget target, const QString& name) {
        target.name = name;
        tools->requests.clear();
        CacheScanner scanner(fakes.platform());
        const CacheTarget scanned = QCoro::waitFor(scanner.scan({target})).first();
        QCoro::waitFor(Cleaner::clean(scanned, tools, places, fakes.clock->wall));
        return tools->commandLines();
    };
    for (qsizetype i = 0; i < targets.size(); ++i) {
        const QStringList plans = plansOf(targets[i], targets[i].name);
        EXPECT_GE(plans.size(), 2) << qPrintable(targets[i].name);
        for (const QString& other : {u"x"_s, targets[(i + 1) % targets.size()].name, targets.last().name})
            EXPECT_EQ(plansOf(targets[i], other), plans) << qPrintable(targets[i].name);
    }
}

TEST_F(CacheCleanupTest, MayBeDestroyedWhileToolsRun) {
    tools->suspended = true;
    auto scan = cleanup.rescan();
    auto cleaning = cleanup.clean(target(u"Docker"_s));
    model.reset();
    tools->suspended = false;
    releaseAll();
    EXPECT_TRUE(QTest::qWaitFor([&] { return scan.isReady() && cleaning.isReady(); }));
}

} // namespace
