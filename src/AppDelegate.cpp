#include "AppDelegate.h"

#include "AppModel.h"
#include "UI/MainWindow.h"

AppDelegate::AppDelegate(AppModel& model)
    : m_model(model) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    m_model.start();
    m_mainWindow = std::make_unique<MainWindow>(m_model);
    m_mainWindow->show();
}
