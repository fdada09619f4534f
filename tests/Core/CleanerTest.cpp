#include "Core/Cleanup/Cleaner.h"

#include "Platform/Freedesktop/FreedesktopPlaces.h"
#include "support/Each.h"
#include "support/FakePlaces.h"
#include "support/Listing.h"
#include "support/ScriptedTools.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Cleaner::CleanResult;

namespace {

const Instant now{std::chrono::seconds(1'700'000'000)};

class CleanerTest : public testing::Test {
protected:
    const CleanupRule oldFiles{.measure = CleanupRule::Measure::oldFiles, .olderThanDays = 30};

    CleanResult clean(const CacheTarget& target) {
        tools->requests.clear();
        return QCoro::waitFor(Cleaner::clean(target, tools, places, now, stop.get_token(),
                                             [this](quint64 bytes) { progress.append(bytes); }));
    }
    static CacheTarget scanned(const QStringList& folders, const CleanupRule& rule = {}) {
        CacheTarget target{.name = u"x"_s, .paths = folders, .lastScanned = now, .rule = rule};
        for (const QString& folder : folders)
            target.listed.append({folder, 0, listingOf({{"entry of " + folder.toUtf8(), 1}})});
        return target;
    }

    /// Lets `du` find these sizes one after another, in KiB, and everything else exit with `status`.
    void script(const QByteArrayList& kilobytes, int status = 0) {
        tools->answer = [kilobytes, status, next = 0](const ToolRequest& request) mutable {
            if (request.launchPath != u"/usr/bin/du")
                return ScriptedTools::exited(status, "listed");
            return ScriptedTools::exited(0, kilobytes.value(next++) + "\tpath\n");
        };
    }
    /// "PROGRAM FIRST-ARGUMENT" of each request.
    QStringList steps() const {
        return each(tools->requests, [](const ToolRequest& request) {
            return request.launchPath + u' ' + request.arguments.first();
        });
    }

    TemporaryHome home;
    std::stop_source stop;
    QList<quint64> progress;
    std::shared_ptr<ScriptedTools> tools = std::make_shared<ScriptedTools>();
    std::shared_ptr<FakePlaces> places = std::make_shared<FakePlaces>();
};

TEST_F(CleanerTest, RemovesWhatWasListedBetweenTwoMeasurements) {
    const QString folder = home.makeFolder(u"it's a cache"_s);
    const QStringList expected = {u"/usr/bin/du -sk"_s, u"cleanup remove"_s, u"/usr/bin/du -sk"_s};
    const std::tuple<QByteArrayList, int, CleanResult> cases[] = {
        {{"100", "4"}, 0, {{true}, 96 * 1024}},
        {{"100", "40"}, 1, {{false}, 60 * 1024}},
        {{"4", "100"}, 0, {{true}, 0}},
        {{"", ""}, 0, {{true}, 0}},
    };
    for (const auto& [kilobytes, status, result] : cases) {
        script(kilobytes, status);
        EXPECT_EQ(clean(scanned({folder})), result);
        EXPECT_EQ(steps(), expected);
        EXPECT_EQ(tools->requests[1].input, listingOf({{"entry of " + folder.toUtf8(), 1}}));
        EXPECT_EQ(tools->requests[1].arguments.last(), folder);
    }
    script({});
    EXPECT_EQ(clean(scanned({folder}, oldFiles)), (CleanResult{Outcome::success(), 0}));
    EXPECT_EQ(steps(), QStringList(u"cleanup remove"_s)) << "of old files nothing is measured";
}

TEST_F(CleanerTest, ListsAnUnscannedTargetFirstAndLeavesWhatCameAfterAScan) {
    const QString folder = home.makeFolder(u"folder"_s);
    script({});
    EXPECT_TRUE(clean({.name = u"x"_s, .paths = {folder}, .rule = oldFiles}).done);
    EXPECT_EQ(steps(), QStringList({u"cleanup list"_s, u"cleanup remove"_s}));
    EXPECT_EQ(tools->requests.last().input, "listed");

    CacheTarget target = scanned({folder});
    target.paths.append(home.makeFolder(u"came later"_s));
    EXPECT_TRUE(clean(target).done);
    EXPECT_EQ(each(tools->requests, [](const ToolRequest& request) { return request.arguments.last(); }),
              QStringList({folder, folder, folder}));
}

TEST_F(CleanerTest, PrunesOnlyThroughTheTargetsOwnCommand) {
    const CacheTarget target{.name = u"x"_s,
                             .paths = {home.makeFolder(u"x"_s)},
                             .pruneCommand = u"brew cleanup -s"_s,
                             .sizeBytes = 77};
    const std::tuple<int, QByteArray, bool> cases[] = {
        {0, "Removing: 3 files\ntavrin: done\n", true},
        {127, "tavrin: done\n", false},
        {0, "", false}, // the user's start files ended the shell
        {0, "Welcome back!\n", false},
    };
    for (const auto& [status, output, success] : cases) {
        tools->answer = [&](const ToolRequest&) { return ScriptedTools::exited(status, output); };
        EXPECT_EQ(clean(target), (CleanResult{{success}, 77})) << output.constData();
        EXPECT_EQ(tools->commandLines(),
                  QStringList(u"/bin/sh -lc brew cleanup -s && echo 'tavrin: done'"_s));
        EXPECT_TRUE(tools->requests.first().timeout) << "or it could hang for ever";
    }
}

TEST_F(CleanerTest, TellsWhatIsGoneSoFarAndWhatCameBack) {
    const QStringList folders = {home.makeFolder(u"one"_s), home.makeFolder(u"two"_s)};
    tools->answer = [&](const ToolRequest& request) {
        if (request.launchPath != u"cleanup")
            return ScriptedTools::exited(0);
        const bool isFirst = request.arguments.last() == folders.first();
        return ScriptedTools::exited(isFirst ? 1 : 0,
                                     isFirst ? "10 1\n40 3\nvolume 100 90\n" : "5 1\nvolume 90 130\n");
    };
    const CleanResult result = clean(scanned(folders, oldFiles));
    EXPECT_FALSE(result.done);
    EXPECT_EQ(progress, QList<quint64>({10, 40, 40, 45, 45}));
    EXPECT_EQ(result.volumeBytes, 30);
    tools->answer = [](const ToolRequest&) { return ScriptedTools::exited(0, "0 0\n"); };
    EXPECT_EQ(clean(scanned(folders, oldFiles)).volumeBytes, std::nullopt)
        << "a file system that does not tell";
}

TEST_F(CleanerTest, MovesToTheTrashOnlyOldFilesOfTheUser) {
    CacheTarget target = scanned({home.makeFolder(u"folder"_s)}, oldFiles);
    const auto move = [&] { return QCoro::waitFor(Cleaner::moveToTrash(target, tools, places, now)); };
    EXPECT_FALSE(move().done);
    target.rule = {.hasUserFiles = true};
    EXPECT_FALSE(move().done);
    EXPECT_TRUE(tools->requests.isEmpty());
}

TEST_F(CleanerTest, LeavesProtectedFoldersAloneAndCleansTheOthers) {
    const QString refused = home.makeFolder(u"refused"_s);
    places->objections[refused] = u"No."_s;
    const QString plain = home.makeFolder(u"plain"_s);
    for (const CleanupRule& rule : {CleanupRule(), oldFiles}) {
        script({"8", "8"});
        EXPECT_EQ(clean(scanned({refused, plain}, rule)), (CleanResult{Outcome::failure(u"No."_s), 0}));
        for (const ToolRequest& request : tools->requests)
            EXPECT_EQ(request.arguments.last(), plain);
        EXPECT_FALSE(tools->requests.isEmpty());
        EXPECT_EQ(clean(scanned({home.path(u"missing"_s)}, rule)), (CleanResult{Outcome::success(), 0}));
        EXPECT_TRUE(tools->requests.isEmpty());
    }
    EXPECT_EQ(clean({.name = u"x"_s}), (CleanResult{Outcome::success(), 0}));
}

TEST_F(CleanerTest, StartsNothingMoreOnceStopped) {
    const QStringList folders = {home.makeFolder(u"one"_s), home.makeFolder(u"two"_s)};
    tools->answer = [&](const ToolRequest& request) {
        if (request.launchPath == u"cleanup")
            stop.request_stop();
        return ScriptedTools::exited(0);
    };
    EXPECT_FALSE(clean(scanned(folders)).done);
    EXPECT_EQ(steps(), QStringList({u"/usr/bin/du -sk"_s, u"cleanup remove"_s, u"/usr/bin/du -sk"_s}));
    EXPECT_TRUE(tools->requests[1].stop.stop_requested());
    EXPECT_FALSE(clean(scanned(folders)).done);
    EXPECT_TRUE(tools->requests.isEmpty());
}

TEST_F(CleanerTest, TouchesNothingWithoutAHome) {
    for (const char* value : {"", "/", "relative"}) {
        qputenv("HOME", value);
        QStringList reached;
        for (const CacheTarget& target : CacheTarget::defaults()) {
            tools->requests.clear();
            const auto real = std::make_shared<FreedesktopPlaces>("/dev/null");
            QCoro::waitFor(Cleaner::clean(target, tools, real, now));
            for (const ToolRequest& request : tools->requests)
                reached.append(request.arguments.last());
        }
        EXPECT_EQ(reached, QStringList({u"brew cleanup -s && echo 'tavrin: done'"_s, u"/tmp"_s, u"/tmp"_s,
                                        u"docker system prune -af --volumes && echo 'tavrin: done'"_s}));
    }
}

} // namespace
