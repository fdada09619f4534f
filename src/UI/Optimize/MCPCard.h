#pragma once

#include "Core/Mcp/MCPInspector.h"
#include "UI/Kit/RowPool.h"
#include "UI/Optimize/OptimizeCard.h"

class PushButton;
class ServerRow;
class StatBox;

/// Which MCP servers are configured, running and orphaned.
class MCPCard : public OptimizeCard {
    Q_OBJECT

public:
    explicit MCPCard(QWidget* parent = nullptr);

    void refresh(const MCPInspector::Report& report);

Q_SIGNALS:
    void killOrphansRequested();
    void quitRequested(const MCPInspector::LiveServer& server);

private:
    QLayout* makeFigures();

    StatBox* m_configured;
    StatBox* m_running;
    StatBox* m_orphans;
    StatBox* m_orphanRAM;
    PushButton* m_kill;
    QWidget* m_servers;
    QVBoxLayout* m_rowsLayout;
    RowPool<ServerRow> m_rows;
    TextLabel* m_nothing;
    TextLabel* m_reading;
};
