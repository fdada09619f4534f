#pragma once

class QWidget;

/// Disabling or hiding a control passes its focus on to the next one, and a person who works with the
/// keyboard loses her place. These park the focus beside the control, and give it back once the control can
/// be used again, unless the focus has moved on.
namespace KeptFocus {

void setEnabled(QWidget* control, bool enabled);
void setVisible(QWidget* control, bool visible);

} // namespace KeptFocus
