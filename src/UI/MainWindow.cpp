#include "UI/MainWindow.h"

#include "UI/RootView.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>

MainWindow::MainWindow(AppModel& model, QWidget* parent) : QMainWindow(parent), m_root(new RootView(model)) {
    setWindowTitle(QStringLiteral("Tavrin"));
    setCentralWidget(m_root);
    setMinimumSize(RootView::minimumContent);
    resize(RootView::minimumContent);
    addMenuActions();
}

void MainWindow::addMenuActions() {
    auto* close = new QAction(QStringLiteral("Close Window"), this);
    close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
    connect(close, &QAction::triggered, this, &QWidget::close);
    auto* quit = new QAction(QStringLiteral("Quit"), this);
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, qApp, &QCoreApplication::quit);
    addActions({close, quit});
}

void MainWindow::closeEvent(QCloseEvent* event) {
    m_root->select(RootView::Tab::overview);
    QMainWindow::closeEvent(event);
}
