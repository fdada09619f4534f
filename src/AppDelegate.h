#pragma once

#include "Platform/Desktop/Desktop.h"
#include "UI/Widget.h"

#include <memory>

class AppModel;
class MainWindow;
class MenuBarController;
class MessageCenter;
class Preferences;

/// What happens when launching has finished, and who owns the windows from then on.
class AppDelegate {
public:
    AppDelegate(AppModel& model, Preferences& preferences, MessageCenter& messages, Desktop desktop);
    ~AppDelegate();

    void applicationDidFinishLaunching();
    /// The user started the program a second time.
    void bringForward();

private:
    void applyActivationPolicy();

    AppModel& m_model;
    Preferences& m_preferences;
    MessageCenter& m_messages;
    Desktop m_desktop;
    WidgetWindow m_widget;
    std::unique_ptr<MainWindow> m_mainWindow;
    std::unique_ptr<MenuBarController> menuBar;
};
