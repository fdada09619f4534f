#pragma once

#include "Platform/Desktop/Desktop.h"
#include "UI/WidgetView.h"

#include <memory>

class AppModel;

/// The floating widget's panel, which is created when it is first shown.
class WidgetWindow {
public:
    explicit WidgetWindow(Desktop desktop);
    ~WidgetWindow();

    /// Shows the panel above other windows. Places it the first time only.
    void show(AppModel& model);
    void hide();
    void toggle(AppModel& model);
    bool isVisible() const;

private:
    Desktop m_desktop;
    std::unique_ptr<FloatingPanel> m_window;
};
