#include "UI/Optimize/MemoryCard.h"

#include "Core/Formatters.h"
#include "UI/Kit/KeptFocus.h"
#include "UI/Kit/PushButton.h"

#include <QHBoxLayout>

using Theme::Role;

namespace {

PushButton* actionButton(const QString& title, const QString& symbol, Role tint) {
    auto* button = new PushButton(title, PushButton::Look::prominent, symbol);
    button->setTint(tint);
    return button;
}

void explain(QWidget* button, const QString& failure) {
    const QString text = Formatters::visible(failure);
    button->setToolTip(Formatters::toolTip(text));
    button->setAccessibleDescription(text);
}

} // namespace

MemoryCard::MemoryCard(QWidget* parent)
    : OptimizeCard(tr("Memory"), tr("Free RAM without quitting your work"), QStringLiteral("memorychip"),
                   Role::green, parent)
    , m_nudge(actionButton(tr("Pressure nudge"), QStringLiteral("wind"), Role::blue))
    , m_purge(actionButton(QString(), QStringLiteral("bolt.heart"), Role::orange))
    , m_stop(new PushButton(tr("Stop"))) {
    m_stop->setAccessibleName(tr("Stop purging"));
    auto* freeRAM = actionButton(tr("Free RAM"), QStringLiteral("memorychip"), Role::green);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    for (PushButton* button : {freeRAM, m_nudge, m_purge, m_stop})
        row->addWidget(button);
    row->addStretch();
    content()->addLayout(row);
    addLine(tr("Pressure: free + compress. Deep purge prompts admin and flushes the unified buffer "
               "cache (heavier)."));
    setPurging(false);
    connect(freeRAM, &QPushButton::clicked, this, &MemoryCard::freeRAMRequested);
    connect(m_nudge, &QPushButton::clicked, this, &MemoryCard::nudgeRequested);
    connect(m_purge, &QPushButton::clicked, this, &MemoryCard::purgeRequested);
    connect(m_stop, &QPushButton::clicked, this, &MemoryCard::stopRequested);
}

void MemoryCard::setPurging(bool purging) {
    m_purge->setText(purging ? tr("Purging…") : tr("Deep purge (admin)"));
    m_purge->setBusy(purging);
    KeptFocus::setEnabled(m_purge, !purging);
    KeptFocus::setVisible(m_stop, purging);
}

void MemoryCard::setNudgeFailure(const QString& reason) {
    explain(m_nudge, reason);
}

void MemoryCard::setPurgeFailure(const QString& reason) {
    explain(m_purge, reason);
}
