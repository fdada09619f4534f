#pragma once

#include "Platform/Desktop/Popover.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

/// A pop-up window: the window system closes it on an outside click, Qt on Escape.
class LinuxPopover : public Popover {
    Q_OBJECT

public:
    using Popover::Popover;
    ~LinuxPopover() override;

    void setContent(QWidget* content, QSize size) override;
    void show(QRect anchor) override;
    void close() override;
    /// True also while the click that closed it is still being handled, so that a second click on the
    /// anchor closes the popover and does not open it again.
    bool isShown() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPoint place(QRect anchor) const;

    QPointer<QWidget> m_window;
    QElapsedTimer m_sinceClosed;
};
