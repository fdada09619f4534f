#include "UI/MainWindow.h"

#include "UI/RootView.h"

#include <QAction>
#include <QCoreApplication>

MainWindow::MainWindow(AppModel& model, QWidget* parent)
    : QMainWindow(parent) {
    setWindowTitle(QStringLiteral("Tavrin"));
    setCentralWidget(new RootView(model));
    setMinimumSize(RootView::minimumContent);
    resize(RootView::minimumContent);

    auto* quit = new QAction(QStringLiteral("Quit"), this);
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, qApp, &QCoreApplication::quit);
    addAction(quit);
}
