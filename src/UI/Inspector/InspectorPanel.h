#pragma once

#include "Core/Inspection/ProcessInspection.h"
#include "Core/Sampling/ProcSample.h"
#include "UI/Inspector/InspectedHistory.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/RowPool.h"

#include <QCoroTask>
#include <QScrollArea>

#include <optional>

class AppModel;
class ClampedLabel;
class FieldList;
class Graph;
class MemoryKindsBar;
class PushButton;
class QVBoxLayout;
class SizeList;
class SymbolView;
class TextLabel;

/// One parent of a process, as a link to it.
class ParentLink : public TextButton {
    Q_OBJECT

public:
    using TextButton::TextButton;

    void set(const ProcSample& process);
    const ProcSample& process() const { return m_process; }

private:
    ProcSample m_process;
};

/// Everything about one process: what it is, its figures and their last minutes, where it comes from, what it
/// has open, and the buttons that end it. It reads only while it is on show, on a thread.
class InspectorPanel : public QScrollArea {
    Q_OBJECT

public:
    explicit InspectorPanel(AppModel& model, QWidget* parent = nullptr);

    /// Shows another process.
    void setProcess(const ProcSample& process);
    /// Shows the figures of the last tick.
    void refresh();

Q_SIGNALS:
    void endRequested(const ProcSample& process, bool force);
    /// Emitted when the user wants to see another process.
    void processRequested(const ProcSample& process);
    void closed();

private:
    /// The lines of the list of fields.
    struct Fields {
        int pid, user, started, threads, session, folder, group;
    };

    void layOut();
    void layOutHead();
    void layOutFigures();
    void layOutOpen();
    QVBoxLayout* addSection(const QString& title);
    void showIcon();
    void showFigures();
    void showHistory();
    void showFields();
    void showParents();
    void showInspection();
    void showFiles();
    void forgetDetails();
    QCoro::Task<> inspect(ProcessIdentity process);
    QCoro::Task<> readEnvironment(ProcessIdentity process);
    bool isOn(const ProcessIdentity& process) const;

    AppModel& m_model;
    QWidget* m_body;
    QVBoxLayout* m_column; ///< of the body
    ProcSample m_process;  ///< as of the last tick that listed it; the PID is 0 before the first
    bool m_hasEnded = false;
    InspectedHistory m_history;
    std::optional<ProcessInspection> m_inspection;
    bool m_isInspecting = false;
    QString m_commandLine;
    QString m_iconOf; ///< the program whose icon is shown

    SymbolView* m_icon;
    ClampedLabel* m_name;
    TextLabel* m_what;
    PushButton* m_quit;
    PushButton* m_kill;
    Graph* m_cpu;
    Graph* m_ram;
    MemoryKindsBar* m_kinds;
    FieldList* m_fields;
    Fields m_at{};
    ClampedLabel* m_command;
    QVBoxLayout* m_parentsColumn = nullptr;
    RowPool<ParentLink> m_parents;
    TextLabel* m_noParents;
    TextLabel* m_open;
    PushButton* m_showFiles;
    SizeList* m_files = nullptr;
    PushButton* m_showEnvironment;
    SizeList* m_environment = nullptr;
    QVBoxLayout* m_openColumn = nullptr;
    QVBoxLayout* m_environmentColumn = nullptr;
};
