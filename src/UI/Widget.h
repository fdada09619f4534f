#pragma once

#include "Platform/Desktop/Desktop.h"
#include "UI/WidgetView.h"

#include <QPoint>

#include <memory>

class AppModel;
class SettingsFile;

/// The floating widget's panel, which is created when it is first shown.
class WidgetWindow {
public:
    /// `places` keeps where the panel stood; without it the panel begins at the bottom right.
    explicit WidgetWindow(Desktop desktop, SettingsFile* places = nullptr);
    ~WidgetWindow();

    /// Shows the panel above other windows. Places it the first time only.
    void show(AppModel& model);
    void hide();
    void toggle(AppModel& model);
    bool isVisible() const;

private:
    QPoint firstPlace() const;
    void rememberPlace();

    Desktop m_desktop;
    SettingsFile* m_places;
    std::unique_ptr<FloatingPanel> m_window;
};
