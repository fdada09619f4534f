#pragma once

#include "Platform/Desktop/Desktop.h"
#include "UI/WidgetView.h"

#include <memory>

class AppModel;

/// The floating widget's panel: made when it is first shown, kept from then on.
class WidgetWindow {
public:
    explicit WidgetWindow(Desktop desktop);
    ~WidgetWindow();

    /// On the screen, over other windows; only the first time decides on the place.
    void show(AppModel& model);
    void hide();
    void toggle(AppModel& model);
    bool isVisible() const;

private:
    Desktop m_desktop;
    std::unique_ptr<FloatingPanel> window;
};
