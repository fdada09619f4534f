#include "Core/Formatters.h"
#include "UI/Controls.h"
#include "UI/Kit/AccessibleScrollArea.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/SizeList.h"
#include "UI/Kit/Slider.h"
#include "UI/ModelFixture.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextDocument>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(ConfirmDialogTest, EveryWayOutButItsOwnButtonIsTheSafeOne) {
    for (const auto leave : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space}) {
        QPointer<ConfirmDialog> dialog = new ConfirmDialog(nullptr, u"<b>Sure?</b>"_s, u"One.\n\nTwo."_s);
        auto* act = dialog->addAction(u"Act & go"_s, PushButton::Look::destructive);
        QSignalSpy acted(act, &QPushButton::clicked);
        dialog->open();
        EXPECT_TRUE(showsText(*dialog, u"<b>Sure?</b>"_s));
        EXPECT_FALSE(act->isDefault() || act->autoDefault());
        QWidget* focused = dialog->focusWidget();
        QTest::keyClick(focused ? focused : dialog, leave);
        EXPECT_FALSE(dialog->isVisible()) << leave;
        EXPECT_TRUE(acted.isEmpty()) << leave;
        settle();
        EXPECT_TRUE(dialog.isNull());
    }
}

TEST(ConfirmDialogTest, ALongListIsScrolledByKeyboard) {
    QPointer<ConfirmDialog> dialog = new ConfirmDialog(nullptr, u"Sure?"_s, u"One."_s);
    auto* list = new SizeList(u"What goes"_s);
    for (int i = 0; i < 40; ++i)
        list->addRow({.name = u"<b>%1\n"_s.arg(i), .figure = u"1 KB"_s, .detail = u"small print"_s});
    list->fit(ConfirmDialog::textWidth, 200);
    dialog->addContent(list);
    dialog->open();
    EXPECT_EQ(list->size(), QSize(ConfirmDialog::textWidth, 200));
    EXPECT_LE(dialog->height(), 400);
    EXPECT_TRUE(shownNames<QWidget>(*list).contains(u"<b>7␊, 1 KB, small print"_s));
    EXPECT_TRUE(list->focusPolicy() & Qt::TabFocus);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_GT(list->verticalScrollBar()->value(), 0);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
}

TEST(PushButtonTest, AnEscapedAmpersandIsReadOnce) {
    EXPECT_EQ(PushButton(u"R&&D"_s).sizeHint(), PushButton(u"R&D"_s).sizeHint());
}

TEST(ToolTipTest, ShowsAnyTextAsItStands) {
    for (const QString& text : {u"/home/R&D/\"x\" > y"_s, u"a <b>bold</b> &amp; &lt;"_s,
                                u"two\nlines,  two  blanks"_s, u"plain"_s}) {
        ASSERT_TRUE(Qt::mightBeRichText(Formatters::toolTip(text))) << qPrintable(text);
        QTextDocument shown;
        shown.setHtml(Formatters::toolTip(text));
        EXPECT_EQ(shown.toPlainText(), text);
    }
    EXPECT_EQ(Formatters::toolTip({}), QString());
}

TEST(NoticeTest, ALaterTextStaysItsWholeTime) {
    Notice notice(u"bolt.fill"_s, 200ms);
    EXPECT_FALSE(notice.isVisible());
    notice.show(u"one"_s);
    QTest::qWait(130);
    notice.show(u"two"_s);
    QTest::qWait(130);
    EXPECT_TRUE(notice.isVisible());
    EXPECT_EQ(notice.accessibleName(), u"two"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !notice.isVisible(); }, 2000));
}

TEST(SliderTest, MovesByStepsUnderMouseAndKeys) {
    LabeledSlider slider(u"Size: %1 MB"_s, {50, 2000, 50}, 300, 200);
    slider.show();
    EXPECT_EQ(slider.value(), 300);
    auto* knob = slider.findChild<Slider*>();
    QTest::keyClick(knob, Qt::Key_Right);
    EXPECT_TRUE(showsText(slider, u"Size: 350 MB"_s));
    QTest::mouseClick(knob, Qt::LeftButton, {}, QPoint(199, 10));
    EXPECT_EQ(slider.value(), 2000);
    QTest::mousePress(knob, Qt::LeftButton, {}, QPoint(192, 10));
    EXPECT_EQ(slider.value(), 2000); // on the knob: nothing moves before the pointer does
    QTest::mouseMove(knob, QPoint(-50, 10));
    QTest::mouseRelease(knob, Qt::LeftButton, {}, QPoint(-50, 10));
    EXPECT_EQ(slider.value(), 50);
    EXPECT_EQ(knob->accessibleName(), u"Size: 50 MB"_s);
}

TEST(StepperTest, StepsWithinItsRangeAndComesBackIntoIt) {
    const StepperRow::Look gigabytes{u"Free"_s, u"%1 GB"_s, 1};
    const StepperRow::Look percent{u"Load"_s, u"%1%"_s};
    const std::tuple<StepperRow::Look, Stepper::Range, double, QString, Qt::Key, double> cases[] = {
        {gigabytes, {0.5, 16, 0.5}, 2, u"Free 2.0 GB"_s, Qt::Key_Up, 2.5},
        {gigabytes, {0.5, 16, 0.5}, 16, u"Free 16.0 GB"_s, Qt::Key_Right, 16},
        {gigabytes, {0.5, 16, 0.5}, 0.5, u"Free 0.5 GB"_s, Qt::Key_Down, 0.5},
        {percent, {50, 100, 5}, 98, u"Load 98%"_s, Qt::Key_Up, 100},
        {percent, {50, 100, 5}, 87.9, u"Load 87%"_s, Qt::Key_Home, 50},
        {percent, {50, 100, 5}, -3, u"Load -3%"_s, Qt::Key_Left, 50},
        {percent, {50, 100, 5}, -0.9, u"Load 0%"_s, Qt::Key_Up, 50},
        {percent, {50, 100, 5}, 400, u"Load 400%"_s, Qt::Key_Up, 100},
        {percent, {50, 100, 5}, 1e300, u"Load 1"_s, Qt::Key_Down, 100},
        {{u"Min %1 MB"_s, {}}, {0, 4000, 50}, 500, u"Min 500 MB"_s, Qt::Key_End, 4000},
    };
    for (const auto& [look, range, stored, shown, key, after] : cases) {
        StepperRow row(look, range);
        row.setValue(stored);
        row.show();
        EXPECT_TRUE(row.accessibleName().startsWith(shown)) << qPrintable(row.accessibleName());
        EXPECT_EQ(row.value(), stored);
        QSignalSpy stepped(&row, &StepperRow::stepped);
        QTest::keyClick(row.findChild<Stepper*>(), key);
        EXPECT_EQ(row.value(), after) << qPrintable(shown);
        EXPECT_EQ(stepped.size(), stored == after ? 0 : 1);
    }
}

TEST(StepperTest, HalvesEndWithTheRangeAndRepeatWhilePressed) {
    StepperRow row({u"Load"_s, u"%1%"_s}, {50, 60, 5});
    row.setValue(40);
    row.show();
    click(row, u"Less"_s);
    EXPECT_EQ(row.value(), 50);
    EXPECT_FALSE(control<QAbstractButton>(row, u"Less: Load 50%"_s)->isEnabled());
    auto* more = control<QAbstractButton>(row, u"More"_s);
    QTest::mousePress(more, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return row.value() == 60; }, 3000));
    EXPECT_FALSE(more->isEnabled());
    QTest::mouseRelease(more, Qt::LeftButton);
    EXPECT_EQ(row.value(), 60);
}

TEST(AccessibleScrollAreaTest, AChildThatHasGoneIsNoChild) {
    installAccessibleScrollAreas();
    SizeList list(u"What goes"_s);
    list.show();
    QAccessibleInterface* area = QAccessible::queryAccessibleInterface(&list);
    const int count = area->childCount();
    ASSERT_GT(count, 0);
    EXPECT_EQ(area->text(QAccessible::Name), u"What goes"_s);
    EXPECT_EQ(area->child(0)->object(), list.viewport());
    for (const int index : {-1, count, count + 1000})
        EXPECT_EQ(area->child(index), nullptr) << index;
}
