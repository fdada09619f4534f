#include "UI/MenuBar.h"

#include "UI/FakeDesktop.h"
#include "UI/Kit/FigureColumn.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/PanelRow.h"
#include "UI/MenuBarPanel.h"
#include "UI/ModelFixture.h"
#include "UI/Widget.h"

#include <QTest>

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
    void press(const QString& name) {
        for (auto* button : panel().findChildren<QAbstractButton*>()) {
            if (button->accessibleName() == name || button->text() == name)
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }
};

SystemSample sample(double cpu, quint64 used, quint64 total) {
    SystemSample result;
    result.cpuPercent = cpu;
    result.memUsedBytes = used;
    result.memTotalBytes = total;
    return result;
}

} // namespace

TEST_F(MenuBarTest, TitleByFormatWithHalvesAwayFromZero) {
    struct Case {
        MenuBarFormat format;
        SystemSample sample;
        const char16_t* title;
    };
    const Case cases[] = {
        {MenuBarFormat::both, sample(23, 61, 100), u"CPU 23% • RAM 61%"},
        {MenuBarFormat::both, sample(12.5, 125, 1000), u"CPU 13% • RAM 13%"},
        {MenuBarFormat::cpuOnly, sample(12.49, 0, 1), u"CPU 12%"},
        {MenuBarFormat::ramOnly, sample(0, 5, 0), u"RAM 0%"},
        {MenuBarFormat::iconOnly, sample(50, 1, 2), u""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(MenuBarController::title(c.format, c.sample), QString::fromUtf16(c.title));
}

TEST_F(MenuBarTest, TitleFollowsTicksAndTheFormatAtOnce) {
    EXPECT_EQ(shownTitle(), QStringLiteral("•••"));
    tick();
    EXPECT_EQ(shownTitle(), QStringLiteral("CPU 0% • RAM 0%"));
    prefs.menuBarFormat.set(MenuBarFormat::iconOnly);
    EXPECT_EQ(shownTitle(), QString());
    EXPECT_FALSE(desktop.statusItem->content.symbol.isNull());
    EXPECT_EQ(desktop.statusItem->content.toolTip, QStringLiteral("Tavrin"));
    prefs.menuBarFormat.set(MenuBarFormat::ramOnly);
    EXPECT_EQ(shownTitle(), QStringLiteral("RAM 0%"));
    EXPECT_TRUE(desktop.statusItem->content.symbol.isNull());
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
    struct Case {
        int processes;
        int agents; ///< each idle and large: one alert
        int shownProcesses;
        int shownAlerts;
    };
    const Case cases[] = {{0, 0, 0, 0}, {3, 0, 3, 0}, {9, 0, 5, 0}, {0, 1, 1, 1}, {0, 3, 3, 3}, {2, 5, 5, 3}};
    for (const Case& c : cases) {
        fakes.processes->listing.clear();
        addProcesses(c.processes, "plain", 10);
        addProcesses(c.agents, "claude", quint64(600) << 20);
        tick();
        fakes.clock->advance(3600);
        tick();
        QStringList expected;
        for (int i = 0; i < std::min(5, c.agents); ++i)
            expected.append(QStringLiteral("claude 600 MB"));
        while (expected.size() < c.shownProcesses)
            expected.append(QStringLiteral("plain 10 bytes"));
        for (int i = 0; i < c.shownAlerts; ++i)
            expected.append(QStringLiteral("Idle agent — claude"));
        EXPECT_EQ(shownNames<PanelRow>(panel()), expected) << c.processes << c.agents;
    }
}

TEST_F(MenuBarTest, PanelStatistics) {
    fakes.host->thermal = 1;
    tick();
    click();
    EXPECT_EQ(shownNames<FigureColumn>(panel()),
              (QStringList{QStringLiteral("CPU 0%"), QStringLiteral("RAM 0%"), QStringLiteral("Disk 60%"),
                           QStringLiteral("Therm Warm")}));
}

TEST_F(MenuBarTest, OpenBringsTheMainWindowForwardWithItsTaskBarEntry) {
    QWidget settingsWindow;
    settingsWindow.setWindowTitle(QStringLiteral("Tavrin Settings"));
    QWidget other;
    other.setWindowTitle(QStringLiteral("Report"));
    QWidget main;
    main.setWindowTitle(QStringLiteral("Cleanup"));
    FakeApplication& application = *desktop.application;
    struct Case {
        QList<QWidget*> windows;
        QWidget* forward;
    };
    const Case cases[] = {{{&settingsWindow, &other, &main}, &main},
                          {{&settingsWindow, &other}, &other},
                          {{&settingsWindow}, &settingsWindow},
                          {{}, nullptr}};
    for (const Case& c : cases) {
        application.own = c.windows;
        application.forward = nullptr;
        application.policy = ActivationPolicy::accessory;
        click();
        press(QStringLiteral("Open"));
        EXPECT_EQ(application.forward, c.forward);
        EXPECT_EQ(application.policy, ActivationPolicy::regular);
        EXPECT_FALSE(desktop.popover->shown);
    }
}

TEST_F(MenuBarTest, WidgetButtonTogglesOnePanel) {
    click();
    for (const bool visible : {true, false, true}) {
        press(QStringLiteral("Toggle floating widget"));
        EXPECT_EQ(widget.isVisible(), visible);
    }
    EXPECT_EQ(desktop.panels->size(), 1);
}
