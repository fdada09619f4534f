#pragma once

#include "Core/Alerts/Alert.h"
#include "Platform/Desktop/Desktop.h"
#include "Preferences.h"

#include <QMenu>
#include <QObject>

#include <optional>

class AppModel;
class WidgetWindow;
struct SystemSample;

/// The status item. Its title follows every new sample. A click opens the panel, a secondary click the menu.
class MenuBarController : public QObject {
    Q_OBJECT

public:
    MenuBarController(AppModel& model, Preferences& preferences, Desktop desktop, WidgetWindow& widget,
                      QObject* parent = nullptr);

    /// Returns the title: "CPU 23% • RAM 61%". It is empty in the icon-only format.
    static QString title(MenuBarFormat format, const SystemSample& sample);

Q_SIGNALS:
    void settingsRequested();

private:
    /// What the item shows. It is drawn again only when that changes.
    struct Shown {
        MenuBarFormat format;
        QString title;
        bool dark;
        std::optional<Alert::Severity> worst;
        QString worstTitle;

        bool operator==(const Shown&) const = default;
    };

    void update(const SystemSample& sample);
    void togglePopover();
    void openMainWindow();

    AppModel& m_model;
    Preferences& m_preferences;
    Desktop m_desktop;
    QMenu m_menu;
    std::optional<Shown> m_shown;
};
