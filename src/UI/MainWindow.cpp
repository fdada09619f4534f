#include "UI/MainWindow.h"

#include "Preferences.h"
#include "UI/AppMenu.h"
#include "UI/Kit/KeptPlace.h"
#include "UI/RootView.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QScreen>

#include <algorithm>

namespace {

constexpr int titleBarHeight = 40; // of the window manager, which tells it only for a window that is shown

/// The pages scroll where the screen is lower than they need.
QSize smallestOn(const QScreen& screen) {
    QSize smallest = RootView::minimumContent;
    smallest.setHeight(std::min(smallest.height(), screen.availableSize().height() - titleBarHeight));
    return smallest;
}

} // namespace

MainWindow::MainWindow(AppModel& model, Preferences& preferences, MessageCenter& messages, QWidget* parent)
    : QMainWindow(parent)
    , m_root(new RootView(model, preferences, messages)) {
    setWindowTitle(QStringLiteral("Tavrin"));
    setCentralWidget(m_root);
    setMinimumSize(smallestOn(*screen()));
    resize(minimumSize());
    (new KeptPlace(*this, preferences.file(), QStringLiteral("ui.window.place")))->restore();
    connect(m_root, &RootView::widgetToggled, this, &MainWindow::widgetToggled);
    addMenuActions();
}

void MainWindow::addMenuActions() {
    auto* close = new QAction(tr("Close Window"), this);
    close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
    auto* sidebar = new QAction(tr("Show or Hide Sidebar"), this);
    sidebar->setShortcut(QKeySequence(Qt::Key_F9));
    connect(sidebar, &QAction::triggered, this, [this] { m_root->showSidebar(!m_root->isSidebarShown()); });
    addAction(sidebar);

    auto* menu = new QMenu(this);
    const auto open = [this] {
        raise();
        activateWindow();
    };
    AppMenu::fill(*menu, open, [this] { Q_EMIT settingsRequested(); });
    // The menu's shortcuts work in the whole window, also while the menu is closed.
    addActions(menu->actions());
    m_root->setMenu(menu);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    m_root->select(RootView::Tab::overview);
    m_root->showSidebar(true);
    QMainWindow::closeEvent(event);
}
