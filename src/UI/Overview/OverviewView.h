#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>
#include <QScrollArea>

#include <optional>

class AlertStripView;
struct Alert;
class AppModel;
class GroupRow;
class MetricTile;

/// The first section of the main window: the machine's figures, alerts and process groups, live.
class OverviewView : public QScrollArea {
    Q_OBJECT

public:
    explicit OverviewView(AppModel& model, QWidget* parent = nullptr);

    /// Opens the sheet that frees memory.
    void openFreeRAM();

Q_SIGNALS:
    void widgetToggled();
    /// Emitted when the user wants to end the session with that host.
    void endSessionRequested(const ProcessIdentity& host);

private:
    QLayout* makeHeader();
    QLayout* makeTiles();
    QLayout* makeGroups();
    void refresh();
    void refreshTiles();
    void refreshGroups();
    void toggle(ProcGroup group);
    void actOn(const Alert& alert);
    void showDetails(const QString& alertId);
    QList<ProcSample> members(ProcGroup group) const;

    AppModel& m_model;
    AlertStripView* m_alerts;
    QList<MetricTile*> m_tiles;   ///< in the order of Metrics::all
    QList<GroupRow*> m_groupRows; ///< in group order
    std::optional<ProcGroup> m_expanded;
};
