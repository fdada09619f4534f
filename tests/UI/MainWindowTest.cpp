#include "UI/MainWindow.h"

#include "Core/MessageCenter.h"
#include "UI/ModelFixture.h"
#include "UI/RootView.h"
#include "support/ScriptedFeed.h"

#include <QListWidget>

namespace {

struct MainWindowTest : ModelFixture {
    MessageCenter messages{std::make_unique<ScriptedFeed>(), prefs.file()};
};

} // namespace

TEST_F(MainWindowTest, ClosingOnlyOrdersItOutAndItComesBackOnTheOverview) {
    MainWindow window(model, prefs, messages);
    window.show();
    window.close();
    EXPECT_FALSE(window.isVisible());
    window.show();
    EXPECT_EQ(window.findChild<RootView*>()->tab(), RootView::Tab::overview);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Tavrin"));
    EXPECT_GE(window.centralWidget()->width(), 1000);
    EXPECT_GE(window.centralWidget()->height(), 680);
}

TEST_F(MainWindowTest, SidebarKeepsItsWidth) {
    MainWindow window(model, prefs, messages);
    window.resize(1600, 1000);
    window.show();
    const auto* sidebar = window.findChild<QListWidget*>();
    EXPECT_EQ(sidebar->item(0)->text(), QStringLiteral("Overview"));
    EXPECT_GE(sidebar->width(), 180);
    EXPECT_LE(sidebar->width(), 220);
}
