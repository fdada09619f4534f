#include "UI/Overview/OverviewView.h"

#include "UI/Kit/IconButton.h"
#include "UI/Kit/PushButton.h"
#include "UI/ModelFixture.h"
#include "UI/Overview/AlertStripView.h"
#include "UI/Overview/GroupRow.h"
#include "UI/Overview/IncidentDialog.h"
#include "UI/Overview/MetricTile.h"
#include "UI/Overview/ProcessRow.h"

using namespace Qt::StringLiterals;

namespace {

struct OverviewViewTest : ModelFixture {
    OverviewView view{model};

    void show() {
        view.resize(800, 700);
        view.show();
        tick();
    }
    GroupHeader* header(ProcGroup group) {
        return view.findChildren<GroupHeader*>().at(static_cast<qsizetype>(group));
    }
    void click(ProcGroup group) { QTest::mouseClick(header(group), Qt::LeftButton); }
    QStringList rows() { return shownNames<ProcessRow>(view); }
    bool shows(const QString& text) { return showsText(view, text); }
};

} // namespace

TEST_F(OverviewViewTest, FiguresCanBeReadByAccessibleName) {
    fakes.host->memory.totalBytes = 1000 * 4096;
    addProcesses(2, "chrome", quint64(512) << 20);
    show();
    EXPECT_EQ(shownNames<MetricTile>(view),
              (QStringList{QStringLiteral("CPU 0%"), QStringLiteral("Memory 25%"), QStringLiteral("Disk 60%"),
                           QStringLiteral("Thermal Cool")}));
    EXPECT_EQ(header(ProcGroup::browsers)->accessibleName(),
              QStringLiteral("Browsers (2), about 1 GB (resident 1 GB, in swap 0 bytes), 0% CPU"));
    EXPECT_EQ(header(ProcGroup::ides)->accessibleName(),
              QStringLiteral("IDEs (0), 0 bytes (resident 0 bytes, in swap 0 bytes), 0% CPU"));
}

TEST_F(OverviewViewTest, GroupsCountSharedMemoryOnceWhenItIsKnown) {
    addProcesses(2, "chrome", quint64(512) << 20);
    for (const qint32 pid : {100, 101})
        fakes.processMemory->all[pid] = {.proportionalBytes = quint64(300) << 20,
                                         .proportionalDirtyBytes = quint64(200) << 20,
                                         .anonymousBytes = quint64(200) << 20,
                                         .swapBytes = quint64(10) << 20};
    fakes.host->memory.programBytes = quint64(500) << 20;
    show();
    model.memoryLedger().waitForSlice();
    fakes.clock->advance(10);
    tick(); // the credit allows one process in a tick
    model.memoryLedger().waitForSlice();
    tick();
    EXPECT_EQ(header(ProcGroup::browsers)->accessibleName(),
              QStringLiteral("Browsers (2), 620 MB (resident 1 GB, in swap 20 MB), 0% CPU"));
    EXPECT_TRUE(
        header(ProcGroup::browsers)->toolTip().contains(QStringLiteral("resident 1 GB, in swap 20 MB")));
    const MetricTile* memory = view.findChildren<MetricTile*>().at(1);
    EXPECT_TRUE(
        memory->toolTip().contains(QStringLiteral("Groups 600 MB\nof these, caches of files −200 MB")));
}

TEST_F(OverviewViewTest, TheAgentsSayHowManySessionsRun) {
    addProcesses(2, "claude", 10);
    show();
    tick();
    EXPECT_EQ(header(ProcGroup::agents)->accessibleDescription(), u"Collapsed, 2 sessions"_s);
    EXPECT_TRUE(header(ProcGroup::agents)->toolTip().contains(u"\n2 sessions"_s));
    for (const qint32 pid : {100, 101})
        fakes.processes->remove(pid);
    tick();
    EXPECT_EQ(header(ProcGroup::agents)->accessibleDescription(), u"Collapsed"_s);
}

TEST_F(OverviewViewTest, AtMostOneGroupIsOpenAndStaysOpenAcrossTicks) {
    addProcesses(3, "chrome", 10);
    addProcesses(1, "bash", 20);
    show();
    EXPECT_TRUE(rows().isEmpty());
    click(ProcGroup::browsers);
    EXPECT_EQ(rows().size(), 3);
    tick();
    EXPECT_EQ(rows().size(), 3);
    click(ProcGroup::terminals);
    EXPECT_EQ(rows(), QStringList{u"103 bash, CPU 0%, memory 20 bytes"_s});
    QTest::keyClick(header(ProcGroup::terminals), Qt::Key_Return);
    EXPECT_TRUE(rows().isEmpty());
    QTest::keyClick(header(ProcGroup::terminals), Qt::Key_Space);
    EXPECT_EQ(rows().size(), 1);
}

TEST_F(OverviewViewTest, FiftyMembersAreShownAndTheRestCounted) {
    addProcesses(51, "chrome", 10);
    show();
    click(ProcGroup::browsers);
    EXPECT_EQ(rows().size(), 50);
    EXPECT_TRUE(shows(u"… +1 more in Processes tab"_s));
    fakes.processes->remove(100);
    tick();
    EXPECT_EQ(rows().size(), 50);
    EXPECT_FALSE(shows(u"… +1 more in Processes tab"_s));
    EXPECT_FALSE(shows(u"… +0 more in Processes tab"_s));
}

TEST_F(OverviewViewTest, NamesFromOutsideArePlainText) {
    addProcesses(1, "<b>bold</b>\nnew\xe2\x80\xae", 10);
    show();
    click(ProcGroup::other);
    EXPECT_EQ(rows().value(0), u"100 <b>bold</b>\u240anew\ufffd, CPU 0%, memory 10 bytes"_s);
}

TEST_F(OverviewViewTest, AlertsReplaceTheHealthyCardAndBack) {
    show();
    EXPECT_TRUE(shows(u"System looks healthy."_s));
    fakes.host->memory.totalBytes = quint64(1) << 30;
    fakes.host->memory.swapUsedBytes = quint64(5) << 30;
    tick();
    EXPECT_FALSE(shows(u"System looks healthy."_s));
    EXPECT_EQ(shownNames<AlertCard>(view).size(), 2);
    EXPECT_TRUE(shows(u"Free RAM low"_s));
    fakes.host->memory.totalBytes = quint64(16) << 30;
    tick();
    EXPECT_EQ(shownNames<AlertCard>(view),
              QStringList{u"Heavy swap usage. 5.0 GB swapped — system will feel sluggish."_s});
}

TEST_F(OverviewViewTest, AnAlertTellsWhatWentOnBeforeAndAsksForTheSessionItNames) {
    show();
    fakes.host->memory.activeBytes = 8 * GiB;
    for (int i = 0; i < 31; ++i) { // java takes 1 GiB a minute of the 7 that are left
        fakes.clock->advance(10);
        fakes.host->memory.activeBytes += GiB / 6;
        tick();
    }
    const auto cards = view.findChildren<AlertCard*>();
    const auto full = std::ranges::find_if(
        cards, [](const AlertCard* card) { return card->accessibleName().startsWith(u"Memory full"); });
    ASSERT_NE(full, cards.end());
    const auto buttons = (*full)->findChildren<PushButton*>();
    ASSERT_EQ(buttons.size(), 2);
    EXPECT_FALSE(buttons[1]->isVisible()) << "nobody is named";
    buttons[0]->click();
    auto* dialog = view.findChild<IncidentDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(showsText(*dialog, u"Largest processes then"_s));
    dialog->close();

    QList<qint32> asked;
    QObject::connect(&view, &OverviewView::endSessionRequested, &view,
                     [&asked](const ProcessIdentity& host) { asked.append(host.pid); });
    AlertStripView strip;
    QObject::connect(&strip, &AlertStripView::actionRequested, &strip,
                     [&asked](const Alert& alert) { asked.append(*alert.actionPid); });
    strip.set({{.id = u"memory_full"_s, .title = u"full"_s, .actionPid = 7, .actionTarget = u"session"_s}},
              [](const QString&) { return false; });
    auto* end = strip.findChild<AlertCard*>()->findChildren<PushButton*>().value(1);
    EXPECT_EQ(end->text(), u"End session…"_s);
    end->click();
    EXPECT_EQ(asked, QList<qint32>{7});
    EXPECT_TRUE(fakes.signalSender->sent().isEmpty());
}

TEST_F(OverviewViewTest, HiddenItDoesNoWorkAndShownItCatchesUp) {
    view.show();
    EXPECT_TRUE(shownNames<GroupRow>(view).isEmpty()) << "nothing is known before the first tick";
    tick();
    view.hide();
    fakes.host->thermal = 3;
    tick();
    EXPECT_EQ(shownNames<MetricTile>(view).last(), u"Thermal Cool"_s);
    view.show();
    EXPECT_EQ(shownNames<MetricTile>(view).last(), u"Thermal Critical"_s);
}

TEST_F(OverviewViewTest, ARowsButtonsSignalTheProcessThatWasPressed) {
    addProcesses(1, "chrome", 20);
    addProcesses(1, "chromium", 10);
    show();
    click(ProcGroup::browsers);
    const auto buttons = view.findChildren<ProcessRow*>().at(0)->findChildren<IconButton*>();
    QTest::mouseClick(buttons[0], Qt::LeftButton);
    EXPECT_EQ(fakes.signalSender->sent(), (QList<FakeSignals::Sent>{{100, Signal::terminate, 1}}));
    EXPECT_EQ(buttons[1]->toolTip(), u"Force kill (SIGKILL)"_s);
    EXPECT_TRUE(buttons[1]->accessibleName().startsWith(u"Force kill (SIGKILL): "_s));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    const QImage resting = buttons[1]->grab().toImage();
    buttons[0]->setFocus();
    EXPECT_NE(buttons[1]->grab().toImage(), resting) << "the buttons of a row show while it is in use";
    buttons[0]->clearFocus();

    QTest::mousePress(buttons[1], Qt::LeftButton);
    fakes.processes->processes[101].task->residentBytes = 30; // takes the first row's place
    tick();
    QTest::mouseRelease(buttons[1], Qt::LeftButton);
    EXPECT_EQ(fakes.signalSender->sent().last(), (FakeSignals::Sent{100, Signal::kill, 1}));

    fakes.signalSender->end(101);
    QTest::mouseClick(buttons[1], Qt::LeftButton);
    EXPECT_EQ(logged(),
              (QStringList{u"forceKill pid=101 fail"_s, u"forceKill pid=100 ok"_s, u"quit pid=100 ok"_s}));
}

TEST_F(OverviewViewTest, ARowStaysWhereItIsWhileItIsInUse) {
    addProcesses(1, "claude", 300 * MiB);
    addProcesses(1, "codex", 200 * MiB);
    view.show();
    tick();
    header(ProcGroup::agents)->click();
    const QStringList before = rows();
    ASSERT_EQ(before.size(), 2);
    view.findChildren<ProcessRow*>().at(1)->findChild<IconButton*>()->setFocus();
    fakes.processes->processes[101].task->residentBytes = 900 * MiB;
    tick();
    EXPECT_TRUE(rows().at(1).startsWith(u"101 "_s)) << qPrintable(rows().join(u'\n'));
    view.findChild<MetricTile*>()->setFocus();
    tick();
    EXPECT_TRUE(rows().at(0).startsWith(u"101 "_s)) << qPrintable(rows().join(u'\n'));
}

TEST_F(OverviewViewTest, AnAlertsQuitEndsTheProcessItNames) {
    addProcesses(1, "claude", quint64(900) << 20);
    show();
    EXPECT_EQ(buttonNamed(view, u"Quit"_s), nullptr);
    fakes.clock->advance(1000);
    tick();
    press(view, u"Quit"_s);
    EXPECT_EQ(fakes.signalSender->sent(), (QList<FakeSignals::Sent>{{100, Signal::terminate, 1}}));
    fakes.processes->remove(100);
    QMetaObject::invokeMethod(&model, "tick"); // gone, but not yet off the screen
    press(view, u"Quit"_s);
    EXPECT_EQ(fakes.signalSender->sent().size(), 1);
    EXPECT_EQ(logged(), (QStringList{u"quit pid=100 fail"_s, u"quit pid=100 ok"_s}));
}
