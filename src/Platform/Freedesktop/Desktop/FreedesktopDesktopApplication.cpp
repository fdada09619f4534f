#include "Platform/Freedesktop/Desktop/FreedesktopDesktopApplication.h"

#include "Platform/Freedesktop/Desktop/WaylandWindow.h"
#include "Platform/Freedesktop/Desktop/X11Window.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto activationTimeout = 500ms; ///< of a compositor that brings a window forward

/// Reopens a window that a Wayland compositor refused to bring forward or unminimize.
void openAnewUnlessActive(QWidget* window) {
    if (!window->isVisible() || window->isActiveWindow() || QApplication::activeModalWidget())
        return;
    window->hide();
    window->show();
}

} // namespace

FreedesktopDesktopApplication::FreedesktopDesktopApplication() {
    qApp->installEventFilter(this);
}

QList<QWidget*> FreedesktopDesktopApplication::windows() const {
    QList<QWidget*> result;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        // A widget that nobody has shown and that has no title waits for its parent.
        const bool isWindow =
            window->testAttribute(Qt::WA_WState_ExplicitShowHide) || !window->windowTitle().isEmpty();
        if (isWindow && window->windowType() == Qt::Window)
            result.append(window);
    }
    return result;
}

void FreedesktopDesktopApplication::bringForward(QWidget* window) {
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
    X11Window::activate(window);
    if (WaylandWindow::isWayland())
        QTimer::singleShot(activationTimeout, window, [window] { openAnewUnlessActive(window); });
}

void FreedesktopDesktopApplication::setActivationPolicy(ActivationPolicy policy) {
    m_policy = policy;
    for (QWidget* window : windows())
        X11Window::setSkipTaskbar(window, policy == ActivationPolicy::accessory);
}

/// Hides a window from the task bar each time it is shown: window managers forget the state of a hidden one.
bool FreedesktopDesktopApplication::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && m_policy == ActivationPolicy::accessory) {
        auto* window = qobject_cast<QWidget*>(watched);
        if (window && window->windowType() == Qt::Window)
            QMetaObject::invokeMethod(
                window, [window] { X11Window::setSkipTaskbar(window, true); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}
