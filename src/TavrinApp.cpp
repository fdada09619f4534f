#include "TavrinApp.h"

#include "AppDelegate.h"
#include "AppModel.h"
#include "Core/Announcements/MessageCenter.h"
#include "Core/Translations.h"
#include "LaunchOptions.h"
#include "Platform/Appearance.h"
#include "Platform/LoginItem.h"
#include "Platform/ProgramService.h"
#include "Platform/SingleInstance.h"
#include "Platform/TerminationRequest.h"
#include "Preferences.h"
#include "ProgramBus.h"
#include "UI/Kit/Accessibility.h"
#include "UI/Style/Style.h"
#include "UI/Style/ThemeFollower.h"

#include <QIcon>

namespace {

/// Returns a name of the display, which tells two displays of one user apart. ":0.1" is a screen of ":0".
QString displayName() {
    const QString screen = qEnvironmentVariable("DISPLAY");
    const QString display = screen.left(screen.indexOf(u'.', screen.lastIndexOf(u':')));
    return qEnvironmentVariable("WAYLAND_DISPLAY") + u'\n' + display;
}

} // namespace

TavrinApp::TavrinApp(int& argc, char** argv)
    : QApplication(argc, argv) {
    Translations::install(Preferences::shared().language());
    setApplicationName(QStringLiteral("Tavrin"));
    setApplicationVersion(QStringLiteral(TAVRIN_VERSION));
    setDesktopFileName(QStringLiteral("org.example.tavrin"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/tavrin.svg")));
    setStyle(new Style);
    Accessibility::install();
    setQuitOnLastWindowClosed(false);
    new ThemeFollower(Platform::makeAppearance(), this);
}

TavrinApp::~TavrinApp() = default;

int TavrinApp::run(const LaunchOptions& options) {
    SingleInstance instance(displayName());
    if (!instance.claim(options.request()))
        return 0;
    m_appDelegate =
        std::make_unique<AppDelegate>(AppModel::shared(), Preferences::shared(), MessageCenter::shared(),
                                      Desktop::native(), Platform::makeLoginItem());
    connect(&instance, &SingleInstance::startedAgain, this, [this](const QByteArray& request) {
        m_appDelegate->startedAgain(LaunchOptions::ofRequest(request));
    });
    m_appDelegate->applicationDidFinishLaunching(options);
    ProgramBus bus(AppModel::shared(), Platform::makeProgramService());
    connect(&bus, &ProgramBus::asked, this,
            [this](const LaunchOptions& asked) { m_appDelegate->startedAgain(asked); });
    bus.start();
    const TerminationRequest termination;
    connect(&termination, &TerminationRequest::received, this, &QCoreApplication::quit);
    const int status = exec();
    m_appDelegate.reset();
    return status;
}
