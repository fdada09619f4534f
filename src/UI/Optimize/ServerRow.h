#pragma once

#include "Core/Mcp/MCPInspector.h"

#include <QWidget>

class IconButton;

/// One running server, and the button that asks it to end.
class ServerRow : public QWidget {
    Q_OBJECT

public:
    explicit ServerRow(QWidget* parent = nullptr);

    void set(const MCPInspector::LiveServer& server);

Q_SIGNALS:
    /// Emitted with the server that was shown when the button was pressed.
    void quitRequested(const MCPInspector::LiveServer& server);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MCPInspector::LiveServer m_server;
    IconButton* m_quit;
    int m_buttonWidth;
};
