#pragma once

#include "Platform/Desktop/Desktop.h"
#include "Platform/Desktop/DesktopApplication.h"
#include "Platform/Desktop/FloatingPanel.h"
#include "Platform/Desktop/Popover.h"
#include "Platform/Desktop/StatusItem.h"

#include <QPointer>
#include <QWidget>

// A desktop that only remembers what it was asked for.

class FakeStatusItem : public StatusItem {
public:
    StatusContent content;
    QMenu* menu = nullptr;
    QRect place{10, 0, 22, 22};

    void show(const StatusContent& shown) override { content = shown; }
    void setMenu(QMenu* shown) override { menu = shown; }
    QRect geometry() const override { return place; }
};

class FakePopover : public Popover {
public:
    std::unique_ptr<QWidget> content;
    QRect anchor;
    bool shown = false;

    void setContent(QWidget* widget, QSize size) override {
        content.reset(widget);
        widget->setFixedSize(size);
    }
    void show(QRect where) override {
        anchor = where;
        shown = true;
        content->show();
    }
    void close() override {
        shown = false;
        content->hide();
    }
    bool isShown() const override { return shown; }
};

class FakePanel : public FloatingPanel {
public:
    std::unique_ptr<QWidget> content;
    QPoint corner;
    int placements = 0;
    bool visible = false;

    void setContent(QWidget* widget) override { content.reset(widget); }
    void placeBottomLeft(QPoint place) override {
        corner = place;
        ++placements;
    }
    void orderFront() override {
        visible = true;
        content->show();
    }
    void orderOut() override {
        visible = false;
        content->hide();
    }
    bool isVisible() const override { return visible; }
};

class FakeApplication : public DesktopApplication {
public:
    QList<QWidget*> own;
    QWidget* forward = nullptr;
    ActivationPolicy policy = ActivationPolicy::regular;

    QList<QWidget*> windows() const override { return own; }
    void bringForward(QWidget* window) override { forward = window; }
    ActivationPolicy activationPolicy() const override { return policy; }
    void setActivationPolicy(ActivationPolicy wanted) override { policy = wanted; }
};

struct FakeDesktop {
    std::shared_ptr<FakeStatusItem> statusItem = std::make_shared<FakeStatusItem>();
    std::shared_ptr<FakePopover> popover = std::make_shared<FakePopover>();
    std::shared_ptr<FakeApplication> application = std::make_shared<FakeApplication>();
    std::shared_ptr<QList<FakePanel*>> panels = std::make_shared<QList<FakePanel*>>(); ///< all ever made

    Desktop desktop() const {
        return {.statusItem = statusItem,
                .popover = popover,
                .application = application,
                .makePanel = [list = panels] {
                    auto panel = std::make_unique<FakePanel>();
                    list->append(panel.get());
                    return panel;
                }};
    }
};
