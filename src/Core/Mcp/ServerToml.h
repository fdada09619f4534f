#pragma once

#include "Core/Mcp/MCPInspector.h"

#include <streambuf>

/// The MCP servers that a TOML document configures.
namespace ServerToml {

/// Returns the tables [mcp_servers.NAME] by name. Returns none for a broken document, more than 8 MiB, more
/// than 10,000 servers, more than 256 dots in a line or 16 nested values.
QList<MCPInspector::ConfiguredServer> read(std::streambuf& text, const QString& scope);

} // namespace ServerToml
