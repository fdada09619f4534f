#include "UI/Settings/SettingsScene.h"

#include "Core/Translations.h"
#include "Preferences.h"
#include "UI/Kit/KeptPlace.h"
#include "UI/Settings/AlertsTab.h"
#include "UI/Settings/CleanupTab.h"
#include "UI/Settings/GeneralTab.h"
#include "UI/Settings/HistoryTab.h"
#include "UI/Settings/QuickKillsTab.h"
#include "UI/Settings/SamplingTab.h"
#include "UI/Settings/TabButton.h"
#include "UI/Style/Theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr Theme::Length windowWidth{640};
constexpr Theme::Length windowHeight{460};
constexpr Theme::Length tabBarHeight{62};

/// Names of symbols, in the order of SettingsScene::Tab.
constexpr QStringView tabSymbols[] = {u"gear",          u"waveform", u"bell",
                                      u"xmark.octagon", u"trash",    u"clock.arrow.circlepath"};

QString tabSymbol(SettingsScene::Tab tab) {
    return tabSymbols[static_cast<std::size_t>(tab)].toString();
}

} // namespace

SettingsScene::SettingsScene(Preferences& preferences, LoginItem& loginItem,
                             const Notifications& notifications, QWidget* parent)
    : QWidget(parent)
    , m_row(new QHBoxLayout)
    , m_contents(new QStackedWidget) {
    setWindowTitle(tr("Tavrin Settings"));
    Theme::setLeastSize(this, windowWidth, windowHeight);
    resize(windowWidth, windowHeight);
    auto* bar = new QWidget;
    Theme::fixHeight(bar, tabBarHeight);
    bar->setLayout(m_row);
    bar->setAccessibleName(tr("Tabs"));
    m_row->setContentsMargins(0, 0, 0, 1);
    m_row->setSpacing(Theme::textGap);
    m_row->addStretch();
    m_row->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar);
    column->addWidget(m_contents, 1);

    addTab(Tab::general, new GeneralTab(preferences, loginItem));
    addTab(Tab::sampling, new SamplingTab(preferences));
    addTab(Tab::alerts, new AlertsTab(preferences, notifications));
    addTab(Tab::quickKills, new QuickKillsTab(preferences));
    addTab(Tab::cleanup, new CleanupTab(preferences));
    addTab(Tab::history, new HistoryTab);
    addActions();
    select(Tab::general);
    m_isPlaced = (new KeptPlace(*this, preferences.file(), QStringLiteral("ui.settings.place")))->restore();
}

void SettingsScene::addTab(Tab tab, QWidget* content) {
    auto* button = new TabButton(tabSymbol(tab), Translations::of(tab));
    m_row->insertWidget(m_row->count() - 1, button);
    m_buttons.append(button);
    m_contents->addWidget(content);
    connect(button, &TabButton::clicked, this, [this, tab] { select(tab); });
}

void SettingsScene::select(Tab tab) {
    const auto index = static_cast<int>(tab);
    m_tab = tab;
    m_buttons[index]->setChecked(true);
    m_contents->setCurrentIndex(index);
}

void SettingsScene::selectNext(int by) {
    const auto count = static_cast<int>(m_buttons.size());
    select(static_cast<Tab>((static_cast<int>(m_tab) + by + count) % count));
}

void SettingsScene::addActions() {
    const auto add = [this](const QString& text, const QList<QKeySequence>& keys, auto act) {
        auto* action = new QAction(text, this);
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, act);
        addAction(action);
    };
    add(tr("Close"), {Qt::Key_Escape, Qt::CTRL | Qt::Key_W}, [this] { close(); });
    add(tr("Quit"), {Qt::CTRL | Qt::Key_Q}, [] { QCoreApplication::quit(); });
    add(tr("Next Tab"), {Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageDown}, [this] { selectNext(1); });
    add(tr("Previous Tab"), {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageUp},
        [this] { selectNext(-1); });
}

void SettingsScene::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect bar(0, 0, width(), tabBarHeight);
    painter.fillRect(bar, Theme::color(Theme::Role::sidebarFill));
    painter.fillRect(0, bar.bottom(), width(), 1, Theme::color(Theme::Role::separator));
}
