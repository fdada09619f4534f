#include "UI/MainWindowFinder.h"

#include "Platform/Desktop/DesktopApplication.h"
#include "UI/RootView.h"
#include "UI/Settings/SettingsScene.h"

#include <QWidget>

#include <algorithm>

namespace {

bool hasMainTitle(const QWidget* window) {
    const QString title = window->windowTitle();
    return title == u"Tavrin" || fromRawValue<RootView::Tab>(title).has_value();
}

bool isNotSettings(const QWidget* window) {
    const QString title = window->windowTitle();
    return title != SettingsScene::tr("Tavrin Settings") &&
           !title.contains(QStringLiteral("settings"), Qt::CaseInsensitive);
}

} // namespace

void MainWindowFinder::open(DesktopApplication& application, Fallback fallback) {
    if (application.activationPolicy() != ActivationPolicy::regular)
        application.setActivationPolicy(ActivationPolicy::regular);
    const QList<QWidget*> windows = application.windows();
    auto found = std::find_if(windows.begin(), windows.end(), hasMainTitle);
    if (found == windows.end())
        found = std::find_if(windows.begin(), windows.end(), isNotSettings);
    if (found == windows.end() && fallback == Fallback::anyWindow)
        found = windows.begin();
    if (found != windows.end())
        application.bringForward(*found);
}
