#include "UI/MenuBar.h"

#include "UI/FakeDesktop.h"
#include "UI/Kit/FigureColumn.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/PanelRow.h"
#include "UI/MenuBarPanel.h"
#include "UI/ModelFixture.h"
#include "UI/Widget.h"

#include <QLayout>

using namespace Qt::StringLiterals;

namespace {

struct MenuBarTest : ModelFixture {
    FakeDesktop desktop;
    WidgetWindow widget{desktop.desktop()};
    MenuBarController controller{model, prefs, desktop.desktop(), widget};

    QWidget& panel() { return *desktop.popover->content; }
    void click() { Q_EMIT desktop.statusItem->clicked(); }
    QString shownTitle() {
        QCoreApplication::sendPostedEvents();
        return desktop.statusItem->content.title;
    }
};

SystemSample sample(double cpu, quint64 used, quint64 total) {
    return {.cpuPercent = cpu, .memUsedBytes = used, .memTotalBytes = total};
}

} // namespace

TEST_F(MenuBarTest, TitleByFormatWithHalvesAwayFromZero) {
    const std::tuple<MenuBarFormat, SystemSample, const char16_t*> cases[] = {
        {MenuBarFormat::both, sample(23, 61, 100), u"CPU 23% • RAM 61%"},
        {MenuBarFormat::both, sample(12.5, 125, 1000), u"CPU 13% • RAM 13%"},
        {MenuBarFormat::cpuOnly, sample(12.49, 0, 1), u"CPU 12%"},
        {MenuBarFormat::ramOnly, sample(7, 5, 0), u"RAM 0%"},
        {MenuBarFormat::iconOnly, sample(50, 1, 2), u""},
    };
    for (const auto& [format, sampled, title] : cases)
        EXPECT_EQ(MenuBarController::title(format, sampled), QString::fromUtf16(title));
}

TEST_F(MenuBarTest, TitleFollowsTicksAndTheFormatAtOnce) {
    EXPECT_EQ(shownTitle(), u"•••"_s);
    tick();
    EXPECT_EQ(shownTitle(), u"CPU 0% • RAM 0%"_s);
    prefs.menuBarFormat.set(MenuBarFormat::iconOnly);
    EXPECT_EQ(shownTitle(), QString());
    EXPECT_FALSE(desktop.statusItem->content.symbol.isNull());
    EXPECT_EQ(desktop.statusItem->content.toolTip, u"Tavrin"_s);
    prefs.menuBarFormat.set(MenuBarFormat::ramOnly);
    EXPECT_EQ(shownTitle(), u"RAM 0%"_s);
    EXPECT_TRUE(desktop.statusItem->content.symbol.isNull());
}

TEST_F(MenuBarTest, TheGravestAlertIsAMarkThatNoColourIsNeededFor) {
    const auto picture = [this] {
        const QImage image = desktop.statusItem->content.compact.pixmap(16).toImage();
        return image.convertToFormat(QImage::Format_Grayscale8);
    };
    tick();
    const QImage none = picture();
    EXPECT_TRUE(desktop.statusItem->content.mark.isNull());
    fakes.host->memory.swapUsedBytes = 5 * GiB;
    tick();
    const QImage warning = picture();
    EXPECT_TRUE(desktop.statusItem->content.toolTip.endsWith(u"\nHeavy swap usage"_s));
    fakes.host->memory.activeBytes = 15 * GiB;
    tick();
    EXPECT_TRUE(desktop.statusItem->content.toolTip.endsWith(u"\nFree RAM low"_s));
    EXPECT_FALSE(desktop.statusItem->content.mark.isNull());
    const QImage danger = picture();
    EXPECT_NE(none, warning);
    EXPECT_NE(warning.copy(11, 0, 5, 4), danger.copy(11, 0, 5, 4)) << "only the danger reaches the edge";
    fakes.host->memory.activeBytes = 4 * GiB;
    fakes.host->memory.swapUsedBytes = 0;
    tick();
    EXPECT_TRUE(desktop.statusItem->content.mark.isNull());
}

TEST_F(MenuBarTest, ClickOpensThePanelAtTheItemAndASecondClosesIt) {
    click();
    EXPECT_TRUE(desktop.popover->shown);
    EXPECT_EQ(desktop.popover->anchor, desktop.statusItem->place);
    EXPECT_EQ(panel().size(), QSize(320, 360));
    click();
    EXPECT_FALSE(desktop.popover->shown);
}

TEST_F(MenuBarTest, PanelShowsUpToFiveProcessesAndThreeAlerts) {
    click();
    const std::pair<int, int> cases[] = {{0, 0}, {3, 0}, {9, 0}, {0, 1}, {0, 3}, {2, 5}};
    for (const auto& [others, agents] : cases) { // agents are idle and large: an alert each
        fakes.processes->listing.clear();
        addProcesses(others, "plain", 10);
        addProcesses(agents, "claude", quint64(600) << 20);
        tick();
        fakes.clock->advance(3600);
        tick();
        QStringList expected(std::min(5, agents), u"claude 600 MB"_s);
        expected += QStringList(std::min<qsizetype>(5 - expected.size(), others), u"plain 10 bytes"_s);
        expected += QStringList(std::min(3, agents), u"Idle agent — claude"_s);
        EXPECT_EQ(shownNames<PanelRow>(panel()), expected) << others << ' ' << agents;
    }
}

TEST_F(MenuBarTest, PanelStatistics) {
    fakes.host->thermal = 1;
    tick();
    click();
    EXPECT_EQ(shownNames<FigureColumn>(panel()),
              (QStringList{u"CPU 0%"_s, u"RAM 0%"_s, u"Disk 60%"_s, u"Therm Warm"_s}));
}

TEST_F(MenuBarTest, OpenBringsTheMainWindowForwardWithItsTaskBarEntry) {
    QWidget settingsWindow;
    settingsWindow.setWindowTitle(u"Tavrin Settings"_s);
    QWidget other;
    other.setWindowTitle(u"Report"_s);
    QWidget main;
    main.setWindowTitle(u"Cleanup"_s);
    FakeApplication& application = *desktop.application;
    const std::pair<QList<QWidget*>, QWidget*> cases[] = {{{&settingsWindow, &other, &main}, &main},
                                                          {{&settingsWindow, &other}, &other},
                                                          {{&settingsWindow}, &settingsWindow},
                                                          {{}, nullptr}};
    for (const auto& [windows, forward] : cases) {
        application.own = windows;
        application.forward = nullptr;
        application.policy = ActivationPolicy::accessory;
        click();
        press(panel(), u"Open"_s);
        EXPECT_EQ(application.forward, forward);
        EXPECT_EQ(application.policy, ActivationPolicy::regular);
        EXPECT_FALSE(desktop.popover->shown);
    }
}

TEST_F(MenuBarTest, TheSessionsAreALineThatOpensTheMainWindow) {
    tick();
    click();
    EXPECT_FALSE(buttonNamed(panel(), u"1 session, ≈ 600 MB, 1 idle"_s));
    addProcesses(1, "claude", 600 * MiB);
    tick();
    fakes.clock->advance(3600);
    tick();
    QWidget main;
    main.setWindowTitle(u"Sessions"_s);
    desktop.application->own = {&main};
    press(panel(), u"1 session, ≈ 600 MB, 1 idle"_s);
    EXPECT_EQ(desktop.application->forward, &main);
    click();
    addProcesses(5, "claude", 600 * MiB);
    tick();
    fakes.clock->advance(3600);
    tick();
    EXPECT_LE(panel().layout()->minimumSize().height(), panel().height()) << "with three alerts";
}
