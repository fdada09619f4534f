#pragma once

#include <functional>
#include <initializer_list>

class Observable;
class QWidget;

/// Calls `refresh` when the widget is shown, and when a source has changed while a person could see the
/// widget. A widget that is not on screen does no work for a tick.
void refreshOnScreen(QWidget* widget, std::initializer_list<Observable*> sources,
                     std::function<void()> refresh);
