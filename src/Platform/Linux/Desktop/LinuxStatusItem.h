#pragma once

#include "Platform/Desktop/StatusItem.h"
#include "Platform/Linux/Desktop/StatusPill.h"

#include <QSystemTrayIcon>
#include <QTimer>

/// An item in the desktop's tray, or the pill while there is no tray. A tray that appears or vanishes while
/// the program runs is followed.
class LinuxStatusItem : public StatusItem {
    Q_OBJECT

public:
    explicit LinuxStatusItem(QObject* parent = nullptr);

    void show(const StatusContent& content) override;
    void setMenu(QMenu* menu) override;
    QRect geometry() const override;

private:
    void followTray();

    QSystemTrayIcon m_tray;
    StatusPill m_pill;
    QTimer m_watch;
};
