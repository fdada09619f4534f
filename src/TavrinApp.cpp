#include "TavrinApp.h"

#include "AppDelegate.h"
#include "AppModel.h"
#include "Core/MessageCenter.h"
#include "Platform/Appearance.h"
#include "Platform/SingleInstance.h"
#include "Platform/TerminationRequest.h"
#include "Preferences.h"
#include "UI/Kit/ThemeFollower.h"

#include <QIcon>
#include <QStyleFactory>

namespace {

/// The screen that this program's windows appear on, so that two screens of one user are told apart.
QString displayName() {
    return qEnvironmentVariable("WAYLAND_DISPLAY") + u'\n' + qEnvironmentVariable("DISPLAY");
}

} // namespace

TavrinApp::TavrinApp(int& argc, char** argv)
    : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Tavrin"));
    setApplicationDisplayName(QStringLiteral("Tavrin"));
    setApplicationVersion(QStringLiteral(TAVRIN_VERSION));
    setDesktopFileName(QStringLiteral("tavrin"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/tavrin.svg")));
    setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    setQuitOnLastWindowClosed(false);
    new ThemeFollower(Platform::makeAppearance(), this);
}

TavrinApp::~TavrinApp() = default;

int TavrinApp::run() {
    SingleInstance instance(displayName());
    if (!instance.claim())
        return 0;
    m_appDelegate = std::make_unique<AppDelegate>(AppModel::shared(), Preferences::shared(),
                                                  MessageCenter::shared(), Desktop::native());
    connect(&instance, &SingleInstance::startedAgain, this, [this] { m_appDelegate->bringForward(); });
    m_appDelegate->applicationDidFinishLaunching();
    const TerminationRequest termination;
    connect(&termination, &TerminationRequest::received, this, &QCoreApplication::quit);
    const int status = exec();
    m_appDelegate.reset();
    return status;
}
