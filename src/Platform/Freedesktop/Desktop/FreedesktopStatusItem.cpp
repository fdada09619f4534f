#include "Platform/Freedesktop/Desktop/FreedesktopStatusItem.h"

#include "Platform/Freedesktop/BusSignal.h"
#include "Platform/Freedesktop/Desktop/WaylandWindow.h"
#include "Platform/Freedesktop/Desktop/X11Window.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr int replyTimeoutMs = 1000;

const auto notifier = QStringLiteral("org.kde.StatusNotifierWatcher");
const auto notifierPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

FreedesktopStatusItem::FreedesktopStatusItem(QObject* parent)
    : StatusItem(parent) {
    connect(&m_pill, &StatusPill::clicked, this, &StatusItem::clicked);

    auto bus = QDBusConnection::sessionBus();
    m_notifierWatch.setConnection(bus);
    m_notifierWatch.addWatchedService(notifier);
    connect(&m_notifierWatch, &QDBusServiceWatcher::serviceOwnerChanged, this,
            &FreedesktopStatusItem::askNotifier);
    for (const auto* event : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        followSignal(bus, notifierPath, notifier, QString::fromLatin1(event), this, SLOT(askNotifier()));
    // XEmbed trays announce themselves to their clients only; a check is two round trips to the display.
    connect(&m_windowWatch, &QTimer::timeout, this, &FreedesktopStatusItem::watchTrayWindow);
    m_windowWatch.start(3s);
    m_trayWindow = X11Window::tray();
    askNotifier();
}

void FreedesktopStatusItem::askNotifier() {
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        QMetaObject::invokeMethod(this, &FreedesktopStatusItem::chooseTray, Qt::QueuedConnection);
        return;
    }
    auto question = QDBusMessage::createMethodCall(
        notifier, notifierPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << notifier << QStringLiteral("IsStatusNotifierHostRegistered");
    question.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(question, replyTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        m_isSilent = reply.error().type() == QDBusError::NoReply;
        m_hasNotifier = reply.isValid() && reply.value().variant().toBool();
        watcher->deleteLater();
        chooseTray();
    });
}

void FreedesktopStatusItem::watchTrayWindow() {
    const quint32 window = X11Window::tray();
    const bool isOther = std::exchange(m_trayWindow, window) != window;
    if (m_isSilent)
        askNotifier();
    else if (isOther)
        chooseTray();
}

/// Asks Qt only once a tray replies: Qt chooses the protocol for good, and blocks on a tray that hangs.
void FreedesktopStatusItem::chooseTray() {
    const bool mayHaveTray = !m_isSilent && (m_hasNotifier || m_trayWindow != 0);
    const bool hasTray = mayHaveTray && QSystemTrayIcon::isSystemTrayAvailable();
    if (hasTray && !m_tray) {
        m_tray.emplace();
        connect(
            &*m_tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
                // A Wayland tray without menus asks for ours, which cannot pop up there.
                const bool isMenuMissing = reason == QSystemTrayIcon::Context && WaylandWindow::isWayland();
                if (reason == QSystemTrayIcon::Trigger || isMenuMissing)
                    Q_EMIT clicked();
            });
        m_tray->setContextMenu(m_menu);
        fillTray();
    }
    if (m_tray)
        m_tray->setVisible(hasTray);
    m_pill.setVisible(!hasTray);
}

void FreedesktopStatusItem::fillTray() {
    if (!m_tray)
        return;
    m_tray->setIcon(m_content.compact);
    m_tray->setToolTip(m_content.toolTip);
}

void FreedesktopStatusItem::show(const StatusContent& content) {
    m_content = content;
    fillTray();
    m_pill.setContent(content);
}

void FreedesktopStatusItem::setMenu(QMenu* menu) {
    m_menu = menu;
    if (m_tray)
        m_tray->setContextMenu(menu);
    m_pill.setMenu(menu);
}

QRect FreedesktopStatusItem::geometry() const {
    return m_tray && m_tray->isVisible() ? m_tray->geometry() : m_pill.geometry();
}
