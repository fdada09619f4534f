#pragma once

#include "UI/Kit/Graph.h"
#include "UI/Overview/SeriesLog.h"

#include <QWidget>

#include <memory>

class AppModel;
class MachineDetails;
class QVBoxLayout;

/// The page behind a tile of the dashboard. It reads the machine only while it is on show, once for each
/// tick.
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

    AppModel& model() { return m_model; }
    MachineDetails& machine() { return *m_machine; }
    std::shared_ptr<MachineDetails> sharedMachine() const { return m_machine; }
    QVBoxLayout* column() { return m_column; }
    Graph* addGraph(const QString& title, Graph::Unit unit);
    /// Adds the figures of this tick, as long as the retention setting says.
    void note(SeriesLog& log, const QStringList& names, const QList<double>& figures);
    /// Shows what was noted, in one colour after the other.
    static void draw(Graph* graph, const SeriesLog& log, bool isStacked, double top = 0);
    /// Returns the times of the model's history.
    QList<double> historyTimes() const;

private:
    AppModel& m_model;
    std::shared_ptr<MachineDetails> m_machine;
    QVBoxLayout* m_column;
    QWidget* m_back;
};
