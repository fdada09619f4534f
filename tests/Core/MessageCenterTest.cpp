#include "Core/Announcements/MessageCenter.h"

#include "support/Each.h"
#include "support/ScriptedFeed.h"
#include "support/TemporarySettings.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Severity = Message::Severity;
using Target = Message::Target;

struct MessageCenterTest : testing::Test {
    TemporarySettings settings;
    ScriptedFeed* feed = new ScriptedFeed;
    MessageCenter center{std::unique_ptr<FeedSource>(feed), settings.preferences.file(),
                         QUrl(u"https://feed.example/api/messages.json"_s)};

    ~MessageCenterTest() override { setVersion({}); }

    static void setVersion(const QString& version) { QCoreApplication::setApplicationVersion(version); }

    void publish(const QList<Message>& messages) {
        feed->answer = feedOf(messages);
        QCoro::waitFor(center.refresh());
    }
    QString shown() const { return center.currentMessage().value_or(Message()).id; }
};

Message message(const QString& id, Severity severity = Severity::info) {
    return {.id = id, .severity = severity, .title = u"title"_s, .body = u"body"_s};
}

Message versioned(const std::optional<QString>& minVersion, const std::optional<QString>& maxVersion) {
    return {.id = u"m"_s, .minVersion = minVersion, .maxVersion = maxVersion};
}

Message targeted(Target target) {
    return {.id = rawValue(target), .target = target};
}

} // namespace

TEST_F(MessageCenterTest, AsksAgainEveryTwelveHours) {
    center.start();
    QCoreApplication::processEvents();
    ASSERT_EQ(feed->requests.size(), 1);
    auto* timer = center.findChild<QTimer*>();
    EXPECT_EQ(timer->interval(), 43'200'000);
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_EQ(feed->requests.size(), 2);
}

TEST(MessageCenter, ComparesVersionsNumberByNumber) {
    const std::tuple<const char*, const char*, int> cases[] = {
        {"", "", 0},
        {"1.2", "1.2.0", 0},
        {"1.2", "1.10", -1},
        {"2", "1.9.9", 1},
        {"..1..2", "1.2", 0},
        {"1.2", "1.1.9", 1},
        {"2.0-beta", "2.0", -1},
        {"2.x", "2.y", 0},
        {"1. 2", "1.2", -1},
        {"+1.+2", "1.2", 0},
        {"1.-2", "1.-1", -1},
        {"1.-1", "1.x", 0},
        {"9223372036854775807", "9223372036854775806", 1},
        {"9223372036854775808", "0", -1},
        {"99999999999999999999999999", "x", 0},
        {"1.\u0663", "1.3", -1}, // another script's digits are no decimal number
    };
    for (const auto& [one, other, result] : cases) {
        const QString a = QString::fromUtf8(one);
        const QString b = QString::fromUtf8(other);
        EXPECT_EQ(MessageCenter::compareVersions(a, b), result) << one << " and " << other;
        EXPECT_EQ(MessageCenter::compareVersions(b, a), -result) << other << " and " << one;
    }
}

TEST_F(MessageCenterTest, ChoosesByTargetVersionRankAndPlace) {
    const std::tuple<const char*, QList<Message>, const char*> cases[] = {
        {"1", {targeted(Target::macBuild), targeted(Target::windowsBuild)}, ""},
        {"1", {targeted(Target::macBuild), targeted(Target::linuxBuild), targeted(Target::all)}, "linux"},
        {"1", {message(u"i"_s), message(u"w"_s, Severity::warn)}, "w"},
        {"1", {message(u"w"_s, Severity::warn), message(u"i"_s)}, "w"},
        {"1", {message(u"g"_s, Severity::upgrade), message(u"u"_s, Severity::update)}, "u"},
        {"1", {message(u"i"_s), message(u"g"_s, Severity::upgrade)}, "g"},
        {"1", {message(u"a"_s, Severity::update), message(u"b"_s, Severity::update)}, "a"},
        {"1.2.0", {versioned(u"1.2"_s, {})}, "m"},
        {"1.1", {versioned(u"1.2"_s, {})}, ""},
        {"1.2", {versioned({}, u"1.1.9"_s)}, ""},
        {"1.1.9", {versioned({}, u"1.1.9"_s)}, "m"},
        {"2.0-beta", {versioned(u"2.0"_s, {})}, ""},
        {"", {versioned({}, u"0.0.0"_s)}, "m"}, // a program without a version is 0.0.0
        {"1", {versioned(u"2"_s, {}), message(u"i"_s)}, "i"},
        {"1", {}, ""},
    };
    for (const auto& [version, messages, expected] : cases) {
        setVersion(QString::fromLatin1(version));
        publish(messages);
        EXPECT_EQ(shown(), QString::fromLatin1(expected)) << feedOf(messages).data();
        EXPECT_EQ(center.allMessages(), messages);
    }
}

TEST_F(MessageCenterTest, DismissalsAreKeptForGoodOrForOneVersion) {
    setVersion(u"1.0"_s);
    Message once = message(u"once"_s, Severity::warn);
    once.showOncePerVersion = true;
    Message never = message(u"good"_s, Severity::update);
    never.showOncePerVersion = false;
    publish({once, never, message(u"last"_s)});
    for (const auto* next : {"good", "last", ""}) {
        center.dismiss(*center.currentMessage());
        EXPECT_EQ(shown(), QString::fromLatin1(next));
    }
    const Preferences reread(settings.path);
    for (const auto* key : {"tv.msg.dismissed.once.v1.0", "tv.msg.dismissed.good", "tv.msg.dismissed.last"})
        EXPECT_EQ(reread.file().boolean(QString::fromLatin1(key)), true) << key;
    setVersion(u"1.1"_s);
    center.recompute();
    EXPECT_EQ(shown(), u"once"_s);
}

TEST_F(MessageCenterTest, AnyIdCanBeDismissedAndHidesNoOther) {
    const QStringList ids = {u""_s,    u"a"_s,   u"a/b"_s, u"a\\b"_s,    u"ü € 漢"_s,
                             u"%41"_s, u"[x]"_s, u"k="_s,  u"line\nx"_s, u"x, y; \"quoted\""_s};
    publish(each(ids, [](const QString& id) { return message(id); }));
    for (const QString& id : ids) {
        ASSERT_TRUE(center.currentMessage()) << qPrintable(id);
        EXPECT_EQ(shown(), id);
        center.dismiss(*center.currentMessage());
    }
    EXPECT_FALSE(center.currentMessage());
    Preferences reread(settings.path);
    for (const QString& id : ids)
        EXPECT_EQ(reread.file().boolean(MessageCenter::dismissKey(message(id))), true) << qPrintable(id);
}

TEST_F(MessageCenterTest, OfOverlappingRefreshesTheLaterCompletionWins) {
    feed->suspended = true;
    center.start();
    EXPECT_TRUE(feed->requests.isEmpty()); // never before the start is over
    QCoreApplication::processEvents();
    center.refresh();
    ASSERT_EQ(feed->requests.size(), 2);
    EXPECT_EQ(feed->requests[0], QUrl(u"https://feed.example/api/messages.json"_s));
    feed->answer = feedOf({message(u"second"_s)});
    feed->release(1);
    EXPECT_EQ(shown(), u"second"_s);
    feed->answer = feedOf({message(u"first"_s)});
    feed->release(0);
    EXPECT_EQ(shown(), u"first"_s);
}
