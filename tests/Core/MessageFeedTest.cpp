#include "Core/Announcements/MessageFeed.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Returns a feed of one complete message. A repeated key replaces the earlier one.
QByteArray feedWith(const QByteArray& member = {}) {
    return R"({"messages": [{"id": "a", "target": "all", "severity": "info", "title": "t", "body": "b")" +
           (member.isEmpty() ? member : ", " + member) + "}]}";
}

} // namespace

TEST(MessageFeedTest, ReadsEveryKeyInOrder) {
    const auto feed = Feed::decode(R"({"version": 2, "messages": [
        {"id": "1", "target": "linux", "severity": "upgrade", "title": "T\u00e9", "body": "", "extra": [{}],
         "actionLabel": "Go", "actionURL": "https://x.example", "minVersion": "1", "maxVersion": "2.0",
         "showOncePerVersion": false},
        {"id": "2", "target": "macos", "severity": "warn", "title": "", "body": "b", "actionLabel": null,
         "actionURL": null, "minVersion": null, "maxVersion": null, "showOncePerVersion": null}]})");
    const Message first = {.id = u"1"_s,
                           .target = Message::Target::linuxBuild,
                           .severity = Message::Severity::upgrade,
                           .title = u"Té"_s,
                           .body = u""_s,
                           .actionLabel = u"Go"_s,
                           .actionURL = u"https://x.example"_s,
                           .minVersion = u"1"_s,
                           .maxVersion = u"2.0"_s,
                           .showOncePerVersion = false};
    const Message second = {.id = u"2"_s,
                            .target = Message::Target::macBuild,
                            .severity = Message::Severity::warn,
                            .title = u""_s,
                            .body = u"b"_s};
    ASSERT_TRUE(feed);
    EXPECT_EQ(feed->messages, (QList<Message>{first, second}));
    EXPECT_EQ(Feed::decode(R"({"messages": []})"), Feed());
}

TEST(MessageFeedTest, OneFaultRejectsTheWholeFeed) {
    ASSERT_TRUE(Feed::decode(feedWith()));
    const QByteArray good = R"({"id": "g", "target": "all", "severity": "info", "title": "t", "body": "b"})";
    const QByteArray faulty[] = {
        "",
        "null",
        "[]",
        "{}",
        R"({"messages": null})",
        R"({"messages": {}})",
        R"({"messages": [null]})",
        R"({"Messages": []})",
        R"({"messages": []} {})",
        R"({"messages": [)" + good,
        R"({"messages": [)" + good + R"(, {"id": "x"}, )" + good + "]}",
        R"({"messages": [)" + good + ", \"text\"]}",
        feedWith("\"title\": \"caf\xe9\""),
        feedWith("\"unlisted\": \"\xc0\xaf\""),
        feedWith(R"("title": "\ud83d")"),
        "\xff\xfe" + feedWith(),
        QByteArray(100'000, '['),
    };
    for (const QByteArray& json : faulty)
        EXPECT_FALSE(Feed::decode(json)) << json.left(200).data();
    const QByteArray fields =
        R"("id": 7|"id": null|"title": ["t"]|"body": true|"target": "everyone"|"target": "All"|)"
        R"("severity": "alert"|"severity": "Info"|"severity": ""|"actionLabel": 1|)"
        R"("actionURL": {}|"minVersion": 1.2|"maxVersion": false|"showOncePerVersion": 1|)"
        R"("showOncePerVersion": "true")";
    for (const QByteArray& field : fields.split('|'))
        EXPECT_FALSE(Feed::decode(feedWith(field))) << field.data();
}

TEST(MessageFeedTest, OnlyPagesAndPlainMailsAreOpened) {
    const auto link = [](const char* url) {
        return Message{.actionURL = QString::fromLatin1(url)}.actionLink();
    };
    for (const char* url : {"https://x.example/a?b=c#d", "http://x.example", "mailto:help@x.example",
                            "mailto:help@x.example?subject=Hi%20there&Body=x"})
        EXPECT_EQ(link(url).value_or(QUrl()).toString(QUrl::FullyEncoded), QString::fromLatin1(url));
    EXPECT_EQ(link("HTTP://X.Example"), QUrl(u"http://x.example"_s));
    const QByteArray refused = "mailto:help@x.example?attach=/etc/passwd|mailto:|mailto://x.example/a|"
                               "mailto:help@x.example?subject=a&%61ttach=/etc/passwd|file:///etc/passwd|"
                               "/usr/bin/xterm|x.example||https://|https:///path|https:x.example|"
                               "https://bank.example@evil.example|https://x.example/a b| https://x.example|"
                               "https://x.example/\n|https://x.example:port|javascript:alert(1)|"
                               "ssh://x.example|data:text/html,x";
    for (const QByteArray& url : refused.split('|'))
        EXPECT_FALSE(link(url)) << url.data();
    EXPECT_FALSE(Message().actionLink());
}
