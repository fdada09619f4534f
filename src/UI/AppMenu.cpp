#include "UI/AppMenu.h"

#include <QCoreApplication>
#include <QMenu>

void AppMenu::fill(QMenu& menu, std::function<void()> open) {
    menu.addAction(QStringLiteral("Open"), &menu, std::move(open));
    menu.addSeparator();
    menu.addAction(QStringLiteral("Quit"), Qt::CTRL | Qt::Key_Q, qApp, &QCoreApplication::quit);
}
