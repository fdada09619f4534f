#include "UI/MainWindow.h"

#include "Preferences.h"
#include "UI/AppMenu.h"
#include "UI/RootView.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>

namespace {

QString placeKey() {
    return QStringLiteral("ui.window.place");
}

} // namespace

MainWindow::MainWindow(AppModel& model, Preferences& preferences, MessageCenter& messages, QWidget* parent)
    : QMainWindow(parent)
    , m_file(preferences.file())
    , m_storeLater(m_file)
    , m_root(new RootView(model, preferences, messages)) {
    setWindowTitle(QStringLiteral("Tavrin"));
    setCentralWidget(m_root);
    setMinimumSize(RootView::minimumContent);
    restorePlace();
    connect(m_root, &RootView::widgetToggled, this, &MainWindow::widgetToggled);
    addMenuActions();
}

void MainWindow::addMenuActions() {
    auto* close = new QAction(tr("Close Window"), this);
    close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);

    auto* menu = new QMenu(this);
    const auto open = [this] {
        raise();
        activateWindow();
    };
    AppMenu::fill(*menu, open, [this] { Q_EMIT settingsRequested(); });
    // The menu's shortcuts hold in the whole window, also while the menu is closed.
    addActions(menu->actions());
    m_root->setMenu(menu);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    m_root->select(RootView::Tab::overview);
    QMainWindow::closeEvent(event);
}

void MainWindow::moveEvent(QMoveEvent* event) {
    rememberPlace();
    QMainWindow::moveEvent(event);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    rememberPlace();
    QMainWindow::resizeEvent(event);
}

/// A place on a screen that is gone is moved to one that is there.
void MainWindow::restorePlace() {
    resize(RootView::minimumContent);
    restoreGeometry(m_file.bytes(placeKey()).value_or(QByteArray()));
}

void MainWindow::rememberPlace() {
    if (isVisible())
        m_storeLater.store(placeKey(), saveGeometry());
}
