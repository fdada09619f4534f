#pragma once

#include "UI/Kit/Graph.h"
#include "UI/Overview/SeriesLog.h"

#include <QWidget>

#include <memory>

class AppModel;
class MachineDetails;
class QVBoxLayout;

/// The page behind a tile of the dashboard. What the tick does not read anyway it reads only while it is on
/// show, once for each tick.
class DetailPage : public QWidget {
    Q_OBJECT

public:
    enum class Kind { cpu, memory, disk, thermal }; ///< in the order of the tiles

    /// Gives the focus to the button that leads back.
    void focusBack();

    static DetailPage* make(Kind kind, AppModel& model, std::shared_ptr<MachineDetails> machine);

Q_SIGNALS:
    /// Emitted when the user wants to go back to the dashboard.
    void left();

protected:
    DetailPage(const QString& title, AppModel& model, std::shared_ptr<MachineDetails> machine);

    virtual void refresh() = 0;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    AppModel& model() { return m_model; }
    MachineDetails& machine() { return *m_machine; }
    std::shared_ptr<MachineDetails> sharedMachine() const { return m_machine; }
    QVBoxLayout* column() { return m_column; }
    Graph* addGraph(const QString& title, Graph::Unit unit);
    /// Adds the figures of this tick that only this page reads.
    void note(const QStringList& names, const QList<double>& figures);
    /// Shows what was noted, in one colour after the other, and since when.
    void drawNoted(Graph* graph) const;
    /// Returns the series, in one colour after the other.
    static QList<Graph::Series> colored(const QStringList& names, const FigureHistory& history);
    /// Returns the times of the model's history.
    QList<double> historyTimes() const;

private:
    AppModel& m_model;
    std::shared_ptr<MachineDetails> m_machine;
    QVBoxLayout* m_column;
    QWidget* m_back;
    SeriesLog m_log;
    bool m_wasAway = false;
};
