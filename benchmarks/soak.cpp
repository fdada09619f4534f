// Checks that nothing grows in ticks of a scripted machine on which processes start and end, with every view
// open in turn. Prints figures as NAME_TICK VALUE after each quarter of the run. Status 1 when one has grown.
//   tavrin_soak [TICKS]     a multiple of 4,000; 20,000 unless given

#include "AppModel.h"
#include "BusyMachine.h"
#include "Core/Announcements/MessageCenter.h"
#include "LongRun.h"
#include "UI/Cleanup/CacheCard.h"
#include "UI/Cleanup/CacheDetailDrawer.h"
#include "UI/FakeDesktop.h"
#include "UI/MainWindow.h"
#include "UI/MenuBar.h"
#include "UI/Overview/FreeRAMSheet.h"
#include "UI/Overview/GroupRow.h"
#include "UI/Overview/OverviewView.h"
#include "UI/Processes/ProcessControls.h"
#include "UI/Processes/ProcessesView.h"
#include "UI/RootView.h"
#include "UI/Settings/SettingsScene.h"
#include "UI/Style/Style.h"
#include "UI/Style/Theme.h"
#include "UI/Widget.h"
#include "support/FakeLoginItem.h"
#include "support/ScriptedFeed.h"
#include "support/TemporaryHome.h"
#include "support/TemporarySettings.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTreeView>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int visitTicks = 1000; ///< of one visit to all views

template <typename T> T& only(const QWidget& parent) {
    auto* found = parent.findChild<T*>();
    if (!found)
        qFatal("no such view: %s", T::staticMetaObject.className());
    return *found;
}

class Visit {
public:
    explicit Visit(int ticks)
        : m_run(ticks, [this] { return tables(); }) {
        scriptCaches();
        m_model.actions().setFreeRAMDelays({.beforeSecondPass = {}, .beforeMeasuring = {}});
        m_window.show();
        m_widget.show(m_model);
        m_desktop.popover->show({});
    }

    /// Runs one tick and the user's actions at it. Returns false after the last.
    bool step() {
        const int tick = m_run.ticks() % visitTicks;
        useSections(tick);
        usePages(tick);
        useFreeRAM(tick);
        useCleanup(tick);
        useSettings(tick);
        useWindows(tick);
        hearAndLog(tick);
        m_machine.pass();
        QMetaObject::invokeMethod(&m_model, "tick");
        m_run.ticked();
        return !m_run.isOver();
    }

    bool stoodStill() const { return m_run.stoodStill(); }

private:
    void scriptCaches() {
        for (const CacheTarget& target : CacheTarget::defaults()) {
            for (const QString& path : target.paths)
                m_machine.fakes.places->elsewhere[path] = {
                    m_home.makeFolder(QStringLiteral("caches/%1").arg(qHash(path, 7)))};
        }
        m_machine.fakes.tools->answer = [](const ToolRequest& request) {
            return ScriptedTools::exited(0, request.launchPath == u"/usr/bin/du" ? "734003 x" : "");
        };
    }

    void useSections(int tick) {
        auto& root = only<RootView>(m_window);
        if (tick == 0 || tick == 700)
            root.select(RootView::Tab::overview);
        else if (tick == 200)
            root.select(RootView::Tab::optimize);
        else if (tick == 300 || tick == 800)
            root.select(RootView::Tab::processes);
        else if (tick == 600)
            root.select(RootView::Tab::cleanup);
        else if (tick == 850)
            root.select(RootView::Tab::sessions);
        if (tick == 20 || tick == 80)
            m_window.findChildren<GroupHeader*>().at(static_cast<qsizetype>(ProcGroup::other))->click();
        if (tick == 400 || tick == 500)
            only<QCheckBox>(only<ProcessesView>(m_window)).click(); // one row per name, and back
        if (tick == 510 || tick == 590)
            only<ProcessControls>(m_window).findChildren<QCheckBox*>().last()->click(); // the tree
        if (tick == 520 || tick == 580)
            Q_EMIT only<ProcessControls>(m_window).detailsToggled();
    }

    /// Opens the page of each tile for ten ticks.
    void usePages(int tick) {
        constexpr int opened = 30;
        constexpr int each = 10;
        const int page = (tick - opened) / each;
        if (tick < opened || tick % each != 0 || page > 4)
            return;
        for (auto* shown : m_window.findChildren<DetailPage*>()) {
            if (shown->isVisible())
                Q_EMIT shown->left();
        }
        if (page < 4)
            only<OverviewView>(m_window).openPage(static_cast<DetailPage::Kind>(page));
    }

    void useFreeRAM(int tick) {
        if (tick == 100)
            (new FreeRAMSheet(m_model, &m_window))->open();
        else if (tick == 110)
            defaultButton(only<FreeRAMSheet>(m_window)).click();
        else if (tick == 140)
            only<FreeRAMSheet>(m_window).reject();
    }

    void useCleanup(int tick) {
        if (tick == 610)
            m_model.cleanup().rescan();
        else if (tick == 640)
            only<CacheCard>(m_window).click();
        else if (tick == 680)
            only<CacheDetailDrawer>(m_window).reject();
    }

    void useSettings(int tick) {
        constexpr int opened = 700;
        constexpr int each = 40;
        if (tick == opened) {
            m_settings = new SettingsScene(m_preferences, m_loginItem, *m_desktop.notifications);
            m_settings->setAttribute(Qt::WA_DeleteOnClose);
            m_settings->show();
        } else if (tick == opened + each * static_cast<int>(allCases<SettingsScene::Tab>().size())) {
            m_settings->close();
        } else if (m_settings && (tick - opened) % each == 0) {
            m_settings->select(static_cast<SettingsScene::Tab>((tick - opened) / each));
        }
    }

    void useWindows(int tick) {
        if (tick == 0 || tick == 500)
            Theme::apply({.dark = tick == 500});
        if (tick == 920 || tick == 940) {
            m_widget.toggle(m_model);
            Q_EMIT m_desktop.statusItem->clicked();
        }
        if (tick == 960)
            m_window.close(); // only orders it out
        else if (tick == 980)
            m_window.show();
    }

    /// Shows or removes an announcement, and logs an action.
    void hearAndLog(int tick) {
        if (tick % 100 == 50) {
            const bool shows = tick % 200 == 50;
            const Message message{.id = QStringLiteral("1"), .title = QStringLiteral("A title")};
            m_feed->answer = feedOf(shows ? QList<Message>{message} : QList<Message>());
            m_messages.refresh();
        }
        if (tick % 5 == 0)
            m_model.actionLog().record(ActionLogEntry::Kind::quit, QStringLiteral("A process"), 0, true);
        m_feed->requests.clear();
        m_machine.fakes.tools->requests.clear();
        m_machine.fakes.relief->requests.clear();
        m_machine.fakes.processes->inheritances.clear();
    }

    static QPushButton& defaultButton(const QWidget& sheet) {
        for (auto* button : sheet.findChildren<QPushButton*>()) {
            if (button->isDefault())
                return *button;
        }
        qFatal("the sheet has no default button");
    }

    std::vector<LongRun::Figure> tables() const {
        const QWidgetList widgets = QApplication::allWidgets();
        qsizetype objects = qApp->findChildren<QObject*>().size();
        for (const QWidget* window : QApplication::topLevelWidgets())
            objects += 1 + window->findChildren<QObject*>().size();
        const auto& rows = *only<QTreeView>(only<ProcessesView>(m_window)).model();
        return {
            {.name = "widgets", .value = double(widgets.size()), .margin = 30}, // a row for each server
            {.name = "objects", .value = double(objects), .margin = 40},
            {.name = "history", .value = double(m_model.systemHistory().size())},
            {.name = "processes", .value = double(m_model.processes().size())},
            {.name = "actions", .value = double(m_model.actionLog().entries().size())},
            {.name = "servers", .value = double(m_model.mcpReport().live.size()), .margin = 10},
            {.name = "alerts", .value = double(m_model.alerts().size()), .margin = 10},
            {.name = "table_rows", .value = double(rows.rowCount()), .margin = 50},
        };
    }

    TemporaryHome m_home;
    TemporarySettings m_file;
    Preferences& m_preferences = m_file.preferences;
    BusyMachine m_machine;
    AppModel m_model{m_machine.fakes.platform(), m_preferences};
    ScriptedFeed* m_feed = new ScriptedFeed;
    MessageCenter m_messages{std::unique_ptr<FeedSource>(m_feed), m_preferences.file()};
    FakeDesktop m_desktop;
    FakeLoginItem m_loginItem;
    WidgetWindow m_widget{m_desktop.desktop()};
    MenuBarController m_menuBar{m_model, m_preferences, m_desktop.desktop(), m_widget};
    MainWindow m_window{m_model, m_preferences, m_messages};
    QPointer<SettingsScene> m_settings;
    LongRun m_run;
};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(new Style);
    QApplication::setQuitOnLastWindowClosed(false);
    Theme::apply({});
    const int ticks = argc > 1 ? std::atoi(argv[1]) : 20'000;
    if (ticks < 4 * visitTicks || ticks % (4 * visitTicks) != 0) {
        std::fprintf(stderr, "usage: tavrin_soak [TICKS]     a multiple of %d\n", 4 * visitTicks);
        return 2;
    }
    Visit visit(ticks);
    QTimer timer; // one tick per turn of the main loop
    QObject::connect(&timer, &QTimer::timeout, &app, [&visit] {
        if (!visit.step())
            QApplication::quit();
    });
    timer.start(0);
    QApplication::exec();
    return visit.stoodStill() ? 0 : 1;
}
