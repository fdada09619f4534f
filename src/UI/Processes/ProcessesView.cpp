#include "UI/Processes/ProcessesView.h"

#include "AppModel.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/EmptyState.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Processes/ProcessControls.h"
#include "UI/Processes/ProcessMenu.h"
#include "UI/Processes/ProcessTableView.h"

#include <QPointer>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace std::chrono_literals;

ProcessesView::ProcessesView(AppModel& model, Preferences& preferences, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_controls(new ProcessControls)
    , m_notice(new Notice(QStringLiteral("bolt.fill"), 0ms))
    , m_stack(new QStackedWidget)
    , m_table(new ProcessTableView(preferences))
    , m_menu(new ProcessMenu(model, this)) {
    auto* card = new Card;
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(Theme::tableCardMargins);
    inside->addWidget(m_stack);
    m_stack->addWidget(m_table);
    m_stack->addWidget(new EmptyState(QStringLiteral("list.bullet.rectangle"), tr("No processes match"),
                                      tr("Change the search, the group or Min RAM to see more.")));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::sheetMargins);
    column->setSpacing(12);
    column->addWidget(m_controls);
    column->addWidget(m_notice);
    column->addWidget(card, 1);

    auto* search = new QShortcut(QKeySequence::Find, this);
    connect(search, &QShortcut::activated, m_controls, &ProcessControls::focusSearch);
    connect(m_controls, &ProcessControls::changed, this, &ProcessesView::showQuery);
    connect(m_table, &ProcessTableView::sortRequested, m_controls, &ProcessControls::setSort);
    connect(m_table, &ProcessTableView::columnsChanged, this, &ProcessesView::showQuery);
    connect(m_controls, &ProcessControls::columnsMenuOpens, m_table, &ProcessTableView::fillColumnsMenu);
    connect(m_table, &ProcessTableView::triggered, this, &ProcessesView::act);
    connect(m_table, &ProcessTableView::menuOpens, m_menu, &ProcessMenu::fill);
    connect(m_menu, &ProcessMenu::triggered, this, &ProcessesView::act);
    connect(m_menu, &ProcessMenu::quitRequested, this, &ProcessesView::confirmSweep);
    m_table->markSort(m_controls->query().sortBy);
    refreshOnScreen(this, {&m_model}, [this] { refresh(); });
}

QList<ProcessTableRow> ProcessesView::rows() const {
    const ProcessQuery query = m_controls->query();
    return m_controls->groupsDuplicates() ? query.groupedRows(m_model.processes())
                                          : query.flatRows(m_model.processes());
}

void ProcessesView::showQuery() {
    const QList<ProcessTableRow> shown = rows();
    m_stack->setCurrentIndex(shown.isEmpty() ? 1 : 0);
    m_table->show(shown, m_controls->groupsDuplicates());
    m_table->markSort(m_controls->query().sortBy);
}

void ProcessesView::refresh() {
    m_model.memoryLedger().wantAll();
    m_model.memoryLedger().wantOnShow(m_table->pidsInView());
    const QList<ProcessTableRow> shown = rows();
    m_stack->setCurrentIndex(shown.isEmpty() ? 1 : 0);
    m_table->update(shown);
}

void ProcessesView::act(RowAction action, const ProcessTableRow& row) {
    if (action == RowAction::sweep)
        confirmSweep(m_model.actions().previewForName(row.first.name));
    else if (action == RowAction::forceKill)
        m_model.actions().forceKillProcess(row.first);
    else if (row.processes.isEmpty())
        m_model.actions().quitProcess(row.first);
    for (const ProcSample& process : row.processes) {
        if (action == RowAction::quit)
            m_model.actions().quitProcess(process);
    }
}

void ProcessesView::confirmSweep(const NukePreview& preview) {
    auto* dialog = new ConfirmDialog(window(), preview.dialogTitle(), preview.dialogMessage());
    const auto add = [this, dialog, preview](const QString& text, auto sweep) {
        auto* button = dialog->addAction(text, PushButton::Look::destructive);
        connect(button, &QPushButton::clicked, this, sweep);
    };
    if (preview.parentAppName) {
        add(preview.quitButton(), [this, preview] { quitApplication(preview, false); });
        add(preview.forceQuitButton(), [this, preview] { quitApplication(preview, true); });
    } else {
        add(preview.killButton(), [this, preview] { m_notice->show(m_model.actions().nuke(preview)); });
    }
    dialog->open();
}

void ProcessesView::quitApplication(const NukePreview& preview, bool force) {
    m_model.actions()
        .nukeGracefulApp(preview, *preview.parentAppName, force)
        .then([self = QPointer<ProcessesView>(this)](const QString& outcome) {
            if (self)
                self->m_notice->show(outcome);
        });
}
