#pragma once

#include "Core/Mcp/ServerFile.h"

#include <QThreadPool>

#include <QList>
#include <array>

/// The MCP servers that the configuration files of agents and editors name, as seen from the home folder and
/// the current folder.
class MCPConfiguration {
public:
    MCPConfiguration();

    /// To be called on every tick. Of servers with one name the first is kept; within a file they are in
    /// order of name. The files, in this order: "~/.claude.json", "~/.claude/mcp.json", "./.mcp.json", the
    /// projects of the first, and then those of Cursor, VS Code, Gemini and Codex.
    const QList<MCPInspector::ConfiguredServer>& readConfigured();

    /// A file has been found that nobody has read to its end yet.
    bool isUnknown() const;

private:
    void mergeFiles();

    QThreadPool m_pool; ///< outlives the files, which stop their readings
    std::array<ServerFile, 7> m_files;
    QList<MCPInspector::ConfiguredServer> m_configured;
};
