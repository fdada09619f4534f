#include "UI/Kit/Graph.h"
#include "UI/Kit/PushButton.h"
#include "UI/ModelFixture.h"
#include "UI/Overview/CpuPage.h"
#include "UI/Overview/MetricTile.h"
#include "UI/Overview/OverviewView.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class FakeDetails : public MachineDetails {
public:
    int reads = 0;
    QList<CoreTicks> ticks{{.busy = 0, .idle = 0}, {.busy = 0, .idle = 0}};
    QList<HeatSensor> heat;

    QList<CoreTicks> coreTicks() override {
        ++reads;
        return ticks;
    }
    QList<HeatSensor> sensors() override {
        ++reads;
        return heat;
    }
};

struct DetailPagesTest : ModelFixture {
    std::shared_ptr<FakeDetails> details = std::make_shared<FakeDetails>();
    OverviewView view{model, details};

    void later() {
        fakes.clock->advance(2);
        tick();
    }
    QStringList graphs() { return shownNames<Graph>(view); }
};

} // namespace

TEST_F(DetailPagesTest, ATileOpensItsPageWhichReadsOnlyWhileItIsShown) {
    view.resize(900, 700);
    view.show();
    tick();
    later();
    EXPECT_EQ(details->reads, 0);
    auto* tile = view.findChild<MetricTile*>();
    tile->click();
    EXPECT_FALSE(tile->isVisible());
    details->ticks = {{.busy = 50, .idle = 50}, {.busy = 10, .idle = 90}};
    later();
    ASSERT_EQ(graphs().size(), 3);
    EXPECT_EQ(graphs()[1], u"Core 0, 50%"_s);
    EXPECT_EQ(graphs()[2], u"Core 1, 10%"_s);

    const int reads = details->reads;
    QTest::keyClick(view.findChild<CpuPage*>(), Qt::Key_Escape);
    EXPECT_TRUE(tile->isVisible());
    EXPECT_TRUE(graphs().isEmpty());
    later();
    EXPECT_EQ(details->reads, reads);
}

TEST_F(DetailPagesTest, TheThermalPageSaysWhenThereIsNothingToShow) {
    view.show();
    view.openPage(DetailPage::Kind::thermal);
    later();
    EXPECT_TRUE(showsText(view, u"No temperatures"_s));
    details->heat = {{.name = u"coretemp"_s, .celsius = 61.4}};
    later();
    EXPECT_FALSE(showsText(view, u"No temperatures"_s));
    EXPECT_EQ(graphs(), (QStringList{u"Sensors, while this page is open, coretemp 61 °C"_s}));
}

TEST_F(DetailPagesTest, TheArrowKeysWalkAlongATilesLine) {
    view.show();
    for (const quint64 busy : {10U, 30U, 90U}) {
        fakes.host->ticks = CpuTicks{.user = busy, .idle = 100};
        later();
    }
    auto* tile = view.findChild<MetricTile*>();
    tile->setFocus();
    const QString before = tile->accessibleDescription();
    QTest::keyClick(tile, Qt::Key_Left);
    EXPECT_NE(tile->accessibleDescription(), before);
    EXPECT_TRUE(tile->accessibleDescription().endsWith(u'%'));
}

TEST(GraphTest, TheTopOfAScaleIsRound) {
    using Unit = Graph::Unit;
    const std::tuple<Unit, double, double> cases[] = {{Unit::percent, 0, 1},
                                                      {Unit::percent, 43, 50},
                                                      {Unit::degrees, 61, 100},
                                                      {Unit::bytes, 1500, 2048},
                                                      {Unit::bytes, 3.0e9, 5368709120},
                                                      {Unit::bytesPerSecond, 1024 * 900.0, 1024 * 1000.0}};
    for (const auto& [unit, largest, top] : cases)
        EXPECT_DOUBLE_EQ(Graph::roundTop(unit, largest), top) << largest;
}

TEST(GraphTest, TheKeyboardShowsTheFiguresOfAMoment) {
    Graph graph(u"Swap"_s, Graph::Unit::percent);
    graph.resize(400, graph.heightForWidth(400));
    graph.set({.times = {0, 10, 20}, .series = {{u"In"_s, Theme::Role::blue, {1, 2, 3}}}});
    EXPECT_EQ(graph.accessibleName(), u"Swap, In 3%"_s);
    QTest::keyClick(&graph, Qt::Key_Home);
    EXPECT_TRUE(graph.accessibleName().endsWith(u"In 1%"_s));
    QTest::keyClick(&graph, Qt::Key_Right);
    EXPECT_TRUE(graph.accessibleName().endsWith(u"In 2%"_s));
    QTest::keyClick(&graph, Qt::Key_Escape);
    EXPECT_EQ(graph.accessibleName(), u"Swap, In 3%"_s);
    graph.grab();
}

TEST(SeriesLogTest, IsBoundedAndStartsAnewForOtherNames) {
    SeriesLog log;
    for (int second = 1; second <= 5; ++second)
        log.append(Instant(std::chrono::seconds(second)), {u"a"_s}, {double(second)}, 3);
    EXPECT_EQ(log.times, (QList<double>{3, 4, 5}));
    EXPECT_EQ(log.values, (QList<QList<double>>{{3, 4, 5}}));
    log.append(Instant(std::chrono::seconds(6)), {u"b"_s}, {6}, 3);
    EXPECT_EQ(log.times, QList<double>{6});
}
