#pragma once

#include "Platform/Desktop/StatusItem.h"
#include "Platform/Linux/Desktop/StatusPill.h"

#include <QDBusServiceWatcher>
#include <QSystemTrayIcon>
#include <QTimer>

/// An item in the desktop's tray, or the pill while there is no tray. A tray that appears or vanishes while
/// the program runs is followed; one that stops to answer holds up nothing.
class LinuxStatusItem : public StatusItem {
    Q_OBJECT

public:
    explicit LinuxStatusItem(QObject* parent = nullptr);

    void show(const StatusContent& content) override;
    void setMenu(QMenu* menu) override;
    QRect geometry() const override;

private Q_SLOTS:
    void askForTray();

private:
    void watchTrays();
    void watchTrayWindow();
    void placeItem();

    QSystemTrayIcon m_tray;
    StatusPill m_pill;
    QDBusServiceWatcher m_notifierWatch;
    QTimer m_windowWatch;
    quint32 m_trayWindow = 0; ///< that of the older protocol, 0 for none
    bool m_hasTray = false;
};
