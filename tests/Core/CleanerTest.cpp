#include "Core/Cleaner.h"

#include "Platform/Linux/LinuxPlaces.h"
#include "support/FakePlaces.h"
#include "support/ScriptedTools.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Cleaner::CleanResult;

namespace {

class CleanerTest : public testing::Test {
protected:
    CleanResult clean(const CacheTarget& target) {
        return QCoro::waitFor(Cleaner::clean(target, tools, places));
    }

    /// `du` finds these one after another, in KiB; the shell and `find` exit with `status`.
    void script(const QByteArrayList& kilobytes, int status = 0) {
        tools->requests.clear();
        tools->answer = [kilobytes, status, next = 0](const ToolRequest& request) mutable {
            if (request.launchPath != u"/usr/bin/du")
                return ScriptedTools::exited(status);
            return ScriptedTools::exited(0, kilobytes.value(next++) + "\tpath\n");
        };
    }

    TemporaryHome home;
    std::shared_ptr<ScriptedTools> tools = std::make_shared<ScriptedTools>();
    std::shared_ptr<FakePlaces> places = std::make_shared<FakePlaces>();
};

TEST_F(CleanerTest, EmptiesAFolderBetweenTwoMeasurements) {
    const QString folder = home.makeFolder(u"it's a cache"_s);
    const QString quoted = u"'"_s + home.path() + u"/it'\\''s a cache'"_s;
    const QStringList commands = {u"/usr/bin/du -sk -x "_s + folder,
                                  u"/bin/sh -lc rm -rf -- "_s + quoted + u"/* "_s + quoted + u"/.[!.]*"_s,
                                  u"/usr/bin/du -sk -x "_s + folder};
    const std::tuple<QByteArrayList, int, CleanResult> cases[] = {
        {{"100", "4"}, 0, {true, 96 * 1024}},
        {{"100", "40"}, 1, {false, 60 * 1024}},
        {{"4", "100"}, 0, {true, 0}},
        {{"", ""}, 0, {true, 0}},
    };
    for (const auto& [kilobytes, status, result] : cases) {
        script(kilobytes, status);
        EXPECT_EQ(clean({.name = u"x"_s, .paths = {folder}}), result);
        EXPECT_EQ(tools->commandLines(), commands);
    }
}

TEST_F(CleanerTest, PrunesOnlyThroughTheTargetsOwnCommand) {
    for (const int status : {0, 127}) {
        script({}, status);
        const CacheTarget target{.name = u"Old Downloads (>30d)"_s,
                                 .paths = {home.makeFolder(u"x"_s)},
                                 .pruneCommand = u"brew cleanup -s"_s,
                                 .sizeBytes = 77};
        EXPECT_EQ(clean(target), (CleanResult{status == 0, 77}));
        EXPECT_EQ(tools->commandLines(), QStringList(u"/bin/sh -lc brew cleanup -s"_s));
    }
}

TEST_F(CleanerTest, DeletesOldFilesWithoutLookingFirst) {
    const QString missing = home.path(u"missing"_s);
    for (const int status : {0, 1}) {
        script({}, status);
        EXPECT_EQ(clean({.name = u"Old Desktop screenshots (>30d)"_s, .paths = {missing}}),
                  (CleanResult{status == 0, 0}));
        EXPECT_EQ(tools->commandLines(),
                  QStringList(u"/usr/bin/find %1 -type f -mtime +30 -name Screen* -delete"_s.arg(missing)));
    }
}

TEST_F(CleanerTest, LeavesAloneWhatWouldReachOutsideAndGoesOn) {
    const QString outside = home.makeFolder(u"outside"_s);
    const QString link = home.path(u"link"_s);
    ASSERT_TRUE(QFile::link(outside, link));
    const QString mounted = home.makeFolder(u"mounted"_s);
    places->mountsInside = {mounted};
    const QString plain = home.makeFolder(u"plain"_s);

    script({"8", "4"});
    EXPECT_EQ(clean({.name = u"x"_s, .paths = {link, mounted, plain}}), (CleanResult{false, 4 * 1024}));
    ASSERT_EQ(tools->requests.size(), 3);
    EXPECT_EQ(tools->requests.first().arguments.last(), plain);

    script({});
    EXPECT_EQ(clean({.name = u"Old Downloads (>30d)"_s, .paths = {mounted}}), (CleanResult{false, 0}));
    EXPECT_EQ(clean({.name = u"x"_s, .paths = {home.path(u"missing"_s)}}), (CleanResult{true, 0}));
    EXPECT_EQ(clean({.name = u"x"_s}), (CleanResult{true, 0}));
    EXPECT_TRUE(tools->requests.isEmpty());
}

TEST_F(CleanerTest, TouchesNothingOfAHomeThatIsNotSet) {
    for (const char* value : {"", "/", "relative"}) {
        qputenv("HOME", value);
        tools->requests.clear();
        for (const CacheTarget& target : CacheTarget::defaults())
            EXPECT_TRUE(
                QCoro::waitFor(Cleaner::clean(target, tools, std::make_shared<LinuxPlaces>("/dev/null")))
                    .success);
        EXPECT_EQ(tools->commandLines(), QStringList({u"/bin/sh -lc brew cleanup -s"_s,
                                                      u"/usr/bin/find /tmp -type f -mtime +7 -delete"_s,
                                                      u"/bin/sh -lc docker system prune -af --volumes"_s}));
    }
}

} // namespace
