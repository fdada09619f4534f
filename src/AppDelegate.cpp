#include "AppDelegate.h"

#include "AppModel.h"
#include "Core/Announcements/MessageCenter.h"
#include "Core/Observable.h"
#include "Platform/Clock.h"
#include "Platform/Desktop/DesktopApplication.h"
#include "Platform/LoginItem.h"
#include "Preferences.h"
#include "UI/AlertNotifier.h"
#include "UI/Kit/FilePanel.h"
#include "UI/MainWindow.h"
#include "UI/MainWindowFinder.h"
#include "UI/MenuBar.h"
#include "UI/Settings/SettingsScene.h"

#include <QScreen>

AppDelegate::AppDelegate(AppModel& model, Preferences& preferences, MessageCenter& messages, Desktop desktop,
                         std::shared_ptr<LoginItem> loginItem)
    : m_model(model)
    , m_preferences(preferences)
    , m_messages(messages)
    , m_desktop(std::move(desktop))
    , m_loginItem(std::move(loginItem))
    , m_widget(m_desktop, &m_preferences.file()) {
    FilePanel::use(m_desktop.fileChooser);
}

AppDelegate::~AppDelegate() {
    delete m_settings;
    FilePanel::use(nullptr);
}

void AppDelegate::applicationDidFinishLaunching(const LaunchOptions& options) {
    makeMainWindow();
    if (!options.isHidden)
        m_mainWindow->show(); // first: its frame is drawn while the rest is made
    m_model.start();
    m_messages.start();
    m_menuBar = std::make_unique<MenuBarController>(m_model, m_preferences, m_desktop, m_widget);
    QObject::connect(m_menuBar.get(), &MenuBarController::settingsRequested, m_menuBar.get(),
                     [this] { openSettings(); });
    startNotifying();
    applyActivationPolicy();
    if (m_preferences.showWidgetOnLaunch())
        m_widget.show(m_model);
    registerLoginItemIfFirstLaunch();
    observe(&m_preferences, m_menuBar.get(), [this] { applyActivationPolicy(); });
    if (options.place && !options.isHidden)
        show(*options.place);
}

void AppDelegate::makeMainWindow() {
    m_mainWindow = std::make_unique<MainWindow>(m_model, m_preferences, m_messages);
    QObject::connect(m_mainWindow.get(), &MainWindow::widgetToggled, m_mainWindow.get(),
                     [this] { m_widget.toggle(m_model); });
    QObject::connect(m_mainWindow.get(), &MainWindow::settingsRequested, m_mainWindow.get(),
                     [this] { openSettings(); });
}

/// Shows in the main window what the user chooses in a notification.
void AppDelegate::startNotifying() {
    m_notifier = std::make_unique<AlertNotifier>(m_model, m_preferences, m_desktop.notifications,
                                                 std::make_shared<SystemClock>());
    AlertNotifier* notifier = m_notifier.get();
    RootView& root = m_mainWindow->root();
    QObject::connect(notifier, &AlertNotifier::showRequested, &root, [this, &root](RootView::Tab tab) {
        bringForward();
        root.select(tab);
    });
    QObject::connect(notifier, &AlertNotifier::freeRAMRequested, &root, [this, &root] {
        bringForward();
        root.openFreeRAM();
    });
    QObject::connect(notifier, &AlertNotifier::endRequested, &root,
                     [this, &root](const ProcessIdentity& host) {
                         bringForward();
                         root.confirmEnd(host);
                     });
    QObject::connect(notifier, &AlertNotifier::quitRequested, &root,
                     [this, &root](const ProcSample& process) {
                         bringForward();
                         root.confirmQuit(process);
                     });
}

void AppDelegate::startedAgain(const LaunchOptions& options) {
    if (options.isHidden)
        return;
    if (options.place)
        show(*options.place);
    else
        bringForward();
}

void AppDelegate::show(Destination place) {
    if (place == Destination::settings) {
        openSettings();
        return;
    }
    bringForward();
    RootView& root = m_mainWindow->root();
    if (place == Destination::freeRAM)
        root.openFreeRAM();
    else
        root.select(static_cast<RootView::Tab>(place)); // the sections come first, in their order
}

void AppDelegate::bringForward() {
    MainWindowFinder::open(*m_desktop.application, MainWindowFinder::Fallback::anyWindow);
}

void AppDelegate::openSettings() {
    if (!m_settings || !m_settings->isVisible()) { // a closed one is deleted later
        m_settings = new SettingsScene(m_preferences, *m_loginItem, *m_desktop.notifications);
        m_settings->setAttribute(Qt::WA_DeleteOnClose);
        if (!m_settings->isPlaced()) {
            const QRect around = m_mainWindow->isVisible() ? m_mainWindow->geometry()
                                                           : m_settings->screen()->availableGeometry();
            m_settings->move(around.center() - m_settings->rect().center());
        }
        m_settings->show();
    }
    m_desktop.application->bringForward(m_settings);
}

void AppDelegate::applyActivationPolicy() {
    m_desktop.application->setActivationPolicy(m_preferences.showInDock() ? ActivationPolicy::regular
                                                                          : ActivationPolicy::accessory);
}

void AppDelegate::registerLoginItemIfFirstLaunch() {
    const QString key = QStringLiteral("pref.didFirstLaunchSetup");
    const bool isFirst = !m_preferences.file().boolean(key).value_or(false);
    if (isFirst)
        m_preferences.file().store(key, true); // first, so that no failure repeats at every launch
    if (!m_preferences.startAtLogin())
        return;
    if (isFirst && m_loginItem->isInstalled())
        m_loginItem->registerItem(); // a failure is not worth a message to a new user
    else
        m_loginItem->replaceGoneProgram();
}
