#pragma once

#include "Platform/Desktop/Popover.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

/// A pop-up window: the window system closes it on an outside click, Qt on Escape. A Wayland compositor lets
/// pop up only what belongs to a window of ours that was clicked, and keeps from an X11 program what is done
/// elsewhere. Beside a tray, and under XWayland, the popover is a small window of its own instead, which
/// closes when the keyboard goes elsewhere.
class FreedesktopPopover : public Popover {
    Q_OBJECT

public:
    explicit FreedesktopPopover(QObject* parent = nullptr);
    ~FreedesktopPopover() override;

    void setContent(QWidget* content, QSize size) override;
    void show(QRect anchor) override;
    void close() override;
    /// True also while the click that closed it is still being handled, so that a second click on the
    /// anchor closes the popover and does not open it again.
    bool isShown() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void filterOwnWindow(QEvent* event);
    QPoint place(QRect anchor) const;

    QPointer<QWidget> m_window;
    QElapsedTimer m_sinceClosed;
    QTimer m_forsaken;
};
