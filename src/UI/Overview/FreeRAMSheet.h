#pragma once

#include "Core/Instant.h"
#include "Core/Relief/FreeRAM.h"
#include "UI/Kit/RowPool.h"

#include <QDialog>
#include <QHash>

#include <stop_token>

class AppModel;
class CandidateRow;
class FreeRAMResultView;
class LabeledSlider;
class PushButton;
class QCheckBox;
class QStackedWidget;
class QVBoxLayout;
class TextLabel;

/// Lets the user tick idle processes that use much memory, ends them and shows the outcome for each. Modal
/// for its window; deletes itself when it is closed.
class FreeRAMSheet : public QDialog {
    Q_OBJECT

public:
    FreeRAMSheet(AppModel& model, QWidget* parent);

private:
    QLayout* makeHeader();
    QLayout* makeThresholds();
    QWidget* makeList();
    QLayout* makeSelectionBar();
    QLayout* makeActions();
    void refresh();
    void refreshRows();
    void refreshButtons();
    void forgetEnded();
    void wantFigures();
    void toggle(qint32 pid);
    void tickFirst(qsizetype count);
    void clear();
    void start();
    void finish(const FreeRAMResult& result);
    quint64 selectedRAM() const;
    QList<qint32> tickedPids() const;

    AppModel& m_model;
    QList<FreeRamPreview> m_candidates;
    /// Ticked processes by PID, each with its start, which tells it from a later one with the same PID.
    QHash<qint32, Instant> m_selected;
    bool m_running = false;
    std::stop_source m_stopping; ///< of the run

    LabeledSlider* m_minIdle;
    LabeledSlider* m_minRSS;
    QCheckBox* m_others;
    QStackedWidget* m_stack;
    QVBoxLayout* m_rowsLayout = nullptr;
    RowPool<CandidateRow> m_rows;
    PushButton* m_selectAll;
    PushButton* m_clear;
    TextLabel* m_count;
    TextLabel* m_back;
    FreeRAMResultView* m_result;
    PushButton* m_action;
    PushButton* m_stop;
};
