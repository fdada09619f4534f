#include "AppDelegate.h"
#include "AppModel.h"
#include "Core/Announcements/MessageCenter.h"
#include "Platform/Desktop/Desktop.h"
#include "Platform/LoginItem.h"
#include "Platform/Platform.h"
#include "Preferences.h"
#include "UI/Controls.h"
#include "UI/MainWindow.h"
#include "UI/RootView.h"
#include "support/ScriptedFeed.h"
#include "support/TemporarySettings.h"

#include <QApplication>
#include <QListWidget>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

// Runs everything above the platform on the answers of Platform/Null.

TEST(NullPlatform, TheProgramStartsTicksAndStaysUsable) {
    TemporarySettings settings;
    Preferences& preferences = settings.preferences;
    preferences.pollIntervalSeconds.set(1);
    AppModel model(Platform::native(), preferences);
    MessageCenter messages(std::make_unique<ScriptedFeed>(), preferences.file());
    AppDelegate program(model, preferences, messages, Desktop::native(), Platform::makeLoginItem());
    program.applicationDidFinishLaunching();

    MainWindow* window = nullptr;
    for (QWidget* each : QApplication::topLevelWidgets()) {
        if (auto* main = qobject_cast<MainWindow*>(each))
            window = main;
    }
    ASSERT_TRUE(window && window->isVisible());
    auto* sections = window->findChild<QListWidget*>();
    for (int row = 0; row < sections->count(); ++row) {
        sections->setCurrentRow(row);
        EXPECT_FALSE(window->grab().isNull());
    }
    QSignalSpy ticks(&model, &AppModel::objectWillChange);
    EXPECT_TRUE(ticks.wait(3000));
    EXPECT_EQ(model.systemSample().memTotalBytes, 0U);
    EXPECT_TRUE(model.processes().isEmpty());
    EXPECT_EQ(model.groups().size(), 6);

    auto nudge = model.actions().nudgeMemory();
    auto scan = model.cleanup().rescan();
    EXPECT_TRUE(QTest::qWaitFor([&] { return nudge.isReady() && scan.isReady(); }));
    EXPECT_FALSE(model.actionLog().entries().first().success);
    EXPECT_FALSE(model.cleanup().isScanning());
    EXPECT_EQ(model.actions().quickKill(u"node"_s, u"node"_s, 0, 0, false).matched, 0);
}
