#include "UI/Settings/HistoryTab.h"

#include "Core/Formatters.h"
#include "UI/Controls.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/TableView.h"
#include "UI/ModelFixture.h"
#include "UI/Settings/LocalTimeText.h"
#include "support/Files.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QToolTip>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

const QByteArray fourLines = "2026-11-16T10:00:00Z\tquit\tok\t1048576\tBrowser\n"
                             "2026-11-16T10:00:03Z\tclean\tok\t3145728\tnpm\n"
                             "2026-11-16T10:00:01Z\tforceKill\tfail\t0\tcode\n"
                             "2026-11-16T10:00:02Z\tpurge\tok\t2097152\tby a later version\n";

struct HistoryTabTest : testing::Test {
    TemporaryHome home;
    QString file = home.makeFile(u"Library/Logs/Tavrin/actions.log"_s, fourLines);
    HistoryTab tab;
    TableView* table = tab.findChild<TableView*>();
    QAbstractItemModelTester tester{table->model()};

    void show() {
        tab.resize(640, 390);
        tab.show();
    }
    void write(const QByteArray& content) { home.makeFile(u"Library/Logs/Tavrin/actions.log"_s, content); }
    QStringList column(int section) const { return columnOf(*table->model(), section); }
    QStringList details() const { return column(2); }
    bool isEmpty() const { return showsText(tab, u"No actions logged yet."_s) && !table->isVisibleTo(&tab); }
    void clickHead(int section) {
        const QHeaderView* head = table->header();
        QTest::mouseClick(head->viewport(), Qt::LeftButton, {},
                          QPoint(head->sectionViewportPosition(section) + 12, 10));
    }
    void exportAs(const QString& name, QDialogButtonBox::StandardButton answer = QDialogButtonBox::Save) {
        press(tab, u"Export CSV…"_s);
        const QPointer<QFileDialog> panel = tab.findChild<QFileDialog*>();
        ASSERT_TRUE(panel);
        EXPECT_EQ(panel->selectedFiles().value(0).section(u'/', -1), u"tavrin-actions.csv"_s);
        panel->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(name);
        QTest::mouseClick(panel->findChild<QDialogButtonBox*>()->button(answer), Qt::LeftButton);
        settle();
        ASSERT_FALSE(panel);
    }
    /// Answers the question whether to replace a file, once it comes up.
    static void answerSoon(QMessageBox::StandardButton answer) {
        QTimer::singleShot(50, qApp, [answer] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            QTest::mouseClick(box->button(answer), Qt::LeftButton);
        });
    }
};

} // namespace

TEST(LocalTimeTextTest, AsTheLocaleWritesIt) {
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "UTC-1");
    tzset();
    const Instant instant{std::chrono::seconds(1'794'839'023)};
    const std::pair<QString, QString> cases[] = {
        {u"en_US"_s, u"Nov 16, 2026 3:23:43 PM"_s}, {u"de_DE"_s, u"16. Nov. 2026 15:23:43"_s},
        {u"fr_FR"_s, u"16 nov. 2026 15:23:43"_s},   {u"da_DK"_s, u"16. nov. 2026 15.23.43"_s},
        {u"hu_HU"_s, u"2026. nov. 16. 15:23:43"_s}, {u"ja_JP"_s, u"2026年11月16日 15時23分43秒"_s},
        {u"C"_s, u"16 Nov 2026 15:23:43"_s}};
    for (const auto& [locale, expected] : cases)
        EXPECT_EQ(LocalTimeText(QLocale(locale)).of(instant), expected) << locale.toStdString();
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    tzset();
}

TEST_F(HistoryTabTest, ListsTheFileNewestFirst) {
    EXPECT_TRUE(details().isEmpty());
    show();
    EXPECT_EQ(details(), (QStringList{u"npm"_s, u"by a later version"_s, u"code"_s, u"Browser"_s}));
    EXPECT_EQ(column(1), (QStringList{u"clean"_s, u"purge"_s, u"forceKill"_s, u"quit"_s}));
    EXPECT_EQ(column(3), (QStringList{u"3 MB"_s, u"2 MB"_s, u"0 bytes"_s, u"1 MB"_s}));
    EXPECT_EQ(column(4), (QStringList{u"OK"_s, u"OK"_s, u"Failed"_s, u"OK"_s}));
    EXPECT_FALSE(isEmpty());
}

TEST_F(HistoryTabTest, FiltersByKind) {
    show();
    choose(tab, u"Kind"_s, u"Force kill"_s);
    EXPECT_EQ(details(), QStringList(u"code"_s));
    choose(tab, u"Kind"_s, u"Quit"_s);
    EXPECT_EQ(details(), QStringList(u"Browser"_s));
    write("2026-11-16T10:00:00Z\tquit\tok\t1\tone\n2026-11-16T10:00:00Z\tQuit\tok\t1\tno such kind\n");
    press(tab, u"Refresh"_s);
    EXPECT_EQ(details(), QStringList(u"one"_s));
    choose(tab, u"Kind"_s, u"Clean"_s);
    EXPECT_TRUE(isEmpty());
    press(tab, u"Show all kinds"_s);
    EXPECT_EQ(details().size(), 2);
}

TEST_F(HistoryTabTest, ReadsWhenItAppearsAndOnRefreshOnly) {
    show();
    write(fourLines + "2026-11-16T10:00:09Z\tquit\tok\t1\tlate\n");
    QTest::qWait(30);
    EXPECT_EQ(details().first(), u"npm"_s);
    QTest::keyClick(&tab, Qt::Key_F5);
    EXPECT_EQ(details().first(), u"late"_s);
    table->setCurrentIndex(table->model()->index(3, 0));
    press(tab, u"Refresh"_s);
    EXPECT_EQ(table->currentIndex().row(), 3); // nothing new: nothing moves
    QFile::remove(file);
    tab.hide();
    tab.show();
    EXPECT_TRUE(isEmpty());
}

TEST_F(HistoryTabTest, HeadsSortAndTheSelectionStaysWithItsRow) {
    show();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      table->visualRect(table->model()->index(2, 0)).center());
    const QStringList newestFirst = details();
    clickHead(3);
    EXPECT_EQ(column(3), (QStringList{u"3 MB"_s, u"2 MB"_s, u"1 MB"_s, u"0 bytes"_s}));
    EXPECT_EQ(table->selectionModel()->selectedRows().value(0).row(), 3);
    clickHead(3);
    EXPECT_EQ(column(3).first(), u"0 bytes"_s);
    EXPECT_EQ(table->currentIndex().siblingAtColumn(2).data(), u"code"_s);
    clickHead(2);
    EXPECT_EQ(details(), (QStringList{u"Browser"_s, u"by a later version"_s, u"code"_s, u"npm"_s}));
    clickHead(4);
    EXPECT_EQ(details(), (QStringList{u"code"_s, u"npm"_s, u"by a later version"_s, u"Browser"_s}));
    choose(tab, u"Kind"_s, u"Clean"_s);
    choose(tab, u"Kind"_s, u"All"_s);
    EXPECT_EQ(details().first(), u"code"_s);
    clickHead(0);
    EXPECT_EQ(details(), newestFirst);
    clickHead(0);
    EXPECT_EQ(details().first(), u"Browser"_s);
}

TEST_F(HistoryTabTest, WhatComesFromOutsideStaysPlainAndVisible) {
    write("2026-11-16T10:00:00Z\tcl\x1b[2Jean\tok\t1\t<b>a</b>\t&amp; \xe2\x80\xaetxt.exe\x07\n"
          "2026-11-16T10:00:00Z\tquit\tok\t1\t" +
          QByteArray(1 << 20, 'x') + "<i>\n");
    show();
    EXPECT_EQ(column(1).first(), u"cl␛[2Jean"_s);
    EXPECT_EQ(details().first(), u"<b>a</b>␉&amp; \ufffdtxt.exe␇"_s);
    const auto toolTip = [this](int row, int section) {
        const QPoint at = table->visualRect(table->model()->index(row, section)).center();
        QHelpEvent help(QEvent::ToolTip, at, table->viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(table->viewport(), &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    EXPECT_EQ(toolTip(0, 2), QString());
    const QString cut = toolTip(1, 2);
    EXPECT_TRUE(cut.contains(u">xxx"_s) && cut.endsWith(u"x…</p>"_s) && cut.size() < 5000);
    table->header()->resizeSection(0, 340);
    EXPECT_EQ(toolTip(0, 2), Formatters::toolTip(u"<b>a</b>␉&amp; \ufffdtxt.exe␇"_s));
    tab.grab(); // a megabyte in one cell is painted
}

TEST_F(HistoryTabTest, CopiesTheSelectedRows) {
    show();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Home);
    QTest::keyClick(table, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    const QStringList times = column(0);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), times[0] + u"\tclean\tnpm\t3 MB\tOK\n"_s + times[1] +
                                                        u"\tpurge\tby a later version\t2 MB\tOK"_s);
}

TEST_F(HistoryTabTest, ExportsEveryRowWhateverIsShown) {
    show();
    choose(tab, u"Kind"_s, u"Quit"_s);
    const QString target = home.path(u"out.csv"_s);
    exportAs(home.path(u"out"_s), QDialogButtonBox::Cancel);
    EXPECT_FALSE(QFileInfo::exists(target));
    exportAs(home.path(u"out"_s)); // the suffix is added
    press(tab, u"Export CSV…"_s);
    QTest::keyClick(tab.findChild<QFileDialog*>()->findChild<QLineEdit*>(), Qt::Key_Return); // as proposed
    EXPECT_EQ(contentOf(home.path(u"tavrin-actions.csv"_s)), contentOf(target));
    EXPECT_EQ(contentOf(target), "timestamp,kind,success,freed_bytes,detail\n"
                                 "2026-11-16T10:00:03Z,clean,true,3145728,\"npm\"\n"
                                 "2026-11-16T10:00:02Z,purge,true,2097152,\"by a later version\"\n"
                                 "2026-11-16T10:00:01Z,forceKill,false,0,\"code\"\n"
                                 "2026-11-16T10:00:00Z,quit,true,1048576,\"Browser\"\n");
}

TEST_F(HistoryTabTest, AFailedExportLeavesTheOlderFile) {
    show();
    const QString target = home.makeFile(u"old.csv"_s, "older");
    {
        const FullDisk full(100);
        answerSoon(QMessageBox::Yes);
        exportAs(home.path(u"old"_s));
    }
    EXPECT_EQ(contentOf(target), "older");
    EXPECT_TRUE(showsText(tab, u"The log was not exported. Choose another place."_s));
    EXPECT_EQ(QDir(home.path()).entryList({u"*old*"_s}), QStringList(u"old.csv"_s));
    answerSoon(QMessageBox::Yes);
    exportAs(home.path(u"old"_s));
    EXPECT_TRUE(contentOf(target).startsWith("timestamp,"));
    EXPECT_FALSE(showsText(tab, u"The log was not exported. Choose another place."_s));
    answerSoon(QMessageBox::Yes);
    exportAs(file);
    EXPECT_EQ(contentOf(file), fourLines); // the log is no place for its own export
}

TEST_F(HistoryTabTest, ClearsOnlyWhenConfirmed) {
    show();
    for (const Qt::Key leave : {Qt::Key_Escape, Qt::Key_Return}) {
        press(tab, u"Clear log"_s);
        auto* dialog = tab.findChild<ConfirmDialog*>();
        ASSERT_TRUE(dialog);
        EXPECT_TRUE(showsText(*dialog, u"Clear action history?"_s));
        EXPECT_TRUE(showsText(*dialog, u"This deletes ~/Library/Logs/Tavrin/actions.log."_s));
        QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, leave);
        settle();
        EXPECT_EQ(contentOf(file), fourLines);
        EXPECT_EQ(details().size(), 4);
    }
    press(tab, u"Clear log"_s);
    press(*tab.findChild<ConfirmDialog*>(), u"Clear all"_s);
    EXPECT_EQ(contentOf(file), "");
    EXPECT_TRUE(isEmpty());
    write("2026-11-16T10:00:00Z\tquit\tok\t1\tnext\n");
    press(tab, u"Refresh"_s);
    EXPECT_EQ(details(), QStringList(u"next"_s));
}
