#pragma once

#include "Platform/Desktop/Popover.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

/// A pop-up window: the window system closes it on an outside click, Qt on Escape. Wayland compositors allow
/// pop-ups only for a clicked window of ours and hide outside clicks from X11 programs. Beside a Wayland tray
/// and under XWayland the popover is therefore a small window, which closes when it loses the keyboard.
class FreedesktopPopover : public Popover {
    Q_OBJECT

public:
    explicit FreedesktopPopover(QObject* parent = nullptr);
    ~FreedesktopPopover() override;

    void setContent(QWidget* content, QSize size) override;
    void show(QRect anchor) override;
    void close() override;
    /// Returns true for a moment after it was closed too, so that the click that closed it does not reopen
    /// it.
    bool isShown() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void filterOwnWindow(QEvent* event);
    QPoint place(QRect anchor) const;

    QPointer<QWidget> m_window;
    QSize m_size; ///< at least
    QElapsedTimer m_sinceClosed;
    QTimer m_focusTimer;
};
