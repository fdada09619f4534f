#include "UI/MessageBanner.h"

#include "UI/BannerButtons.h"
#include "UI/Kit/ClampedLabel.h"
#include "UI/MainWindow.h"
#include "UI/ModelFixture.h"
#include "UI/RootView.h"
#include "support/ScriptedFeed.h"

#include <QElapsedTimer>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

using Severity = Message::Severity;

Message message(const QString& id, Severity severity = Severity::info) {
    return {.id = id, .severity = severity, .title = u"title "_s + id, .body = u"body "_s + id};
}

Message linked(const std::optional<QString>& label, const std::optional<QString>& url) {
    Message result = message(u"linked"_s);
    result.actionLabel = label;
    result.actionURL = url;
    return result;
}

struct MessageBannerTest : ModelFixture {
    ScriptedFeed* feed = new ScriptedFeed;
    MessageCenter center{std::unique_ptr<FeedSource>(feed), prefs.file()};
    QList<QUrl> opened;
    MessageBanner banner{center, [this](const QUrl& url) { opened.append(url); }};

    void publish(const QList<Message>& messages) {
        feed->answer = feedOf(messages);
        QCoro::waitFor(center.refresh());
        settle();
    }
    QAbstractButton* action() { return banner.findChild<ActionCapsule*>(); }
    QAbstractButton* dismiss() { return buttonNamed(banner, u"Dismiss"_s); }
    QString shown() { return banner.isVisible() ? banner.accessibleName() : QString(); }
    QStringList bodyLines(int width) { return banner.findChildren<ClampedLabel*>().at(1)->lines(width); }
};

} // namespace

TEST_F(MessageBannerTest, DismissingShowsTheNextMessageAtOnce) {
    EXPECT_FALSE(banner.isVisible());
    publish({message(u"a"_s), message(u"b"_s, Severity::warn), message(u"c"_s)});
    EXPECT_EQ(shown(), u"title b. body b"_s);
    QTest::mouseClick(dismiss(), Qt::LeftButton);
    EXPECT_EQ(shown(), u"title a. body a"_s);
    QTest::keyClick(dismiss(), Qt::Key_Space);
    EXPECT_EQ(shown(), u"title c. body c"_s);
    QTest::mouseClick(dismiss(), Qt::LeftButton);
    EXPECT_EQ(shown(), QString());
    publish({message(u"b"_s), message(u"d"_s)});
    EXPECT_EQ(shown(), u"title d. body d"_s);
}

TEST_F(MessageBannerTest, OnlyAUsableLinkHasAButton) {
    for (const Message& each :
         {linked({}, u"https://x.example"_s), linked(u"Go"_s, {}), linked(u" "_s, u"https://x.example"_s),
          linked(u"Read & learn"_s, u"https://x.example/<b>?q=1"_s)}) {
        publish({each});
        EXPECT_FALSE(action()->isVisible()) << feedOf({each}).data();
    }
    publish({linked(u"Read & learn"_s, u"https://x.example/?q=1&r"_s)});
    ASSERT_TRUE(action()->isVisible());
    EXPECT_EQ(action()->accessibleName(), u"Read & learn"_s);
    EXPECT_TRUE(opened.isEmpty());
    QTest::mouseClick(action(), Qt::LeftButton);
    EXPECT_EQ(opened, QList<QUrl>{QUrl(u"https://x.example/?q=1&r"_s)});
    QTest::keyClick(action(), Qt::Key_Space);
    EXPECT_EQ(opened.size(), 2);
    EXPECT_EQ(shown(), u"title linked. body linked"_s); // following a link dismisses nothing
}

TEST_F(MessageBannerTest, WhatWasPressedForCountsWhenAnotherMessageComes) {
    publish({linked(u"Go"_s, u"https://one.example"_s)});
    QTest::mousePress(action(), Qt::LeftButton);
    publish({linked(u"Go"_s, u"https://two.example"_s)});
    QTest::mouseRelease(action(), Qt::LeftButton);
    EXPECT_EQ(opened, QList<QUrl>{QUrl(u"https://one.example"_s)});
    publish({message(u"one"_s)});
    QTest::mousePress(dismiss(), Qt::LeftButton);
    publish({message(u"two"_s), message(u"one"_s)});
    QTest::mouseRelease(dismiss(), Qt::LeftButton);
    EXPECT_EQ(shown(), u"title two. body two"_s);
    EXPECT_EQ(prefs.file().boolean(u"tv.msg.dismissed.one"_s), true);
    EXPECT_FALSE(prefs.file().boolean(u"tv.msg.dismissed.two"_s));
}

TEST_F(MessageBannerTest, TextsAreLiteralAndFewLines) {
    Message hostile = linked(u"<i>Go</i>"_s, u"https://x.example"_s);
    hostile.title = u"<b>Bold</b> &amp;\u202etxt\n2"_s;
    hostile.body = u"<img src='file:///x'> "_s + u"word "_s.repeated(500);
    publish({hostile});
    banner.resize(900, banner.heightForWidth(900));
    EXPECT_TRUE(showsText(banner, u"<b>Bold</b> &amp;\ufffdtxt\u240a2"_s));
    ASSERT_EQ(bodyLines(600).size(), 3);
    EXPECT_TRUE(bodyLines(600)[0].startsWith(u"<img src='file:///x'> word"));
    EXPECT_TRUE(bodyLines(600)[2].endsWith(u'…'));
    const int tallest = banner.heightForWidth(600);
    EXPECT_LT(tallest, 150);

    QElapsedTimer elapsed;
    elapsed.start();
    hostile.title = QString(200'000, u'W');
    hostile.body = QString(200'000, u'M');
    hostile.actionLabel = QString(200'000, u'A');
    publish({hostile});
    EXPECT_EQ(banner.heightForWidth(600),
              tallest + banner.findChild<ClampedLabel*>()->heightForWidth(1000) / 2);
    EXPECT_LE(action()->width(), 240);
    EXPECT_LT(elapsed.elapsed(), 2000);

    hostile.body.clear();
    hostile.title = u"Short"_s;
    publish({hostile});
    EXPECT_LT(banner.heightForWidth(600), 50);
}

TEST_F(MessageBannerTest, StandsAboveEverySectionOfTheWindow) {
    MainWindow window(model, prefs, center);
    window.show();
    auto* shownBanner = window.findChild<MessageBanner*>();
    auto* sections = window.findChild<QStackedWidget*>();
    EXPECT_FALSE(shownBanner->isVisible());
    const int before = sections->height();
    publish({message(u"a"_s)});
    for (const auto tab : allCases<RootView::Tab>()) {
        window.findChild<RootView*>()->select(tab);
        EXPECT_TRUE(shownBanner->isVisible());
        EXPECT_LT(shownBanner->mapTo(&window, QPoint(0, shownBanner->height())).y(),
                  sections->mapTo(&window, QPoint()).y());
    }
    QTest::mouseClick(buttonNamed(*shownBanner, u"Dismiss"_s), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(sections->height(), before);
}
