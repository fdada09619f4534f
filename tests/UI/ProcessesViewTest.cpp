#include "UI/Processes/ProcessesView.h"

#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/PopUpButton.h"
#include "UI/Kit/SearchField.h"
#include "UI/Kit/Slider.h"
#include "UI/ModelFixture.h"
#include "UI/Processes/ProcessTableView.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

struct ProcessesViewTest : ModelFixture {
    ProcessesView view{model, prefs};
    ProcessTableView* table = view.findChild<ProcessTableView*>();
    QAbstractItemModelTester tester{table->model()};

    void show() {
        view.resize(800, 600);
        view.show();
        tick();
    }
    QStringList column(const QString& title) const {
        for (int section = 0; section < table->model()->columnCount(); ++section) {
            if (table->model()->headerData(section, Qt::Horizontal) == title)
                return columnOf(*table->model(), section);
        }
        return {};
    }
    QPoint button(int row, int position) const {
        const QModelIndex cell = table->model()->index(row, table->model()->columnCount() - 1);
        return table->visualRect(cell).topLeft() + QPoint(17 + 26 * position, 15);
    }
    void pressIn(int row, int position) {
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, button(row, position));
    }
    FakeProcess& process(qint32 pid) { return fakes.processes->processes[pid]; }
    QPointer<ConfirmDialog> dialog() { return view.findChild<ConfirmDialog*>(); }
    QString notice() { return shownName<Notice>(view); }
    void foldDuplicates() {
        QTest::mouseClick(view.findChild<QCheckBox*>(), Qt::LeftButton, {}, QPoint(10, 10));
    }
    /// Returns the widths of another table with the same settings.
    QList<int> widthsOfAnother() {
        const ProcessesView another(model, prefs);
        const QHeaderView* head = another.findChild<ProcessTableView*>()->header();
        QList<int> widths;
        for (int section = 0; section < head->count(); ++section)
            widths.append(head->sectionSize(section));
        return widths;
    }
    void type(const QString& text) {
        auto* field = view.findChild<SearchField*>();
        field->clear();
        QTest::keyClicks(field, text);
    }
};

} // namespace

TEST_F(ProcessesViewTest, FiltersBySizeTextAndGroup) {
    addProcesses(1, "Google Chrome Helper", 200 * MiB);
    addProcesses(1, "zsh", 100 * MiB);
    addProcesses(1, "tiny", 50 * MiB - 1);
    process(101).path = "/opt/CHROME/bin/zsh";
    show();
    EXPECT_EQ(column(u"Name"_s), (QStringList{u"Google Chrome Helper"_s, u"zsh"_s}));
    type(u"chrome"_s);
    EXPECT_EQ(column(u"Name"_s), (QStringList{u"Google Chrome Helper"_s, u"zsh"_s}));
    type(u"helper"_s);
    EXPECT_EQ(column(u"Name"_s), QStringList{u"Google Chrome Helper"_s});
    QTest::keyClick(view.findChild<SearchField*>(), Qt::Key_Escape);
    EXPECT_EQ(column(u"Name"_s).size(), 2);
    QTest::keyClick(view.findChildren<PopUpButton*>()[0], Qt::Key_End);
    EXPECT_TRUE(showsText(view, u"No processes match"_s)); // none in the last group
    QTest::keyClick(view.findChildren<PopUpButton*>()[0], Qt::Key_Home);
    QTest::keyClick(view.findChild<Slider*>(), Qt::Key_Home);
    EXPECT_EQ(column(u"Name"_s).size(), 3);
    EXPECT_EQ(column(u"RAM"_s), (QStringList{u"200 MB"_s, u"100 MB"_s, u"50 MB"_s}));
}

TEST_F(ProcessesViewTest, PickerAndHeadsSortInStep) {
    addProcesses(1, "beta", 100 * MiB);
    addProcesses(1, "Alpha", 300 * MiB);
    addProcesses(1, "alpha", 300 * MiB);
    addProcesses(1, "Gamma", 200 * MiB);
    show();
    EXPECT_EQ(column(u"PID"_s), (QStringList{u"101"_s, u"102"_s, u"103"_s, u"100"_s}));
    const auto clickHead = [this](int section) {
        const QHeaderView* head = table->header();
        QTest::mouseClick(head->viewport(), Qt::LeftButton, {},
                          QPoint(head->sectionViewportPosition(section) + 20, 10));
    };
    auto* picker = view.findChildren<PopUpButton*>()[1];
    clickHead(0);
    EXPECT_EQ(picker->currentText(), u"Name"_s);
    EXPECT_EQ(column(u"PID"_s), (QStringList{u"101"_s, u"102"_s, u"100"_s, u"103"_s}));
    clickHead(2); // nothing sorts by PID
    EXPECT_EQ(table->header()->sortIndicatorSection(), 0);
    process(103).task->cpuTimeNs += 900'000'000;
    fakes.clock->advance(2);
    tick();
    picker->setCurrentText(u"CPU"_s);
    EXPECT_EQ(table->header()->sortIndicatorSection(), 3);
    EXPECT_EQ(column(u"CPU%"_s), (QStringList{u"45%"_s, u"0%"_s, u"0%"_s, u"0%"_s}));
    picker->setCurrentText(u"Idle"_s);
    EXPECT_EQ(column(u"PID"_s).last(), u"103"_s);
}

TEST_F(ProcessesViewTest, SelectionAndPlaceSurviveTicksThatChangeEverything) {
    for (int i = 0; i < 400; ++i)
        addProcesses(1, "worker", static_cast<quint64>(1000 - i) * MiB);
    show();
    table->verticalScrollBar()->setValue(3000);
    table->setCurrentIndex(table->model()->index(110, 0));
    const QPersistentModelIndex kept = table->currentIndex();
    const int scrolled = table->verticalScrollBar()->value();
    const auto pidOf = [this](const QModelIndex& index) {
        return index.siblingAtColumn(2).data().toString();
    };
    const QString pid = pidOf(kept);
    process(499).task->residentBytes = 5000 * MiB; // from the end to the top
    for (int i = 0; i < 40; ++i)
        fakes.processes->remove(100 + i * 2);
    addProcesses(30, "late", 900 * MiB);
    tick();
    EXPECT_EQ(column(u"PID"_s).first(), u"499"_s);
    EXPECT_EQ(column(u"PID"_s).size(), 390);
    EXPECT_EQ(pidOf(table->currentIndex()), pid);
    EXPECT_EQ(table->selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(pidOf(table->selectionModel()->selectedRows()[0]), pid);
    EXPECT_EQ(table->verticalScrollBar()->value(), scrolled);
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(u"worker\tOther\t"_s + pid));
}

TEST_F(ProcessesViewTest, AClickMeansTheRowThatWasPressed) {
    addProcesses(1, "one", 300 * MiB);
    addProcesses(1, "two", 200 * MiB);
    show();
    pressIn(0, 0);
    pressIn(1, 1);
    EXPECT_EQ(fakes.signalSender->sent(),
              (QList<FakeSignals::Sent>{{100, Signal::terminate, 1}, {101, Signal::kill, 1}}));
    QTest::mousePress(table->viewport(), Qt::LeftButton, {}, button(0, 1));
    process(101).task->residentBytes = 900 * MiB;
    fakes.processes->remove(100);
    tick(); // 101 is where 100 was
    QTest::mouseRelease(table->viewport(), Qt::LeftButton, {}, button(0, 1));
    EXPECT_EQ(fakes.signalSender->sent().size(), 2);
    EXPECT_EQ(logged(),
              (QStringList{u"forceKill pid=100 fail"_s, u"forceKill pid=101 ok"_s, u"quit pid=100 ok"_s}));
    QTest::mousePress(table->viewport(), Qt::LeftButton, {}, button(0, 0));
    QTest::mouseRelease(table->viewport(), Qt::LeftButton, {}, button(0, 1)); // released on another button
    EXPECT_EQ(logged().size(), 3);
}

TEST_F(ProcessesViewTest, DuplicatesFoldIntoOneRow) {
    addProcesses(12, "helper", 60 * MiB);
    addProcesses(1, "single", 700 * MiB);
    show();
    foldDuplicates();
    EXPECT_EQ(column(u"Name"_s), (QStringList{u"helper"_s, u"single"_s}));
    EXPECT_EQ(column(u"Procs"_s), (QStringList{u"12"_s, u"1"_s}));
    EXPECT_EQ(table->model()->index(0, 0).data(Qt::AccessibleTextRole), u"helper ×12"_s);
    EXPECT_EQ(table->model()->index(1, 0).data(Qt::AccessibleTextRole), u"single"_s);
    EXPECT_EQ(column(u"RAM"_s), (QStringList{u"≈ 720 MB"_s, u"≈ 700 MB"_s}));
    pressIn(0, 0);
    EXPECT_EQ(fakes.signalSender->sent().size(), 12);
    EXPECT_EQ(logged().size(), 12);
    EXPECT_FALSE(dialog());
    pressIn(0, 1);
    EXPECT_EQ(dialog()->windowTitle(), u"Kill all 12 “helper” processes?"_s);
}

TEST_F(ProcessesViewTest, AFoldedRowIsItsNameWhateverComesAndGoes) {
    addProcesses(2, "kept", 100 * MiB);
    addProcesses(2, "other", 90 * MiB);
    show();
    foldDuplicates();
    table->setCurrentIndex(table->model()->index(0, 0));
    for (int i = 0; i < 20; ++i) {
        addProcesses(1, "name-" + QByteArray::number(i), static_cast<quint64>(60 + 40 * i) * MiB);
        if (i > 0)
            fakes.processes->remove(nextPid - 2); // the name before it
        tick();
        ASSERT_EQ(column(u"Name"_s).size(), 3);
        EXPECT_EQ(table->currentIndex().data(), u"kept"_s);
    }
    process(100).task.reset(); // both processes go, and two others come under the name
    fakes.processes->remove(101);
    addProcesses(2, "kept", 100 * MiB);
    tick();
    EXPECT_EQ(table->currentIndex().data(), u"kept"_s);
    EXPECT_EQ(table->selectionModel()->selectedRows().size(), 1);
}

TEST_F(ProcessesViewTest, ASweepAsksFirst) {
    addProcesses(3, "<b>node</b>", 60 * MiB);
    addProcesses(1, "single", 100 * MiB);
    show();
    pressIn(0, 2); // a name of its own has no sweep
    EXPECT_FALSE(dialog());
    pressIn(1, 2);
    ASSERT_TRUE(dialog());
    QTest::keyClick(dialog(), Qt::Key_Return);
    settle();
    EXPECT_TRUE(fakes.signalSender->sent().isEmpty());
    pressIn(1, 2);
    EXPECT_TRUE(showsText(*dialog(), u"Kill all 3 “<b>node</b>” processes?"_s));
    press(*dialog(), u"Kill 3 (≈180 MB)"_s);
    EXPECT_EQ(notice(), u"Killed 3/3 “<b>node</b>” processes (≈180 MB targeted)"_s);
    press(view, u"Dismiss"_s);
    EXPECT_EQ(notice(), QString());
    EXPECT_EQ(logged(), QStringList(u"quit [nuke duplicates] <b>node</b> — 3/3 PIDs ok"_s));
}

TEST_F(ProcessesViewTest, NamesOfAnyKindAreShownAndAskedAbout) {
    const QByteArray endless(255, 'x');
    for (const QByteArray& name : {QByteArray("<i>a</i>&amp;"), endless, QByteArray("مدير الذاكرة")})
        addProcesses(2, name, 60 * MiB);
    show();
    EXPECT_EQ(column(u"Name"_s).mid(1, 4), (QStringList{u"<i>a</i>&amp;"_s, QString::fromLatin1(endless),
                                                        QString::fromLatin1(endless), u"مدير الذاكرة"_s}));
    for (int row = 1; row < 6; row += 2) {
        pressIn(row, 2);
        ASSERT_TRUE(dialog());
        dialog()->adjustSize();
        EXPECT_LT(dialog()->width(), 700) << row;
        QTest::keyClick(dialog(), Qt::Key_Escape);
        settle();
    }
    EXPECT_TRUE(fakes.signalSender->sent().isEmpty());
}

TEST_F(ProcessesViewTest, AnApplicationIsToldToQuit) {
    addProcesses(2, "Note Helper", 60 * MiB);
    for (const qint32 pid : {100, 101})
        process(pid).path = "/Applications/Note.app/Contents/Helper";
    show();
    pressIn(0, 2);
    press(*dialog(), u"Quit Note (≈120 MB)"_s);
    EXPECT_EQ(notice(), u"Note quit cleanly — 2 helpers closed (≈120 MB freed)"_s);
    settle();
    pressIn(0, 2);
    fakes.relief->answer = [] { return Outcome(); };
    press(*dialog(), u"Force-quit Note (no save prompt)"_s);
    EXPECT_TRUE(notice().startsWith(u"Couldn't tell Note to quit"_s));
    EXPECT_TRUE(fakes.signalSender->sent().isEmpty());
}

TEST_F(ProcessesViewTest, ARowsMenuPutsItsProgramIntoAGroup) {
    addProcesses(1, "a&b", 60 * MiB);
    addProcesses(1, "zsh", 50 * MiB);
    show();
    const auto choose = [this](int row, const QString& group) -> QString {
        const QModelIndex index = table->model()->index(row, 0);
        const QPoint place = table->visualRect(index).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, table->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(table->viewport(), &event);
        auto* menu = table->findChild<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
        QString before;
        QAction* wanted = nullptr;
        for (QAction* entry : menu->findChild<QMenu*>()->actions()) {
            before += entry->isChecked() ? entry->text() : QString();
            wanted = entry->text() == group ? entry : wanted;
        }
        wanted->trigger();
        delete menu;
        settle();
        return before;
    };
    EXPECT_EQ(choose(0, u"Docker && Containers"_s), u"As detected"_s);
    EXPECT_EQ(column(u"Group"_s), (QStringList{u"Docker & Containers"_s, u"Terminals"_s}));
    EXPECT_EQ(model.groups()[4].count, 1);
    tick();
    EXPECT_EQ(model.groups()[4].count, 1) << "it lasts";
    const AppModel again(fakes.platform(), prefs);
    EXPECT_EQ(again.chosenGroup(model.processes()[0]), ProcGroup::containers);
    EXPECT_EQ(choose(0, u"As detected"_s), u"Docker && Containers"_s);
    EXPECT_EQ(column(u"Group"_s), (QStringList{u"Other"_s, u"Terminals"_s}));
    prefs.programGroupsJSON.set(R"({"zsh": "IDEs", "a&b": "nonsense", "c": 5})");
    EXPECT_EQ(prefs.programGroups(), (QHash<QString, ProcGroup>{{u"zsh"_s, ProcGroup::ides}}));
}

TEST_F(ProcessesViewTest, OptionalColumnsAreChosenAndRemembered) {
    addProcesses(2, "helper", 60 * MiB);
    fakes.processMemory->all[100] = {
        .proportionalBytes = 50 * MiB, .uniqueBytes = 40 * MiB, .swapBytes = 3 * MiB};
    fakes.processMemory->totals[101] = {.anonymousBytes = 30 * MiB, .swapBytes = 2 * MiB};
    show();
    EXPECT_EQ(column(u"Own"_s), QStringList());
    for (const int choice : {0, 1}) {
        QMenu menu;
        table->fillColumnsMenu(menu);
        menu.actions().at(choice)->trigger();
    }
    model.memoryLedger().waitForSlice();
    fakes.clock->advance(2);
    tick();
    EXPECT_EQ(column(u"Own"_s), (QStringList{u"40 MB"_s, u"—"_s}));
    EXPECT_EQ(column(u"Swap"_s), (QStringList{u"3 MB"_s, u"2 MB"_s}));
    EXPECT_EQ(widthsOfAnother().size(), 10);
    foldDuplicates();
    EXPECT_EQ(column(u"RAM"_s), QStringList(u"≥ 85 MB"_s));
    EXPECT_EQ(column(u"Own"_s), QStringList(u"—"_s));
    EXPECT_EQ(column(u"Swap"_s), QStringList(u"5 MB"_s));
}

TEST_F(ProcessesViewTest, WidthsAreRememberedAndNonsenseIsNot) {
    show();
    view.resize(1300, 700);
    QCoreApplication::processEvents();
    EXPECT_FALSE(prefs.file().text(u"ui.processes.columns"_s)) << "nobody has moved a column";
    table->header()->resizeSection(1, 99);
    EXPECT_TRUE(QTest::qWaitFor([this] { return widthsOfAnother()[1] == 99; }, 3000));
    prefs.file().store(u"ui.processes.columns"_s,
                       u"idle=70 group=-5 cpu=99999999 ram=x pid =gone=80 pid=81"_s);
    EXPECT_EQ(widthsOfAnother().mid(1), (QList<int>{156, 81, 62, 84, 62, 70, 86}));
}

TEST_F(ProcessesViewTest, WidthsByPositionAreTakenOverOnce) {
    const QString flat = u"ui.processes.columns"_s;
    const QString old = u"ui.processes.widths"_s;
    prefs.file().store(old, u"410 140 x 99999 90 -1 70"_s);
    prefs.file().store(u"ui.processes.groupedWidths"_s, u"500 130 63 85 64 100"_s);
    EXPECT_EQ(widthsOfAnother().mid(1), (QList<int>{140, 62, 62, 90, 62, 70, 86}));
    for (const QString& dropped : {old, u"ui.processes.groupedWidths"_s})
        EXPECT_FALSE(Preferences(prefs.file().path()).file().text(dropped));
    EXPECT_EQ(prefs.file().text(u"ui.processes.groupedColumns"_s)->section(u' ', 1),
              u"group=130 cpu=63 ram=85 procs=64 actions=100"_s);
    prefs.file().store(flat, u"pid=77"_s);
    prefs.file().store(old, u"410 140"_s); // what an older version left behind goes, whatever it was
    EXPECT_EQ(widthsOfAnother().mid(1), (QList<int>{156, 77, 62, 84, 62, 62, 86}));
    EXPECT_FALSE(prefs.file().text(old));
}
