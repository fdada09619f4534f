#include "UI/Kit/KeptFocus.h"

#include <QApplication>
#include <QVariant>
#include <QWidget>

namespace KeptFocus {
namespace {

constexpr auto hadFocus = "hadFocus";

void park(QWidget* control) {
    if (!control->hasFocus())
        return;
    control->setProperty(hadFocus, true);
    control->parentWidget()->setFocus(Qt::OtherFocusReason);
}

void giveBack(QWidget* control) {
    const bool isParked = control->property(hadFocus).toBool() && control->parentWidget()->hasFocus();
    control->setProperty(hadFocus, QVariant());
    if (isParked)
        control->setFocus(Qt::OtherFocusReason);
}

} // namespace

void setEnabled(QWidget* control, bool enabled) {
    if (control->isEnabled() == enabled)
        return;
    if (!enabled)
        park(control);
    control->setEnabled(enabled);
    if (enabled)
        giveBack(control);
}

void setVisible(QWidget* control, bool visible) {
    if (control->isHidden() != visible)
        return;
    if (!visible)
        park(control);
    control->setVisible(visible);
    if (visible)
        giveBack(control);
}

} // namespace KeptFocus
