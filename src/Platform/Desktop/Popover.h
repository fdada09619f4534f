#pragma once

#include <QObject>
#include <QRect>

class QWidget;

/// A transient window beside the thing it belongs to: an outside click, Escape or `close` ends it.
class Popover : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Takes ownership of `content` and gives it that size.
    virtual void setContent(QWidget* content, QSize size) = 0;
    /// Beside `anchor` (screen coordinates; empty: beside the pointer), with the keyboard.
    virtual void show(QRect anchor) = 0;
    virtual void close() = 0;
    virtual bool isShown() const = 0;
};
