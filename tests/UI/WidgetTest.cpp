#include "UI/Widget.h"

#include "UI/FakeDesktop.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/PanelRow.h"
#include "UI/Kit/TextLabel.h"
#include "UI/ModelFixture.h"

#include <QEnterEvent>

using namespace Qt::StringLiterals;

namespace {

struct WidgetTest : ModelFixture {
    FakeDesktop desktop;
    WidgetWindow widget{desktop.desktop()};

    FakePanel& panel() { return *desktop.panels->first(); }
    QWidget& view() { return *panel().content; }
    QString overflow() {
        for (const auto* label : view().findChildren<TextLabel*>()) {
            if (label->isVisibleTo(&view()) && label->text().startsWith(u'+'))
                return label->text();
        }
        return {};
    }
};

} // namespace

TEST_F(WidgetTest, OnePanelKeepsItsPlace) {
    widget.show(model);
    widget.show(model);
    widget.hide();
    EXPECT_FALSE(widget.isVisible());
    widget.show(model);
    EXPECT_TRUE(widget.isVisible());
    ASSERT_EQ(desktop.panels->size(), 1);
    EXPECT_EQ(panel().placements, 1);
    EXPECT_EQ(view().width(), 240);
}

TEST_F(WidgetTest, StandsWhereItStoodUnlessThatScreenIsGone) {
    for (const auto& [left, isThere] : {std::pair(100, true), std::pair(90000, false)}) {
        {
            WidgetWindow first(desktop.desktop(), &prefs.file());
            first.show(model);
            desktop.panels->last()->corner = {left, 300};
            first.hide();
            desktop.panels->clear();
        }
        WidgetWindow second(desktop.desktop(), &prefs.file());
        second.show(model);
        EXPECT_EQ(desktop.panels->last()->corner == QPoint(left, 300), isThere);
        desktop.panels->clear();
    }
}

TEST_F(WidgetTest, ShortBytes) {
    const std::pair<quint64, const char16_t*> cases[] = {{1073741824, u"1G"},
                                                         {1073741823, u"1024M"},
                                                         {0, u"0M"},
                                                         {quint64(12) << 30, u"12G"},
                                                         {quint64(512) << 20, u"512M"}};
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(WidgetView::shortBytes(bytes), QString::fromUtf16(text));
}

TEST_F(WidgetTest, ThreeLargestGroupsAndTheFirstAlert) {
    addProcesses(1, "chrome", quint64(600) << 20);
    addProcesses(1, "bash", 30);
    addProcesses(1, "claude", 20);
    widget.show(model);
    tick();
    EXPECT_EQ(shownNames<PanelRow>(view()),
              (QStringList{QStringLiteral("Browsers ≈ 600 MB"), QStringLiteral("Terminals ≈ 30 bytes"),
                           QStringLiteral("Claude Code & Agents ≈ 20 bytes")}));
    const std::pair<int, QString> cases[] = {
        {1, {}}, {2, QStringLiteral("+ 1 more alert")}, {3, QStringLiteral("+ 2 more alerts")}};
    for (const auto& [agents, text] : cases) {
        fakes.processes->listing.clear();
        addProcesses(agents, "ollama", quint64(501) << 20);
        tick();
        fakes.clock->advance(3600);
        tick();
        EXPECT_EQ(shownNames<PanelRow>(view()).last(), u"Idle agent — ollama"_s);
        EXPECT_EQ(overflow(), text) << agents;
    }
}

TEST_F(WidgetTest, HeaderButtonsAreDrawnOnlyUnderThePointerAndAlwaysThere) {
    widget.show(model);
    EXPECT_EQ(shownNames<IconButton>(view()), (QStringList{u"Open dashboard"_s, u"Hide widget"_s}));
    auto* hide = view().findChildren<IconButton*>().last();
    const QRect place = hide->geometry();
    const QImage away = view().grab(place).toImage();
    view().setAttribute(Qt::WA_UnderMouse);
    EXPECT_NE(view().grab(place).toImage(), away);
    QTest::mouseClick(hide, Qt::LeftButton);
    EXPECT_FALSE(widget.isVisible());
}

TEST_F(WidgetTest, OpenDashboardNeverFallsBackToTheSettings) {
    QWidget settingsWindow;
    settingsWindow.setWindowTitle(u"Settings"_s);
    desktop.application->own = {&settingsWindow};
    desktop.application->policy = ActivationPolicy::accessory;
    widget.show(model);
    Q_EMIT static_cast<WidgetView&>(view()).openMain();
    EXPECT_EQ(desktop.application->forward, nullptr);
    EXPECT_EQ(desktop.application->policy, ActivationPolicy::regular);
}
