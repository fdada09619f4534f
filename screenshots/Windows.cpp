#include "Camera.h"
#include "Screens.h"
#include "Stage.h"

#include "UI/FakeDesktop.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/MenuBarPanel.h"
#include "UI/Overview/FreeRAMSheet.h"
#include "UI/Settings/AlertsTab.h"
#include "UI/Settings/GeneralTab.h"
#include "UI/Settings/HistoryTab.h"
#include "UI/Settings/PresetTable.h"
#include "UI/Settings/QuickKillEditorSheet.h"
#include "UI/Settings/SettingsScene.h"
#include "UI/Widget.h"
#include "UI/WidgetView.h"
#include "support/FakeLoginItem.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QScrollBar>
#include <QTreeView>

using namespace Qt::StringLiterals;

void shootFreeRAM(Camera& camera) {
    Stage stage;
    stage.play(150, 24, 13.1);
    stage.fakes.clock->advance(1500);
    stage.play(1, 24, 13.1);
    stage.model.actions().setFreeRAMDelays({.beforeSecondPass = {}, .beforeMeasuring = {}});
    auto* sheet = new FreeRAMSheet(stage.model, nullptr);
    camera.take(*sheet, u"free-ram"_s);
    stage.fakes.host->memory.activeBytes -= 900 * MiB;
    QTest::keyClick(sheet, Qt::Key_Return);
    QTest::qWait(50);
    camera.take(*sheet, u"free-ram-result"_s);
    stage.fakes.processes->listing.clear();
    stage.play(1, 24, 13.1);
    camera.take(*sheet, u"free-ram-empty"_s);
    delete sheet;
}

void shootPanels(Camera& camera) {
    Stage stage;
    stage.fakes.host->memory.swapUsedBytes = 5 * GiB;
    stage.play(150, 63, 13.1);
    WidgetWindow unused{Desktop()};
    MenuBarPanel panel(stage.model, unused);
    panel.setFixedSize(320, 360);
    camera.take(panel, u"panel"_s);

    WidgetView widget(stage.model);
    widget.setWindowFlags(Qt::ToolTip); // takes no focus, as the widget's own window
    camera.take(widget, u"widget"_s);
    widget.setAttribute(Qt::WA_UnderMouse);
    camera.take(widget, u"widget-hover"_s);
}

void shootHistory(Camera& camera) {
    const TemporaryHome home;
    const QString log = u"Library/Logs/Tavrin/actions.log"_s;
    QByteArray lines;
    constexpr const char* actions[] = {
        "clean\tok\t2148532224\tnpm / pnpm / yarn",
        "quit\tok\t0\t[graceful quit] Firefox (9 child PIDs targeted)",
        "quit\tok\t0\t[nuke duplicates] chrome — 24/24 PIDs",
        "clean\tfail\t0\t[batch] Docker",
        "quit\tok\t1395864371\t[free RAM] 923:quit,1367:quit,2551:forced,812:quit,849:quit freed=1395864371",
        "forceKill\tfail\t0\tpid=2773",
        "forceKill\tok\t0\t[quickKill] \x1b[31m<b>hogs</b> — matched=3 killed=3"};
    for (int i = 0; i < 40; ++i)
        lines += "2026-11-" + QByteArray::number(10 + i / 4) + 'T' + QByteArray::number(10 + i % 4 * 3) +
                 ":24:0" + QByteArray::number(i % 10) + "Z\t" + actions[i % 7] + '\n';
    home.makeFile(log, lines);
    HistoryTab tab;
    tab.resize(640, 398);
    tab.show();
    auto* table = tab.findChild<QTreeView*>();
    table->setCurrentIndex(table->model()->index(2, 0));
    camera.take(tab, u"history"_s);
    press(tab, HistoryTab::tr("Clear log"));
    camera.take(*tab.findChild<ConfirmDialog*>(), u"history-clear"_s);
    delete tab.findChild<ConfirmDialog*>();
    press(tab, HistoryTab::tr("Export CSV…"));
    camera.take(*tab.findChild<QFileDialog*>(), u"history-export"_s);
    delete tab.findChild<QFileDialog*>();
    table->sortByColumn(4, Qt::AscendingOrder);
    camera.take(tab, u"history-sorted"_s);
    tab.hide();
    home.makeFile(log, {});
    camera.take(tab, u"history-empty"_s);
}

void shootSettings(Camera& camera) {
    TemporarySettings settings;
    FakeLoginItem loginItem;
    FakeNotifications notifications;
    SettingsScene window(settings.preferences, loginItem, notifications);
    const auto shoot = [&](SettingsScene::Tab tab, const QString& name) {
        window.select(tab);
        camera.take(window, u"settings-"_s + name);
    };
    shoot(SettingsScene::Tab::general, u"general"_s);
    loginItem.outcome =
        Outcome::failure(u"/home/ana/.config/autostart/tavrin.desktop: No space left on device"_s);
    window.findChild<GeneralTab*>()->findChild<QCheckBox*>()->click();
    shoot(SettingsScene::Tab::general, u"general-error"_s);
    settings.preferences.pollIntervalSeconds.set(5);
    shoot(SettingsScene::Tab::sampling, u"sampling"_s);
    settings.preferences.alertCPUHotEnabled.set(false);
    settings.preferences.alertRAMLowFreeGB.set(16);
    shoot(SettingsScene::Tab::alerts, u"alerts"_s);
    QScrollBar* scroll = window.findChild<AlertsTab*>()->verticalScrollBar();
    scroll->setValue(scroll->maximum());
    shoot(SettingsScene::Tab::alerts, u"alerts-end"_s);
    settings.preferences.notifyQuietEnabled.set(true);
    notifications.available = false;
    Q_EMIT notifications.availabilityChanged();
    QCoreApplication::sendPostedEvents();
    scroll->setValue(scroll->maximum());
    shoot(SettingsScene::Tab::alerts, u"alerts-no-notifications"_s);
    shoot(SettingsScene::Tab::cleanup, u"cleanup-empty"_s);
    settings.preferences.cleanupExcludes.set(
        {u"*.gguf"_s, u"/home/ana/.cache/a folder with a very long name"_s});
    settings.preferences.projectFolders.set({u"/home/ana/src"_s});
    QCoreApplication::sendPostedEvents();
    shoot(SettingsScene::Tab::cleanup, u"cleanup"_s);
    auto* table = window.findChild<PresetTable*>();
    shoot(SettingsScene::Tab::quickKills, u"quick-kills"_s);
    table->setCurrentIndex(table->model()->index(3, 0));
    QTest::keyClick(table, Qt::Key_Return);
    camera.take(*window.findChild<QuickKillEditorSheet*>(), u"settings-editor"_s);
    settings.preferences.storeQuickKillPresets({});
    shoot(SettingsScene::Tab::quickKills, u"quick-kills-empty"_s);
}
