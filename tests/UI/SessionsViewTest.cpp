#include "UI/Sessions/SessionsView.h"

#include "UI/Controls.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/ModelFixture.h"
#include "UI/SampleSessions.h"
#include "UI/Sessions/SessionDialogs.h"
#include "UI/Sessions/SessionHeader.h"
#include "UI/Sessions/SessionTree.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace SampleSessions;

namespace {

struct SessionsViewTest : ModelFixture {
    QWidget window;
    QPointer<SessionsView> view = new SessionsView(model, prefs, &window);

    void SetUp() override {
        fakes.clock->wall = start;
        tick(); // the view's clock
        view->setGeometry(0, 0, 800, 600);
        window.resize(800, 600);
        window.show();
        window.activateWindow();
        settle();
    }

    void type(const QString& text) {
        auto* field = view->findChild<QLineEdit*>();
        field->clear();
        QTest::keyClicks(field, text);
    }
    /// Returns the projects in the order of the rows.
    QStringList projects() {
        QStringList shown;
        for (const auto* row : view->findChildren<SessionRow*>()) {
            if (row->isVisibleTo(view))
                shown.append(row->session().project());
        }
        return shown;
    }
    SessionHeader* header(int row) { return view->findChildren<SessionHeader*>().at(row); }
    SessionRow* row(int index) { return view->findChildren<SessionRow*>().at(index); }
    QStringList treeNames() { return shownNames<SessionProcessRow>(*view); }
    ConfirmDialog* dialog() { return window.findChild<ConfirmDialog*>(); }
    QString question() { return dialog() ? dialog()->windowTitle() : QString(); }
};

Session ofSize(qint32 pid, const QString& folder, quint64 megabytes) {
    Session session = idle(pid, folder);
    session.memory.bytes = megabytes * MiB;
    return session;
}

} // namespace

TEST_F(SessionsViewTest, ARowSaysAllThatItShows) {
    Session unknown = idle(300, {});
    unknown.lastActive.reset();
    unknown.state = SessionState::waiting;
    unknown.waitingFor = u"a yes\nor no"_s;
    view->show({.sessions = {large(100, u"/srv/shop"_s), idle(200, u"/srv/infra"_s), unknown}});
    EXPECT_TRUE(showsText(*view, u"3 sessions, 2.8 GB, 1 idle"_s));
    EXPECT_EQ(shownNames<SessionHeader>(*view),
              (QStringList{
                  u"/srv/shop, Checkout redesign, Working, last active just now, 8 processes, claude 2.1.4, "
                  "90 MB in swap, 143% CPU, 1.9 GB (resident 2.4 GB, in swap 90 MB)"_s,
                  u"/srv/infra, Idle, last active 12 minutes ago, 2 processes, codex, 0% CPU, "
                  "478 MB (resident 597.5 MB, in swap 0 bytes)"_s,
                  u"codex, a yes\u240aor no, Waiting for you, last active —, 2 processes, 0% CPU, "
                  "478 MB (resident 597.5 MB, in swap 0 bytes)"_s}));
    EXPECT_EQ(header(0)->accessibleDescription(), u"Collapsed, resident 2.4 GB, in swap 90 MB"_s);
    EXPECT_EQ(header(1)->accessibleDescription(), u"Collapsed, resident 597.5 MB"_s);
    EXPECT_FALSE(control<QAbstractButton>(*row(2), u"Open folder"_s)->isEnabled());
    view->show({.sessions = {large(100, u"/srv/shop"_s)}});
    EXPECT_TRUE(showsText(*view, u"1 session, 1.9 GB"_s));
}

TEST_F(SessionsViewTest, OnlyOpenRowsHaveATreeAndStayOpen) {
    view->show({.sessions = {large(100, u"/srv/shop"_s), idle(200, u"/srv/infra"_s)}});
    EXPECT_EQ(view->findChildren<SessionProcessRow*>().size(), 0);
    QTest::mouseClick(header(1), Qt::LeftButton);
    EXPECT_EQ(
        treeNames(),
        (QStringList{
            u"codex, agent, 420 MB (resident 525 MB, in swap 0 bytes), running for 1.1h"_s,
            u"mcp-server-git, MCP server, 58 MB (resident 72.5 MB, in swap 0 bytes), running for 1.1h"_s}));
    // It grows and takes the first row.
    view->show({.sessions = {ofSize(200, u"/srv/infra"_s, 9000), large(100, u"/srv/shop"_s)}});
    EXPECT_EQ(treeNames().size(), 2);
    EXPECT_TRUE(header(0)->isExpanded());
    EXPECT_FALSE(header(1)->isExpanded());
    QTest::keyClick(header(1), Qt::Key_Right);
    EXPECT_EQ(treeNames().size(), 10);
    EXPECT_TRUE(treeNames().contains(u"vite, dev server, listens on :5173 :24678, "
                                     "310 MB (resident 387.5 MB, in swap 0 bytes), running for 1.0h"_s));
    QTest::keyClick(header(1), Qt::Key_Right);
    EXPECT_EQ(treeNames().size(), 10);
    QTest::keyClick(header(0), Qt::Key_Left);
    QTest::keyClick(header(1), Qt::Key_Return);
    EXPECT_EQ(treeNames().size(), 0);
    QTest::keyClick(header(1), Qt::Key_Space);
    EXPECT_EQ(treeNames().size(), 8);
    // Another process with the same PID is another session.
    Session other = large(100, u"/srv/shop"_s);
    other.host.startTime += std::chrono::seconds(1);
    view->show({.sessions = {other}});
    EXPECT_EQ(treeNames().size(), 0);
}

TEST_F(SessionsViewTest, RowsKeepTheirPlacesUntilTheyClearlyChange) {
    const auto show = [this](int a, int b, int c) {
        QList<Session> sessions{ofSize(100, u"/a"_s, a), ofSize(200, u"/b"_s, b), ofSize(300, u"/c"_s, c)};
        std::ranges::sort(sessions, std::greater(), [](const Session& each) { return each.memory.bytes; });
        view->show({.sessions = sessions});
        return projects().join(QString());
    };
    EXPECT_EQ(show(1000, 990, 500), u"/a/b/c"_s);
    EXPECT_EQ(show(1000, 1030, 500), u"/a/b/c"_s);
    EXPECT_EQ(show(1000, 1060, 500), u"/b/a/c"_s);
    EXPECT_EQ(show(1000, 990, 1200), u"/c/a/b"_s);
}

TEST_F(SessionsViewTest, TheOrderIsRemembered) {
    Session busy = idle(200, u"/b"_s);
    busy.cpuPercent = 50;
    busy.lastActive.reset();
    Session recent = idle(300, u"/a"_s, 100 * MiB);
    recent.lastActive = start;
    const SessionReport report{.sessions = {large(100, u"/c"_s), busy, recent}};
    const std::pair<QString, QStringList> cases[] = {{u"CPU"_s, {u"/c"_s, u"/b"_s, u"/a"_s}},
                                                     {u"Last active"_s, {u"/a"_s, u"/c"_s, u"/b"_s}},
                                                     {u"Memory"_s, {u"/c"_s, u"/b"_s, u"/a"_s}},
                                                     {u"Project"_s, {u"/a"_s, u"/b"_s, u"/c"_s}}};
    view->show(report);
    for (const auto& [choice, order] : cases) {
        choose(*view, u"Sort"_s, choice);
        EXPECT_EQ(projects(), order) << qPrintable(choice);
    }
    delete view;
    view = new SessionsView(model, prefs, &window);
    view->QWidget::show();
    view->show(report);
    EXPECT_EQ(projects(), (QStringList{u"/a"_s, u"/b"_s, u"/c"_s}));
}

TEST_F(SessionsViewTest, EveryWordOfTheSearchMatches) {
    const Session shop = large(100, u"/srv/shop"_s);
    const SessionReport report{.sessions = {shop, idle(200, u"/srv/infra"_s)},
                               .leftOvers = {leftOver(300)},
                               .duplicates = {duplicates(400, shop)}};
    view->show(report);
    // The search, the sessions that match, and how many left-overs and duplicates do.
    const std::tuple<QString, QStringList, int> cases[] = {{u"CLAUDE"_s, {u"/srv/shop"_s}, 2},
                                                           {u"redesign"_s, {u"/srv/shop"_s}, 0},
                                                           {u":5173"_s, {u"/srv/shop"_s}, 0},
                                                           {u"mcp-server-git"_s, {u"/srv/infra"_s}, 0},
                                                           {u"  shop   vite "_s, {u"/srv/shop"_s}, 0},
                                                           {u"infra vite"_s, {}, 0},
                                                           {u"playwright"_s, {}, 1},
                                                           {u"idle"_s, {u"/srv/infra"_s}, 0},
                                                           {u"no such"_s, {}, 0}};
    for (const auto& [search, sessions, others] : cases) {
        type(search);
        EXPECT_EQ(projects(), sessions) << qPrintable(search);
        EXPECT_EQ(shownNames<RemainsHeader>(*view).size(), others) << qPrintable(search);
    }
    EXPECT_TRUE(showsText(*view, u"No sessions match"_s));
    press(*view, u"Clear search"_s);
    EXPECT_EQ(projects().size(), 2);
    QTest::keyClick(view, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(view->findChild<QLineEdit*>()->hasFocus());
}

TEST_F(SessionsViewTest, WithoutSessionsItSaysWhatWouldBeHere) {
    EXPECT_TRUE(showsText(*view, u"No sessions"_s));
    EXPECT_FALSE(view->findChild<QLineEdit*>()->isVisibleTo(view));
    view->show({.leftOvers = {leftOver(300)}});
    EXPECT_EQ(shownNames<RemainsHeader>(*view).size(), 1);
    EXPECT_TRUE(view->findChild<QLineEdit*>()->isVisibleTo(view));
}

TEST_F(SessionsViewTest, LeftOversAndDuplicatesAreRowsOfTheirOwn) {
    LeftOver old = leftOver(300);
    old.ended.reset();
    old.folder.clear();
    old.processes.resize(1);
    view->show(
        {.leftOvers = {leftOver(200), old}, .duplicates = {duplicates(400, large(100, u"/srv/shop"_s))}});
    const QString time =
        QLocale().toString(QDateTime::fromSecsSinceEpoch(1'700'000'000 - 1800).time(), QLocale::ShortFormat);
    EXPECT_EQ(
        shownNames<RemainsHeader>(*view),
        (QStringList{
            u"Left by claude in /srv/app, ended %1: 2 servers, 1 browser, 412 MB (resident 515 MB, in swap "
            "0 bytes)"_s.arg(time),
            u"Left by claude, 1 server, 412 MB (resident 515 MB, in swap 0 bytes)"_s,
            u"context7 runs 4 times under claude in /srv/shop, 3 older ones, 210 MB (resident 262.5 MB, "
            "in swap 0 bytes)"_s}));
    const auto headers = view->findChildren<RemainsHeader*>();
    QTest::keyClick(headers.at(0), Qt::Key_Return);
    EXPECT_EQ(treeNames().size(), 4);
    QTest::keyClick(headers.at(0), Qt::Key_Down);
    QTest::keyClick(headers.at(1), Qt::Key_Down);
    EXPECT_TRUE(headers.at(2)->hasFocus());
    QTest::keyClick(headers.at(2), Qt::Key_Delete);
    EXPECT_EQ(question(), u"End duplicates?"_s);
    QTest::keyClick(dialog(), Qt::Key_Escape);
    settle();
    press(*view, u"End left-overs"_s);
    EXPECT_EQ(question(), u"End left-overs?"_s);
}

TEST_F(SessionsViewTest, TheFocusAndTheScrollPositionStayWithTheirSession) {
    QList<Session> sessions;
    for (int i = 0; i < 30; ++i)
        sessions.append(ofSize(100 + 10 * i, u"/p%1"_s.arg(i), static_cast<quint64>(3000 - 90 * i)));
    view->show({.sessions = sessions});
    settle();
    auto* scroll = view->findChild<QScrollArea*>()->verticalScrollBar();
    header(0)->setFocus();
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(window.focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(header(20)->hasFocus());
    const int place = scroll->value();
    EXPECT_GT(place, 0);
    sessions.move(20, 5);
    sessions[5].memory.bytes = 2600 * MiB;
    view->show({.sessions = sessions});
    settle();
    EXPECT_TRUE(header(5)->hasFocus());
    EXPECT_EQ(scroll->value(), place);
    QTest::keyClick(window.focusWidget(), Qt::Key_Up);
    EXPECT_TRUE(header(4)->hasFocus());
    EXPECT_LT(scroll->value(), place);
}

TEST_F(SessionsViewTest, TabGoesThroughTheRowsFromTopToBottom) {
    SessionReport report{.sessions = {large(100, u"/srv/shop"_s)}, .leftOvers = {leftOver(300)}};
    view->show(report);
    report.sessions.append(idle(200, u"/srv/infra"_s)); // its row is made last
    view->show(report);
    QStringList stops;
    header(0)->setFocus();
    while (stops.size() < 12 && !qobject_cast<RemainsHeader*>(window.focusWidget())) {
        stops.append(window.focusWidget()->accessibleName().section(u',', 0, 0).section(u": "_s, 0, 0));
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    const QStringList buttons{u"Pause"_s, u"Open folder"_s, u"Copy details"_s, u"End session"_s};
    EXPECT_EQ(stops, QStringList{u"/srv/shop"_s} + buttons + QStringList{u"/srv/infra"_s} + buttons);
    EXPECT_TRUE(buttonNamed(*row(1), u"Pause: codex in /srv/infra"_s)) << "each says which session it means";
}

TEST_F(SessionsViewTest, AnEndIsAskedAboutAndMeansTheSessionThatWasPressed) {
    view->show({.sessions = {large(100, u"/srv/shop"_s), idle(200, u"/srv/infra"_s)}});
    QTest::keyClick(header(1), Qt::Key_Delete);
    EXPECT_EQ(question(), u"End codex in /srv/infra?"_s);
    QTest::keyClick(dialog(), Qt::Key_Return); // Cancel is the default
    settle();
    EXPECT_FALSE(dialog());

    auto* end = control<QAbstractButton>(*row(0), u"End session"_s);
    QTest::mousePress(end, Qt::LeftButton);
    view->show({.sessions = {ofSize(200, u"/srv/infra"_s, 9000), large(100, u"/srv/shop"_s)}});
    QTest::mouseRelease(end, Qt::LeftButton);
    EXPECT_EQ(question(), u"End claude in /srv/shop?"_s);
}

TEST_F(SessionsViewTest, WhileAnEndRunsItsRowIsBusyAndThenTheResultIsShown) {
    using namespace std::chrono_literals;
    model.actions().setSessionDelays(
        {.forHost = 20ms, .forOthers = 20ms, .betweenLooks = 5ms, .beforeMeasuring = 5ms});
    addProcesses(1, "claude", 100 * MiB);
    addProcesses(1, "node", 100 * MiB);
    fakes.signalSender->start(100, {.endsOnTerminate = true});
    tick();
    Session running{.host = model.process(100)->identity(), .agent = u"claude"_s, .folder = u"/srv/app"_s};
    for (const qint32 pid : {100, 101})
        running.processes.append({.process = *model.process(pid)});
    view->show({.sessions = {running}});
    press(*row(0), u"End session"_s);
    press(*dialog(), u"End session"_s);
    EXPECT_FALSE(buttonNamed(*row(0), u"End session"_s)->isEnabled());
    EXPECT_FALSE(buttonNamed(*row(0), u"Pause"_s)->isEnabled());
    QTest::keyClick(header(0), Qt::Key_Delete);
    settle();
    EXPECT_FALSE(dialog()) << "an end under way is not asked about again";
    EXPECT_TRUE(QTest::qWaitFor([this] {
        const QStringList names = shownNames<QWidget>(*view);
        return names.contains(u"claude (100) Quit"_s) && names.contains(u"node (101) Force-killed"_s);
    }));
    EXPECT_TRUE(showsText(*view, u"claude in /srv/app: ended 2 of 2, freed ~0 bytes"_s));
    EXPECT_TRUE(buttonNamed(*row(0), u"End session"_s)->isEnabled());
}

TEST_F(SessionsViewTest, ThePageMayCloseWhileAnEndRuns) {
    using namespace std::chrono_literals;
    model.actions().setSessionDelays(
        {.forHost = 1ms, .forOthers = 1ms, .betweenLooks = 1ms, .beforeMeasuring = 1ms});
    view->show({.sessions = {large(100, u"/srv/shop"_s)}});
    QTest::keyClick(header(0), Qt::Key_Delete);
    QPointer<ConfirmDialog> asked = dialog();
    press(*asked, u"End session"_s);
    delete view;
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked.isNull() && !model.actionLog().entries().isEmpty(); }));
}

TEST_F(SessionsViewTest, TheQuestionListsWhatEndsByItsKind) {
    const Session session = large(100, u"/srv/shop"_s);
    SessionEnding ending = endingOf(session);
    bool isAnswered = false;
    SessionDialogs::askEnd(
        &window, &window,
        {.title = u"End?"_s, .button = u"End session"_s, .ending = ending, .processes = session.processes},
        [&] { isAnswered = true; });
    EXPECT_EQ(dialog()->accessibleDescription(),
              u"The agent is asked first and has 5 s to save. What it started ends with it, and what stays "
              "is force-killed. ≈ 1.7 GB will come back. This takes the conversation up again: "
              "cd /srv/shop && claude --continue"_s);
    QStringList described = shownNames<QWidget>(*dialog()).filter(u", "_s);
    EXPECT_EQ(described, (QStringList{u"claude, 640 MB"_s, u"context7, 96 MB"_s, u"npm, 70 MB"_s,
                                      u"vite, 310 MB"_s, u"chromium, 410 MB"_s, u"chromium, 380 MB"_s,
                                      u"esbuild, 44 MB"_s, u"bash, 4 MB"_s}));
    for (const QString& heading :
         {u"Agent"_s, u"MCP servers"_s, u"Dev servers"_s, u"Browsers"_s, u"Commands"_s})
        EXPECT_TRUE(showsText(*dialog(), heading)) << qPrintable(heading);
    press(*dialog(), u"End session"_s);
    EXPECT_TRUE(isAnswered);
    settle();

    ending.host.reset();
    ending.givesBack.isRough = true;
    ending.resumeCommand.clear();
    SessionDialogs::askEnd(&window, &window, {.ending = ending}, [] {});
    EXPECT_EQ(dialog()->accessibleDescription(),
              u"The processes are asked to end, and what stays is force-killed. ≤ 1.7 GB will come "
              "back."_s);
}

TEST_F(SessionsViewTest, PauseAsksFirstAndAFolderThatIsGoneIsSaid) {
    Session paused = idle(200, u"/no/such/folder"_s);
    paused.state = SessionState::paused;
    view->show({.sessions = {large(100, u"/srv/shop"_s), paused}});
    press(*row(0), u"Pause"_s);
    EXPECT_EQ(question(), u"Pause claude in /srv/shop?"_s);
    QTest::keyClick(dialog(), Qt::Key_Escape);
    settle();
    EXPECT_FALSE(buttonNamed(*row(1), u"Pause"_s));
    EXPECT_TRUE(buttonNamed(*row(1), u"Resume"_s));
    press(*row(1), u"Open folder"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return showsText(*view, u"Could not open /no/such/folder."_s); }));
}

TEST_F(SessionsViewTest, TheMenuHasTheSameActions) {
    view->show({.sessions = {large(100, u"/srv/shop"_s)}});
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), header(0)->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(header(0), &event);
    const auto* menu = row(0)->findChild<QMenu*>();
    ASSERT_TRUE(menu);
    QStringList entries;
    for (QAction* action : menu->actions())
        entries.append(action->text());
    EXPECT_EQ(entries,
              (QStringList{u"Pause…"_s, u"Open folder"_s, u"Copy details"_s, QString(), u"End session…"_s}));
    menu->actions().at(2)->trigger();
    const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
    EXPECT_EQ(lines.value(0), u"claude 2.1.4 /srv/shop"_s);
    EXPECT_TRUE(
        lines.contains(u"Working, just now, 8 processes, 143%, 1.9 GB (resident 2.4 GB, in swap 90 MB)"_s));
    EXPECT_TRUE(lines.contains(u"    103 vite (dev server) :5173 :24678 310 MB 1.0h"_s))
        << qPrintable(lines.join(u'\n'));
}

TEST_F(SessionsViewTest, TheResultStaysUntilItIsDismissed) {
    view->addResult({.title = u"claude in /srv/shop"_s,
                     .records = {{1, u"claude"_s, KillOutcome::quit}, {2, u"node"_s, std::nullopt}},
                     .promised = {.memoryBytes = 3 * MiB, .swapBytes = 1 * MiB},
                     .freedBytes = 2 * MiB,
                     .resumeCommand = u"claude --continue"_s});
    view->show(SessionReport());
    EXPECT_TRUE(showsText(*view, u"claude in /srv/shop: ended 1 of 2, freed ~2 MB"_s));
    EXPECT_TRUE(showsText(*view,
                          u"Promised: 3 MB in memory, 1 MB in swap. Came back: 2 MB in memory, 0 bytes in "
                          "swap."_s));
    EXPECT_TRUE(shownNames<QWidget>(*view).contains(u"claude (1) Quit"_s));
    EXPECT_TRUE(shownNames<QWidget>(*view).contains(u"node (2) Left alone: it belongs to something else"_s));
    press(*view, u"Copy command"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"claude --continue"_s);
    press(*view, u"Dismiss"_s);
    settle();
    EXPECT_TRUE(showsText(*view, u"No sessions"_s));
}
