#include "Core/Formatters.h"
#include "UI/Controls.h"
#include "UI/Kit/Accessibility.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/KeptFocus.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/PopUpButton.h"
#include "UI/Kit/SizeList.h"
#include "UI/Kit/Slider.h"
#include "UI/Kit/TableView.h"
#include "UI/ModelFixture.h"
#include "UI/Style/Painting.h"

#include <QAccessible>
#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
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

namespace {

QImage drawnCard(double scale, const QRectF& area, const QTransform& transform) {
    QImage result((QSizeF(120, 300) * scale).toSize(), QImage::Format_RGB32);
    result.setDevicePixelRatio(scale);
    result.fill(Qt::darkCyan);
    QPainter painter(&result);
    painter.setTransform(transform);
    Painting::drawCard(painter, area, 12, Qt::white, QColor(0, 0, 0, 80));
    return result;
}

int greatestDifference(const QImage& one, const QImage& other) {
    int result = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            result = std::max({result, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                               std::abs(qBlue(a) - qBlue(b))});
        }
    }
    return result;
}

} // namespace

TEST(PaintingTest, ACardLooksTheSameHoweverItIsDrawn) {
    const QTransform mirrored = QTransform::fromScale(-1, 1).translate(-120, 0);
    for (const double scale : {1.0, 1.25, 4.0 / 3, 1.5, 2.0}) {
        for (const QRectF area : {QRectF(12, 8, 96, 280), QRectF(12, 8, 36, 36), QRectF(12, 8, 35, 60),
                                  QRectF(12.25, 8.5, 90.5, 270)}) {
            const QImage card = drawnCard(scale, area, {});
            const QRectF reflected(120 - area.right(), area.top(), area.width(), area.height());
            EXPECT_LE(greatestDifference(card, drawnCard(scale, reflected, mirrored)), 2) << scale;
        }
    }
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
    notice.move(500, 400); // away from the pointer
    notice.findChild<QPushButton*>()->setFocusPolicy(Qt::NoFocus);
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
    LabeledSlider slider(u"Size: %1 MB"_s, {50, 2000, 50}, 300, {200});
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

TEST(AccessibilityTest, AChildThatHasGoneIsNoChild) {
    Accessibility::install();
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

TEST(AccessibilityTest, AToggledControlActsAsAClickedOne) {
    Accessibility::install();
    QCheckBox box(u"Other programs too"_s);
    QSignalSpy clicked(&box, &QCheckBox::clicked);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&box);
    EXPECT_EQ(spoken->role(), QAccessible::CheckBox);
    EXPECT_EQ(spoken->text(QAccessible::Name), box.text());
    spoken->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(box.isChecked() && spoken->state().checked);
    EXPECT_EQ(clicked.size(), 1);
}

TEST(AccessibilityTest, SteppersSlidersAndPickersSayWhatTheyAreAndHold) {
    Accessibility::install();
    StepperRow row({u"Load"_s, u"%1%"_s}, {50, 100, 5});
    row.setValue(85);
    QAccessibleInterface* stepper = QAccessible::queryAccessibleInterface(row.focusProxy());
    EXPECT_EQ(stepper->role(), QAccessible::SpinBox);
    ASSERT_TRUE(stepper->valueInterface());
    EXPECT_EQ(stepper->valueInterface()->currentValue(), 85);
    stepper->valueInterface()->setCurrentValue(200);
    EXPECT_EQ(row.value(), 100);

    const LabeledSlider slider(u"Size: %1 MB"_s, {50, 2000, 50}, 300, {200});
    QAccessibleInterface* knob = QAccessible::queryAccessibleInterface(slider.focusProxy());
    EXPECT_EQ(knob->valueInterface()->currentValue(), 300);
    EXPECT_EQ(knob->valueInterface()->maximumValue(), 2000);

    PopUpButton picker(u"Sort"_s);
    picker.addItems({u"RAM"_s, u"CPU"_s});
    QAccessibleInterface* choices = QAccessible::queryAccessibleInterface(&picker);
    EXPECT_EQ(choices->text(QAccessible::Name), u"Sort"_s);
    EXPECT_EQ(choices->text(QAccessible::Value), u"RAM"_s);
}

TEST(AccessibilityTest, ATableSaysItsRowsColumnsAndHeads) {
    Accessibility::install();
    QStandardItemModel model(3, 2);
    model.setHorizontalHeaderLabels({u"Name"_s, u"RAM"_s});
    model.setItem(1, 1, new QStandardItem(u"5 MB"_s));
    model.item(1, 1)->setData(u"five megabytes"_s, Qt::AccessibleTextRole);
    TableView view(u"Things"_s);
    view.setModel(&model);
    view.show();
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(spoken->role(), QAccessible::Table);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Things"_s);
    QAccessibleTableInterface* table = spoken->tableInterface();
    ASSERT_TRUE(table);
    EXPECT_EQ(std::pair(table->rowCount(), table->columnCount()), std::pair(3, 2));
    QAccessibleInterface* cell = table->cellAt(1, 1);
    ASSERT_TRUE(cell && cell->tableCellInterface());
    EXPECT_EQ(cell->text(QAccessible::Name), u"five megabytes"_s);
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(cell->tableCellInterface()->columnHeaderCells().value(0)->text(QAccessible::Name), u"RAM"_s);
    EXPECT_EQ(spoken->child(spoken->indexOfChild(cell)), cell);
    EXPECT_EQ(spoken->indexOfChild(cell), 2 * 2 + 1) << "as Qt numbers it when the focus moves";
    cell->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(view.currentIndex(), model.index(1, 1));
    EXPECT_TRUE(table->isRowSelected(1) && cell->state().selected);
    EXPECT_EQ(spoken->childAt(cell->rect().center().x(), cell->rect().center().y()), cell);
    model.removeRows(1, 2);
    EXPECT_FALSE(cell->isValid());
    EXPECT_EQ(cell->text(QAccessible::Name), QString());
    EXPECT_EQ(table->cellAt(1, 1), nullptr);
    model.clear();
    EXPECT_EQ(spoken->childCount(), 0);
}

TEST(AccessibilityTest, PopUpsAreInTheTreeAndDescriptionsArePlain) {
    Accessibility::install();
    QWidget panel(nullptr, Qt::Popup);
    panel.setToolTip(Formatters::toolTip(u"/opt/<b>app</b>"_s));
    panel.show();
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&panel);
    EXPECT_EQ(spoken->text(QAccessible::Description), u"/opt/<b>app</b>"_s);
    EXPECT_EQ(spoken->role(), QAccessible::Window);
    EXPECT_GE(QAccessible::queryAccessibleInterface(qApp)->indexOfChild(spoken), 0);
}

TEST(KeptFocusTest, AControlThatIsDisabledForAWhileGetsTheFocusBack) {
    QWidget window;
    auto* rescan = new QPushButton(u"Rescan"_s, &window);
    auto* other = new QPushButton(u"Other"_s, &window);
    other->move(0, 40);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    rescan->setFocus();
    KeptFocus::setEnabled(rescan, false);
    EXPECT_FALSE(other->hasFocus());
    KeptFocus::setEnabled(rescan, true);
    EXPECT_TRUE(rescan->hasFocus());
    KeptFocus::setVisible(rescan, false);
    other->setFocus();
    KeptFocus::setVisible(rescan, true);
    EXPECT_TRUE(other->hasFocus());
}

TEST(NoticeTest, StaysWhileThePointerIsOverIt) {
    Notice notice(u"checkmark.seal.fill"_s, 20ms);
    notice.move(500, 400);
    notice.findChild<QPushButton*>()->setFocusPolicy(Qt::NoFocus);
    notice.show(u"Done"_s, u"not all"_s);
    EXPECT_EQ(notice.accessibleName(), u"Done. not all"_s);
    notice.setAttribute(Qt::WA_UnderMouse);
    EXPECT_FALSE(QTest::qWaitFor([&] { return notice.isHidden(); }, 100));
    notice.setAttribute(Qt::WA_UnderMouse, false);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&notice, &leave);
    EXPECT_TRUE(notice.isHidden());
}

TEST(NoticeTest, StaysWhileItsButtonHasTheFocus) {
    QWidget window;
    window.setFocusPolicy(Qt::StrongFocus);
    window.resize(800, 600);
    Notice notice(u"checkmark.seal.fill"_s, 20ms, &window);
    notice.setGeometry(400, 300, 300, 60); // away from the pointer
    window.show();
    QApplication::setActiveWindow(&window);
    notice.show(u"Done"_s);
    notice.findChild<QPushButton*>()->setFocus();
    EXPECT_FALSE(QTest::qWaitFor([&] { return notice.isHidden(); }, 100));
    window.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&] { return notice.isHidden(); }, 1000));
}
