#include "UI/MainWindow.h"

#include "UI/AppMenu.h"
#include "UI/RootView.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>

MainWindow::MainWindow(AppModel& model, Preferences& preferences, MessageCenter& messages, QWidget* parent)
    : QMainWindow(parent)
    , m_root(new RootView(model, preferences, messages)) {
    setWindowTitle(QStringLiteral("Tavrin"));
    setCentralWidget(m_root);
    setMinimumSize(RootView::minimumContent);
    resize(RootView::minimumContent);
    connect(m_root, &RootView::widgetToggled, this, &MainWindow::widgetToggled);
    addMenuActions();
}

void MainWindow::addMenuActions() {
    auto* close = new QAction(QStringLiteral("Close Window"), this);
    close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);

    auto* menu = new QMenu(this);
    AppMenu::fill(*menu, [this] {
        raise();
        activateWindow();
    });
    // The menu's shortcuts hold in the whole window, also while the menu is closed.
    addActions(menu->actions());
    m_root->setMenu(menu);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    m_root->select(RootView::Tab::overview);
    QMainWindow::closeEvent(event);
}
