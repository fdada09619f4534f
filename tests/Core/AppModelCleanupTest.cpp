#include "Core/ReliefFixture.h"
#include "support/Listing.h"

using namespace Qt::StringLiterals;

namespace {

/// A model whose tools are scripted: `du` finds 2 MiB in the npm folder and 1 MiB in the logs.
struct AppModelCleanupTest : ReliefTest {
    QString npm = home.makeFolder(u".npm"_s);
    QString logs = home.makeFolder(u"Library/Logs"_s);
    QString failing = u"nothing"_s;
    std::shared_ptr<FakePlaces> places = fakes.places;

    AppModelCleanupTest() {
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
            return ScriptedTools::exited(removes && request.arguments.last() == failing ? 1 : 0,
                                         listingOf({}));
        };
    }
    CacheTarget target(const QString& name) const {
        for (const CacheTarget& one : model->cacheTargets()) {
            if (one.name == name)
                return one;
        }
        return {};
    }
    void releaseAll() {
        for (const ToolRequest& request : QList<ToolRequest>(tools->requests))
            tools->release(request.arguments.last());
    }
};

TEST_F(AppModelCleanupTest, CleansOnlyWhatWasMeasuredAndLogsEachTarget) {
    const auto nothing = QCoro::waitFor(model->cleanAll(model->targetsToClean()));
    EXPECT_EQ(nothing, std::pair(0, quint64(0)));
    EXPECT_TRUE(logged().isEmpty());
    EXPECT_EQ(target(u"User logs"_s).sizeBytes, 1024U * 1024) << "it has measured all the same";
    EXPECT_EQ(model->cacheTargets().first().name, u"npm / pnpm / yarn"_s);

    failing = logs;
    const auto cleaned = QCoro::waitFor(model->cleanAll(model->targetsToClean()));
    EXPECT_EQ(cleaned, std::pair(1, quint64(0)));
    EXPECT_EQ(logged(),
              QStringList({u"clean [batch] User logs fail"_s, u"clean [batch] npm / pnpm / yarn ok"_s}));
    EXPECT_FALSE(model->isCleaning());
    EXPECT_FALSE(model->isScanning());
}

TEST_F(AppModelCleanupTest, CleansOneTargetAndMeasuresAgain) {
    QCoro::waitFor(model->clean(target(u"npx cache"_s)));
    EXPECT_EQ(logged(), QStringList(u"clean npx cache ok"_s));
    EXPECT_EQ(target(u"npx cache"_s).lastScanned, fakes.clock->wall);
}

TEST_F(AppModelCleanupTest, PublishesWhatIsBeingWorkedOn) {
    QCoro::waitFor(model->rescanCaches());
    tools->held = true;
    auto scan = model->rescanCaches();
    ASSERT_TRUE(model->isScanning());
    EXPECT_EQ(model->scanProgress()->total, model->cacheTargets().size());
    EXPECT_EQ(model->scanProgress()->done, model->cacheTargets().size() - 3) << "three wait for a tool";
    EXPECT_EQ(model->scanProgress()->target, u"npm / pnpm / yarn"_s);
    const auto before = model->cacheTargets();
    EXPECT_TRUE(tools->release(logs) && tools->release(logs));
    EXPECT_EQ(model->cacheTargets(), before) << "results land only together";

    auto cleaning = model->cleanAll(model->targetsToClean());
    auto other = model->clean(target(u"Docker"_s));
    EXPECT_EQ(*model->cleanProgress(), (CleanupProgress{u"Docker"_s, 0, 3}));
    tools->held = false;
    while (tools->release(npm))
        ;
    EXPECT_EQ(model->cleanProgress()->done, 2);
    EXPECT_TRUE(tools->release(u"docker system prune -af --volumes && echo 'tavrin: done'"_s));
    EXPECT_FALSE(model->isCleaning());
    EXPECT_TRUE(tools->release(u"-lc"_s)) << "the container report of the scan";
    EXPECT_TRUE(other.isReady() && cleaning.isReady() && scan.isReady());
}

TEST_F(AppModelCleanupTest, CancellingEndsWhatRunsAndBeginsNothingMore) {
    QCoro::waitFor(model->rescanCaches());
    tools->requests.clear();
    tools->held = true;
    auto cleaning = model->cleanAll(model->targetsToClean());
    auto other = model->clean(target(u"Docker"_s));
    ASSERT_EQ(tools->requests.size(), 2);
    model->cancelCleaning();
    for (const ToolRequest& request : tools->requests)
        EXPECT_TRUE(request.stop.stop_requested());
    auto later = model->clean(target(u"User logs"_s));
    EXPECT_FALSE(tools->requests.last().stop.stop_requested()) << "begun after the cancelling";
    tools->held = false;
    releaseAll();
    EXPECT_TRUE(cleaning.isReady() && other.isReady() && later.isReady());
    EXPECT_FALSE(model->isCleaning());
    auto log = logged();
    log.sort();
    EXPECT_EQ(log, QStringList({u"clean Docker fail"_s, u"clean User logs ok"_s,
                                u"clean [batch] npm / pnpm / yarn fail"_s}));
}

TEST_F(AppModelCleanupTest, AnOlderScanNeverReplacesANewerOne) {
    tools->held = true;
    auto older = model->rescanCaches();
    tools->held = false;
    QCoro::waitFor(model->rescanCaches());
    const auto newest = model->cacheTargets();
    tools->answer = [](const ToolRequest&) { return ScriptedTools::exited(0, "99999 x"); };
    releaseAll();
    EXPECT_TRUE(older.isReady());
    EXPECT_EQ(model->cacheTargets(), newest);
}

TEST_F(AppModelCleanupTest, MayEndWhileToolsRun) {
    tools->held = true;
    auto scan = model->rescanCaches();
    auto cleaning = model->clean(target(u"Docker"_s));
    model.reset();
    tools->held = false;
    releaseAll();
    EXPECT_TRUE(scan.isReady() && cleaning.isReady());
}

} // namespace
