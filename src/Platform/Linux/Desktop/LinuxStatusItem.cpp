#include "Platform/Linux/Desktop/LinuxStatusItem.h"

#include "Platform/Linux/Desktop/WaylandWindow.h"
#include "Platform/Linux/Desktop/X11Window.h"

#include <QDBusConnection>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

LinuxStatusItem::LinuxStatusItem(QObject* parent)
    : StatusItem(parent) {
    connect(&m_tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        // A Wayland tray that draws no menus asks for ours, which could not pop up there.
        const bool isMenuMissing = reason == QSystemTrayIcon::Context && WaylandWindow::isWayland();
        if (reason == QSystemTrayIcon::Trigger || isMenuMissing)
            Q_EMIT clicked();
    });
    connect(&m_pill, &StatusPill::clicked, this, &StatusItem::clicked);
    watchTrays();
}

/// Qt asks a tray on the bus and waits for its answer, as long as it may take, so it is made to ask only when
/// a tray may have come or gone.
void LinuxStatusItem::watchTrays() {
    const auto notifier = QStringLiteral("org.kde.StatusNotifierWatcher");
    if (auto bus = QDBusConnection::sessionBus(); bus.isConnected()) {
        m_notifierWatch.setConnection(bus);
        m_notifierWatch.addWatchedService(notifier);
        connect(&m_notifierWatch, &QDBusServiceWatcher::serviceOwnerChanged, this,
                &LinuxStatusItem::askForTray);
        for (const auto* event : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
            bus.connect(QString(), QStringLiteral("/StatusNotifierWatcher"), notifier,
                        QString::fromLatin1(event), this, SLOT(askForTray()));
    }
    // The older protocol announces itself to a tray's clients only; this is one round trip to the display.
    connect(&m_windowWatch, &QTimer::timeout, this, &LinuxStatusItem::watchTrayWindow);
    m_windowWatch.start(3s);
    m_trayWindow = X11Window::tray();
    m_hasTray = QSystemTrayIcon::isSystemTrayAvailable();
}

void LinuxStatusItem::watchTrayWindow() {
    const quint32 window = X11Window::tray();
    if (std::exchange(m_trayWindow, window) != window)
        askForTray();
}

void LinuxStatusItem::askForTray() {
    m_hasTray = QSystemTrayIcon::isSystemTrayAvailable();
    placeItem();
}

void LinuxStatusItem::show(const StatusContent& content) {
    m_tray.setIcon(content.compact);
    m_tray.setToolTip(content.toolTip);
    m_pill.setContent(content);
    placeItem();
}

void LinuxStatusItem::setMenu(QMenu* menu) {
    m_tray.setContextMenu(menu);
    m_pill.setMenu(menu);
}

QRect LinuxStatusItem::geometry() const {
    return m_pill.isVisible() ? m_pill.geometry() : m_tray.geometry();
}

void LinuxStatusItem::placeItem() {
    if (m_tray.isVisible() != m_hasTray)
        m_tray.setVisible(m_hasTray);
    m_pill.setVisible(!m_hasTray);
}
