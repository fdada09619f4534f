#pragma once

#include "Platform/Desktop/Desktop.h"
#include "Platform/Desktop/DesktopApplication.h"
#include "Platform/Desktop/FloatingPanel.h"
#include "Platform/Desktop/Notifications.h"
#include "Platform/Desktop/Popover.h"
#include "Platform/Desktop/StatusItem.h"

#include <QMap>
#include <QWidget>

#include <functional>

// A desktop that only records its calls.

class FakeStatusItem : public StatusItem {
public:
    StatusContent content;
    QMenu* menu = nullptr;
    QRect place{10, 0, 22, 22};
    std::function<void()> whenShown = [] {};

    void show(const StatusContent& shown) override {
        content = shown;
        whenShown();
    }
    void setMenu(QMenu* shown) override { menu = shown; }
    QRect geometry() const override { return place; }
};

/// The content of a popover or a panel.
struct ShownContent {
    std::unique_ptr<QWidget> content;
    bool shown = false;

    void setShown(bool isShown) {
        shown = isShown;
        content->setVisible(isShown);
    }
};

class FakePopover : public Popover, public ShownContent {
public:
    QRect anchor;

    void setContent(QWidget* widget, QSize size) override {
        content.reset(widget);
        widget->setFixedSize(size);
    }
    void show(QRect where) override {
        anchor = where;
        setShown(true);
    }
    void close() override { setShown(false); }
    bool isShown() const override { return shown; }
};

class FakePanel : public FloatingPanel, public ShownContent {
public:
    int placements = 0;
    QPoint corner;

    void setContent(QWidget* widget, double) override { content.reset(widget); }
    void placeBottomLeft(QPoint where) override {
        ++placements;
        corner = where;
    }
    QPoint bottomLeft() const override { return corner; }
    void orderFront() override { setShown(true); }
    void orderOut() override { setShown(false); }
    bool isVisible() const override { return shown; }
};

class FakeApplication : public DesktopApplication {
public:
    QList<QWidget*> own;
    QWidget* forward = nullptr;
    ActivationPolicy policy = ActivationPolicy::regular;
    std::function<void()> whenSet = [] {};

    QList<QWidget*> windows() const override { return own; }
    void bringForward(QWidget* window) override { forward = window; }
    ActivationPolicy activationPolicy() const override { return policy; }
    void setActivationPolicy(ActivationPolicy wanted) override {
        policy = wanted;
        whenSet();
    }
};

class FakeNotifications : public Notifications {
public:
    QMap<QString, Notification> shown; ///< by key
    int calls = 0;                     ///< of `show`
    std::optional<bool> available = true;

    void show(const Notification& notification) override {
        ++calls;
        shown[notification.key] = notification;
    }
    void withdraw(const QString& key) override { shown.remove(key); }
    std::optional<bool> isAvailable() const override { return available; }
};

struct FakeDesktop {
    std::shared_ptr<FakeStatusItem> statusItem = std::make_shared<FakeStatusItem>();
    std::shared_ptr<FakePopover> popover = std::make_shared<FakePopover>();
    std::shared_ptr<FakeApplication> application = std::make_shared<FakeApplication>();
    std::shared_ptr<FakeNotifications> notifications = std::make_shared<FakeNotifications>();
    std::shared_ptr<QList<FakePanel*>> panels = std::make_shared<QList<FakePanel*>>(); ///< all ever made
    std::function<void()> whenPanelMade = [] {};

    Desktop desktop() const {
        return {.statusItem = statusItem,
                .popover = popover,
                .application = application,
                .notifications = notifications,
                .makePanel = [list = panels, made = whenPanelMade] {
                    made();
                    auto panel = std::make_unique<FakePanel>();
                    list->append(panel.get());
                    return panel;
                }};
    }
};
