#pragma once

#include "UI/Kit/RowPool.h"

#include <QWidget>

#include <array>

class AppModel;
class FigureColumn;
class PanelRow;
class PushButton;
class QVBoxLayout;
class WidgetWindow;

/// The content of the status item's popover: the machine's figures, the sessions' total, the five
/// largest processes, up to three alerts, and buttons for the floating widget and the main window.
class MenuBarPanel : public QWidget {
    Q_OBJECT

public:
    static constexpr qsizetype shownProcesses = 5;
    static constexpr qsizetype shownAlerts = 3;

    MenuBarPanel(AppModel& model, WidgetWindow& widget, QWidget* parent = nullptr);

Q_SIGNALS:
    void openMainWindow();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLayout* makeHeader();
    QLayout* makeStatistics();
    QLayout* makeSessions();
    void refresh();
    void refreshStatistics();
    void refreshSessions();
    void refreshProcesses();
    void refreshAlerts();

    AppModel& m_model;
    WidgetWindow& m_widget;
    std::array<FigureColumn*, 4> m_statistics{};
    PushButton* m_sessions;
    QVBoxLayout* m_processColumn;
    RowPool<PanelRow> m_processRows;
    QWidget* m_alertSection;
    QVBoxLayout* m_alertColumn;
    RowPool<PanelRow> m_alertRows;
};
