#include "Platform/Linux/Desktop/LinuxStatusItem.h"

#include "Platform/Linux/Desktop/WaylandWindow.h"

#include <chrono>

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
    // Neither tray protocol announces itself to Qt; asking costs one round trip to the display server.
    connect(&m_watch, &QTimer::timeout, this, &LinuxStatusItem::followTray);
    m_watch.start(3s);
}

void LinuxStatusItem::show(const StatusContent& content) {
    m_tray.setIcon(content.compact);
    m_tray.setToolTip(content.toolTip);
    m_pill.setContent(content);
    followTray();
}

void LinuxStatusItem::setMenu(QMenu* menu) {
    m_tray.setContextMenu(menu);
    m_pill.setMenu(menu);
}

QRect LinuxStatusItem::geometry() const {
    return m_pill.isVisible() ? m_pill.geometry() : m_tray.geometry();
}

void LinuxStatusItem::followTray() {
    const bool hasTray = QSystemTrayIcon::isSystemTrayAvailable();
    if (m_tray.isVisible() != hasTray)
        m_tray.setVisible(hasTray);
    m_pill.setVisible(!hasTray);
}
