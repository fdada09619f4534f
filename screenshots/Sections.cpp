#include "Camera.h"
#include "Screens.h"
#include "Stage.h"

#include "Core/Translations.h"
#include "UI/Cleanup/CacheCard.h"
#include "UI/Cleanup/CacheDetailDrawer.h"
#include "UI/Cleanup/CleanupView.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/MainWindow.h"
#include "UI/Optimize/OptimizeView.h"
#include "UI/Optimize/PresetTile.h"
#include "UI/Overview/GroupRow.h"
#include "UI/Overview/IncidentDialog.h"
#include "UI/Overview/OverviewView.h"
#include "UI/Processes/ProcessesView.h"
#include "UI/RootView.h"

#include <QCoroTask>

#include <QCheckBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

void shootTarget(Camera& camera, MainWindow& window, const QString& target, const QString& suffix) {
    for (CacheCard* card : window.findChildren<CacheCard*>()) {
        if (card->accessibleName().startsWith(Translations::of(target)))
            card->click();
    }
    auto* drawer = window.findChild<CacheDetailDrawer*>();
    camera.take(*drawer, u"cleanup-drawer"_s + suffix);
    drawer->findChildren<PushButton*>().last()->click();
    camera.take(*drawer->findChild<ConfirmDialog*>(), u"cleanup-confirm"_s + suffix);
    delete drawer->findChild<ConfirmDialog*>();
    drawer->reject();
    settle();
}

/// Takes the question, the run, and the result of a run that was cancelled.
void shootCleanAll(Camera& camera, MainWindow& window, Stage& stage) {
    const CleanupView& view = *window.findChild<CleanupView*>();
    press(view, CleanupView::tr("Clean All"));
    auto* dialog = window.findChild<ConfirmDialog*>();
    camera.take(*dialog, u"cleanup-confirm-all"_s);
    stage.fakes.tools->suspended = true;
    dialog->findChildren<PushButton*>().last()->click();
    settle();
    camera.take(window, u"cleanup-running"_s);
    window.findChild<RootView*>()->select(RootView::Tab::optimize);
    settle();
    QScrollBar* scroll = window.findChild<OptimizeView*>()->verticalScrollBar();
    scroll->setValue(scroll->maximum());
    camera.take(window, u"optimize-cleaning"_s);
    scroll->setValue(0);
    window.findChild<RootView*>()->select(RootView::Tab::cleanup);
    stage.model.cleanup().cancel();
    stage.fakes.tools->suspended = false;
    for (const ToolRequest& request : QList<ToolRequest>(stage.fakes.tools->requests))
        stage.fakes.tools->release(request.arguments.last());
    const auto isOver = [&] {
        return !stage.model.cleanup().isCleaning() && !stage.model.cleanup().isScanning();
    };
    if (!QTest::qWaitFor(isOver))
        qFatal("the clean does not end");
    stage.play(1, 24, 8.1);
    camera.take(window, u"cleanup-cancelled"_s);
}

void shootOtherSections(Camera& camera, MainWindow& window, Stage& stage) {
    auto* root = window.findChild<RootView*>();
    root->select(RootView::Tab::optimize);
    camera.take(window, u"optimize-quiet"_s);
    root->select(RootView::Tab::cleanup);
    camera.take(window, u"cleanup-unscanned"_s);

    for (const CacheTarget& target : CacheTarget::defaults()) {
        for (const QString& path : target.paths)
            stage.fakes.places->elsewhere[path] = {stage.home.makeFolder(path.mid(path.indexOf(u'/') + 1))};
    }
    stage.fillCaches();
    stage.addServers();
    QCoro::waitFor(stage.model.cleanup().rescan());
    stage.play(90, 24, 8.1);
    camera.take(window, u"cleanup"_s);
    for (const auto& [target, name] : {std::pair(u"npm /"_s, u""_s), std::pair(u"Docker"_s, u"-docker"_s),
                                       std::pair(u"Old Downloads (>30d)"_s, u"-files"_s)})
        shootTarget(camera, window, target, name);
    shootCleanAll(camera, window, stage);
    root->select(RootView::Tab::processes);
    camera.take(window, u"processes"_s);
    auto* processes = window.findChild<ProcessesView*>();
    auto* table = processes->findChild<QTreeView*>();
    table->setCurrentIndex(table->model()->index(3, 0));
    processes->findChild<QCheckBox*>()->click();
    camera.take(window, u"processes-grouped"_s);
    processes->findChild<QCheckBox*>()->click();
    processes->findChildren<QCheckBox*>().at(1)->click();
    camera.take(window, u"processes-tree"_s);
    processes->findChildren<QCheckBox*>().at(1)->click();
    auto* search = processes->findChild<QLineEdit*>();
    search->setText(u"co de"_s);
    camera.take(window, u"processes-search"_s);
    search->setText(u"zsh nothing"_s);
    camera.take(window, u"processes-none"_s);
    search->clear();
    root->select(RootView::Tab::optimize);
    stage.play(1, 24, 8.1);
    camera.take(window, u"optimize"_s);
    window.resize(1600, 1000);
    window.findChild<OptimizeView*>()->findChildren<PresetTile*>().at(3)->click();
    camera.take(window, u"optimize-large"_s);
    root->select(RootView::Tab::cleanup);
    camera.take(window, u"cleanup-large"_s);
    root->select(RootView::Tab::processes);
    table->setCurrentIndex(table->model()->index(3, 0));
    camera.take(window, u"processes-large"_s);
}

/// Takes the pages behind the tiles, with the figures of this machine.
void shootPages(Camera& camera, MainWindow& window, Stage& stage) {
    auto* overview = window.findChild<OverviewView*>();
    for (const auto& [kind, name] : {std::pair(DetailPage::Kind::cpu, u"overview-cpu"_s),
                                     std::pair(DetailPage::Kind::memory, u"overview-memory"_s),
                                     std::pair(DetailPage::Kind::disk, u"overview-disk"_s),
                                     std::pair(DetailPage::Kind::thermal, u"overview-thermal"_s)}) {
        overview->openPage(kind);
        for (int i = 0; i < 12; ++i)
            stage.play(1, 24, 8.1); // the page reads for itself after each tick
        camera.take(window, name);
    }
    Q_EMIT overview->findChildren<DetailPage*>().last()->left();
}

} // namespace

void shootSections(Camera& camera) {
    Stage calm;
    calm.play(150, 24, 8.1);
    MainWindow window(calm.model, calm.prefs, calm.messages);
    window.resize(RootView::minimumContent);
    camera.take(window, u"overview"_s);
    window.findChildren<GroupHeader*>().at(static_cast<qsizetype>(ProcGroup::agents))->click();
    camera.take(window, u"overview-open-group"_s);

    shootPages(camera, window, calm);
    shootOtherSections(camera, window, calm);

    Stage pressed;
    pressed.fakes.host->memory.swapUsedBytes = 5 * GiB;
    pressed.fakes.host->thermal = 2;
    pressed.play(140, 85, 13.9);
    pressed.fakes.pressure->memoryLevel = PressureLevel{.some = 12, .full = 3};
    pressed.play(10, 92, 14.6);
    MainWindow busy(pressed.model, pressed.prefs, pressed.messages);
    busy.resize(RootView::minimumContent);
    camera.take(busy, u"overview-alerts"_s);
    busy.resize(1600, 1000);
    camera.take(busy, u"overview-alerts-large"_s);
    auto* incident = new IncidentDialog(*pressed.model.incident(u"ram_low"_s));
    camera.take(*incident, u"incident"_s);
    delete incident;
}
