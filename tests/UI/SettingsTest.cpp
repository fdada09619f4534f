#include "UI/Settings/CleanupTab.h"
#include "UI/Settings/SettingsScene.h"

#include "UI/Controls.h"
#include "UI/FakeDesktop.h"
#include "UI/ModelFixture.h"
#include "UI/Settings/TabButton.h"
#include "support/FakeLoginItem.h"
#include "support/Files.h"

#include <QCheckBox>
#include <QDir>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

using Tab = SettingsScene::Tab;

struct SettingsTest : testing::Test {
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    FakeLoginItem loginItem;
    FakeNotifications notifications;
    SettingsScene window{prefs, loginItem, notifications};

    void SetUp() override {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QByteArray stored() const { return contentOf(settings.path); }
    bool isOn(const QString& toggle) { return control<QCheckBox>(window, toggle)->isChecked(); }
    QString chosen(const QString& picker) { return control<QComboBox>(window, picker)->currentText(); }
};

} // namespace

TEST_F(SettingsTest, OpensWhereAndAsLargeAsItWas) {
    EXPECT_FALSE(window.isPlaced()) << "whoever opens it has to place it";
    {
        SettingsScene other(prefs, loginItem, notifications);
        other.show();
        other.setGeometry(31, 47, 700, 520);
        QCoreApplication::processEvents();
    }
    const SettingsScene again(prefs, loginItem, notifications);
    EXPECT_TRUE(again.isPlaced());
    EXPECT_EQ(again.size(), QSize(700, 520));
    EXPECT_NEAR(again.y(), 47, 4); // give or take a frame
}

TEST_F(SettingsTest, TabsByMouseAndByKeyboard) {
    EXPECT_EQ(window.size(), QSize(640, 460));
    EXPECT_TRUE(window.windowTitle().contains(u"settings"_s, Qt::CaseInsensitive));
    EXPECT_EQ(window.tab(), Tab::general);
    click(window, u"Quick Kills"_s);
    EXPECT_EQ(window.tab(), Tab::quickKills);
    EXPECT_TRUE(showsText(window, u"Custom Quick Kill presets"_s));
    auto* quickKills = control<TabButton>(window, u"Quick Kills"_s);
    quickKills->setFocus();
    QTest::keyClick(quickKills, Qt::Key_Left);
    EXPECT_EQ(window.tab(), Tab::alerts);
    EXPECT_TRUE(control<QCheckBox>(window, u"CPU saturation"_s));
    QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window.tab(), Tab::sampling);
    QTest::keyClick(&window, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window.tab(), Tab::alerts);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SettingsTest, WhatIsNeverCleanedIsAListThatGrowsAndShrinks) {
    window.select(Tab::cleanup);
    auto* field = window.findChild<CleanupTab*>()->findChild<QLineEdit*>();
    for (const QString& typed : {u" *.gguf "_s, u"~/keep"_s, u"*.gguf"_s, u""_s}) {
        field->setText(typed);
        QTest::keyClick(field, Qt::Key_Return);
    }
    EXPECT_EQ(settings.preferences.cleanupExcludes(),
              (QStringList{u"*.gguf"_s, QDir::homePath() + u"/keep"_s}));
    click(window, u"Remove *.gguf"_s);
    EXPECT_EQ(settings.preferences.cleanupExcludes(), QStringList(QDir::homePath() + u"/keep"_s));
}

TEST_F(SettingsTest, EveryControlStoresAndShowsWhatIsStored) {
    // Tab and name, the choice of a picker or "More" or "Less" of a stepper, and the line in the file after
    // it.
    const std::tuple<Tab, QString, QString, QString> cases[] = {
        {Tab::general, u"Start at login"_s, {}, u"pref.startAtLogin=false"_s},
        {Tab::general, u"Show floating widget on launch"_s, {}, u"pref.showWidgetOnLaunch=true"_s},
        {Tab::general, u"Show in task bar"_s, {}, u"pref.showInDock=false"_s},
        {Tab::general, u"Display"_s, u"Icon only"_s, u"pref.menuBarFormat=Icon only"_s},
        {Tab::general, u"Texts, numbers and dates"_s, u"Deutsch"_s, u"pref.language=de"_s},
        {Tab::cleanup, u"Ask before cleaning everything"_s, {}, u"pref.askBeforeCleaningAll=false"_s},
        {Tab::sampling, u"Poll interval"_s, u"5s"_s, u"pref.pollIntervalSeconds=5"_s},
        {Tab::sampling, u"History retention"_s, u"1 hour"_s, u"pref.historyRetention=1 hour"_s},
        {Tab::sampling, u"Pause sampling on Low Power Mode"_s, {}, u"pref.pauseOnLowPower=true"_s},
        {Tab::alerts, u"Free RAM threshold"_s, u"More"_s, u"pref.alertRAMLow_freeGB=2.5"_s},
        {Tab::alerts, u"Low RAM warning"_s, {}, u"pref.alertRAMLow_enabled=false"_s},
        {Tab::alerts, u"CPU threshold"_s, u"More"_s, u"pref.alertCPUHot_percent=90"_s},
        {Tab::alerts, u"CPU saturation"_s, {}, u"pref.alertCPUHot_enabled=false"_s},
        {Tab::alerts, u"Thermal pressure warning"_s, {}, u"pref.alertThermal_enabled=false"_s},
        {Tab::alerts, u"Min idle"_s, u"Less"_s, u"pref.alertIdleAgent_minIdleMin=14"_s},
        {Tab::alerts, u"Min RAM"_s, u"More"_s, u"pref.alertIdleAgent_minRSSMB=600"_s},
        {Tab::alerts, u"Flag idle Claude / agentic processes"_s, {}, u"pref.alertIdleAgent_enabled=false"_s},
        {Tab::alerts, u"Of total RAM"_s, u"Less"_s, u"pref.alertBrowserHog_percentTotal=20"_s},
        {Tab::alerts, u"Browser RAM dominance"_s, {}, u"pref.alertBrowserHog_enabled=false"_s},
        {Tab::alerts, u"Threshold"_s, u"More"_s, u"pref.alertCachesBig_gb=6"_s},
        {Tab::alerts, u"Caches reclaimable"_s, {}, u"pref.alertCachesBig_enabled=false"_s},
        {Tab::alerts, u"Large session"_s, {}, u"pref.alertSessionBig_enabled=true"_s},
        {Tab::alerts, u"Notify: Memory pressure"_s, {}, u"pref.notifyPressure=false"_s},
        {Tab::alerts, u"Notify: Forecast"_s, {}, u"pref.notifyMemoryFull=false"_s},
        {Tab::alerts, u"Programs wait for memory"_s, {}, u"pref.alertPressure_enabled=false"_s},
        {Tab::alerts, u"Memory full within 30 minutes"_s, {}, u"pref.alertForecast_enabled=false"_s},
        {Tab::alerts,
         u"What was ended because memory ran out"_s,
         {},
         u"pref.alertMemoryKill_enabled=false"_s},
        {Tab::alerts, u"Session holds more than"_s, u"More"_s, u"pref.alertSessionBig_gb=9"_s},
        {Tab::alerts, u"Notify: Sessions"_s, {}, u"pref.notifySessionBig=true"_s},
        {Tab::alerts, u"Notify of heavy swap usage"_s, {}, u"pref.notifySwapHigh=true"_s},
        {Tab::alerts, u"Notify of a finished long clean"_s, {}, u"pref.notifyCleaned=false"_s},
        {Tab::alerts, u"Quiet time"_s, {}, u"pref.notifyQuiet_enabled=true"_s},
        {Tab::alerts, u"Quiet from"_s, u"More"_s, u"pref.notifyQuiet_from=1350"_s},
        {Tab::alerts, u"Quiet until"_s, u"Less"_s, u"pref.notifyQuiet_to=390"_s},
    };
    for (const auto& [tab, name, choice, line] : cases) {
        window.select(tab);
        if (choice.isEmpty())
            click(window, name);
        else if (control<QComboBox>(window, name))
            choose(window, name, choice);
        else
            step(window, choice, name);
        EXPECT_TRUE(stored().split('\n').contains(line.toUtf8())) << line.toStdString() << "\nnot in\n"
                                                                  << stored().data();
    }
    Preferences reread(settings.path);
    SettingsScene again(reread, loginItem, notifications);
    again.show();
    QStringList shown;
    for (const Tab tab : {Tab::general, Tab::sampling, Tab::alerts}) {
        again.select(tab);
        for (const auto* toggle : again.findChildren<QCheckBox*>()) {
            if (toggle->isVisibleTo(&again) && toggle->isChecked())
                shown.append(toggle->text());
        }
        for (const auto* picker : again.findChildren<QComboBox*>()) {
            if (picker->isVisibleTo(&again))
                shown.append(picker->currentText());
        }
        shown.append(shownNames<StepperRow>(again));
    }
    EXPECT_EQ(shown, (QStringList{u"Show floating widget on launch"_s,
                                  u"Icon only"_s,
                                  u"Deutsch"_s,
                                  u"Pause sampling on Low Power Mode"_s,
                                  u"5s"_s,
                                  u"1 hour"_s,
                                  u"Notify"_s,
                                  u"Notify"_s,
                                  u"Large session"_s,
                                  u"Notify"_s,
                                  u"Notify of heavy swap usage"_s,
                                  u"Quiet time"_s,
                                  u"Free RAM threshold 2.5 GB"_s,
                                  u"CPU threshold 90%"_s,
                                  u"Min idle 14 min"_s,
                                  u"Min RAM 600 MB"_s,
                                  u"Of total RAM 20%"_s,
                                  u"Threshold 6 GB"_s,
                                  u"Session holds more than 9 GB"_s,
                                  u"Quiet from 22:30"_s,
                                  u"Quiet until 06:30"_s}));
}

TEST_F(SettingsTest, EachRuleHasItsSwitchOfNotifications) {
    const std::pair<QString, Property<bool>*> switches[] = {
        {u"Notify: Memory"_s, &prefs.notifyRAMLow},
        {u"Notify when RAM is getting tight"_s, &prefs.notifyRAMTight},
        {u"Notify: CPU"_s, &prefs.notifyCPUHot},
        {u"Notify: Thermal"_s, &prefs.notifyThermal},
        {u"Notify: Idle agents"_s, &prefs.notifyIdleAgent},
        {u"Notify: Browsers"_s, &prefs.notifyBrowserHog},
        {u"Notify: Caches"_s, &prefs.notifyCachesBig},
    };
    window.select(Tab::alerts);
    for (const auto& [name, property] : switches) {
        const bool before = (*property)();
        click(window, name);
        EXPECT_NE((*property)(), before) << qPrintable(name);
    }
    EXPECT_FALSE(control<QCheckBox>(window, u"Notify: Sessions"_s)->isEnabled()); // its rule is off
}

TEST_F(SettingsTest, TheQuietTimeGoesAroundTheClock) {
    window.select(Tab::alerts);
    EXPECT_FALSE(control<StepperRow>(window, u"Quiet from 22:00"_s)->isEnabled());
    click(window, u"Quiet time"_s);
    for (int i = 0; i < 4; ++i)
        step(window, u"More"_s, u"Quiet from"_s);
    EXPECT_TRUE(control<StepperRow>(window, u"Quiet from 00:00"_s));
    step(window, u"Less"_s, u"Quiet from"_s);
    EXPECT_EQ(prefs.notifyQuietFrom(), 23 * 60 + 30);
    prefs.notifyQuietFrom.set(-1e300); // stored by another hand
    settle();
    EXPECT_TRUE(control<StepperRow>(window, u"Quiet from 00:00"_s));
}

TEST_F(SettingsTest, SaysThatNothingShowsNotifications) {
    const QString missing = u"This desktop has no service that shows notifications."_s;
    window.select(Tab::alerts);
    EXPECT_FALSE(showsText(window, missing));
    notifications.available = false;
    Q_EMIT notifications.availabilityChanged();
    EXPECT_TRUE(showsText(window, missing));
    notifications.available.reset(); // unknown
    Q_EMIT notifications.availabilityChanged();
    EXPECT_FALSE(showsText(window, missing));
}

TEST_F(SettingsTest, ChangesFromElsewhereShowAtOnce) {
    prefs.showInDock.set(false);
    prefs.menuBarFormat.set(MenuBarFormat::ramOnly);
    QCoreApplication::sendPostedEvents();
    EXPECT_FALSE(isOn(u"Show in task bar"_s));
    EXPECT_EQ(chosen(u"Display"_s), u"RAM%"_s);
    window.select(Tab::alerts);
    prefs.alertCachesBigGB.set(7.9);
    prefs.alertRAMLowEnabled.set(false);
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(control<StepperRow>(window, u"Threshold 7 GB"_s));
    EXPECT_FALSE(control<StepperRow>(window, u"Free RAM threshold 2.0 GB"_s)->isEnabled());
    EXPECT_TRUE(control<StepperRow>(window, u"CPU threshold"_s)->isEnabled());
    window.select(Tab::general); // while the tab was not on show
    window.select(Tab::alerts);
    EXPECT_FALSE(isOn(u"Low RAM warning"_s));
}

TEST_F(SettingsTest, TheRetentionLineFollowsBothPickers) {
    window.select(Tab::sampling);
    const auto keeps = [this](int samples) {
        return showsText(window, u"Keeps %1 samples for the Overview sparklines."_s.arg(samples));
    };
    EXPECT_TRUE(keeps(750));
    choose(window, u"Poll interval"_s, u"10s"_s);
    EXPECT_TRUE(keeps(150));
    choose(window, u"History retention"_s, u"5 min"_s);
    EXPECT_TRUE(keeps(60));
    for (const double odd : {3.0, -7.0, 1e300}) {
        prefs.pollIntervalSeconds.set(odd);
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(chosen(u"Poll interval"_s), QString()) << odd;
        EXPECT_EQ(prefs.pollIntervalSeconds(), odd);
    }
    EXPECT_TRUE(keeps(60));
    choose(window, u"Poll interval"_s, u"1s"_s);
    EXPECT_TRUE(keeps(300));
}

TEST_F(SettingsTest, TheLoginItemFollowsTheSwitchAndSaysWhyItCannot) {
    click(window, u"Start at login"_s);
    loginItem.outcome = Outcome::failure(u"<b>disk</b> full"_s);
    click(window, u"Start at login"_s);
    EXPECT_TRUE(showsText(window, u"Couldn't register: <b>disk</b> full"_s));
    EXPECT_TRUE(prefs.startAtLogin());
    click(window, u"Start at login"_s);
    EXPECT_TRUE(showsText(window, u"Couldn't unregister: <b>disk</b> full"_s));
    EXPECT_FALSE(isOn(u"Start at login"_s));
    EXPECT_FALSE(prefs.startAtLogin());
    {
        SettingsScene another(prefs, loginItem, notifications);
        another.show();
        EXPECT_FALSE(showsText(another, u"Couldn't unregister: <b>disk</b> full"_s));
    }
    loginItem.outcome = Outcome::success();
    click(window, u"Start at login"_s);
    EXPECT_FALSE(showsText(window, u"Couldn't unregister: <b>disk</b> full"_s));
    EXPECT_EQ(loginItem.requests,
              (QStringList{u"unregister"_s, u"register"_s, u"unregister"_s, u"register"_s}));
}
