#include "TavrinApp.h"

#include "AppDelegate.h"
#include "AppModel.h"
#include "Platform/Appearance.h"
#include "UI/Kit/ThemeFollower.h"

#include <QIcon>
#include <QStyleFactory>

TavrinApp::TavrinApp(int& argc, char** argv)
    : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Tavrin"));
    setApplicationDisplayName(QStringLiteral("Tavrin"));
    setApplicationVersion(QStringLiteral(TAVRIN_VERSION));
    setDesktopFileName(QStringLiteral("tavrin"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/tavrin.svg")));
    setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    new ThemeFollower(Platform::makeAppearance(), this);
}

TavrinApp::~TavrinApp() = default;

int TavrinApp::run() {
    m_appDelegate = std::make_unique<AppDelegate>(AppModel::shared());
    m_appDelegate->applicationDidFinishLaunching();
    return exec();
}
