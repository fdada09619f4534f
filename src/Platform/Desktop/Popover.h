#pragma once

#include <QObject>
#include <QRect>

class QWidget;

/// A transient window beside its anchor, closed by an outside click, Escape or `close`.
class Popover : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Takes ownership of `content` and resizes it.
    virtual void setContent(QWidget* content, QSize size) = 0;
    /// Shows it beside `anchor` (screen coordinates; empty: the pointer) and gives it the keyboard.
    virtual void show(QRect anchor) = 0;
    virtual void close() = 0;
    virtual bool isShown() const = 0;
};
