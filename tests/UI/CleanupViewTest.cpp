#include "UI/Cleanup/CleanupView.h"

#include "UI/Cleanup/CacheCard.h"
#include "UI/Cleanup/CacheDetailDrawer.h"
#include "UI/Cleanup/CleanupTexts.h"
#include "UI/Cleanup/LeaveOutOffer.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/Spinner.h"
#include "UI/ModelFixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPointer>
#include <QTreeView>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

struct CleanupViewTest : ModelFixture {
    QWidget window;
    CleanupView* view = new CleanupView(model, prefs, &window);

    CleanupViewTest() {
        fillNpmFolder();
        window.resize(900, 700);
        view->resize(900, 700);
        window.show();
        tick();
    }
    void rescan() {
        press(*view, u"Rescan"_s);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !model.cleanup().isScanning(); }, 2000));
        tick();
    }
    QStringList cards() { return shownNames<CacheCard>(*view); }
    QPointer<ConfirmDialog> dialog() { return window.findChild<ConfirmDialog*>(); }
    void finish() {
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return !model.cleanup().isCleaning() && !model.cleanup().isScanning(); }, 2000));
        tick();
    }
    /// Makes the tools answer with `listing` for every folder, and with `clean` to a removal.
    void answer(const QByteArray& listing, const ToolResult& clean = ScriptedTools::exited(0)) {
        fakes.tools->answer = [=](const ToolRequest& request) {
            if (request.launchPath == u"/usr/bin/du")
                return ScriptedTools::exited(0, request.arguments.last().endsWith(u"_npx") ? "1024" : "2048");
            if (request.arguments.first() == u"remove")
                return clean;
            const bool isSmaller = request.arguments.last().endsWith(u"_npx");
            return ScriptedTools::exited(0, withTotal(listing, (isSmaller ? 1 : 2) << 20));
        };
    }
};

/// Returns the rows of the tree as they are read out, two spaces for each level.
QStringList rowsOf(const QWidget& dialog) {
    const auto* model = dialog.findChild<QTreeView*>()->model();
    QStringList rows;
    const std::function<void(const QModelIndex&, const QString&)> addBelow = [&](const QModelIndex& parent,
                                                                                 const QString& indent) {
        for (int row = 0; row < model->rowCount(parent); ++row) {
            const QModelIndex index = model->index(row, 0, parent);
            const QString spoken = index.data(Qt::AccessibleTextRole).toString();
            rows.append(indent + spoken.section(u", changed"_s, 0, 0));
            addBelow(index, indent + u"  "_s);
        }
    };
    addBelow({}, {});
    return rows;
}

const QList<std::pair<QByteArray, quint64>> someFiles = {
    {"a\x1b.iso", 9}, {"Trash/b.pdf", 8}, {"c", 7}, {"d", 6}, {"e", 5}};

} // namespace

TEST_F(CleanupViewTest, NothingIsKnownBeforeTheFirstScan) {
    EXPECT_EQ(cards().size(), CacheTarget::defaults().size() + 1);
    EXPECT_EQ(cards().last(), u"Project leftovers, 0 bytes, Not scanned yet"_s);
    EXPECT_EQ(cards()[0], u"npm / pnpm / yarn, 0 bytes, Not scanned yet"_s);
    EXPECT_TRUE(showsText(*view, u"Reclaimable: 0 bytes"_s));
    EXPECT_FALSE(buttonNamed(*view, u"Clean All"_s)->isEnabled());
}

TEST(CleanupView, TargetsOfTheSystemAreShownWhereTheyAreOrOnRequest) {
    struct Fixture : ModelFixture {
        void TestBody() override {}
    } machine;
    const TemporaryFolder folder;
    machine.fillNpmFolder();
    machine.fakes.places->impossible = {u"~/Library/Caches/Homebrew"_s};
    machine.fakes.cleanupTargets->targets = {
        {.name = u"Here"_s,
         .paths = {folder.path()},
         .reason = u"It is\tmade again."_s,
         .isInCleanAll = false},
        {.name = u"Nowhere"_s, .paths = {u"/no/such/folder"_s}, .reason = u"It is made again."_s}};
    AppModel model(machine.fakes.platform(), machine.prefs);
    QWidget window;
    CleanupView view(model, machine.prefs, &window);
    window.show();
    QMetaObject::invokeMethod(&model, "tick");
    settle();
    const auto has = [&](const QString& name) {
        const QStringList names = shownNames<CacheCard>(view);
        return std::ranges::any_of(names, [&](const QString& each) { return each.startsWith(name + u','); });
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return has(u"Here"_s) && has(u"npm / pnpm / yarn"_s); }, 2000));
    EXPECT_FALSE(has(u"Nowhere"_s) || has(u"Homebrew"_s));
    EXPECT_TRUE(shownNames<CacheCard>(view).last().startsWith(u"Project leftovers,"_s));
    for (const auto* card : view.findChildren<CacheCard*>()) {
        const bool isHere = card->accessibleName().startsWith(u"Here,"_s);
        EXPECT_TRUE(!isHere || card->accessibleDescription() == u"It is␉made again. Not in Clean All."_s);
    }
    press(view, u"Show all"_s);
    settle();
    EXPECT_TRUE(has(u"Nowhere"_s) && has(u"Homebrew"_s));
    EXPECT_TRUE(machine.prefs.showAllCleanupTargets());
    const CleanupView later(model, machine.prefs);
    EXPECT_TRUE(later.findChild<QCheckBox*>()->isChecked());
}

TEST_F(CleanupViewTest, ScanningShowsHowFarItIs) {
    fakes.tools->suspended = true;
    press(*view, u"Rescan"_s);
    tick();
    EXPECT_FALSE(buttonNamed(*view, u"Rescan"_s)->isEnabled());
    EXPECT_FALSE(shownNames<Spinner>(*view).isEmpty());
    while (model.cleanup().isScanning()) {
        fakes.tools->suspended = false; // whatever follows is answered at once
        for (const ToolRequest& request : QList<ToolRequest>(fakes.tools->requests))
            fakes.tools->release(request.arguments.last());
        QCoreApplication::processEvents();
    }
    tick();
    EXPECT_TRUE(buttonNamed(*view, u"Rescan"_s)->isEnabled());
    EXPECT_TRUE(shownNames<Spinner>(*view).isEmpty());
}

TEST_F(CleanupViewTest, AScanThatIsStoppedChangesNothing) {
    const auto sortedCards = [this] { // those of one size come in any order
        QStringList all = cards();
        all.sort();
        return all;
    };
    rescan();
    const QStringList before = sortedCards();
    fakes.clock->advance(300);
    fakes.tools->suspended = true;
    press(*view, u"Rescan"_s);
    tick();
    press(*view, u"Stop measuring"_s);
    fakes.tools->answer = [](const ToolRequest& request) {
        EXPECT_TRUE(request.stop.stop_requested());
        return ToolResult{.launched = true};
    };
    fakes.tools->suspended = false;
    fakes.tools->release(u"open"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !model.cleanup().isScanning(); }, 2000));
    fakes.clock->advance(-300);
    tick();
    EXPECT_TRUE(sortedCards() == before);
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
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return !model.cleanup().isCleaning() && !model.cleanup().isScanning(); }, 2000));
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
        for (const auto* card : view->findChildren<CacheCard*>()) {
            if (card->isVisibleTo(view))
                lefts.insert(card->x());
        }
        return lefts.size();
    };
    EXPECT_EQ(columns(), 3);
    view->resize(1500, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(columns(), 4); // as wide as the content ever is
    view->resize(400, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(columns(), 1);
}

TEST_F(CleanupViewTest, WhatWasConfirmedIsWhatIsCleaned) {
    const QByteArray shown = withTotal(listingOf({{"_cacache", 0}}), 2 << 20);
    answer(shown);
    rescan();
    press(*view, u"Clean All"_s);
    EXPECT_EQ(rowsOf(*dialog()), (QStringList{u"npm / pnpm / yarn, 2 MB"_s, u"  _cacache, 0 bytes"_s}));
    fakes.places->elsewhere[u"~/.cache/pip"_s] = {home.makeFolder(u"pip"_s)};
    answer(listingOf({{"since then", 0}}));
    QCoro::waitFor(model.cleanup().rescan());
    EXPECT_EQ(model.cleanup().targetsToClean().size(), 2);
    press(*dialog(), u"Clean 2 MB"_s);
    finish();
    EXPECT_EQ(logged(), QStringList(u"clean [batch] npm / pnpm / yarn ok"_s));
    for (const ToolRequest& request : std::as_const(fakes.tools->requests))
        EXPECT_TRUE(request.arguments.first() != u"remove" || request.input == withTotal(shown, 2 << 20));
}

TEST_F(CleanupViewTest, ATotalCountsOnceWhatTargetsShare) {
    fakes.places->elsewhere[u"~/.npm/_npx"_s] = {home.makeFolder(u".npm/_npx"_s)};
    answer(listingOf({}));
    rescan();
    EXPECT_EQ(model.cleanup().targetsToClean().size(), 2);
    EXPECT_TRUE(showsText(*view, u"Reclaimable: 2 MB"_s));
    press(*view, u"Clean All"_s);
    EXPECT_TRUE(showsText(*dialog(), u"Some of them overlap; the total counts what they share once."_s));
    EXPECT_TRUE(buttonNamed(*dialog(), u"Clean 2 MB"_s));
}

TEST_F(CleanupViewTest, ACleanCanBeCancelledAndSaysSo) {
    rescan();
    EXPECT_FALSE(buttonNamed(*view, u"Stop cleaning"_s));
    press(*view, u"Clean All"_s);
    fakes.tools->suspended = true;
    press(*dialog(), u"Clean 2 MB"_s);
    tick();
    EXPECT_TRUE(showsText(*view, u"Cleaning npm / pnpm / yarn (0 of 1)"_s));
    auto* cancel = buttonNamed(*view, u"Stop cleaning"_s);
    ASSERT_TRUE(cancel && cancel->focusPolicy() & Qt::TabFocus);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fakes.tools->requests.last().launchPath == u"/usr/bin/du"; }));
    QTest::keyClick(cancel, Qt::Key_Space);
    fakes.tools->suspended = false;
    EXPECT_TRUE(fakes.tools->release(home.path(u".npm"_s)));
    finish();
    EXPECT_TRUE(showsText(*view, u"• Stopped: cleaned 0 of 1 targets, freed ~0 bytes"_s));
    EXPECT_TRUE(showsText(*view, u"Not finished: npm / pnpm / yarn (stopped)"_s));
    EXPECT_FALSE(buttonNamed(*view, u"Stop cleaning"_s));
}

TEST_F(CleanupViewTest, SaysWhySomethingIsLeft) {
    const QString npm = home.path(u".npm"_s);
    fakes.places->objections[npm] = u"~/.npm is left\talone."_s;
    answer(listingOf({}));
    rescan();
    const auto cards = view->findChildren<CacheCard*>();
    const auto card = std::ranges::find_if(
        cards, [](const CacheCard* each) { return each->accessibleName().startsWith(u"npm /"_s); });
    EXPECT_EQ((*card)->accessibleDescription(), u"~/.npm is left␉alone."_s);
    (*card)->click();
    EXPECT_TRUE(showsText(*window.findChild<CacheDetailDrawer*>(), u"~/.npm is left␉alone."_s));
    delete window.findChild<CacheDetailDrawer*>();

    fakes.places->objections.clear();
    answer(listingOf({}), {.launched = true, .exitStatus = 1, .errorLine = u"2 entries\n are left"_s});
    rescan();
    model.cleanup().clean(model.cleanup().targetsToClean().first());
    finish();
    EXPECT_TRUE(showsText(*view, u"Not finished: npm / pnpm / yarn (2 entries␊ are left)"_s));
}

TEST_F(CleanupViewTest, ADrawerLeavesOutWhatIsNotTicked) {
    const QString npm = home.path(u".npm"_s);
    answer(listingOf({{"_cacache", 5 << 20}, {"_logs", 1 << 20}}));
    rescan();
    QTest::mouseClick(view->findChildren<CacheCard*>()[0], Qt::LeftButton);
    auto& drawer = *window.findChild<CacheDetailDrawer*>();
    auto& tree = *drawer.findChild<QTreeView*>();
    tree.setCurrentIndex(tree.model()->index(1, 0, tree.model()->index(0, 0)));
    EXPECT_EQ(tree.currentIndex().data(), u"_logs"_s);
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_TRUE(showsText(drawer, u"5 MB will come back • 1 left out"_s));
    press(drawer, u"Clean 5 MB"_s);
    press(*dialog(), u"Delete 5 MB"_s);
    finish();
    for (const ToolRequest& request : std::as_const(fakes.tools->requests)) {
        const bool isRemoval = request.arguments.first() == u"remove";
        EXPECT_TRUE(!isRemoval || (request.input.contains("_cacache") && !request.input.contains("_logs")));
    }
    EXPECT_EQ(logged(), QStringList(u"clean npm / pnpm / yarn ok"_s));
}

TEST_F(CleanupViewTest, WhatIsLeftOutTwiceIsOfferedToStayForGood) {
    const QStringList leftOut{u"/c/a[1]"_s, u"/c/b"_s};
    LeaveOutOffer::follow(&window, prefs, leftOut);
    EXPECT_FALSE(dialog());
    LeaveOutOffer::follow(&window, prefs, {u"/c/a[1]"_s});
    ASSERT_TRUE(dialog());
    press(*dialog(), u"Never Clean"_s);
    EXPECT_EQ(prefs.cleanupExcludes(), QStringList(u"/c/a\\[1]"_s)) << "it matches this path alone";
    settle();
    LeaveOutOffer::follow(&window, prefs, {u"/c/c"_s});
    EXPECT_FALSE(dialog());
}

TEST_F(CleanupViewTest, ADrawerShowsWhatIsInsideAFolderOfItsList) {
    CacheTarget target{.name = u"x"_s, .symbol = {}};
    target.listed = {{u"/x"_s, 9, listingOf({{"deep", 9}}).replace(" - deep", " d deep")}};
    fakes.tools->answer = [](const ToolRequest& request) {
        EXPECT_EQ(request.arguments.first(), u"list"_s);
        return ScriptedTools::exited(0, listingOf({{"deep/a", 7}, {"deep/b", 2}}));
    };
    CacheDetailDrawer drawer(model.cleanup(), target, {}, &window);
    drawer.setAttribute(Qt::WA_DeleteOnClose, false);
    drawer.show();
    auto& tree = *drawer.findChild<QTreeView*>();
    tree.expand(tree.model()->index(0, 0, tree.model()->index(0, 0)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsOf(drawer).size() == 4; }, 2000));
    EXPECT_EQ(rowsOf(drawer)[2].trimmed().section(u',', 0, 1), u"a, 7 bytes"_s);
    auto* search = drawer.findChild<QLineEdit*>();
    search->setText(u"B"_s);
    EXPECT_EQ(rowsOf(drawer).size(), 3) << "with those above it";
}

TEST_F(CleanupViewTest, ADrawerNamesTheVolumesOfContainers) {
    CacheTarget target{
        .name = u"x"_s, .symbol = {}, .pruneCommand = u"prune"_s, .details = {{u"Images"_s, 8}}};
    target.rule.measure = CleanupRule::Measure::containers;
    target.volumes = QStringList{u"db"_s, u"web"_s};
    CacheDetailDrawer drawer(model.cleanup(), target, {}, &window);
    drawer.setAttribute(Qt::WA_DeleteOnClose, false);
    EXPECT_EQ(rowsOf(drawer),
              (QStringList{u"Images, 8 bytes"_s, u"Volumes that go, with all that is in them: 2"_s, u"  db"_s,
                           u"  web"_s}));
}

TEST(CleanupTexts, WhatIsSaidBeforeACleanIsTrueForItsTarget) {
    const QList<ListedFolder> listed{{u"/x"_s, 0, listingOf(someFiles)}};
    const auto names = u"“a␛.iso”, “b.pdf”, “c” and 2 more"_s;
    const CacheTarget caches{.name = u"A"_s, .symbol = {}, .sizeBytes = 1, .listed = listed};
    const CacheTarget mine{
        .name = u"B"_s, .symbol = {}, .sizeBytes = 1, .rule = {.hasUserFiles = true}, .listed = listed};
    const CacheTarget containers{.name = u"C"_s,
                                 .symbol = {},
                                 .pruneCommand = u"prune"_s,
                                 .sizeBytes = 1,
                                 .volumes = QStringList{QString(64, u'f'), u"db"_s},
                                 .notes = {u"Some\n\nnote."_s}};
    CacheTarget unasked = containers;
    unasked.volumes = std::nullopt;
    const auto rebuilt = u"Apps will rebuild caches as needed."_s;
    const std::tuple<CacheTarget, QString, bool> cases[] = {
        {caches, names, true},
        {mine, u"These files of yours will be gone for good: "_s + names, false},
        {containers, u"2 volumes, “ffffffffffffffffffff…fffffffffffffffffff” and “db”"_s, false},
        {containers, u"\n\nSome␊␊note."_s, false},
        {unasked, u"It is unknown which volumes go, with all that is in them."_s, false},
    };
    for (const auto& [target, said, isRebuilt] : cases) {
        const QString question = CleanupTexts::question(target);
        EXPECT_TRUE(question.contains(said)) << qPrintable(question);
        EXPECT_EQ(question.contains(rebuilt), isRebuilt) << qPrintable(question);
    }
    for (const CacheTarget& target : CacheTarget::defaults()) {
        CacheTarget renamed = target;
        renamed.name = u"x"_s;
        EXPECT_EQ(CleanupTexts::question(renamed), CleanupTexts::question(target));
        EXPECT_EQ(CleanupTexts::whatGoes(renamed), CleanupTexts::whatGoes(target));
    }
    EXPECT_FALSE(CleanupTexts::questionAll({mine, containers}).contains(rebuilt));
    EXPECT_TRUE(CleanupTexts::questionAll({caches, mine, containers}).contains(u"gone for good: B, C."_s));
}
