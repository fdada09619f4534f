#include "UI/AppMenu.h"

#include <QCoreApplication>
#include <QMenu>

void AppMenu::fill(QMenu& menu, std::function<void()> open, std::function<void()> openSettings) {
    menu.addAction(QCoreApplication::translate("AppMenu", "Open"), &menu, std::move(open));
    menu.addAction(QCoreApplication::translate("AppMenu", "Settings…"), Qt::CTRL | Qt::Key_Comma, &menu,
                   std::move(openSettings));
    menu.addSeparator();
    menu.addAction(QCoreApplication::translate("AppMenu", "Quit"), Qt::CTRL | Qt::Key_Q, qApp,
                   &QCoreApplication::quit);
}
