#pragma once

#include "LaunchOptions.h"
#include "Platform/Desktop/Desktop.h"
#include "UI/Widget.h"

#include <QPointer>

#include <memory>

class AlertNotifier;
class AppModel;
class LoginItem;
class MainWindow;
class MenuBarController;
class MessageCenter;
class Preferences;
class SettingsScene;

/// Starts the program once launching has finished, and owns its windows.
class AppDelegate {
public:
    AppDelegate(AppModel& model, Preferences& preferences, MessageCenter& messages, Desktop desktop,
                std::shared_ptr<LoginItem> loginItem);
    ~AppDelegate();

    void applicationDidFinishLaunching(const LaunchOptions& options = {});
    /// Does what a second start asks for: brings a window forward, unless it is hidden.
    void startedAgain(const LaunchOptions& options);
    /// Brings the main window forward.
    void bringForward();
    /// Brings a section or a dialog forward.
    void show(Destination place);
    /// Brings the settings window forward, and makes it where none is open.
    void openSettings();

private:
    void makeMainWindow();
    void startNotifying();
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
    std::unique_ptr<AlertNotifier> m_notifier;
};
