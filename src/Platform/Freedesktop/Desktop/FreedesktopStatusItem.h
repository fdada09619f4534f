#pragma once

#include "Platform/Desktop/StatusItem.h"
#include "Platform/Freedesktop/Desktop/StatusPill.h"

#include <QDBusServiceWatcher>
#include <QMenu>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QTimer>

#include <optional>

/// An item in the desktop's tray, or the pill while there is no tray. It follows trays that appear, vanish or
/// hang while the program runs. Nothing is shown before the first reply.
class FreedesktopStatusItem : public StatusItem {
    Q_OBJECT

public:
    explicit FreedesktopStatusItem(QObject* parent = nullptr);

    void show(const StatusContent& content) override;
    void setMenu(QMenu* menu) override;
    QRect geometry() const override;

private Q_SLOTS:
    void askNotifier();

private:
    void watchTrayWindow();
    void chooseTray();
    void fillTray();

    StatusContent m_content;
    QPointer<QMenu> m_menu;
    std::optional<QSystemTrayIcon> m_tray; ///< once there is a tray
    StatusPill m_pill;
    QDBusServiceWatcher m_notifierWatch;
    bool m_hasNotifier = false; ///< a tray on the bus
    bool m_isSilent = false;    ///< the last call timed out
    QTimer m_windowWatch;
    quint32 m_trayWindow = 0; ///< of an XEmbed tray, 0 for none
};
