#include "UI/Optimize/AutoOptimizeCard.h"

#include "UI/Kit/TextLabel.h"

#include <QCheckBox>
#include <QHBoxLayout>

AutoOptimizeCard::AutoOptimizeCard(QWidget* parent)
    : OptimizeCard(tr("Auto-Optimize"), tr("Every 30 min: kill orphan MCPs + send memory pressure"),
                   QStringLiteral("clock.arrow.circlepath"), Theme::Role::indigo, parent)
    , m_switch(new QCheckBox(tr("Enabled")))
    , m_state((new TextLabel(Theme::TextStyle::caption))->secondary()) {
    m_switch->setAccessibleName(tr("Auto-Optimize"));
    connect(m_switch, &QCheckBox::clicked, this, &AutoOptimizeCard::switched);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(m_switch);
    row->addWidget(m_state, 1);
    content()->addLayout(row);
    addLine(tr("Only safe actions run on the timer. Quitting visible apps stays manual on purpose."));
    refresh(false);
}

void AutoOptimizeCard::refresh(bool isEnabled) {
    m_switch->setChecked(isEnabled);
    m_state->setPlainText(isEnabled ? tr("Running in background") : tr("Off"));
}
