#pragma once

#include "Core/RawValue.h"

#include <QWidget>

#include <array>

class LoginItem;
class Notifications;
class Preferences;
class QHBoxLayout;
class QStackedWidget;
class TabButton;

/// The settings window. Every change takes effect at once. Its size and place are stored.
class SettingsScene : public QWidget {
    Q_OBJECT

public:
    enum class Tab { general, sampling, alerts, quickKills, cleanup, history };

    SettingsScene(Preferences& preferences, LoginItem& loginItem, const Notifications& notifications,
                  QWidget* parent = nullptr);

    Tab tab() const { return m_tab; }
    /// Returns whether it is where it was the last time, so that nobody has to place it.
    bool isPlaced() const { return m_isPlaced; }
    void select(Tab tab);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addTab(Tab tab, QWidget* content);
    void addActions();
    void selectNext(int by);

    Tab m_tab = Tab::general;
    QHBoxLayout* m_row;
    QStackedWidget* m_contents;
    QList<TabButton*> m_buttons;
    bool m_isPlaced = false;
};

template <>
inline constexpr std::array rawValueTable<SettingsScene::Tab> = {
    RawValueRow{SettingsScene::Tab::general, QT_TRANSLATE_NOOP("Translations", "General")},
    RawValueRow{SettingsScene::Tab::sampling, QT_TRANSLATE_NOOP("Translations", "Sampling")},
    RawValueRow{SettingsScene::Tab::alerts, QT_TRANSLATE_NOOP("Translations", "Alerts")},
    RawValueRow{SettingsScene::Tab::quickKills, QT_TRANSLATE_NOOP("Translations", "Quick Kills")},
    RawValueRow{SettingsScene::Tab::cleanup, QT_TRANSLATE_NOOP("Translations", "Cleanup")},
    RawValueRow{SettingsScene::Tab::history, QT_TRANSLATE_NOOP("Translations", "History")},
};
