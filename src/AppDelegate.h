#pragma once

#include "Platform/Desktop/Desktop.h"
#include "UI/Widget.h"

#include <QPointer>

#include <memory>

class AppModel;
class LoginItem;
class MainWindow;
class MenuBarController;
class MessageCenter;
class Preferences;
class SettingsScene;

/// What happens when launching has finished, and who owns the windows from then on.
class AppDelegate {
public:
    AppDelegate(AppModel& model, Preferences& preferences, MessageCenter& messages, Desktop desktop,
                std::shared_ptr<LoginItem> loginItem);
    ~AppDelegate();

    void applicationDidFinishLaunching();
    /// The user started the program a second time.
    void bringForward();
    /// Brings the settings window forward; one that was closed is made anew.
    void openSettings();

private:
    void openMainWindow();
    void applyActivationPolicy();
    void registerLoginItemIfFirstLaunch();

    AppModel& m_model;
    Preferences& m_preferences;
    MessageCenter& m_messages;
    Desktop m_desktop;
    std::shared_ptr<LoginItem> m_loginItem;
    WidgetWindow m_widget;
    std::unique_ptr<MainWindow> m_mainWindow;
    QPointer<SettingsScene> m_settings;
    std::unique_ptr<MenuBarController> m_menuBar;
};
