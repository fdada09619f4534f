#include "Core/ReliefFixture.h"
#include "support/Listing.h"
#include "support/PlacesThatHang.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// A model whose system has targets of its own; `du` finds 1 MiB in each folder that exists.
struct SystemTargetsTest : ReliefTest {
    QString caches = home.makeFolder(u"caches"_s);
    QByteArray journal = "1048576 x\n";

    SystemTargetsTest() {
        for (const CacheTarget& target : CacheTarget::defaults()) {
            for (const QString& path : target.paths)
                fakes.places->elsewhere[path] = {home.path(u"none"_s)};
        }
        fakes.places->elsewhere[u"~/Library/Caches"_s] = {caches};
        fakes.cleanupTargets->targets = {
            {.name = u"Builds"_s, .paths = {home.path(u"builds"_s)}, .reason = u"They are made again."_s},
            {.name = u"Old logs"_s,
             .paths = {home.path(u"logs"_s)},
             .reason = u"Nobody reads them."_s,
             .olderThanDays = 7,
             .isShared = true},
            {.name = u"Models"_s,
             .paths = {home.path(u"caches/models"_s)},
             .reason = u"They can be fetched."_s,
             .isData = true},
            {.name = u"Journal"_s,
             .reason = u"Old messages."_s,
             .isInCleanAll = false,
             .command = u"vacuum"_s,
             .sizeCommand = u"journal size"_s},
            {.name = u"Podman"_s,
             .reason = u"Images."_s,
             .isInCleanAll = false,
             .command = u"podman system prune -af --volumes"_s,
             .isContainerEngine = true},
        };
        tools->answer = [this](const ToolRequest& request) {
            if (request.launchPath == u"/bin/sh" && request.arguments.last() == u"journal size")
                return ScriptedTools::exited(0, "Welcome back!\n" + journal);
            if (request.launchPath == u"/bin/sh")
                return ScriptedTools::exited(0, {});
            // All of the caches are models.
            const bool keepsModels = request.arguments.contains(home.path(u"caches/models"_s));
            const quint64 bytes = request.arguments.last() == caches && keepsModels ? 0 : 5;
            return ScriptedTools::exited(0, withTotal(listingOf({{"old", 5}}), bytes));
        };
        model = std::make_unique<AppModel>(fakes.platform(), settings.preferences);
    }
    CacheTarget target(const QString& name) {
        for (const CacheTarget& one : model->cleanup().targets()) {
            if (one.name == name)
                return one;
        }
        return {};
    }
    QStringList shownOfSystem() {
        QStringList names;
        for (const CacheTarget& one : model->cleanup().shownTargets()) {
            if (one.isOfSystem())
                names.append(one.name);
        }
        names.sort();
        return names;
    }
    QStringList toClean() { return each(model->cleanup().targetsToClean(), &CacheTarget::name); }
};

TEST_F(SystemTargetsTest, StandBehindTheCatalogueAndAreShownWhereSomethingExists) {
    CacheCleanup& cleanup = model->cleanup();
    EXPECT_EQ(cleanup.targets().mid(0, 15), CacheTarget::defaults());
    EXPECT_EQ(cleanup.targets().size(), 20);
    EXPECT_EQ(shownOfSystem(), QStringList());
    home.makeFolder(u"builds"_s);
    QCoro::waitFor(cleanup.lookForPlaces());
    EXPECT_EQ(shownOfSystem(), QStringList(u"Builds"_s)) << "before the first scan";
    EXPECT_TRUE(tools->requests.isEmpty());

    home.makeFolder(u"logs"_s);
    home.makeFolder(u"caches/models"_s);
    QCoro::waitFor(cleanup.rescan());
    EXPECT_EQ(shownOfSystem(), QStringList({u"Builds"_s, u"Journal"_s, u"Models"_s, u"Old logs"_s}))
        << "Podman has nothing";
    EXPECT_EQ(target(u"Journal"_s).sizeBytes, 1048576U);
    EXPECT_EQ(target(u"Old logs"_s).sizeBytes, 5U);
    journal = "not known\n";
    QCoro::waitFor(cleanup.rescan());
    EXPECT_FALSE(shownOfSystem().contains(u"Journal"_s));
}

TEST_F(SystemTargetsTest, WhatOnlyOtherSystemsHaveIsOutOfSightUnlessItIsThere) {
    fakes.places->impossible = {u"~/Library/Developer/Xcode/DerivedData"_s,
                                u"~/Library/Developer/CoreSimulator/Caches"_s};
    const auto isShown = [this] {
        return each(model->cleanup().shownTargets(), &CacheTarget::name).contains(u"Xcode DerivedData"_s);
    };
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(each(model->cleanup().shownTargets(), &CacheTarget::name).contains(u"Docker"_s));
    fakes.places->elsewhere[u"~/Library/Developer/CoreSimulator/Caches"_s] = {home.makeFolder(u"sim"_s)};
    QCoro::waitFor(model->cleanup().rescan());
    EXPECT_TRUE(isShown());
}

TEST_F(SystemTargetsTest, CleanAllLeavesOutAndKeepsWhatIsSomebodysWork) {
    const QString models = home.makeFolder(u"caches/models"_s);
    home.makeFolder(u"builds"_s);
    QCoro::waitFor(model->cleanup().rescan());
    EXPECT_FALSE(target(u"Models"_s).isInCleanAll);
    EXPECT_EQ(target(u"Models"_s).sizeBytes, 5U);
    EXPECT_EQ(target(u"User caches"_s).sizeBytes, 0U);
    EXPECT_EQ(toClean(), QStringList(u"Builds"_s));

    tools->requests.clear();
    QCoro::waitFor(model->cleanup().clean(target(u"User caches"_s)));
    QCoro::waitFor(model->cleanup().clean(target(u"Models"_s)));
    const auto keeps = [&](const QString& folder) {
        bool kept = true;
        bool found = false;
        for (const ToolRequest& request : std::as_const(tools->requests)) {
            if (request.arguments.value(0) == u"remove" && request.arguments.last() == folder) {
                found = true;
                kept = kept && request.arguments.contains(models);
            }
        }
        return found && kept;
    };
    EXPECT_TRUE(keeps(caches));
    const auto removals = tools->commandLines().filter(u"cleanup remove"_s);
    EXPECT_EQ(removals.size(), 2);
    EXPECT_EQ(removals.last().count(models), 1) << "what a person chose is not kept";
}

TEST_F(SystemTargetsTest, NothingGoesWhileItIsUnknownWhereSomebodysWorkIs) {
    const auto places = std::make_shared<PlacesThatHang>();
    places->silent = home.path(u"caches/models"_s);
    Platform platform = fakes.platform();
    platform.places = places;
    CacheCleanup cleanup(platform, model->actionLog(), settings.preferences, std::chrono::milliseconds(50));
    const CacheTarget first = cleanup.targets().constFirst();
    QCoro::waitFor(cleanup.rescan());
    const QString reason = places->silent + u" does not answer."_s;
    for (const CacheTarget& one : cleanup.targets())
        EXPECT_EQ(one.notes, QStringList(reason)) << one.name.toStdString();
    EXPECT_FALSE(cleanup.isScanning());
    QCoro::waitFor(cleanup.cleanAll({first}));
    EXPECT_TRUE(tools->requests.isEmpty());
    EXPECT_EQ(cleanup.report().failures, (QList<CleanupFailure>{{first.name, reason}}));
    places->answer();
}

TEST_F(SystemTargetsTest, NothingGoesWhileItIsUnknownWhatIsInUse) {
    struct Silent : FakeCleanupTargets {
        mutable QSemaphore hangs;
        QStringList kept(const PlatformTarget& target) const override {
            if (target.name == u"Models"_s) {
                hangs.acquire();
                hangs.release();
            }
            return {};
        }
    };
    const auto silent = std::make_shared<Silent>();
    silent->targets = fakes.cleanupTargets->targets;
    Platform platform = fakes.platform();
    platform.cleanupTargets = silent;
    CacheCleanup cleanup(platform, model->actionLog(), settings.preferences, std::chrono::milliseconds(50));
    QCoro::waitFor(cleanup.cleanAll({cleanup.targets().constFirst()}));
    EXPECT_TRUE(tools->requests.isEmpty());
    ASSERT_EQ(cleanup.report().failures.size(), 1);
    EXPECT_TRUE(cleanup.report().failures.first().reason.endsWith(u" does not answer."));
    silent->hangs.release();
}

TEST_F(SystemTargetsTest, TheirOwnCommandsAndRulesAreUsed) {
    home.makeFolder(u"logs"_s);
    fakes.cleanupTargets->inUse[u"Models"_s] = {home.path(u"used"_s)};
    home.makeFolder(u"caches/models"_s);
    QCoro::waitFor(model->cleanup().rescan());
    const QStringList lines = tools->commandLines();
    EXPECT_EQ(lines.filter(u"command -v podman"_s).size(), 1);
    EXPECT_EQ(lines.filter(u"podman system df"_s).size(), 1);
    EXPECT_EQ(lines.filter(QRegularExpression(u"list .*--older-than 7 .*--shared .*logs"_s)).size(), 1);
    EXPECT_EQ(lines.filter(QRegularExpression(u"list .*--keep .*used .*models"_s)).size(), 1);
    QCoro::waitFor(model->cleanup().clean(target(u"Journal"_s)));
    EXPECT_EQ(tools->commandLines().filter(u"vacuum && echo"_s).size(), 1);
}

} // namespace
