#include "UI/Cleanup/CleanupView.h"

#include "UI/Cleanup/CacheCard.h"
#include "UI/Cleanup/CacheDetailDrawer.h"
#include "UI/Cleanup/CleanupTexts.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/Spinner.h"
#include "UI/ModelFixture.h"

#include <QCheckBox>
#include <QPointer>

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
            return request.arguments.first() == u"remove" ? clean : ScriptedTools::exited(0, listing);
        };
    }
};

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
    EXPECT_TRUE(has(u"Here"_s) && has(u"npm / pnpm / yarn"_s));
    EXPECT_FALSE(has(u"Nowhere"_s) || has(u"Homebrew"_s));
    EXPECT_TRUE(shownNames<CacheCard>(view).last().startsWith(u"Project leftovers,"_s));
    for (const auto* card : view.findChildren<CacheCard*>()) {
        if (card->accessibleName().startsWith(u"Here,"_s))
            EXPECT_EQ(card->accessibleDescription(), u"It is␉made again. Not in Clean All."_s);
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
    EXPECT_EQ(columns(), 6);
    view->resize(400, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(columns(), 1);
}

TEST_F(CleanupViewTest, WhatWasConfirmedIsWhatIsCleaned) {
    const QByteArray shown = listingOf({{"_cacache", 0}});
    answer(shown);
    rescan();
    press(*view, u"Clean All"_s);
    EXPECT_TRUE(shownNames<QWidget>(*dialog()).contains(u"npm / pnpm / yarn, 2 MB, “_cacache”"_s));
    fakes.places->elsewhere[u"~/.cache/pip"_s] = {home.makeFolder(u"pip"_s)};
    answer(listingOf({{"since then", 0}}));
    QCoro::waitFor(model.cleanup().rescan());
    EXPECT_EQ(model.cleanup().targetsToClean().size(), 2);
    press(*dialog(), u"Clean 2 MB"_s);
    finish();
    EXPECT_EQ(logged(), QStringList(u"clean [batch] npm / pnpm / yarn ok"_s));
    for (const ToolRequest& request : std::as_const(fakes.tools->requests))
        EXPECT_TRUE(request.arguments.first() != u"remove" || request.input == shown);
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
    EXPECT_FALSE(buttonNamed(*view, u"Cancel cleaning"_s));
    press(*view, u"Clean All"_s);
    fakes.tools->suspended = true;
    press(*dialog(), u"Clean 2 MB"_s);
    tick();
    EXPECT_TRUE(showsText(*view, u"Cleaning npm / pnpm / yarn (0 of 1)"_s));
    auto* cancel = buttonNamed(*view, u"Cancel cleaning"_s);
    ASSERT_TRUE(cancel && cancel->focusPolicy() & Qt::TabFocus);
    QTest::keyClick(cancel, Qt::Key_Space);
    fakes.tools->suspended = false;
    EXPECT_TRUE(fakes.tools->release(home.path(u".npm"_s)));
    finish();
    EXPECT_TRUE(showsText(*view, u"• Cancelled: cleaned 0 of 1 targets, freed ~0 bytes"_s));
    EXPECT_TRUE(showsText(*view, u"Not finished: npm / pnpm / yarn (cancelled)"_s));
    EXPECT_FALSE(buttonNamed(*view, u"Cancel cleaning"_s));
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

TEST_F(CleanupViewTest, TheDrawerListsWhatGoesBesidesTheBreakdown) {
    CacheTarget target{.name = u"x"_s, .symbol = {}, .listed = {{u"/x"_s, 0, listingOf(someFiles)}}};
    const auto shown = [&](const QString& text) {
        CacheDetailDrawer drawer(target, &window);
        drawer.setAttribute(Qt::WA_DeleteOnClose, false);
        drawer.show();
        return showsText(drawer, text) || shownNames<QWidget>(drawer).contains(text);
    };
    EXPECT_TRUE(shown(u"b.pdf, 8 bytes"_s));
    target.rule.measure = CleanupRule::Measure::oldFiles;
    target.details = {{u"/x/b.pdf"_s, 8}};
    EXPECT_TRUE(shown(u"and 4 more"_s));
    target.listed.clear();
    target.rule.measure = CleanupRule::Measure::containers;
    target.volumes = {u"db"_s, u"web"_s};
    EXPECT_TRUE(shown(u"Volumes that go, with all that is in them: 2"_s));
    EXPECT_TRUE(shown(u"web"_s));
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
                                 .volumes = {QString(64, u'f'), u"db"_s},
                                 .notes = {u"Some\n\nnote."_s}};
    const auto rebuilt = u"Apps will rebuild caches as needed."_s;
    const std::tuple<CacheTarget, QString, bool> cases[] = {
        {caches, names, true},
        {mine, u"These files of yours will be gone for good: "_s + names, false},
        {containers, u"2 volumes, “ffffffffffffffffffff…fffffffffffffffffff” and “db”"_s, false},
        {containers, u"\n\nSome␊␊note."_s, false},
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
