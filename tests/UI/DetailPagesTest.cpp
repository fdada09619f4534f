#include "UI/Kit/Graph.h"
#include "UI/Kit/PushButton.h"
#include "UI/ModelFixture.h"
#include "UI/Overview/CpuPage.h"
#include "UI/Overview/MetricTile.h"
#include "UI/Overview/OverviewView.h"

#include <QMouseEvent>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class FakeDetails : public MachineDetails {
public:
    std::atomic<int> reads = 0;
    QList<HeatSensor> heat;
    QList<DiskTraffic> traffic;

    QList<DiskTraffic> disks() override {
        ++reads;
        return traffic;
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

TEST_F(DetailPagesTest, APageOpensWithWhatTheTicksHaveKept) {
    addProcesses(1, "claude", 300 * MiB);
    fakes.host->memory.cacheBytes = 700 * MiB;
    view.resize(900, 700);
    view.show();
    const QList<CoreTicks> readings[] = {{{.busy = 0, .idle = 0}, {.busy = 0, .idle = 0}},
                                         {{.busy = 50, .idle = 50}, {.busy = 10, .idle = 90}},
                                         {{.busy = 60, .idle = 140}, {.busy = 50, .idle = 150}}};
    for (const QList<CoreTicks>& cores : readings) {
        fakes.host->cores = cores;
        later();
    }
    auto* tile = view.findChild<MetricTile*>();
    tile->click();
    EXPECT_FALSE(tile->isVisible());
    ASSERT_EQ(graphs().size(), 3);
    EXPECT_EQ(graphs()[2], u"Core 1, 40%"_s);
    auto* core = view.findChildren<Graph*>().at(1);
    QTest::keyClick(core, Qt::Key_Home);
    EXPECT_TRUE(core->accessibleName().endsWith(u", 50%"_s)) << "of before the page was opened";
    QTest::keyClick(view.findChild<CpuPage*>(), Qt::Key_Escape);
    EXPECT_TRUE(tile->isVisible());
    EXPECT_TRUE(graphs().isEmpty());

    view.openPage(DetailPage::Kind::memory);
    EXPECT_TRUE(graphs().contains(u"File cache, 700 MB"_s)) << qPrintable(graphs().join(u'\n'));
    auto* groups = view.findChildren<Graph*>().at(6);
    EXPECT_TRUE(groups->accessibleName().startsWith(u"Groups, Claude Code & Agents 300 MB"_s));
    QTest::keyClick(groups, Qt::Key_Home);
    EXPECT_TRUE(groups->accessibleName().contains(u"Claude Code & Agents 300 MB"_s));
    EXPECT_EQ(details->reads, 0) << "the ticks have read it all";
}

TEST_F(DetailPagesTest, WhatOnlyAPageReadsBeginsWithItAndHasGaps) {
    details->traffic = {{.device = u"sda"_s}};
    view.show();
    later();
    EXPECT_EQ(details->reads, 0);
    view.openPage(DetailPage::Kind::disk);
    details->traffic = {{.device = u"sda"_s, .readBytes = 4 * MiB}};
    later();
    EXPECT_TRUE(graphs()[0].endsWith(u"while this page is open, sda read 2 MB/s, sda written 0 bytes/s"_s))
        << qPrintable(graphs()[0]);
    view.openPage(DetailPage::Kind::cpu);
    const int reads = details->reads;
    details->traffic = {{.device = u"sda"_s, .readBytes = 400 * MiB}};
    later();
    EXPECT_EQ(details->reads, reads) << "it is not on show";
    view.openPage(DetailPage::Kind::disk);
    details->traffic = {{.device = u"sda"_s, .readBytes = 402 * MiB}};
    later();
    auto* traffic = view.findChildren<Graph*>().at(0);
    EXPECT_TRUE(traffic->accessibleName().contains(u"sda read 1 MB/s"_s)) << "of this page's own time";
    QTest::keyClick(traffic, Qt::Key_Left);
    EXPECT_TRUE(traffic->accessibleName().contains(u"sda read —"_s)) << "nobody knows what was meanwhile";
    traffic->grab();
    details->traffic.clear();
    later();
    EXPECT_TRUE(showsText(view, u"No figures of reading and writing"_s));
}

TEST_F(DetailPagesTest, TheThermalPageSaysWhenThereIsNothingToShow) {
    view.show();
    view.openPage(DetailPage::Kind::thermal);
    const auto saysSo = [this] { return showsText(view, u"No temperatures"_s); };
    EXPECT_TRUE(QTest::qWaitFor(saysSo));
    details->heat = {{.name = u"coretemp"_s, .celsius = 61.4}};
    EXPECT_TRUE(QTest::qWaitFor([&] {
        later(); // a tick while a reading goes on begins none
        return !saysSo();
    }));
    ASSERT_EQ(graphs().size(), 1);
    EXPECT_TRUE(graphs()[0].startsWith(u"Sensors, since "_s) && graphs()[0].endsWith(u"coretemp 61 °C"_s));
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

TEST(GraphTest, AScaleEndsAtARoundFigureAndSaysNothingTwice) {
    using Unit = Graph::Unit;
    const std::tuple<Unit, double, double> cases[] = {{Unit::percent, 0, 10},
                                                      {Unit::percent, 43, 50},
                                                      {Unit::degrees, 61, 100},
                                                      {Unit::degrees, 3, 10},
                                                      {Unit::bytes, 0, 1024},
                                                      {Unit::bytes, 1500, 2048},
                                                      {Unit::bytes, 3.0e9, 5368709120},
                                                      {Unit::bytesPerSecond, 0.4, 1024},
                                                      {Unit::bytesPerSecond, 1024 * 900.0, 1024 * 1024.0}};
    for (const auto& [unit, largest, top] : cases) {
        EXPECT_DOUBLE_EQ(Graph::roundTop(unit, largest), top) << largest;
        const QStringList marks{Graph::text(unit, 0), Graph::text(unit, top / 2), Graph::text(unit, top)};
        EXPECT_EQ(QSet<QString>(marks.begin(), marks.end()).size(), 3) << qPrintable(marks.join(u' '));
    }
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
    graph.setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(&graph, Qt::Key_Right);
    EXPECT_TRUE(graph.accessibleName().endsWith(u"In 2%"_s)) << "earlier is at the right then";
    graph.show();
    QMouseEvent moved(QEvent::MouseMove, QPointF(graph.width() - 30, 90), QPointF(), Qt::NoButton, {}, {});
    QCoreApplication::sendEvent(&graph, &moved);
    EXPECT_TRUE(graph.accessibleName().endsWith(u"In 1%"_s));
    graph.grab();
}
