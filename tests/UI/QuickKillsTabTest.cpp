#include "UI/Settings/QuickKillsTab.h"

#include "UI/Controls.h"
#include "UI/Kit/IconButton.h"
#include "UI/ModelFixture.h"
#include "UI/Optimize/OptimizeView.h"
#include "UI/Optimize/PresetTile.h"
#include "UI/Settings/PresetTable.h"
#include "UI/Settings/QuickKillEditorSheet.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

QuickKillPreset preset(const QString& name) {
    QuickKillPreset result = QuickKillPreset::blank();
    result.name = name;
    result.pattern = name.toLower();
    return result;
}

struct QuickKillsTabTest : ModelFixture {
    QuickKillsTab tab{prefs};
    PresetTable* table = tab.findChild<PresetTable*>();

    void SetUp() override {
        tab.resize(640, 398);
        tab.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tab));
    }
    void store(const QList<QuickKillPreset>& presets) {
        prefs.storeQuickKillPresets(presets);
        settle();
    }
    QStringList column(int section) const { return columnOf(*table->model(), section); }
    QStringList names() const { return column(1); }
    QuickKillEditorSheet* editor() { return tab.findChild<QuickKillEditorSheet*>(); }
    void type(const QString& field, const QString& text) {
        auto* line = control<QLineEdit>(*editor(), field);
        line->selectAll();
        QTest::keyClicks(line, text);
        if (text.isEmpty())
            QTest::keyClick(line, Qt::Key_Backspace);
    }
    bool canSave() { return control<QAbstractButton>(*editor(), u"Save"_s)->isEnabled(); }
    void press(const QString& button) {
        click(editor() ? static_cast<QWidget&>(*editor()) : tab, button);
        settle();
    }
    void key(int row, Qt::Key pressed) {
        table->setCurrentIndex(table->model()->index(row, 0));
        QTest::keyClick(table, pressed);
        settle();
    }
    IconButton* rowButton(int row, const QString& name) {
        return control<IconButton>(*table->indexWidget(table->model()->index(row, 6)), name);
    }
};

} // namespace

TEST_F(QuickKillsTabTest, ListsEveryPresetInStoredOrder) {
    QuickKillPreset odd = preset(u"<b>Odd</b>\n"_s);
    odd.minIdleMinutes = 15.9;
    odd.minRSSMB = 1e300;
    odd.force = true;
    odd.symbol = u"no such symbol"_s;
    store({preset(u"Zoo"_s), odd});
    EXPECT_EQ(column(0), (QStringList{u"xmark.circle"_s, u"no such symbol"_s}));
    EXPECT_EQ(names(), (QStringList{u"Zoo"_s, u"<b>Odd</b>␊"_s}));
    EXPECT_EQ(column(2)[0], u"zoo"_s);
    EXPECT_EQ(column(3), (QStringList{u"0m"_s, u"15m"_s}));
    EXPECT_EQ(column(4)[0], u"0MB"_s);
    EXPECT_EQ(column(4)[1].size(), 303);
    EXPECT_EQ(column(5), (QStringList{u"minus"_s, u"bolt.fill"_s}));
    EXPECT_FALSE(tab.grab().isNull());
}

TEST_F(QuickKillsTabTest, AddingAppendsHereAndOnTheOptimizePage) {
    OptimizeView optimize(model, prefs);
    optimize.show();
    press(u"Add"_s);
    ASSERT_TRUE(editor());
    EXPECT_EQ(editor()->windowModality(), Qt::WindowModal);
    EXPECT_FALSE(canSave());
    type(u"Name"_s, u" "_s);
    EXPECT_FALSE(canSave());
    type(u"Process name pattern (substring match)"_s, u"buildd"_s);
    EXPECT_TRUE(canSave());
    type(u"Name"_s, QString());
    EXPECT_FALSE(canSave());
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_TRUE(editor());
    type(u"Name"_s, u"Build & ship"_s);
    type(u"Symbol"_s, u"hammer"_s);
    step(*editor(), u"More"_s, u"Min idle minutes 0"_s);
    step(*editor(), u"More"_s, u"Min RAM 0 MB"_s);
    click(*editor(), u"Use SIGKILL (force)"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    settle();
    EXPECT_FALSE(editor());
    const QuickKillPreset added = prefs.quickKillPresets().last();
    EXPECT_EQ(prefs.quickKillPresets().size(), 7);
    EXPECT_EQ(added.summaryLine(), u"pattern: buildd • idle≥1m • RAM≥50MB • force"_s);
    EXPECT_EQ(added.symbol, u"hammer"_s);
    EXPECT_EQ(names().last(), u"Build & ship"_s);
    EXPECT_TRUE(
        optimize.findChildren<PresetTile*>().last()->accessibleName().startsWith(u"Build & ship, "_s));
}

TEST_F(QuickKillsTabTest, EditingKeepsPlaceAndIdAndCancelLeavesAlone) {
    const QList<QuickKillPreset> before = {preset(u"One"_s), preset(u"Two"_s), preset(u"Three"_s)};
    store(before);
    key(1, Qt::Key_Return);
    ASSERT_TRUE(editor());
    EXPECT_EQ(control<QLineEdit>(*editor(), u"Name"_s)->text(), u"Two"_s);
    type(u"Name"_s, u"Deux"_s);
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(prefs.quickKillPresets(), before);
    const auto doubleClick = [this](int row) {
        const QPoint name = table->visualRect(table->model()->index(row, 1)).center();
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, name);
    };
    doubleClick(1);
    type(u"Name"_s, u"Deux"_s);
    press(u"Save"_s);
    EXPECT_EQ(names(), (QStringList{u"One"_s, u"Deux"_s, u"Three"_s}));
    EXPECT_EQ(prefs.quickKillPresets()[1].id, before[1].id);
    QTest::mouseClick(rowButton(2, u"Edit"_s), Qt::LeftButton);
    store({before[0]}); // gone meanwhile
    type(u"Name"_s, u"Ghost"_s);
    press(u"Save"_s);
    EXPECT_EQ(prefs.quickKillPresets(), QList{before[0]});
}

TEST_F(QuickKillsTabTest, DeletingAndResetting) {
    QuickKillPreset twin = preset(u"Twin"_s);
    store({preset(u"One"_s), twin, preset(u"Two"_s), twin, preset(u"Three"_s)});
    key(2, Qt::Key_Delete);
    EXPECT_EQ(names(), (QStringList{u"One"_s, u"Twin"_s, u"Twin"_s, u"Three"_s}));
    EXPECT_EQ(table->currentIndex().row(), 2); // what came in its place
    QTest::mouseClick(rowButton(1, u"Delete"_s), Qt::LeftButton);
    settle();
    EXPECT_EQ(names(), (QStringList{u"One"_s, u"Three"_s}));
    key(0, Qt::Key_Delete);
    key(0, Qt::Key_Delete);
    EXPECT_EQ(names(), QStringList());
    key(0, Qt::Key_Delete); // nothing to delete or to edit
    key(0, Qt::Key_Return);
    EXPECT_FALSE(editor());
    EXPECT_EQ(prefs.quickKillPresetsJSON(), "[]");
    press(u"Reset to defaults"_s);
    EXPECT_EQ(prefs.quickKillPresets(), QuickKillPreset::defaults());
    EXPECT_EQ(names().size(), 6);
}

TEST_F(QuickKillsTabTest, SelectionFollowsThePreset) {
    const QuickKillPreset kept = preset(u"Kept"_s);
    store({preset(u"One"_s), kept, preset(u"Two"_s)});
    table->setCurrentIndex(table->model()->index(1, 0));
    store({preset(u"New"_s), preset(u"Newer"_s), kept});
    EXPECT_EQ(table->currentIndex().row(), 2);
    store({preset(u"New"_s)});
    EXPECT_EQ(table->currentIndex().row(), 0);
}
