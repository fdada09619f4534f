#include "Core/Announcements/FeedTool.h"

#include "Core/Announcements/MessageCenter.h"
#include "support/ScriptedFeed.h"
#include "support/ScriptedTools.h"
#include "support/TemporarySettings.h"

#include <QCoroTask>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct FeedToolTest : testing::Test {
    TemporarySettings settings;
    std::shared_ptr<ScriptedTools> tools = std::make_shared<ScriptedTools>();

    std::unique_ptr<MessageCenter> centerAt(const QString& url) {
        return std::make_unique<MessageCenter>(std::make_unique<FeedTool>(tools), settings.preferences.file(),
                                               QUrl(url));
    }
};

} // namespace

TEST_F(FeedToolTest, AFailureKeepsTheKnownMessage) {
    const auto center = centerAt(u"https://feed.example/a%20b"_s);
    const ToolResult good = ScriptedTools::exited(0, feedOf({{.id = u"known"_s}}));
    for (const ToolResult& answer : {good, ScriptedTools::exited(1, feedOf({})), ToolResult(),
                                     ScriptedTools::exited(0, "no feed"), ScriptedTools::exited(0)}) {
        tools->answer = [answer](const ToolRequest&) { return answer; };
        QCoro::waitFor(center->refresh());
        ASSERT_TRUE(center->currentMessage());
        EXPECT_EQ(center->currentMessage()->id, u"known"_s);
    }
    EXPECT_EQ(tools->commandLines().constFirst(), u"fetch_feed https://feed.example/a%20b"_s);
}

TEST_F(FeedToolTest, AFeedThatDoesNotExistYetIsNotAskedFor) {
    QCoro::waitFor(centerAt(u"https://feed.invalid/api/messages.json"_s)->refresh());
    EXPECT_TRUE(tools->requests.isEmpty());
    EXPECT_EQ(MessageCenter::defaultFeedURL().scheme(), u"https"_s);
    EXPECT_EQ(MessageCenter::defaultFeedURL().path(), u"/api/messages.json"_s);
    EXPECT_FALSE(MessageCenter::defaultFeedURL().host().isEmpty());
}

TEST_F(FeedToolTest, TheToolEndsWithTheCenter) {
    const QString url = u"https://feed.example/"_s;
    tools->suspended = true;
    auto center = centerAt(url);
    center->refresh();
    ASSERT_EQ(tools->requests.size(), 1);
    EXPECT_FALSE(tools->requests[0].stop.stop_requested());
    center.reset();
    EXPECT_TRUE(tools->requests[0].stop.stop_requested());
    EXPECT_TRUE(tools->release(url));
}
