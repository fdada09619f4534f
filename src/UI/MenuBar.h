#pragma once

#include "Platform/Desktop/Desktop.h"
#include "Preferences.h"

#include <QMenu>
#include <QObject>

#include <optional>

class AppModel;
class WidgetWindow;
struct SystemSample;

/// The status item: it keeps its title in step with every new sample, opens the panel on a click and the
/// menu on a secondary one.
class MenuBarController : public QObject {
    Q_OBJECT

public:
    MenuBarController(AppModel& model, Preferences& preferences, Desktop desktop, WidgetWindow& widget,
                      QObject* parent = nullptr);

    /// The whole title, without the symbol of the icon-only format: "CPU 23% • RAM 61%".
    static QString title(MenuBarFormat format, const SystemSample& sample);

Q_SIGNALS:
    void settingsRequested();

private:
    /// What the item was last drawn from; it is drawn again only when that changes.
    struct Shown {
        MenuBarFormat format;
        QString title;
        bool dark;

        bool operator==(const Shown&) const = default;
    };

    void buildMenu();
    void update(const SystemSample& sample);
    void togglePopover();
    void openMainWindow();

    AppModel& m_model;
    Preferences& m_preferences;
    Desktop m_desktop;
    QMenu m_menu;
    std::optional<Shown> m_shown;
};
