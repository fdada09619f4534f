#pragma once

#include <QList>

class QWidget;

/// Whether the program has an entry in the task bar (`regular`) or lives in the status area only.
enum class ActivationPolicy { regular, accessory };

/// The program's own windows as the desktop sees them.
class DesktopApplication {
public:
    virtual ~DesktopApplication() = default;

    /// Windows that are no panels or pop-ups, ordered-out ones included, in no particular order.
    virtual QList<QWidget*> windows() const = 0;
    /// Shows the window if need be, over the windows of other programs, with the keyboard.
    virtual void bringForward(QWidget* window) = 0;

    virtual ActivationPolicy activationPolicy() const = 0;
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;
};
