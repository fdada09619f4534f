#pragma once

#include <QPoint>

class QWidget;

/// A borderless window above all others on every desktop. It takes no focus, is dragged by its background and
/// keeps its place while hidden.
class FloatingPanel {
public:
    virtual ~FloatingPanel() = default;

    /// Takes ownership of `content`, which draws a card with corners of that radius.
    virtual void setContent(QWidget* content, double cornerRadius) = 0;
    /// Moves the bottom left corner to `corner`, in screen coordinates.
    virtual void placeBottomLeft(QPoint corner) = 0;
    /// Returns that corner, where the user left it.
    virtual QPoint bottomLeft() const = 0;
    virtual void orderFront() = 0;
    virtual void orderOut() = 0;
    virtual bool isVisible() const = 0;
};
