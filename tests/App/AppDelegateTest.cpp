#include "AppDelegate.h"

#include "Core/Announcements/MessageCenter.h"
#include "UI/Controls.h"
#include "UI/FakeDesktop.h"
#include "UI/MainWindow.h"
#include "UI/ModelFixture.h"
#include "UI/Overview/FreeRAMSheet.h"
#include "UI/RootView.h"
#include "UI/Settings/SettingsScene.h"
#include "support/FakeLoginItem.h"
#include "support/ScriptedFeed.h"

#include <QApplication>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

const QString firstLaunchKey = u"pref.didFirstLaunchSetup"_s;

struct AppDelegateTest : ModelFixture {
    FakeDesktop desktop;
    MessageCenter messages{std::make_unique<ScriptedFeed>(), prefs.file()};
    std::shared_ptr<FakeLoginItem> loginItem = std::make_shared<FakeLoginItem>();
    std::optional<AppDelegate> delegate;

    void launch(const LaunchOptions& options = {}) {
        delegate.emplace(model, prefs, messages, desktop.desktop(), loginItem);
        delegate->applicationDidFinishLaunching(options);
        settle();
    }
    bool didFirstLaunch() {
        return Preferences(settings.path).file().boolean(firstLaunchKey).value_or(false);
    }
    template <typename T> QList<T*> windows() {
        QList<T*> result;
        for (QWidget* each : QApplication::topLevelWidgets()) {
            if (auto* window = qobject_cast<T*>(each))
                result.append(window);
        }
        return result;
    }
    void pick(const QString& item) {
        for (QAction* action : desktop.statusItem->menu->actions()) {
            if (action->text() == item)
                action->trigger();
        }
        settle();
    }
    SettingsScene& settingsWindow() {
        pick(u"Settings…"_s);
        return *windows<SettingsScene>().constFirst();
    }
};

} // namespace

TEST_F(AppDelegateTest, TheFirstLaunchRegistersOnceAndTheFlagComesFirst) {
    bool flagWhenAsked = false;
    loginItem->whenAsked = [&] { flagWhenAsked = didFirstLaunch(); };
    loginItem->outcome = Outcome::failure(u"no such folder"_s);
    launch();
    EXPECT_TRUE(flagWhenAsked);
    EXPECT_EQ(loginItem->requests, QStringList(u"register"_s));
    EXPECT_EQ(desktop.application->policy, ActivationPolicy::regular);
    EXPECT_TRUE(desktop.panels->isEmpty());
    ASSERT_EQ(windows<MainWindow>().size(), 1);
    EXPECT_TRUE(windows<MainWindow>().constFirst()->isVisible());
    EXPECT_EQ(desktop.statusItem->content.title, u"CPU 0% • RAM 0%"_s);
    EXPECT_FALSE(showsText(settingsWindow(), u"Couldn't register: no such folder"_s));
    launch();
    EXPECT_EQ(loginItem->requests, (QStringList{u"register"_s, u"replace"_s}));
}

TEST_F(AppDelegateTest, TheLaunchTakesItsStepsInOrder) {
    QStringList steps;
    const auto note = [&steps](const QString& step) {
        if (!steps.contains(step))
            steps.append(step);
    };
    QObject::connect(&model, &AppModel::objectWillChange, &model, [&] { note(u"model"_s); });
    desktop.statusItem->whenShown = [&] { note(u"status item"_s); };
    desktop.application->whenSet = [&] { note(u"policy"_s); };
    desktop.whenPanelMade = [&] { note(u"widget"_s); };
    loginItem->whenAsked = [&] { note(u"login item"_s); };
    prefs.showWidgetOnLaunch.set(true);
    launch();
    EXPECT_EQ(steps, (QStringList{u"model"_s, u"status item"_s, u"policy"_s, u"widget"_s, u"login item"_s}));
}

TEST_F(AppDelegateTest, ABuildTreesProgramDoesNotStartAtLogin) {
    loginItem->installed = false;
    launch();
    EXPECT_TRUE(didFirstLaunch());
    EXPECT_EQ(loginItem->requests, QStringList(u"replace"_s));
}

TEST_F(AppDelegateTest, WhatIsStoredDecidesTheLaunch) {
    prefs.startAtLogin.set(false);
    prefs.showInDock.set(false);
    prefs.showWidgetOnLaunch.set(true);
    launch();
    EXPECT_TRUE(loginItem->requests.isEmpty());
    EXPECT_TRUE(didFirstLaunch());
    EXPECT_EQ(desktop.application->policy, ActivationPolicy::accessory);
    ASSERT_EQ(desktop.panels->size(), 1);
    EXPECT_TRUE(desktop.panels->constFirst()->shown);
}

TEST_F(AppDelegateTest, OneSettingsWindowThatOpensOnGeneral) {
    launch();
    EXPECT_EQ(each(desktop.statusItem->menu->actions(), &QAction::text),
              (QStringList{u"Open"_s, u"Settings…"_s, QString(), u"Quit"_s}));

    MainWindow& main = *windows<MainWindow>().constFirst();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    QTest::keyClick(&main, Qt::Key_Comma, Qt::ControlModifier);
    settle();
    ASSERT_EQ(windows<SettingsScene>().size(), 1);
    auto* window = windows<SettingsScene>().constFirst();
    EXPECT_EQ(desktop.application->forward, window);
    window->select(SettingsScene::Tab::alerts);
    desktop.application->forward = nullptr;
    main.close();
    pick(u"Settings…"_s);
    EXPECT_EQ(windows<SettingsScene>(), QList{window});
    EXPECT_EQ(desktop.application->forward, window);
    EXPECT_EQ(window->tab(), SettingsScene::Tab::alerts);

    window->close();
    delegate->openSettings(); // before the closed one is gone
    settle();
    ASSERT_EQ(windows<SettingsScene>().size(), 1);
    EXPECT_EQ(windows<SettingsScene>().constFirst()->tab(), SettingsScene::Tab::general);
    EXPECT_TRUE(windows<SettingsScene>().constFirst()->isVisible());
    delegate.reset();
    EXPECT_TRUE(windows<SettingsScene>().isEmpty());
}

TEST_F(AppDelegateTest, ANotificationsActionBringsTheWindowForward) {
    launch();
    MainWindow& main = *windows<MainWindow>().constFirst();
    main.close();
    main.root().select(RootView::Tab::cleanup);
    desktop.application->own = {&main};
    desktop.application->forward = nullptr;
    Q_EMIT desktop.notifications->invoked(u"thermal"_s, u"show"_s);
    EXPECT_EQ(desktop.application->forward, &main);
    EXPECT_EQ(main.root().tab(), RootView::Tab::overview);
    Q_EMIT desktop.notifications->invoked(u"memory"_s, u"free_ram"_s);
    EXPECT_TRUE(main.findChild<FreeRAMSheet*>());
}

TEST_F(AppDelegateTest, AHiddenStartShowsNoWindowUntilItIsAskedFor) {
    launch({.isHidden = true});
    MainWindow& main = *windows<MainWindow>().constFirst();
    EXPECT_FALSE(main.isVisible());
    desktop.application->own = {&main};
    delegate->startedAgain({.isHidden = true});
    EXPECT_EQ(desktop.application->forward, nullptr);
    delegate->startedAgain({});
    EXPECT_EQ(desktop.application->forward, &main);
}

TEST_F(AppDelegateTest, OpensWhereItIsAskedTo) {
    launch({.place = Destination::processes});
    MainWindow& main = *windows<MainWindow>().constFirst();
    EXPECT_EQ(main.root().tab(), RootView::Tab::processes);
    for (const auto& [place, tab] : {std::pair{Destination::overview, RootView::Tab::overview},
                                     std::pair{Destination::optimize, RootView::Tab::optimize},
                                     std::pair{Destination::cleanup, RootView::Tab::cleanup},
                                     std::pair{Destination::sessions, RootView::Tab::sessions}}) {
        delegate->startedAgain({.place = place});
        EXPECT_EQ(main.root().tab(), tab);
    }
    delegate->startedAgain({.place = Destination::freeRAM});
    EXPECT_TRUE(main.findChild<FreeRAMSheet*>());
    delegate->startedAgain({.place = Destination::settings});
    ASSERT_EQ(windows<SettingsScene>().size(), 1);
    EXPECT_EQ(desktop.application->forward, windows<SettingsScene>().constFirst());
}

TEST_F(AppDelegateTest, SettingsTakeEffectWithoutARestart) {
    launch();
    SettingsScene& window = settingsWindow();
    click(window, u"Show in task bar"_s);
    settle();
    EXPECT_EQ(desktop.application->policy, ActivationPolicy::accessory);
    click(window, u"Show in task bar"_s);
    settle();
    EXPECT_EQ(desktop.application->policy, ActivationPolicy::regular);
    choose(window, u"Display"_s, u"Icon only"_s);
    settle();
    EXPECT_EQ(desktop.statusItem->content.title, QString());
    EXPECT_FALSE(desktop.statusItem->content.symbol.isNull());
    window.select(SettingsScene::Tab::sampling);
    choose(window, u"Poll interval"_s, u"5s"_s);
    settle();
    EXPECT_EQ(model.timerInterval(), 5.0);
    window.select(SettingsScene::Tab::alerts);
    fakes.host->thermal = 3;
    for (int i = 0; i < 30; ++i) // until it counts as hot
        tick();
    EXPECT_EQ(model.alerts().size(), 1);
    click(window, u"Thermal pressure warning"_s);
    tick();
    EXPECT_TRUE(model.alerts().isEmpty());
    window.select(SettingsScene::Tab::sampling);
    click(window, u"Pause sampling on Low Power Mode"_s);
    fakes.power->lowPower = true;
    addProcesses(1, "late", 1);
    tick();
    EXPECT_TRUE(model.processes().isEmpty());
}
