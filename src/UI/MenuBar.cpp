#include "UI/MenuBar.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Core/Observable.h"
#include "Platform/Desktop/Popover.h"
#include "Platform/Desktop/StatusItem.h"
#include "UI/AppMenu.h"
#include "UI/MainWindowFinder.h"
#include "UI/MenuBarPanel.h"
#include "UI/Style/FigureIcon.h"
#include "UI/Style/Symbols.h"
#include "UI/Style/Theme.h"

#include <QApplication>

#include <cmath>
#include <utility>

namespace {

constexpr QSize panelSize(320, 360);
constexpr int traySymbolSize = 16;

int rounded(double percent) {
    return static_cast<int>(std::lround(percent));
}

QStringList figures(MenuBarFormat format, const SystemSample& sample) {
    const QString cpu = QString::number(rounded(sample.cpuPercent));
    const QString ram = QString::number(rounded(sample.memUsedPercent()));
    if (format == MenuBarFormat::both)
        return {cpu, ram};
    if (format == MenuBarFormat::cpuOnly)
        return {cpu};
    return format == MenuBarFormat::ramOnly ? QStringList{ram} : QStringList();
}

QString toolTip(const QString& figures, const Alert* worst) {
    return worst ? figures + u'\n' + Formatters::visible(worst->title) : figures;
}

} // namespace

MenuBarController::MenuBarController(AppModel& model, Preferences& preferences, Desktop desktop,
                                     WidgetWindow& widget, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_preferences(preferences)
    , m_desktop(std::move(desktop)) {
    AppMenu::fill(
        m_menu, [this] { openMainWindow(); }, [this] { Q_EMIT settingsRequested(); });
    m_desktop.statusItem->setMenu(&m_menu);
    m_desktop.statusItem->show({.title = QStringLiteral("•••"),
                                .symbol = {},
                                .compact = FigureIcon::make({}),
                                .toolTip = QStringLiteral("Tavrin")});
    connect(m_desktop.statusItem.get(), &StatusItem::clicked, this, &MenuBarController::togglePopover);

    auto* panel = new MenuBarPanel(m_model, widget);
    connect(panel, &MenuBarPanel::openMainWindow, this, &MenuBarController::openMainWindow);
    m_desktop.popover->setContent(panel, Theme::scaled(panelSize));

    const auto redraw = [this] { update(m_model.systemSample()); };
    observe(&m_model, this, redraw);
    observe(&m_preferences, this, redraw);
    if (!m_model.systemHistory().isEmpty()) // the first sample was taken before anybody could observe it
        QMetaObject::invokeMethod(this, redraw, Qt::QueuedConnection);
}

QString MenuBarController::title(MenuBarFormat format, const SystemSample& sample) {
    const int cpu = rounded(sample.cpuPercent);
    const int ram = rounded(sample.memUsedPercent());
    switch (format) {
    case MenuBarFormat::both:
        return tr("CPU %1% • RAM %2%").arg(cpu).arg(ram);
    case MenuBarFormat::cpuOnly:
        return tr("CPU %1%").arg(cpu);
    case MenuBarFormat::ramOnly:
        return tr("RAM %1%").arg(ram);
    case MenuBarFormat::iconOnly:
        break;
    }
    return {};
}

void MenuBarController::update(const SystemSample& sample) {
    const MenuBarFormat format = m_preferences.menuBarFormat();
    const QString text = title(format, sample);
    const Alert* worst = Alert::worstOf(m_model.alerts());
    const Shown shown{.format = format,
                      .title = text,
                      .dark = Theme::isDark(),
                      .worst = worst ? std::optional(worst->severity) : std::nullopt,
                      .worstTitle = worst ? worst->title : QString()};
    if (std::exchange(m_shown, shown) == shown)
        return;
    const bool iconOnly = format == MenuBarFormat::iconOnly;
    const QPixmap symbol =
        Symbols::pixmap(QStringLiteral("waveform.path.ecg"), Theme::color(Theme::Role::primaryText),
                        traySymbolSize, qApp->devicePixelRatio());
    m_desktop.statusItem->show({.title = text,
                                .symbol = iconOnly ? QIcon(symbol) : QIcon(),
                                .compact = FigureIcon::make(figures(format, sample), shown.worst),
                                .toolTip = toolTip(iconOnly ? QStringLiteral("Tavrin") : text, worst),
                                .mark = shown.worst ? FigureIcon::mark(*shown.worst) : QIcon()});
}

void MenuBarController::togglePopover() {
    if (m_desktop.popover->isShown())
        m_desktop.popover->close();
    else
        m_desktop.popover->show(m_desktop.statusItem->geometry());
}

void MenuBarController::openMainWindow() {
    // In this order: the popover has the focus, and can pass it on only while it is open.
    MainWindowFinder::open(*m_desktop.application, MainWindowFinder::Fallback::anyWindow);
    m_desktop.popover->close();
}
