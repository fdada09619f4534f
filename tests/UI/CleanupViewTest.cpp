#include "UI/Cleanup/CleanupView.h"

#include "UI/Cleanup/CacheCard.h"
#include "UI/Cleanup/CacheDetailDrawer.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/Spinner.h"
#include "UI/ModelFixture.h"

#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

struct CleanupViewTest : ModelFixture {
    QWidget window;
    CleanupView* view = new CleanupView(model, &window);

    CleanupViewTest() {
        fillNpmFolder();
        window.resize(900, 700);
        view->resize(900, 700);
        window.show();
        tick();
    }
    void rescan() {
        press(*view, u"Rescan"_s);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !model.isScanning(); }, 2000));
        tick();
    }
    QStringList cards() { return shownNames<CacheCard>(*view); }
    QPointer<ConfirmDialog> dialog() { return window.findChild<ConfirmDialog*>(); }
};

} // namespace

TEST_F(CleanupViewTest, NothingIsKnownBeforeTheFirstScan) {
    EXPECT_EQ(cards().size(), CacheTarget::defaults().size());
    EXPECT_EQ(cards()[0], u"npm / pnpm / yarn, 0 bytes, Not scanned yet"_s);
    EXPECT_TRUE(showsText(*view, u"Reclaimable: 0 bytes"_s));
    EXPECT_FALSE(buttonNamed(*view, u"Clean All"_s)->isEnabled());
}

TEST_F(CleanupViewTest, ScanningShowsHowFarItIs) {
    fakes.tools->held = true;
    press(*view, u"Rescan"_s);
    tick();
    EXPECT_FALSE(buttonNamed(*view, u"Rescan"_s)->isEnabled());
    EXPECT_FALSE(shownNames<Spinner>(*view).isEmpty());
    while (model.isScanning()) {
        fakes.tools->held = false; // whatever follows is answered at once
        for (const ToolRequest& request : QList<ToolRequest>(fakes.tools->requests))
            fakes.tools->release(request.arguments.last());
        QCoreApplication::processEvents();
    }
    tick();
    EXPECT_TRUE(buttonNamed(*view, u"Rescan"_s)->isEnabled());
    EXPECT_TRUE(shownNames<Spinner>(*view).isEmpty());
}

TEST_F(CleanupViewTest, TheDrawerCleansOnlyAfterAsking) {
    rescan();
    EXPECT_EQ(cards()[0], u"npm / pnpm / yarn, 2 MB, Scanned just now"_s);
    fakes.clock->advance(300);
    tick();
    EXPECT_EQ(cards()[0], u"npm / pnpm / yarn, 2 MB, Scanned 5 minutes ago"_s);
    QTest::mouseClick(view->findChildren<CacheCard*>()[0], Qt::LeftButton);
    QPointer<CacheDetailDrawer> drawer = window.findChild<CacheDetailDrawer*>();
    ASSERT_TRUE(drawer);
    EXPECT_TRUE(showsText(*drawer, u"2 MB reclaimable"_s));
    press(*drawer, u"Clean 2 MB"_s);
    QTest::keyClick(dialog(), Qt::Key_Return); // the safe answer
    settle();
    EXPECT_FALSE(dialog());
    EXPECT_TRUE(logged().isEmpty());

    press(*drawer, u"Clean 2 MB"_s);
    EXPECT_EQ(dialog()->windowTitle(), u"Delete npm / pnpm / yarn?"_s);
    press(*dialog(), u"Delete 2 MB"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !model.isCleaning() && !model.isScanning(); }, 2000));
    settle();
    EXPECT_FALSE(drawer);
    EXPECT_EQ(logged(), QStringList(u"clean npm / pnpm / yarn ok"_s));
    tick();
    EXPECT_TRUE(showsText(*view, u"Reclaimable: 0 bytes"_s));
}

TEST_F(CleanupViewTest, CleanAllAsksFirstAndTellsWhatItFreed) {
    rescan();
    press(*view, u"Clean All"_s);
    ASSERT_TRUE(dialog());
    EXPECT_EQ(dialog()->windowTitle(), u"Clean all reclaimable caches?"_s);
    EXPECT_FALSE(qobject_cast<QPushButton*>(buttonNamed(*dialog(), u"Clean 2 MB"_s))->isDefault());
    QTest::keyClick(dialog(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(logged().isEmpty());
    press(*view, u"Clean All"_s);
    press(*dialog(), u"Clean 2 MB"_s);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return showsText(*view, u"• Cleaned 1 targets, freed ~2 MB"_s); }, 2000));
}

TEST_F(CleanupViewTest, TheGridReflowsWithTheWindow) {
    const auto columns = [this] {
        QSet<int> lefts;
        for (const auto* card : view->findChildren<CacheCard*>())
            lefts.insert(card->x());
        return lefts.size();
    };
    EXPECT_EQ(columns(), 3);
    view->resize(1500, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(columns(), 6);
    view->resize(400, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(columns(), 1);
}
