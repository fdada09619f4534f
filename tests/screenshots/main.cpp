// Renders every screen in both schemes as OUTDIR/NAME-light.png and OUTDIR/NAME-dark.png, on the figures of
// a scripted busy machine. The scale is Qt's own (QT_SCALE_FACTOR).

#include "Core/Announcements/MessageCenter.h"
#include "Core/Translations.h"
#include "UI/Cleanup/CacheCard.h"
#include "UI/Cleanup/CacheDetailDrawer.h"
#include "UI/Cleanup/CleanupView.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/MainWindow.h"
#include "UI/MenuBarPanel.h"
#include "UI/MessageBanner.h"
#include "UI/ModelFixture.h"
#include "UI/Optimize/OptimizeView.h"
#include "UI/Optimize/PresetTile.h"
#include "UI/Overview/FreeRAMSheet.h"
#include "UI/Overview/GroupRow.h"
#include "UI/Processes/ProcessesView.h"
#include "UI/RootView.h"
#include "UI/Settings/AlertsTab.h"
#include "UI/Settings/GeneralTab.h"
#include "UI/Settings/HistoryTab.h"
#include "UI/Settings/PresetTable.h"
#include "UI/Settings/QuickKillEditorSheet.h"
#include "UI/Settings/SettingsScene.h"
#include "UI/Style/FigureIcon.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Style.h"
#include "UI/Style/Symbols.h"
#include "UI/Style/Theme.h"
#include "UI/Widget.h"
#include "UI/WidgetView.h"
#include "support/FakeLoginItem.h"
#include "support/ScriptedFeed.h"

#include <QCoroTask>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QEnterEvent>
#include <QFileDialog>
#include <QFontDatabase>
#include <QPainter>
#include <QScrollBar>
#include <QTreeView>
#include <QVBoxLayout>

#include <cmath>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr quint64 MiB = quint64(1) << 20;
constexpr quint64 GiB = quint64(1) << 30;

struct Actor {
    const char* name;
    const char* path;
    quint64 memory;
    double cores; ///< share of a core it keeps busy
    int count;
};

constexpr Actor cast[] = {
    {"claude", "/usr/local/bin/claude", 640 * MiB, 0.22, 3},
    {"ollama", "/usr/local/bin/ollama", 2200 * MiB, 0.01, 1},
    {"code", "/usr/share/code/code", 310 * MiB, 0.09, 11},
    {"clangd", "/usr/bin/clangd", 1400 * MiB, 0.35, 1},
    {"gnome-terminal-server", "/usr/libexec/gnome-terminal-server", 88 * MiB, 0.01, 1},
    {"zsh", "/usr/bin/zsh", 9 * MiB, 0, 6},
    {"chrome", "/opt/google/chrome/chrome", 240 * MiB, 0.04, 24},
    {"firefox-esr", "/usr/lib/firefox-esr/firefox-esr", 820 * MiB, 0.06, 1},
    {"dockerd", "/usr/bin/dockerd", 120 * MiB, 0.02, 1},
    {"containerd-shim-runc-v2", "/usr/bin/containerd-shim-runc-v2", 18 * MiB, 0, 4},
    {"gnome-shell", "/usr/bin/gnome-shell", 410 * MiB, 0.05, 1},
    {"a-very-long-process-name-that-does-not-fit-any-column-of-a-row", "/opt/x", 75 * MiB, 0, 1},
    {"مدير الذاكرة (خلفية)", "/opt/y", 72 * MiB, 0, 1},
    {"systemd", "/usr/lib/systemd/systemd", 14 * MiB, 0, 38},
};

/// A machine that has been busy for a while.
struct Stage : ModelFixture {
    ScriptedFeed* feed = new ScriptedFeed;
    MessageCenter messages{std::unique_ptr<FeedSource>(feed), prefs.file()};

    void TestBody() override {}
    Stage() {
        qint32 pid = 812;
        for (const Actor& actor : cast) {
            m_cpuTimePerTick[actor.name] = static_cast<quint64>(actor.cores * 2e9);
            for (int i = 0; i < actor.count; ++i, pid += 37) {
                fakes.processes->add(
                    pid, {.task = TaskInfo{.residentBytes = actor.memory - i * actor.memory / 40,
                                           .threads = 1 + static_cast<int>(actor.memory / (40 * MiB))},
                          .path = actor.path,
                          .name = actor.name,
                          .info = KernelProcessInfo{.uid = fakes.identity->uid}});
            }
        }
        fakes.host->memory = {.totalBytes = 16 * GiB};
        fakes.host->root = VolumeSize{.totalBytes = 488 * GiB, .freeBytes = 84 * GiB};
    }

    /// Fires `ticks` ticks, with a load about `load` percent and `usedGB` of memory in use at the end.
    void play(int ticks, double load, double usedGB) {
        for (int i = 0; i < ticks; ++i) {
            const double wave = load + 14 * std::sin(i / 7.0) + 6 * std::sin(i / 2.3);
            CpuTicks& counters = *fakes.host->ticks;
            counters.user += static_cast<quint64>(std::lround(std::clamp(wave, 2.0, 99.0) * 10));
            counters.idle += static_cast<quint64>(std::lround((100 - std::clamp(wave, 2.0, 99.0)) * 10));
            const double used = usedGB - 1.5 * (ticks - i) / ticks + 0.15 * std::sin(i / 11.0);
            fakes.host->memory.activeBytes = static_cast<quint64>(used * double(GiB));
            fakes.clock->advance(2);
            for (FakeProcess& process : fakes.processes->processes)
                process.task->cpuTimeNs += m_cpuTimePerTick[process.name];
            QMetaObject::invokeMethod(&model, "tick");
        }
        QCoreApplication::processEvents();
    }

private:
    QHash<QByteArray, quint64> m_cpuTimePerTick;
};

class Camera {
public:
    explicit Camera(QString folder)
        : m_folder(std::move(folder)) {}

    void take(QWidget& widget, const QString& name) {
        widget.show();
        for (const bool dark : {false, true}) {
            Theme::apply(dark);
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
            save(widget.grab(), name, dark);
        }
    }

    void save(const QPixmap& picture, const QString& name, bool dark) {
        const QString file = u"%1/%2-%3.png"_s.arg(m_folder, name, dark ? u"dark" : u"light");
        if (!picture.save(file))
            qFatal("cannot write %s", qPrintable(file));
    }

private:
    QString m_folder;
};

QByteArray containerAnswer(const QString& command) {
    if (command.contains(u"system df"))
        return "Images\t12.4GB\t8.1GB (65%)\nContainers\t310MB\t290MB (93%)\n"
               "Local Volumes\t4.2GB\t1.9GB (45%)\nBuild Cache\t6.8GB\t6.8GB\n";
    return "volume\tshop_postgres-data\nvolume\tblog_uploads\n"
           "volume\t8c1f0d3c5b7e4a60b1d2c3e4f5a6978890abcdef1234567890abcdef12345678\n";
}

QByteArray listingAnswer(const QStringList& arguments) {
    constexpr quint64 MB = MiB;
    if (arguments.contains(u"--screenshots"))
        return listingOf({{"Screenshot from 2026-08-02 10-14-55.png", 3 * MB},
                          {"Screencast from 2026-07-30 17-02-11.webm", 214 * MB}});
    if (arguments.contains(u"--older-than"))
        return listingOf({{"ubuntu-24.04-desktop-amd64.iso", 6114 * MB},
                          {"Family holiday 2025 (all the clips, uncut, for grandmother).mov", 2300 * MB},
                          {"taxes/2024/receipts.zip", 48 * MB},
                          {"a\x1b[31m red\tname.pdf", 2 * MB},
                          {"\xd8\xb5\xd9\x88\xd8\xb1\xd8\xa9.jpg", MB}});
    if (arguments.last().contains(u"Trash"))
        return listingOf({{"thesis-old-version.odt", 9 * MB}, {"backup-of-the-laptop", 18400 * MB}});
    return listingOf({{"_cacache", 1890 * MB}, {"_npx", 210 * MB}, {"_logs", 3 * MB}, {"tmp", 4096}});
}

/// Lets `du` find something in most caches.
void scriptCaches(Stage& stage) {
    stage.fakes.places->objections[stage.home.path(u".pnpm-store"_s)] =
        u"~/.local/share/pnpm is left alone: it is on another file system, which something else writes to."_s;
    stage.fakes.tools->answer = [home = stage.home.path()](const ToolRequest& request) {
        if (request.launchPath == u"/bin/sh")
            return ScriptedTools::exited(0, containerAnswer(request.arguments.last()));
        if (request.launchPath == u"cleanup" && request.arguments.first() == u"remove")
            return ToolResult{.launched = true,
                              .exitStatus = 1,
                              .errorLine = u"3 entries are left, _npx for one: Permission denied"_s};
        if (request.launchPath != u"/usr/bin/du")
            return ScriptedTools::exited(0, listingAnswer(request.arguments));
        const QString below = request.arguments.last().mid(home.size()); // the same in every run
        const auto kib = (qHash(below, 7) % 9000) * (qHash(below, 3) % 400);
        return ScriptedTools::exited(0, QByteArray::number(static_cast<qulonglong>(kib)) + " x");
    };
}

void addServers(Stage& stage) {
    const std::tuple<const char*, int, qint32> servers[] = {
        {"@modelcontextprotocol/server-filesystem", 88, 812},
        {"/home/ana/.local/share/uv/tools/mcp-server-git/bin/mcp-server-git", 142, 1},
        {"@upstash/context7-mcp", 96, 1}};
    qint32 pid = 40100;
    for (const auto& [package, megabytes, parent] : servers) {
        stage.fakes.processes->add(
            pid++, {.task = TaskInfo{.residentBytes = static_cast<quint64>(megabytes) * MiB},
                    .name = "node",
                    .arguments = QByteArray("node") + '\0' + package + '\0',
                    .info = KernelProcessInfo{.uid = stage.fakes.identity->uid, .parentPid = parent}});
    }
}

void shootTarget(Camera& camera, MainWindow& window, const QString& target, const QString& suffix) {
    for (CacheCard* card : window.findChildren<CacheCard*>()) {
        if (card->accessibleName().startsWith(target))
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
    press(view, u"Clean All"_s);
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
    QTest::qWaitFor(
        [&stage] { return !stage.model.cleanup().isCleaning() && !stage.model.cleanup().isScanning(); });
    stage.play(1, 24, 8.1);
    camera.take(window, u"cleanup-cancelled"_s);
}

void shootSections(Camera& camera, MainWindow& window, Stage& stage) {
    auto* root = window.findChild<RootView*>();
    root->select(RootView::Tab::optimize);
    camera.take(window, u"optimize-quiet"_s);
    root->select(RootView::Tab::cleanup);
    camera.take(window, u"cleanup-unscanned"_s);

    for (const CacheTarget& target : CacheTarget::defaults()) {
        for (const QString& path : target.paths)
            stage.fakes.places->elsewhere[path] = {stage.home.makeFolder(path.mid(path.indexOf(u'/') + 1))};
    }
    scriptCaches(stage);
    addServers(stage);
    QCoro::waitFor(stage.model.cleanup().rescan());
    stage.play(90, 24, 8.1);
    camera.take(window, u"cleanup"_s);
    for (const auto& [target, name] : {std::pair(u"npm /"_s, u""_s), std::pair(u"Docker"_s, u"-docker"_s),
                                       std::pair(u"Old Downloads"_s, u"-files"_s)})
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

void shootOverview(Camera& camera) {
    Stage calm;
    calm.play(150, 24, 8.1);
    MainWindow window(calm.model, calm.prefs, calm.messages);
    camera.take(window, u"overview"_s);
    window.findChildren<GroupHeader*>().at(static_cast<qsizetype>(ProcGroup::agents))->click();
    camera.take(window, u"overview-open-group"_s);

    shootSections(camera, window, calm);

    Stage pressed;
    pressed.fakes.host->memory.swapUsedBytes = 5 * GiB;
    pressed.fakes.host->thermal = 2;
    pressed.play(150, 92, 14.6);
    MainWindow busy(pressed.model, pressed.prefs, pressed.messages);
    camera.take(busy, u"overview-alerts"_s);
    busy.resize(1600, 1000);
    camera.take(busy, u"overview-alerts-large"_s);
}

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
    camera.take(widget, u"widget"_s);
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QCoreApplication::sendEvent(&widget, &enter);
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
    press(tab, u"Clear log"_s);
    camera.take(*tab.findChild<ConfirmDialog*>(), u"history-clear"_s);
    delete tab.findChild<ConfirmDialog*>();
    press(tab, u"Export CSV…"_s);
    camera.take(*tab.findChild<QFileDialog*>(), u"history-export"_s);
    delete tab.findChild<QFileDialog*>();
    table->sortByColumn(4, Qt::AscendingOrder);
    camera.take(tab, u"history-sorted"_s);
    tab.hide();
    home.makeFile(log, {});
    camera.take(tab, u"history-empty"_s);
}

/// Takes the announcements of all severities below each other, and one above a section.
void shootBanners(Camera& camera) {
    using Severity = Message::Severity;
    const auto says = [](Severity severity, const QString& title, const QString& body,
                         const std::optional<QString>& action = {}) {
        return Message{.id = title,
                       .severity = severity,
                       .title = title,
                       .body = body,
                       .actionLabel = action,
                       .actionURL = u"https://tavrin.example/news"_s};
    };
    const Message messages[] = {
        says(Severity::info, u"Thank you for trying Tavrin"_s,
             u"A short tour shows what the four sections are for."_s, u"Take the Tour"_s),
        says(Severity::warn, u"Cleaning the container cache may take long"_s,
             u"With the latest container runtime the prune command waits for running builds. Until "
             "that is repaired there, stop your builds before you clean, or leave that target out: "
             "the other targets are not affected by it. If a clean seems to hang, it goes on as "
             "soon as the last build ends; nothing is lost, and the freed space is counted when it "
             "is done. We shall take this notice back once a repaired runtime has been out for a "
             "while, and you need not do anything about it then."_s,
             u"Details"_s),
        says(Severity::update, u"Tavrin 1.2 is out"_s, u"It finds the caches of two more package managers."_s,
             u"Get It"_s),
        says(Severity::upgrade, u"Watch more than one machine"_s,
             u"The team edition shows all your workstations and build servers in one window."_s,
             u"See the Team Edition"_s),
        says(Severity::info, u"The site is being moved this weekend"_s,
             u"Downloads may fail for an hour."_s)};
    QList<std::shared_ptr<Stage>> stages;
    QWidget sheet;
    sheet.resize(800, 0);
    auto* column = new QVBoxLayout(&sheet);
    column->setContentsMargins(0, 0, 0, 0);
    for (const Message& message : messages) {
        stages.append(std::make_shared<Stage>());
        stages.last()->feed->answer = feedOf({message});
        QCoro::waitFor(stages.last()->messages.refresh());
        column->addWidget(new MessageBanner(stages.last()->messages));
    }
    camera.take(sheet, u"banners"_s);

    Stage& stage = *stages[2];
    stage.play(150, 24, 8.1);
    MainWindow window(stage.model, stage.prefs, stage.messages);
    camera.take(window, u"overview-banner"_s);
}

void shootSettings(Camera& camera) {
    TemporarySettings settings;
    FakeLoginItem loginItem;
    SettingsScene window(settings.preferences, loginItem);
    const auto shoot = [&](SettingsScene::Tab tab, const QString& name) {
        window.select(tab);
        camera.take(window, u"settings-"_s + name);
    };
    shoot(SettingsScene::Tab::general, u"general"_s);
    loginItem.outcome =
        Outcome::failure(u"/home/ana/.config/autostart/tavrin.desktop: No space left on device"_s);
    window.findChild<GeneralTab*>()->findChild<QCheckBox*>()->click();
    shoot(SettingsScene::Tab::general, u"general-error"_s);
    settings.preferences.pollIntervalSeconds.set(3);
    shoot(SettingsScene::Tab::sampling, u"sampling"_s);
    settings.preferences.alertCPUHotEnabled.set(false);
    settings.preferences.alertRAMLowFreeGB.set(16);
    shoot(SettingsScene::Tab::alerts, u"alerts"_s);
    QScrollBar* scroll = window.findChild<AlertsTab*>()->verticalScrollBar();
    scroll->setValue(scroll->maximum());
    shoot(SettingsScene::Tab::alerts, u"alerts-end"_s);
    auto* table = window.findChild<PresetTable*>();
    shoot(SettingsScene::Tab::quickKills, u"quick-kills"_s);
    table->setCurrentIndex(table->model()->index(3, 0));
    QTest::keyClick(table, Qt::Key_Return);
    camera.take(*window.findChild<QuickKillEditorSheet*>(), u"settings-editor"_s);
    settings.preferences.storeQuickKillPresets({});
    shoot(SettingsScene::Tab::quickKills, u"quick-kills-empty"_s);
}

QPixmap blank(QSize size, double ratio) {
    QPixmap sheet(size * ratio);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(Theme::color(Theme::Role::windowFill));
    return sheet;
}

/// Returns every symbol at 16, 24 and 48 points with its name.
QPixmap contactSheet(double ratio) {
    constexpr int columns = 5;
    constexpr QSize cell(250, 92);
    const QStringList names = Symbols::names();
    const int rows = (static_cast<int>(names.size()) + columns - 1) / columns;
    QPixmap sheet = blank(QSize(columns * cell.width(), rows * cell.height()), ratio);
    QPainter painter(&sheet);
    Painting::setTextStyle(painter, Theme::TextStyle::caption, Theme::Role::secondaryText);
    const QColor ink = Theme::color(Theme::Role::primaryText);
    for (int i = 0; i < names.size(); ++i) {
        const QPoint corner(i % columns * cell.width() + 12, i / columns * cell.height() + 8);
        int x = corner.x();
        for (const int size : {16, 24, 48}) {
            Symbols::draw(painter, names[i], ink, QRectF(x, corner.y(), size, 48), size);
            x += size + 16;
        }
        painter.drawText(QPoint(corner.x(), corner.y() + 70), names[i]);
    }
    return sheet;
}

/// Returns the tray icons on a light or a dark tray, at their real sizes and enlarged.
QPixmap traySheet(double ratio) {
    const QList<QStringList> contents{{}, {u"7"_s}, {u"100"_s}, {u"23"_s, u"61"_s}, {u"100"_s, u"99"_s}};
    QPixmap sheet = blank(QSize(760, 300), ratio);
    QPainter painter(&sheet);
    int x = 16;
    for (const QStringList& figures : contents) {
        const QIcon icon = FigureIcon::make(figures);
        painter.drawPixmap(x, 16, icon.pixmap(22));
        painter.drawPixmap(x + 30, 16, icon.pixmap(44));
        painter.drawPixmap(x, 80, icon.pixmap(22).scaled(132, 132));
        x += 148;
    }
    return sheet;
}

void shootSheets(Camera& camera) {
    for (const bool dark : {false, true}) {
        Theme::apply(dark);
        camera.save(contactSheet(qApp->devicePixelRatio()), u"symbols"_s, dark);
        camera.save(traySheet(qApp->devicePixelRatio()), u"tray"_s, dark);
    }
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Translations::install();
    QApplication::setStyle(new Style);
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "usage: tavrin_screenshots OUTDIR\n");
        return 2;
    }
    // The off-screen platform has no desktop font of its own.
    if (QFontDatabase::families().contains(u"Inter"_s))
        QApplication::setFont(QFont(u"Inter"_s, 10));
    Camera camera(QString::fromLocal8Bit(argv[1]));
    shootOverview(camera);
    shootFreeRAM(camera);
    shootPanels(camera);
    shootHistory(camera);
    shootBanners(camera);
    shootSettings(camera);
    shootSheets(camera);
    return 0;
}
