#include "UI/MainWindow.h"

#include "Core/Announcements/MessageCenter.h"
#include "UI/ModelFixture.h"
#include "UI/RootView.h"
#include "UI/ShortcutsSheet.h"
#include "support/ScriptedFeed.h"

#include <QListWidget>
#include <QScreen>
#include <QSplitter>

using namespace Qt::StringLiterals;

namespace {

struct MainWindowTest : ModelFixture {
    MessageCenter messages{std::make_unique<ScriptedFeed>(), prefs.file()};
};

int paneWidth(const MainWindow& window) {
    return window.findChild<QSplitter*>()->sizes().first();
}

} // namespace

TEST_F(MainWindowTest, ClosingOnlyOrdersItOutAndItComesBackOnTheOverview) {
    MainWindow window(model, prefs, messages);
    window.show();
    window.close();
    EXPECT_FALSE(window.isVisible());
    window.show();
    EXPECT_EQ(window.findChild<RootView*>()->tab(), RootView::Tab::overview);
    EXPECT_EQ(window.findChild<QListWidget*>()->item(0)->text(), u"Overview"_s);
    EXPECT_EQ(window.windowTitle(), u"Tavrin"_s);
    EXPECT_GE(window.centralWidget()->width(), 1000);
    EXPECT_GE(window.centralWidget()->height(), 680);
}

TEST_F(MainWindowTest, KeysGoToTheSectionsAndShowTheKeys) {
    MainWindow window(model, prefs, messages);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_5, Qt::ControlModifier);
    EXPECT_EQ(window.root().tab(), RootView::Tab::sessions);
    QTest::keyClick(&window, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(window.root().tab(), RootView::Tab::processes);
    for (const Qt::Key key : {Qt::Key_F1, Qt::Key_Question}) {
        window.activateWindow(); // again after the sheet
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, key);
        auto* sheet = window.findChild<ShortcutsSheet*>();
        ASSERT_TRUE(sheet);
        QTest::keyClick(sheet, Qt::Key_Escape);
        settle();
        EXPECT_FALSE(window.findChild<ShortcutsSheet*>());
    }
}

TEST_F(MainWindowTest, SizePlaceAndSidebarOutlastTheProgram) {
    {
        MainWindow window(model, prefs, messages);
        window.show();
        window.resize(1600, 1000);
        EXPECT_EQ(paneWidth(window), 200);
        window.setGeometry(0, 21, 1000, 743);
        auto* handle = window.findChild<QSplitter*>()->handle(1);
        QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(0, 300));
        QTest::mouseMove(handle, QPoint(13, 300));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(0, 300));
    }
    MainWindow again(model, prefs, messages);
    again.show();
    EXPECT_EQ(again.height(), 743);
    EXPECT_NEAR(again.y(), 21, 4); // give or take a frame
    EXPECT_GT(paneWidth(again), 205);
}

TEST_F(MainWindowTest, DamagedPlacesAndScreensThatAreGoneDoNoHarm) {
    const QString place = u"ui.window.place"_s;
    const QString sidebar = u"ui.window.sidebarWidth"_s;
    QByteArray farAway;
    {
        MainWindow window(model, prefs, messages);
        window.show();
        window.setGeometry(9000, -7000, 1300, 700);
        farAway = window.saveGeometry();
    }
    for (const QByteArray& stored :
         {farAway, farAway.left(20), QByteArray(farAway).replace(8, 24, QByteArray(24, '\xff')),
          QByteArray("@Rect(1 2 3 4)"), QByteArray(5000, '\0')}) {
        prefs.file().store(place, stored);
        prefs.file().store(sidebar, u"wide"_s);
        MainWindow window(model, prefs, messages);
        window.show();
        EXPECT_GE(window.width(), 1000);
        EXPECT_LE(window.width(), 1300);
        EXPECT_TRUE(window.geometry().intersects(window.screen()->availableGeometry()))
            << stored.toHex().data();
        EXPECT_EQ(paneWidth(window), 200);
    }
    for (const auto& [stored, shown] : {std::pair(-5.0, 180), std::pair(1e300, 220)}) {
        prefs.file().store(sidebar, stored);
        MainWindow window(model, prefs, messages);
        window.show();
        EXPECT_EQ(paneWidth(window), shown);
    }
}
