#include "UI/Overview/FreeRAMSheet.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Core/Observable.h"
#include "Platform/Words.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/EmptyState.h"
#include "UI/Kit/KeptFocus.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Kit/SheetSize.h"
#include "UI/Kit/Slider.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Overview/CandidateRow.h"
#include "UI/Overview/FreeRAMResultView.h"
#include "UI/Overview/ReturnTexts.h"

#include <QCheckBox>
#include <QCoroTask>
#include <QHBoxLayout>
#include <QPointer>
#include <QScrollArea>
#include <QStackedWidget>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr QSize sheetSize(560, 660);
constexpr double initialMinIdle = 10; // minutes
constexpr double initialMinRSS = 300; // MiB
constexpr Theme::Length thresholdSliderWidth{200};
constexpr qsizetype preselected = 5;

} // namespace

FreeRAMSheet::FreeRAMSheet(AppModel& model, QWidget* parent)
    : QDialog(parent)
    , m_model(model)
    , m_minIdle(new LabeledSlider(tr("Min idle: %1 min"), {0, 60, 1}, initialMinIdle, thresholdSliderWidth))
    , m_minRSS(new LabeledSlider(tr("Min RAM: %1 MB"), {50, 2000, 50}, initialMinRSS, thresholdSliderWidth))
    , m_others(new QCheckBox(tr("Other programs too")))
    , m_stack(new QStackedWidget)
    , m_rows([this] {
        auto* row = new CandidateRow;
        connect(row, &CandidateRow::ticked, this, &FreeRAMSheet::toggle);
        m_rowsLayout->insertWidget(m_rowsLayout->count() - 1, row);
        return row;
    })
    , m_selectAll(new PushButton(tr("Select all")))
    , m_clear(new PushButton(tr("Clear")))
    , m_count(new TextLabel(TextStyle::callout))
    , m_back((new TextLabel(TextStyle::caption))->secondary())
    , m_result(new FreeRAMResultView)
    , m_action(new PushButton(QString(), PushButton::Look::prominent))
    , m_stop(new PushButton(tr("Stop"))) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Free RAM"));
    resize(fittingSheet(sheetSize));

    auto* explanation = (new TextLabel(TextStyle::callout))->secondary()->wrapped();
    explanation->setPlainText(
        tr("Tick the processes you want to terminate. SIGTERM is sent first; anything still running after "
           "2 s gets SIGKILL. %1 is then nudged with a memory-pressure hint to compress inactive pages.")
            .arg(Words::native().system));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::pageMargins);
    column->setSpacing(12);
    column->addLayout(beforeScrollBar(makeHeader()));
    column->addLayout(beforeScrollBar(explanation));
    column->addLayout(beforeScrollBar(makeThresholds()));
    column->addLayout(beforeScrollBar(new Divider));
    column->addWidget(makeList(), 1);
    column->addLayout(beforeScrollBar(new Divider));
    column->addLayout(beforeScrollBar(makeSelectionBar()));
    column->addLayout(beforeScrollBar(m_result));
    column->addLayout(beforeScrollBar(makeActions()));

    refresh();
    tickFirst(preselected);
    m_action->setFocus();
    observe(&m_model, this, [this] { refresh(); });
}

QLayout* FreeRAMSheet::makeHeader() {
    auto* title = new TextLabel(TextStyle::title2, QFont::Bold);
    title->setPlainText(windowTitle());
    auto* close = new PushButton(tr("Close"));
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* header = new QHBoxLayout;
    header->addWidget(title, 1);
    header->addWidget(close);
    return header;
}

QLayout* FreeRAMSheet::makeThresholds() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::pageSpacing);
    for (LabeledSlider* slider : {m_minIdle, m_minRSS}) {
        row->addWidget(slider);
        connect(slider, &LabeledSlider::valueChanged, this, &FreeRAMSheet::refresh);
    }
    row->addStretch();
    m_others->setToolTip(tr("Lists programs of no known group under a gigabyte as well"));
    connect(m_others, &QCheckBox::toggled, this, &FreeRAMSheet::refresh);
    auto* column = new QVBoxLayout;
    column->setSpacing(Theme::rowSpacing);
    column->addLayout(row);
    column->addWidget(m_others);
    return column;
}

QWidget* FreeRAMSheet::makeList() {
    auto* area = new QScrollArea;
    m_rowsLayout = makeScrollingPage(area, {}, 0);
    m_rowsLayout->addStretch();
    area->setFocusPolicy(Qt::NoFocus);
    area->setAccessibleName(tr("Processes"));
    m_stack->addWidget(area);
    m_stack->addWidget(new EmptyState(QStringLiteral("checkmark.circle"),
                                      tr("No idle hogs above your thresholds"),
                                      tr("Lower the Min idle slider to see lightly-used processes.")));
    return m_stack;
}

QLayout* FreeRAMSheet::makeSelectionBar() {
    auto* bar = new QHBoxLayout;
    bar->setSpacing(Theme::rowSpacing);
    bar->addWidget(m_selectAll);
    bar->addWidget(m_clear);
    bar->addStretch();
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(m_count, 0, Qt::AlignRight);
    texts->addWidget(m_back, 0, Qt::AlignRight);
    bar->addLayout(texts);
    connect(m_selectAll, &QPushButton::clicked, this, [this] { tickFirst(m_candidates.size()); });
    connect(m_clear, &QPushButton::clicked, this, &FreeRAMSheet::clear);
    return bar;
}

QLayout* FreeRAMSheet::makeActions() {
    m_action->setDefault(true);
    m_stop->setToolTip(tr("Kills nothing more; what still runs is left alone"));
    connect(m_action, &QPushButton::clicked, this, &FreeRAMSheet::start);
    connect(m_stop, &QPushButton::clicked, this, [this] {
        m_stopping.request_stop();
        refresh();
    });
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addStretch();
    row->addWidget(m_stop);
    row->addWidget(m_action);
    return row;
}

void FreeRAMSheet::refresh() {
    m_candidates =
        m_model.actions().freeRamCandidates(m_minIdle->value(), m_minRSS->value(), m_others->isChecked());
    forgetEnded();
    wantFigures();
    refreshRows();
    refreshButtons();
}

void FreeRAMSheet::wantFigures() {
    QList<qint32> listed;
    for (const FreeRamPreview& candidate : m_candidates)
        listed.append(candidate.pid);
    m_model.memoryLedger().wantAll(); // what others share with the ticked ones stays
    m_model.memoryLedger().wantOnShow(listed);
    m_model.memoryLedger().wantAsked(tickedPids());
}

/// Removes the ticks of processes that have ended, also where another process has got the PID.
void FreeRAMSheet::forgetEnded() {
    m_selected.removeIf([this](const auto& ticked) {
        const ProcSample* process = m_model.process(ticked.key());
        return !process || process->startTime != ticked.value();
    });
}

void FreeRAMSheet::refreshRows() {
    m_rows.show(m_candidates.size(), [this](CandidateRow& row, qsizetype i) {
        row.set(m_candidates[i], m_selected.contains(m_candidates[i].pid));
    });
    m_stack->setCurrentIndex(m_candidates.isEmpty() ? 1 : 0);
}

void FreeRAMSheet::refreshButtons() {
    const qsizetype count = m_selected.size();
    m_selectAll->setEnabled(!m_candidates.isEmpty());
    m_clear->setEnabled(count > 0);
    m_count->setPlainText(tr("%1 selected • %2 targeted").arg(count).arg(Formatters::bytes(selectedRAM())));
    const MemoryReturn back = m_model.actions().givesBack(tickedPids());
    m_back->setPlainText(ReturnTexts::promise(back));
    m_back->setVisible(count > 0);

    KeptFocus::setVisible(m_stop, m_running);
    m_stop->setEnabled(!m_stopping.stop_requested());
    m_action->setBusy(m_running);
    KeptFocus::setEnabled(m_action, !m_running);
    m_action->setTint(count > 0 ? Role::red : Role::blue);
    m_action->setSymbol(count > 0 ? QStringLiteral("memorychip") : QStringLiteral("wind"));
    if (m_running)
        m_action->setText(tr("Killing…"));
    else if (count > 0)
        m_action->setText(tr("Kill %1 and free RAM").arg(count));
    else
        m_action->setText(tr("Send memory pressure only"));
}

quint64 FreeRAMSheet::selectedRAM() const {
    SummedMemory sum;
    for (const FreeRamPreview& candidate : m_candidates) {
        const ProcSample* process = m_model.process(candidate.pid);
        if (process && m_selected.contains(candidate.pid))
            sum.add(*process);
    }
    return sum.bytes;
}

void FreeRAMSheet::toggle(qint32 pid) {
    const ProcSample* process = m_model.process(pid);
    if (!m_selected.remove(pid) && process)
        m_selected.insert(pid, process->startTime);
    refresh();
}

void FreeRAMSheet::tickFirst(qsizetype count) {
    for (const FreeRamPreview& candidate : m_candidates.mid(0, count)) {
        if (const ProcSample* process = m_model.process(candidate.pid)) // it may have ended since
            m_selected.insert(candidate.pid, process->startTime);
    }
    refresh();
}

void FreeRAMSheet::clear() {
    m_selected.clear();
    refresh();
}

/// Returns the ticked ones in the order of the list, then those that have left the list.
QList<qint32> FreeRAMSheet::tickedPids() const {
    QList<qint32> pids;
    for (const FreeRamPreview& candidate : m_candidates) {
        if (m_selected.contains(candidate.pid))
            pids.append(candidate.pid);
    }
    for (auto ticked = m_selected.keyBegin(); ticked != m_selected.keyEnd(); ++ticked) {
        if (!pids.contains(*ticked))
            pids.append(*ticked);
    }
    return pids;
}

void FreeRAMSheet::start() {
    if (m_running)
        return;
    m_running = true;
    m_stopping = {};
    m_result->hide();
    refresh();
    m_model.actions()
        .freeRAM(tickedPids(), m_stopping.get_token())
        .then([self = QPointer<FreeRAMSheet>(this)](const FreeRAMResult& result) {
            if (self)
                self->finish(result);
        });
}

void FreeRAMSheet::finish(const FreeRAMResult& result) {
    m_running = false;
    m_result->set(result);
    m_result->show();
    refresh();
}
