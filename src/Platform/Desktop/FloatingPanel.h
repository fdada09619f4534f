#pragma once

#include <QPoint>

class QWidget;

/// A borderless window over all others, on every desktop, that takes no focus from the program in front
/// and is dragged by its background. It keeps its place while it is ordered out.
class FloatingPanel {
public:
    virtual ~FloatingPanel() = default;

    /// Takes ownership of `content`.
    virtual void setContent(QWidget* content) = 0;
    /// Puts the bottom left corner at `corner`, in screen coordinates.
    virtual void placeBottomLeft(QPoint corner) = 0;
    virtual void orderFront() = 0;
    virtual void orderOut() = 0;
    virtual bool isVisible() const = 0;
};
