#include "UI/Cleanup/CacheDetailDrawer.h"
#include "UI/Cleanup/ProjectLeftoversSheet.h"
#include "UI/Kit/ClampedLabel.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/PopUpButton.h"
#include "UI/Kit/Spinner.h"
#include "UI/MenuBarPanel.h"
#include "UI/ModelFixture.h"
#include "UI/Overview/FreeRAMSheet.h"
#include "UI/Overview/OverviewView.h"
#include "UI/Processes/ProcessTableView.h"
#include "UI/RootView.h"
#include "UI/Settings/SettingsScene.h"
#include "UI/ShortcutsSheet.h"
#include "UI/WidgetView.h"

#include "Core/Announcements/MessageCenter.h"
#include "UI/FakeDesktop.h"
#include "UI/Widget.h"
#include "support/FakeLoginItem.h"
#include "support/ScriptedFeed.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

std::string nameOf(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const QString text = label ? label->text() : button ? button->text() : widget.accessibleName();
    return widget.metaObject()->className() + (" \"" + text.toStdString() + '"');
}

/// Returns whether the widget shows its whole text in that much room; the others shorten theirs and have a
/// tool tip.
bool showsItsWholeText(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label && label->wordWrap())
        return widget.height() >= widget.heightForWidth(widget.width());
    const bool mayShorten = qobject_cast<const ClampedLabel*>(&widget) ||
                            widget.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
    const bool hasText =
        label || qobject_cast<const QPushButton*>(&widget) || qobject_cast<const PopUpButton*>(&widget);
    if (mayShorten || !hasText)
        return true;
    return widget.width() >= widget.sizeHint().width() && widget.height() >= widget.sizeHint().height();
}

/// Returns whether the widget lies over its siblings on purpose.
bool isOverlay(const QWidget& widget) {
    return widget.isWindow() || qobject_cast<const Spinner*>(&widget) ||
           qobject_cast<const Notice*>(&widget) || qobject_cast<const QScrollBar*>(&widget) ||
           qobject_cast<const QLineEdit*>(widget.parentWidget()) ||
           widget.testAttribute(Qt::WA_TransparentForMouseEvents);
}

/// Returns whether a person can hit it: 28 pixels at least both ways, or as much as it shows.
bool isLargeEnough(const QWidget& widget) {
    constexpr int least = 28;
    const bool isTarget = qobject_cast<const QAbstractButton*>(&widget) ||
                          qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QLineEdit*>(&widget);
    return !isTarget || (widget.width() >= least && widget.height() >= least);
}

void expectWellLaidOut(const QWidget& window, const std::string& where) {
    const auto all = window.findChildren<QWidget*>();
    for (const QWidget* widget : all) {
        if (!widget->isVisibleTo(&window) || widget->visibleRegion().isEmpty())
            continue;
        EXPECT_TRUE(showsItsWholeText(*widget))
            << where << ": " << nameOf(*widget) << " has " << widget->width() << 'x' << widget->height()
            << " of " << widget->sizeHint().width() << 'x' << widget->sizeHint().height();
        EXPECT_TRUE(isLargeEnough(*widget))
            << where << ": " << nameOf(*widget) << " is " << widget->width() << 'x' << widget->height();
        if (!widget->parentWidget()->layout() || isOverlay(*widget))
            continue;
        for (const QObject* object : widget->parentWidget()->children()) {
            const auto* other = qobject_cast<const QWidget*>(object);
            if (other && other > widget && other->isVisibleTo(&window) && !isOverlay(*other)) {
                EXPECT_FALSE(widget->geometry().intersects(other->geometry()))
                    << where << ": " << nameOf(*widget) << " lies over " << nameOf(*other);
            }
        }
    }
}

struct LayoutTest : ModelFixture, testing::WithParamInterface<double> {
    LayoutTest() {
        QFont larger = usual;
        larger.setPointSizeF(usual.pointSizeF() * GetParam());
        Theme::applyFont(larger);
        addProcesses(3, "claude", quint64(600) << 20);
        addProcesses(3, "chrome", quint64(300) << 20);
        fakes.host->memory.swapUsedBytes = quint64(5) << 30;
        tick();
    }
    ~LayoutTest() override { Theme::applyFont(usual); }

    void show(QWidget& window, QSize size) {
        window.resize(size);
        window.show();
        settle();
        tick();
    }
    std::string at(const std::string& screen) const { return screen + " at " + std::to_string(GetParam()); }

    const QFont usual = QApplication::font();
};

} // namespace

TEST_P(LayoutTest, NothingIsCutOrCoveredInTheMainWindow) {
    MessageCenter messages(std::make_unique<ScriptedFeed>(), prefs.file());
    RootView root(model, prefs, messages);
    show(root, RootView::minimumContent);
    for (const auto tab : allCases<RootView::Tab>()) {
        root.select(tab);
        settle();
        expectWellLaidOut(root, at(rawValue(tab).toStdString()));
    }
    root.select(RootView::Tab::processes);
    auto* table = root.findChild<ProcessTableView*>();
    QTest::keyClick(table, Qt::Key_Return);
    settle();
    expectWellLaidOut(root, at("inspector of nothing"));
    table->setCurrentIndex(table->model()->index(0, 0));
    settle();
    expectWellLaidOut(root, at("inspector"));
    root.select(RootView::Tab::overview);
    auto* overview = root.findChild<OverviewView*>();
    for (const auto kind : {DetailPage::Kind::cpu, DetailPage::Kind::memory, DetailPage::Kind::disk,
                            DetailPage::Kind::thermal}) {
        overview->openPage(kind);
        settle();
        expectWellLaidOut(root, at("page " + std::to_string(static_cast<int>(kind))));
    }
}

TEST_P(LayoutTest, TabGoesInTheOrderTheEyeGoes) {
    MessageCenter messages(std::make_unique<ScriptedFeed>(), prefs.file());
    RootView root(model, prefs, messages);
    show(root, RootView::minimumContent);
    for (const auto tab : {RootView::Tab::overview, RootView::Tab::optimize, RootView::Tab::cleanup}) {
        root.select(tab);
        settle();
        const QWidget* before = nullptr;
        for (QWidget* stop = root.nextInFocusChain(); stop != &root; stop = stop->nextInFocusChain()) {
            if (!(stop->focusPolicy() & Qt::TabFocus) || !stop->isVisibleTo(&root) || !stop->isEnabled() ||
                stop->focusProxy())
                continue;
            const QRect place(stop->mapTo(&root, QPoint()), stop->size());
            const QRect last = before ? QRect(before->mapTo(&root, QPoint()), before->size()) : QRect();
            const bool isOtherPane =
                before && place.left() >= last.right() && last.right() < root.width() / 4;
            EXPECT_TRUE(!before || isOtherPane || place.bottom() > last.top())
                << at(rawValue(tab).toStdString()) << ": " << nameOf(*stop) << " after " << nameOf(*before);
            before = stop;
        }
    }
}

TEST_P(LayoutTest, NothingIsCutOrCoveredInTheSmallWindows) {
    FakeLoginItem login;
    FakeDesktop desktop;
    SettingsScene scene(prefs, login, *desktop.notifications);
    show(scene, scene.size());
    for (const auto tab : allCases<SettingsScene::Tab>()) {
        scene.select(tab);
        settle();
        expectWellLaidOut(scene, at("settings " + rawValue(tab).toStdString()));
    }
    FreeRAMSheet sheet(model, nullptr);
    sheet.setAttribute(Qt::WA_DeleteOnClose, false);
    show(sheet, sheet.size());
    expectWellLaidOut(sheet, at("free RAM"));
    WidgetView widget(model);
    show(widget, widget.sizeHint());
    expectWellLaidOut(widget, at("widget"));
    WidgetWindow window(desktop.desktop());
    MenuBarPanel panel(model, window);
    show(panel, Theme::scaled(QSize(320, 360)).expandedTo(panel.layout()->minimumSize()));
    expectWellLaidOut(panel, at("panel"));
}

TEST_P(LayoutTest, NothingIsCutOrCoveredInTheSheets) {
    const auto expectFits = [this](QDialog& sheet, const std::string& name) {
        sheet.setAttribute(Qt::WA_DeleteOnClose, false);
        show(sheet, sheet.size());
        expectWellLaidOut(sheet, at(name));
        const QSize most = RootView::minimumContent;
        EXPECT_LE(sheet.height(), most.height()) << at(name);
        EXPECT_LE(sheet.width(), most.width()) << at(name);
    };
    ShortcutsSheet keys(nullptr);
    expectFits(keys, "keys");
    fakes.tools->suspended = true;
    ProjectLeftoversSheet leftovers(model, prefs, nullptr);
    expectFits(leftovers, "leftovers");
    CacheDetailDrawer drawer(model.cleanup(), model.cleanup().targets().first(), {}, nullptr);
    expectFits(drawer, "drawer");
    fakes.tools->suspended = false;
    EXPECT_TRUE(fakes.tools->release(QStringLiteral("find")));
}

INSTANTIATE_TEST_SUITE_P(Fonts, LayoutTest, testing::Values(1.0, 1.25, 1.5));
