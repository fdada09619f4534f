#pragma once

#include "Core/Mcp/ServerFile.h"

#include <QList>
#include <QThreadPool>

#include <array>

/// The MCP servers in the configuration files of agents and editors, in the home and working directories.
class MCPConfiguration {
public:
    MCPConfiguration();

    /// Reads the changed files and returns the servers in the order of the files, by name within a file:
    /// those of "~/.claude.json", "~/.claude/mcp.json", "./.mcp.json", the projects of the first, Cursor, VS
    /// Code, Gemini and Codex. Of servers with one name the first counts. Called on every tick.
    const QList<MCPInspector::ConfiguredServer>& readConfigured();

    /// Returns whether a file was found that is not read to its end yet.
    bool isUnknown() const;

private:
    void mergeFiles();

    QThreadPool m_pool; ///< outlives the files, which stop their readings
    std::array<ServerFile, 7> m_files;
    QList<MCPInspector::ConfiguredServer> m_configured;
};
