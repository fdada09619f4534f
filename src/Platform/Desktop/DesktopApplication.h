#pragma once

#include <QList>

class QWidget;

/// With an entry in the task bar (`regular`) or in the status area only.
enum class ActivationPolicy { regular, accessory };

/// The program's own windows as the desktop sees them.
class DesktopApplication {
public:
    virtual ~DesktopApplication() = default;

    /// Returns the windows, shown or hidden, without panels and pop-ups, in any order.
    virtual QList<QWidget*> windows() const = 0;
    /// Shows the window above those of other programs and gives it the keyboard.
    virtual void bringForward(QWidget* window) = 0;

    virtual ActivationPolicy activationPolicy() const = 0;
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;
};
