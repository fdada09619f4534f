#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/Slider.h"
#include "UI/Kit/Switch.h"
#include "UI/ModelFixture.h"

#include <QSignalSpy>
#include <QTest>

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
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(dialog.isNull());
    }
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
    LabeledSlider slider(u"Size: "_s, u" MB"_s, {50, 2000, 50}, 300, 200);
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
