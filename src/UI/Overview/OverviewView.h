#pragma once

#include "Core/Sampling/ProcSample.h"
#include "Platform/MachineDetails.h"
#include "UI/Overview/DetailPage.h"

#include <QHash>
#include <QList>
#include <QScrollArea>

#include <memory>
#include <optional>

class AlertStripView;
struct Alert;
class AppModel;
class GroupRow;
class MetricTile;
class TextLabel;

/// The first section of the main window: the machine's figures, alerts and process groups, live.
class OverviewView : public QScrollArea {
    Q_OBJECT

public:
    explicit OverviewView(AppModel& model, std::shared_ptr<MachineDetails> machine = MachineDetails::native(),
                          QWidget* parent = nullptr);

    /// Shows the page behind a tile in place of the dashboard.
    void openPage(DetailPage::Kind kind);
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
    void closePage();
    void actOn(const Alert& alert);
    void showDetails(const QString& alertId);
    void askToEnd(const ProcSample& process, bool force);
    QList<ProcSample> members(ProcGroup group) const;
    QList<ProcSample> heldMembers(ProcGroup group);

    AppModel& m_model;
    std::shared_ptr<MachineDetails> m_machine;
    QWidget* m_dashboard;
    DetailPage* m_page = nullptr; ///< in place of the dashboard
    QHash<DetailPage::Kind, DetailPage*> m_pages;
    AlertStripView* m_alerts;
    QList<MetricTile*> m_tiles;   ///< in the order of Metrics::all
    QList<GroupRow*> m_groupRows; ///< in group order
    TextLabel* m_noGroups;        ///< why there are none
    std::optional<ProcGroup> m_expanded;
    QList<ProcSample> m_held; ///< the open group's members, as they are shown
};
