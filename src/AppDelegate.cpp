#include "AppDelegate.h"

#include "AppModel.h"
#include "Core/MessageCenter.h"
#include "Core/Observe.h"
#include "Platform/Desktop/DesktopApplication.h"
#include "Preferences.h"
#include "UI/MainWindow.h"
#include "UI/MainWindowFinder.h"
#include "UI/MenuBar.h"

AppDelegate::AppDelegate(AppModel& model, Preferences& preferences, MessageCenter& messages, Desktop desktop)
    : m_model(model)
    , m_preferences(preferences)
    , m_messages(messages)
    , m_desktop(std::move(desktop))
    , m_widget(m_desktop) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    m_model.start();
    m_messages.start();
    menuBar = std::make_unique<MenuBarController>(m_model, m_preferences, m_desktop, m_widget);
    applyActivationPolicy();
    m_mainWindow = std::make_unique<MainWindow>(m_model, m_preferences, m_messages);
    QObject::connect(m_mainWindow.get(), &MainWindow::widgetToggled, m_mainWindow.get(),
                     [this] { m_widget.toggle(m_model); });
    m_mainWindow->show();
    if (m_preferences.showWidgetOnLaunch())
        m_widget.show(m_model);
    observe(&m_preferences, m_mainWindow.get(), [this] { applyActivationPolicy(); });
}

void AppDelegate::bringForward() {
    MainWindowFinder::open(*m_desktop.application, MainWindowFinder::Fallback::anyWindow);
}

void AppDelegate::applyActivationPolicy() {
    m_desktop.application->setActivationPolicy(m_preferences.showInDock() ? ActivationPolicy::regular
                                                                          : ActivationPolicy::accessory);
}
