#include "UI/Overview/FreeRAMResultView.h"

#include "Core/Formatters.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Overview/OutcomeList.h"
#include "UI/Overview/ReturnTexts.h"

#include <QHBoxLayout>

using Theme::Role;
using Theme::TextStyle;

FreeRAMResultView::FreeRAMResultView(QWidget* parent)
    : Card(parent, Role::green)
    , m_freed(new TextLabel(TextStyle::body, QFont::DemiBold))
    , m_nudged((new TextLabel(TextStyle::caption))->secondary())
    , m_promised((new TextLabel(TextStyle::caption))->secondary()->wrapped())
    , m_outcomes(new OutcomeList) {
    auto* symbol = new SymbolView(Theme::iconSize, Theme::iconColumn);
    symbol->set(QStringLiteral("checkmark.seal.fill"), Role::green);
    auto* head = new QHBoxLayout;
    head->setSpacing(Theme::rowSpacing);
    head->addWidget(symbol);
    head->addWidget(m_freed);
    head->addWidget(m_nudged);
    head->addStretch();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::cardPadding, 12, Theme::cardPadding, 12);
    column->setSpacing(4);
    column->addLayout(head);
    column->addWidget(m_promised);
    column->addWidget(m_outcomes);
    hide();
}

void FreeRAMResultView::set(const FreeRAMResult& result) {
    m_freed->setPlainText(tr("Freed ~%1").arg(Formatters::bytes(result.freedBytes)));
    m_nudged->setPlainText(result.wasStopped ? tr("• stopped") : tr("• memory_pressure nudged"));
    m_nudged->setVisible(result.wasStopped || result.memoryPressureSignaled);
    m_promised->setPlainText(ReturnTexts::outcome(result.promised, result.freedBytes, result.freedSwapBytes));
    m_promised->setVisible(!result.perPid.isEmpty());
    QList<OutcomeList::Line> lines;
    for (const FreeRAMResult::Record& record : result.perPid)
        lines.append({.pid = record.pid,
                      .name = record.name,
                      .outcome = record.outcome,
                      .wasSpared = result.wasStopped && record.outcome == KillOutcome::ignored});
    m_outcomes->set(lines);
}
