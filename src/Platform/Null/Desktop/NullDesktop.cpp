#include "Platform/Desktop/Desktop.h"
#include "Platform/Desktop/DesktopApplication.h"
#include "Platform/Desktop/FileChooser.h"
#include "Platform/Desktop/FloatingPanel.h"
#include "Platform/Desktop/Notifications.h"
#include "Platform/Desktop/Popover.h"
#include "Platform/Desktop/StatusItem.h"

#include <QWidget>

// A desktop with ordinary windows only.

namespace {

class NullStatusItem : public StatusItem {
    void show(const StatusContent&) override {}
    void setMenu(QMenu*) override {}
    QRect geometry() const override { return {}; }
};

class NullPopover : public Popover {
    void setContent(QWidget* content, QSize) override { m_content.reset(content); }
    void show(QRect) override {}
    void close() override {}
    bool isShown() const override { return false; }

    std::unique_ptr<QWidget> m_content;
};

class NullDesktopApplication : public DesktopApplication {
    QList<QWidget*> windows() const override { return {}; }
    void bringForward(QWidget* window) override { window->show(); }
    ActivationPolicy activationPolicy() const override { return ActivationPolicy::regular; }
    void setActivationPolicy(ActivationPolicy) override {}
};

class NullNotifications : public Notifications {
    void show(const Notification&) override {}
    void withdraw(const QString&) override {}
    std::optional<bool> isAvailable() const override { return false; }
};

class NullFloatingPanel : public FloatingPanel {
    void setContent(QWidget* content, double) override { m_content.reset(content); }
    void placeBottomLeft(QPoint) override {}
    QPoint bottomLeft() const override { return {}; }
    void orderFront() override {}
    void orderOut() override {}
    bool isVisible() const override { return false; }

    std::unique_ptr<QWidget> m_content;
};

} // namespace

Desktop Desktop::native() {
    return {.statusItem = std::make_shared<NullStatusItem>(),
            .popover = std::make_shared<NullPopover>(),
            .application = std::make_shared<NullDesktopApplication>(),
            .notifications = std::make_shared<NullNotifications>(),
            .fileChooser = nullptr,
            .makePanel = [] { return std::make_unique<NullFloatingPanel>(); }};
}
