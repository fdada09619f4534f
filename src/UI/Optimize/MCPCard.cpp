#include "UI/Optimize/MCPCard.h"

#include "Core/Formatters.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/KeptFocus.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Optimize/ServerRow.h"
#include "UI/Optimize/StatBox.h"

#include <QHBoxLayout>

using Theme::Role;
using Theme::TextStyle;

MCPCard::MCPCard(QWidget* parent)
    : OptimizeCard(tr("Claude Code & MCP"), tr("Loaded servers + orphan detection"),
                   QStringLiteral("sparkles"), Role::purple, parent)
    , m_configured(new StatBox(tr("Configured")))
    , m_running(new StatBox(tr("Running")))
    , m_orphans(new StatBox(tr("Orphans")))
    , m_orphanRAM(new StatBox(tr("Orphan RAM")))
    , m_kill(new PushButton(tr("Kill orphans"), PushButton::Look::prominent, QStringLiteral("scissors")))
    , m_servers(new QWidget)
    , m_rows([this] {
        auto* row = new ServerRow;
        connect(row, &ServerRow::quitRequested, this, &MCPCard::quitRequested);
        m_rowsLayout->addWidget(row);
        return row;
    }) {
    content()->addLayout(makeFigures());

    auto* heading = (new TextLabel(TextStyle::caption))->secondary();
    heading->setPlainText(tr("Running servers"));
    auto* servers = new QVBoxLayout(m_servers);
    servers->setContentsMargins(0, 0, 0, 0);
    servers->setSpacing(Theme::rowSpacing);
    servers->addWidget(new Divider);
    servers->addWidget(heading);
    m_rowsLayout = new QVBoxLayout;
    m_rowsLayout->setSpacing(0);
    servers->addLayout(m_rowsLayout);
    content()->addWidget(m_servers);
    m_nothing = addLine(tr("No ~/.claude/mcp.json found — nothing configured globally."));
    m_reading = addLine(tr("A configuration file is being read. Its servers are counted after that."));
}

QLayout* MCPCard::makeFigures() {
    m_kill->setTint(Role::red);
    connect(m_kill, &QPushButton::clicked, this, &MCPCard::killOrphansRequested);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    for (StatBox* box : {m_configured, m_running, m_orphans, m_orphanRAM})
        row->addWidget(box);
    row->addStretch(1);
    row->addWidget(m_kill, 0, Qt::AlignVCenter);
    return row;
}

void MCPCard::refresh(const MCPInspector::Report& report) {
    const int orphans = report.orphanCount();
    const bool isUnknown = report.configured.isEmpty() && report.isUnknown;
    m_configured->set(isUnknown ? QStringLiteral("—") : QString::number(report.configured.size()),
                      Role::purple);
    m_running->set(QString::number(report.live.size()), Role::blue);
    m_orphans->set(QString::number(orphans), orphans > 0 ? Role::red : Role::secondaryText);
    m_orphanRAM->set(Formatters::bytes(report.orphanBytes()), Role::red);
    KeptFocus::setEnabled(m_kill, orphans > 0);
    m_rows.show(report.live.size(), [&report](ServerRow& row, qsizetype i) { row.set(report.live[i]); });
    m_servers->setVisible(!report.live.isEmpty());
    m_reading->setVisible(isUnknown);
    m_nothing->setVisible(report.configured.isEmpty() && !isUnknown);
}
