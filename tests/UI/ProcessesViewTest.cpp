#include "UI/Processes/ProcessesView.h"

#include "UI/Inspector/InspectorPanel.h"
#include "UI/Inspector/MemoryKindsBar.h"
#include "UI/Kit/ClampedLabel.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/Graph.h"
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
        return table->visualRect(cell).topLeft() + QPoint(18 + 28 * position, 15);
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
    QMenu* menuOf(int row) {
        const QModelIndex index = table->model()->index(row, 0);
        const QPoint place = table->visualRect(index).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, table->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(table->viewport(), &event);
        return table->findChild<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
    }
    static QAction* entry(const QMenu& menu, const QString& text) {
        for (QAction* action : menu.actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    void toggleColumn(const QString& title) {
        QMenu menu;
        table->fillColumnsMenu(menu);
        entry(menu, title)->trigger();
    }
    QStringList heads() const {
        QStringList titles;
        for (int place = 0; place < table->header()->count(); ++place)
            titles.append(
                table->model()->headerData(table->header()->logicalIndex(place), Qt::Horizontal).toString());
        return titles;
    }
    void choose(int row) { table->setCurrentIndex(table->model()->index(row, 0)); }
    void clickHead(const QString& title) {
        const QHeaderView* head = table->header();
        const int section = head->logicalIndex(static_cast<int>(heads().indexOf(title)));
        QTest::mouseClick(head->viewport(), Qt::LeftButton, {},
                          QPoint(head->sectionViewportPosition(section) + 20, 10));
    }
    FakeProcess& child(qint32 pid, qint32 parent) {
        process(pid).info->parentPid = parent;
        return process(pid);
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
    auto* picker = view.findChildren<PopUpButton*>()[1];
    clickHead(u"Name"_s);
    EXPECT_EQ(picker->currentText(), u"Name"_s);
    EXPECT_EQ(column(u"PID"_s), (QStringList{u"101"_s, u"102"_s, u"100"_s, u"103"_s}));
    clickHead(u"Name"_s); // the other way round
    EXPECT_EQ(column(u"PID"_s), (QStringList{u"103"_s, u"100"_s, u"101"_s, u"102"_s}));
    clickHead(u"PID"_s);
    EXPECT_EQ(picker->currentText(), u"PID"_s) << "the picker has no such entry of its own";
    EXPECT_EQ(picker->count(), 5);
    EXPECT_EQ(column(u"PID"_s), (QStringList{u"100"_s, u"101"_s, u"102"_s, u"103"_s}));
    clickHead(u"Actions"_s); // nothing to sort by
    EXPECT_EQ(table->header()->sortIndicatorSection(), 2);
    process(103).task->cpuTimeNs += 900'000'000;
    fakes.clock->advance(2);
    tick();
    picker->setCurrentText(u"CPU"_s);
    EXPECT_EQ(table->header()->sortIndicatorSection(), 3);
    EXPECT_EQ(column(u"CPU%"_s), (QStringList{u"45%"_s, u"0%"_s, u"0%"_s, u"0%"_s}));
    picker->setCurrentText(u"Idle"_s);
    EXPECT_EQ(column(u"PID"_s).last(), u"103"_s);
    EXPECT_EQ(picker->count(), 4);
    foldDuplicates();
    picker->setCurrentText(u"CPU"_s);
    EXPECT_EQ(column(u"Name"_s).first(), u"Gamma"_s) << "rows of names are sorted too";
    clickHead(u"Procs"_s);
    clickHead(u"Group"_s);
    EXPECT_EQ(column(u"Name"_s).size(), 4);
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
    const int last = table->model()->rowCount() - 1;
    QTest::mousePress(table->viewport(), Qt::LeftButton, {}, button(last, 0));
    QTest::mouseRelease(table->viewport(), Qt::LeftButton, {}, button(last, 1)); // on another button
    EXPECT_EQ(logged().size(), 3);
}

TEST_F(ProcessesViewTest, FromRightToLeftTheButtonsAreWhereTheyAreDrawn) {
    addProcesses(1, "one", 300 * MiB);
    view.setLayoutDirection(Qt::RightToLeft);
    show();
    const QRect cell = table->visualRect(table->model()->index(0, table->model()->columnCount() - 1));
    EXPECT_LT(cell.left(), table->visualRect(table->model()->index(0, 0)).left());
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.topRight() + QPoint(-18 - 28, 15));
    EXPECT_EQ(fakes.signalSender->sent(), (QList<FakeSignals::Sent>{{100, Signal::kill, 1}}));
    table->grab();
}

TEST_F(ProcessesViewTest, WithoutProcessesItSaysWhy) {
    prefs.pauseOnLowPower.set(true);
    fakes.power->lowPower = true;
    show();
    EXPECT_TRUE(showsText(view, u"No processes"_s));
    EXPECT_FALSE(buttonNamed(view, u"Show all sizes"_s));
    fakes.power->lowPower = false;
    addProcesses(1, "small", MiB);
    tick();
    EXPECT_TRUE(showsText(view, u"No processes match"_s));
    EXPECT_TRUE(buttonNamed(view, u"Show all sizes"_s));
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
        auto* menu = menuOf(row);
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
    toggleColumn(u"Own"_s);
    toggleColumn(u"Swap"_s);
    model.memoryLedger().waitForSlice();
    fakes.clock->advance(2);
    tick();
    EXPECT_EQ(column(u"Own"_s), (QStringList{u"40 MB"_s, u"—"_s}));
    EXPECT_EQ(column(u"Swap"_s), (QStringList{u"3 MB"_s, u"2 MB"_s}));
    EXPECT_EQ(widthsOfAnother().size(), 10);
    clickHead(u"Swap"_s);
    clickHead(u"Swap"_s);
    EXPECT_EQ(column(u"Swap"_s), (QStringList{u"2 MB"_s, u"3 MB"_s}));
    clickHead(u"Own"_s);
    clickHead(u"Own"_s);
    EXPECT_EQ(column(u"Own"_s), (QStringList{u"40 MB"_s, u"—"_s})) << "what is unknown stays last";
    foldDuplicates();
    EXPECT_EQ(column(u"RAM"_s), QStringList(u"≥ 85 MB"_s));
    EXPECT_EQ(column(u"Own"_s), QStringList(u"—"_s));
    EXPECT_EQ(column(u"Swap"_s), QStringList(u"5 MB"_s));
}

TEST_F(ProcessesViewTest, ColumnsAreHiddenAndMovedAndThatLasts) {
    addProcesses(1, "one", 100 * MiB);
    show();
    toggleColumn(u"Threads"_s);
    toggleColumn(u"Command"_s);
    EXPECT_EQ(heads(), (QStringList{u"Name"_s, u"Group"_s, u"PID"_s, u"CPU%"_s, u"RAM"_s, u"Idle"_s,
                                    u"Command"_s, u"Actions"_s}));
    table->header()->moveSection(5, 1); // as a drag does
    QMenu menu;
    table->fillColumnsMenu(menu);
    const QMenu* moves = entry(menu, u"Move column"_s)->menu();
    entry(*entry(*moves, u"PID"_s)->menu(), u"Move left"_s)->trigger();
    EXPECT_FALSE(entry(*entry(*moves, u"Idle"_s)->menu(), u"Move left"_s)->isEnabled())
        << "the name is first";
    const QStringList moved = heads();
    EXPECT_EQ(moved.mid(0, 4), (QStringList{u"Name"_s, u"Idle"_s, u"PID"_s, u"Group"_s}));
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return prefs.file().text(u"ui.processes.order"_s).has_value(); }, 3000));
    const ProcessesView another(model, prefs);
    table = another.findChild<ProcessTableView*>();
    EXPECT_EQ(heads(), moved);
    toggleColumn(u"Threads"_s);
    EXPECT_EQ(heads().size(), 9) << "it is back";
    QMenu reset;
    table->fillColumnsMenu(reset);
    entry(reset, u"Reset columns"_s)->trigger();
    EXPECT_EQ(heads(), (QStringList{u"Name"_s, u"Group"_s, u"PID"_s, u"CPU%"_s, u"RAM"_s, u"Threads"_s,
                                    u"Idle"_s, u"Actions"_s}));
}

TEST_F(ProcessesViewTest, DiskRatesAndOtherDetailsAreReadOnlyWhileTheyAreShown) {
    addProcesses(2, "worker", 100 * MiB);
    process(101).info->uid = 0;
    child(101, 100);
    fakes.processDetails->users = {{1000, u"ada"_s}, {0, u"root"_s}};
    fakes.processDetails->disks = {{100, {1000, 1000}}, {101, {1000, 1000}}};
    show();
    tick();
    EXPECT_EQ(fakes.processDetails->diskReadings, 0);
    for (const QString& title : {u"Disk read"_s, u"Disk write"_s, u"User"_s, u"Parent"_s})
        toggleColumn(title);
    EXPECT_EQ(column(u"Disk read"_s), (QStringList{u"—"_s, u"—"_s}));
    const auto read = [this](int count) {
        tick();
        return QTest::qWaitFor([this, count] { return fakes.processDetails->diskReadings == count; });
    };
    fakes.clock->advance(2);
    ASSERT_TRUE(read(1)) << "not of another user's process";
    settle();
    fakes.processDetails->disks[100] = {.readBytes = 1000 + 2048, .writtenBytes = 1000};
    fakes.clock->advance(2);
    ASSERT_TRUE(read(2));
    EXPECT_TRUE(QTest::qWaitFor([this] { return column(u"Disk read"_s).first() == u"1 KB/s"_s; }));
    EXPECT_EQ(column(u"Disk write"_s), (QStringList{u"0"_s, u"—"_s}));
    EXPECT_TRUE(QTest::qWaitFor([this] { return column(u"User"_s) == QStringList{u"ada"_s, u"root"_s}; }));
    EXPECT_EQ(column(u"Parent"_s), (QStringList{u"—"_s, u"worker"_s}));
    view.hide();
    fakes.clock->advance(2);
    tick();
    EXPECT_EQ(fakes.processDetails->diskReadings, 2);
}

TEST_F(ProcessesViewTest, SearchFindsWordsIdsAndPorts) {
    addProcesses(1, "node", 100 * MiB);
    addProcesses(1, "node", 90 * MiB);
    addProcesses(1, "python3", 80 * MiB);
    process(100).arguments = QByteArray("node\0server.js\0--port=101\0", 27);
    process(101).path = "/opt/tools/node";
    fakes.listeningPorts->listening = {{.id = 7, .uid = 1000, .port = 8080}};
    fakes.listeningPorts->byProcess = {{102, {7}}};
    show();
    const auto found = [this](const QString& words) {
        type(words);
        return column(u"PID"_s).join(u' ');
    };
    EXPECT_EQ(found(u"NODE tools"_s), u"101"_s);
    EXPECT_EQ(found(u"server.js node"_s), u"100"_s);
    EXPECT_EQ(found(u"101"_s), u"100 101"_s) << "as a text and as an id";
    EXPECT_EQ(found(u"node nothing"_s), QString());
    type(u":8080"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return column(u"PID"_s).join(u' ') == u"102"_s; }));
    type(u":8081"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return column(u"PID"_s).isEmpty(); }));

    using Parts = QList<SearchWords::Part>;
    const SearchWords words(u"no ode x :80"_s);
    EXPECT_EQ(words.port(), 80);
    EXPECT_EQ(words.partsOf(u"Node.NO"_s), (Parts{{0, 4}, {5, 2}}));
    EXPECT_EQ(SearchWords(u":0 :99999 a:1"_s).port(), std::nullopt);
}

TEST_F(ProcessesViewTest, AnEmptyTableSaysWhichFilterHidesWhatAndLiftsIt) {
    addProcesses(2, "small", 10 * MiB);
    addProcesses(1, "zsh", 100 * MiB);
    show();
    type(u"small"_s);
    EXPECT_TRUE(showsText(view, u"Min RAM of 50 MB hides 2 more. The search hides 1 more."_s));
    press(view, u"Show all sizes"_s);
    EXPECT_EQ(column(u"Name"_s), (QStringList{u"small"_s, u"small"_s}));
    type(u"zsh"_s);
    view.findChildren<PopUpButton*>()[0]->setCurrentIndex(1);
    EXPECT_TRUE(showsText(view, u"The group Claude Code & Agents hides 1 more."_s));
    press(view, u"Show all groups"_s);
    EXPECT_EQ(column(u"Name"_s), QStringList{u"zsh"_s});
    view.findChildren<PopUpButton*>()[0]->setCurrentIndex(1);
    type(u"neither"_s);
    EXPECT_TRUE(showsText(view, u"The filters together hide 3 processes."_s));
    press(view, u"Clear all filters"_s);
    EXPECT_EQ(column(u"Name"_s).size(), 3);
}

TEST_F(ProcessesViewTest, TheTreeFoldsBranchesWithTheirSums) {
    addProcesses(1, "shell", 60 * MiB);
    addProcesses(1, "make", 70 * MiB);
    addProcesses(1, "cc", 80 * MiB);
    addProcesses(1, "other", 900 * MiB);
    addProcesses(1, "tiny", 1 * MiB);
    child(101, 100);
    child(102, 101);
    child(104, 103);
    show();
    QTest::mouseClick(view.findChildren<QCheckBox*>()[1], Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(column(u"Name"_s), (QStringList{u"other"_s, u"shell"_s, u"make"_s, u"cc"_s}));
    type(u"cc"_s);
    EXPECT_EQ(column(u"Name"_s), (QStringList{u"shell"_s, u"make"_s, u"cc"_s})) << "below its parents";
    EXPECT_EQ(table->model()->index(2, 0).data(Qt::AccessibleTextRole), u"cc, level 3"_s);
    choose(0);
    QTest::keyClick(table, Qt::Key_Left);
    EXPECT_EQ(column(u"Name"_s), QStringList{u"shell"_s});
    EXPECT_EQ(column(u"RAM"_s), QStringList{u"≈ 210 MB"_s});
    EXPECT_EQ(table->model()->index(0, 0).data(Qt::AccessibleTextRole), u"shell, level 1, folded"_s);
    tick();
    EXPECT_EQ(column(u"Name"_s), QStringList{u"shell"_s}) << "it stays folded";
    pressIn(0, 0);
    EXPECT_EQ(logged(), QStringList{u"quit pid=100 ok"_s}) << "a button means the process, not the branch";
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      table->visualRect(table->model()->index(0, 0)).topLeft() + QPoint(12, 15));
    EXPECT_EQ(column(u"Name"_s).size(), 3) << "the sign opens it";
    choose(2);
    QTest::keyClick(table, Qt::Key_Left);
    EXPECT_EQ(table->currentIndex().row(), 1) << "to the parent";
}

TEST_F(ProcessesViewTest, RowsStayWhileTheKeyboardIsOnThem) {
    for (int i = 0; i < 4; ++i)
        addProcesses(1, "worker", static_cast<quint64>(400 - i) * MiB);
    show();
    view.activateWindow();
    table->setFocus();
    choose(2);
    process(103).task->residentBytes = 900 * MiB;
    process(102).task->residentBytes = 10 * MiB; // below Min RAM
    process(100).task.reset();
    addProcesses(1, "late", 800 * MiB);
    tick();
    EXPECT_EQ(column(u"PID"_s), (QStringList{u"100"_s, u"101"_s, u"102"_s, u"103"_s, u"104"_s}));
    EXPECT_EQ(table->model()->index(0, 0).data(Qt::AccessibleTextRole), u"worker, ended"_s);
    pressIn(0, 0);
    EXPECT_EQ(logged(), QStringList()) << "what has ended has no buttons";
    pressIn(1, 0);
    EXPECT_EQ(table->model()->index(1, 0).data(Qt::AccessibleTextRole), u"worker"_s);
    tick();
    EXPECT_EQ(table->model()->index(1, 0).data(Qt::AccessibleTextRole), u"worker, asked to end"_s);
    QTest::keyClick(table, Qt::Key_Escape);
    table->clearFocus();
    QTest::mouseMove(&view, QPoint(5, 5));
    tick();
    EXPECT_EQ(column(u"PID"_s), (QStringList{u"103"_s, u"104"_s, u"101"_s}));
}

TEST_F(ProcessesViewTest, SeveralRowsAreEndedAfterOneQuestion) {
    addProcesses(3, "worker", 100 * MiB);
    show();
    choose(0);
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_EQ(logged(), QStringList{u"quit pid=100 ok"_s}) << "one row is not asked about";
    QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_End, Qt::ShiftModifier);
    QTest::keyClick(table, Qt::Key_Delete, Qt::ShiftModifier);
    ASSERT_TRUE(dialog());
    EXPECT_EQ(dialog()->windowTitle(), u"Force kill 2 processes?"_s);
    EXPECT_EQ(logged().size(), 1);
    press(*dialog(), u"Force kill 2"_s);
    EXPECT_EQ(logged(),
              (QStringList{u"forceKill pid=102 ok"_s, u"forceKill pid=101 ok"_s, u"quit pid=100 ok"_s}));
    settle();
    table->selectAll();
    auto* menu = menuOf(0);
    entry(*menu, u"Quit 3 rows…"_s)->trigger();
    delete menu;
    ASSERT_TRUE(dialog());
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_EQ(logged().size(), 3);
}

TEST_F(ProcessesViewTest, WhatALoginDependsOnHasNoButtonAndIsAskedAbout) {
    addProcesses(1, "Xorg", 300 * MiB);
    addProcesses(1, "bash", 200 * MiB);
    addProcesses(1, "bash", 100 * MiB);
    fakes.identity->pid = 103;
    addProcesses(1, "tavrin", 60 * MiB);
    child(103, 102);
    show();
    pressIn(0, 0);
    pressIn(2, 0);
    EXPECT_EQ(logged(), QStringList());
    EXPECT_EQ(table->model()->index(2, 7).data(Qt::AccessibleTextRole), QString());
    EXPECT_EQ(table->model()->index(1, 7).data(Qt::AccessibleTextRole),
              u"bash: Quit one, Force kill one, Nuke all 2 “bash” processes"_s);
    choose(2);
    QTest::keyClick(table, Qt::Key_Delete);
    ASSERT_TRUE(dialog());
    EXPECT_TRUE(shownNames<QWidget>(*dialog()).join(u' ').contains(
        u"Tavrin was started from it and may end with it"_s));
    press(*dialog(), u"Quit"_s);
    EXPECT_EQ(logged(), QStringList{u"quit pid=102 ok"_s});
    settle();
    auto* menu = menuOf(0);
    EXPECT_FALSE(entry(*menu, u"Quit one"_s));
    entry(*menu, u"Force kill…"_s)->trigger();
    delete menu;
    ASSERT_TRUE(dialog());
    QTest::keyClick(dialog(), Qt::Key_Escape);
    settle();
    foldDuplicates();
    pressIn(1, 0); // both bash
    EXPECT_EQ(logged().size(), 1);
}

TEST_F(ProcessesViewTest, TheInspectorReadsWhatItShowsAndHidesSecrets) {
    addProcesses(1, "zsh", 100 * MiB);
    addProcesses(1, "node", 300 * MiB);
    child(101, 100);
    FakeProcessDetails& details = *fakes.processDetails;
    details.folders = {{101, "/home/ada/src/app"}};
    details.commandLines = {{101, {"node", "it's a server.js"}}};
    details.groups = {{101, "/user.slice"}};
    details.files = {{101, {.count = 250, .first = {"/dev/null", "socket:[7]"}}}};
    details.environments = {{101, {"HOME=/home/ada", "API_KEY=abc", "DB=pg://me:pw@host/x", "EMPTY"}}};
    details.users = {{1000, u"ada"_s}};
    fakes.listeningPorts->listening = {{.id = 7, .uid = 1000, .port = 5173}};
    fakes.listeningPorts->byProcess = {{101, {7}}};
    fakes.processMemory->all[101] = {.uniqueBytes = 200 * MiB, .swapBytes = 5 * MiB};
    show();
    choose(0);
    auto* panel = view.findChild<InspectorPanel*>();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(fakes.listeningPorts->searched.isEmpty()) << "nothing is read before it is on show";
    QTest::keyClick(table, Qt::Key_Return);
    ASSERT_TRUE(panel->isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return showsText(*panel, u"/home/ada/src/app"_s); }));
    EXPECT_TRUE(showsText(*panel, u"Listens on :5173"_s));
    EXPECT_TRUE(showsText(*panel, u"250 open files, listens on :5173"_s));
    press(*panel, u"Copy the command"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"node 'it'\\''s a server.js'"_s);
    press(*panel, u"Show files"_s);
    settle();
    EXPECT_TRUE(shownNames<QWidget>(*panel).contains(u"socket:[7]"_s));
    EXPECT_EQ(details.environmentReadings, 0);
    press(*panel, u"Show environment"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return shownNames<QWidget>(*panel).contains(u"HOME, /home/ada"_s); }));
    EXPECT_TRUE(shownNames<QWidget>(*panel).contains(u"API_KEY, hidden, as it may be a secret"_s));
    EXPECT_TRUE(shownNames<QWidget>(*panel).contains(u"DB, hidden, as it may be a secret"_s));
    model.memoryLedger().waitForSlice();
    fakes.clock->advance(2);
    tick();
    EXPECT_EQ(panel->findChild<MemoryKindsBar*>()->accessibleName(),
              u"Own 200 MB, Shared 100 MB, In swap 5 MB"_s);
    auto* memory = panel->findChildren<Graph*>()[1];
    EXPECT_EQ(memory->accessibleName(), u"Memory, 300 MB"_s);
    QTest::keyClick(memory, Qt::Key_Left);
    EXPECT_EQ(memory->accessibleName().count(u", "_s), 2) << "with the time of the moment";
    press(*panel, u"Quit node"_s);
    EXPECT_EQ(logged(), QStringList{u"quit pid=101 ok"_s});
    press(*panel, u"zsh (100)"_s); // its parent
    EXPECT_EQ(table->currentIndex().row(), 1);
    EXPECT_TRUE(showsText(*panel, u"zsh"_s));
    fakes.processes->remove(100);
    tick();
    EXPECT_TRUE(showsText(*panel, u"It has ended."_s));
    EXPECT_FALSE(buttonNamed(*panel, u"Quit zsh"_s)->isEnabled());
    EXPECT_EQ(prefs.file().boolean(u"ui.processes.details"_s), true) << "the next start shows it too";
    press(*panel, u"Close the details"_s);
    EXPECT_FALSE(panel->isVisible());
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
    EXPECT_EQ(widthsOfAnother().mid(1), (QList<int>{156, 81, 62, 84, 62, 70, 92}));
}

TEST_F(ProcessesViewTest, WidthsByPositionAreTakenOverOnce) {
    const QString flat = u"ui.processes.columns"_s;
    const QString old = u"ui.processes.widths"_s;
    prefs.file().store(old, u"410 140 x 99999 90 -1 70"_s);
    prefs.file().store(u"ui.processes.groupedWidths"_s, u"500 130 63 85 64 100"_s);
    EXPECT_EQ(widthsOfAnother().mid(1), (QList<int>{140, 62, 62, 90, 62, 70, 92}));
    for (const QString& dropped : {old, u"ui.processes.groupedWidths"_s})
        EXPECT_FALSE(Preferences(prefs.file().path()).file().text(dropped));
    EXPECT_EQ(prefs.file().text(u"ui.processes.groupedColumns"_s)->section(u' ', 1),
              u"group=130 cpu=63 ram=85 procs=64 actions=100"_s);
    prefs.file().store(flat, u"pid=77"_s);
    prefs.file().store(old, u"410 140"_s); // what an older version left behind goes, whatever it was
    EXPECT_EQ(widthsOfAnother().mid(1), (QList<int>{156, 77, 62, 84, 62, 62, 92}));
    EXPECT_FALSE(prefs.file().text(old));
}
