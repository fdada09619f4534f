#include "UI/Processes/ProcessMenu.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Core/Translations.h"

#include <QActionGroup>
#include <QMenu>

namespace {

/// Returns any text as that of an entry: control characters are visible, and an ampersand is a character.
QString entryText(const QString& text) {
    return Formatters::visible(text).replace(u'&', QStringLiteral("&&"));
}

QList<ProcSample> processesOf(const ProcessTableRow& row) {
    return row.processes.isEmpty() ? QList<ProcSample>{row.first} : row.processes;
}

} // namespace

ProcessMenu::ProcessMenu(AppModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model) {}

void ProcessMenu::fill(QMenu& menu, const ProcessTableModel& rows, const ProcessTableRow& row,
                       const QList<ProcessTableRow>& selected) {
    if (selected.size() > 1)
        addEnds(menu, selected);
    else if (rows.protectionOf(row))
        addEnds(menu, {row});
    else
        addButtons(menu, rows, row);
    menu.addSeparator();
    menu.addAction(tr("Details"), this, &ProcessMenu::detailsRequested);
    addApplication(menu, row);
    addGroups(menu, row);
}

void ProcessMenu::addButtons(QMenu& menu, const ProcessTableModel& rows, const ProcessTableRow& row) {
    for (const RowAction action : rows.buttonsOf(row)) {
        menu.addAction(entryText(rows.helpOf(action, row)), this,
                       [this, action, row] { Q_EMIT triggered(action, row); });
    }
}

/// Adds the ends that are asked about.
void ProcessMenu::addEnds(QMenu& menu, const QList<ProcessTableRow>& rows) {
    const bool isOne = rows.size() == 1;
    const int count = static_cast<int>(rows.size());
    menu.addAction(isOne ? tr("Quit…") : tr("Quit %n row(s)…", nullptr, count), this,
                   [this, rows] { Q_EMIT endRequested(rows, false); });
    menu.addAction(isOne ? tr("Force kill…") : tr("Force kill %n row(s)…", nullptr, count), this,
                   [this, rows] { Q_EMIT endRequested(rows, true); });
}

void ProcessMenu::addApplication(QMenu& menu, const ProcessTableRow& row) {
    const auto application = m_model.actions().applicationOf(processesOf(row));
    if (!application)
        return;
    menu.addSeparator();
    menu.addAction(entryText(tr("Quit %1…").arg(*application)), this, [this, application] {
        const NukePreview preview = m_model.actions().previewForApplication(*application);
        if (preview.parentAppName) // it may have ended while the menu was open
            Q_EMIT quitRequested(preview);
    });
}

void ProcessMenu::addGroups(QMenu& menu, const ProcessTableRow& row) {
    menu.addSeparator();
    auto* groups = menu.addMenu(tr("Show in group"));
    auto* choices = new QActionGroup(groups);
    const QList<ProcSample> processes = processesOf(row);
    QList<std::optional<ProcGroup>> chosen;
    for (const ProcSample& process : processes)
        chosen.append(m_model.chosenGroup(process));
    const auto add = [&](const QString& text, std::optional<ProcGroup> group) {
        QAction* choice = groups->addAction(
            text, this, [this, processes, group] { m_model.chooseGroup(processes, group); });
        choice->setCheckable(true);
        choice->setChecked(chosen.count(group) == chosen.size());
        choices->addAction(choice);
    };
    for (const ProcGroup group : allCases<ProcGroup>())
        add(entryText(Translations::of(group)), group);
    groups->addSeparator();
    add(tr("As detected"), std::nullopt);
}
