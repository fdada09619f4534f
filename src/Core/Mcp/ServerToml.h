#pragma once

#include "Core/Mcp/MCPInspector.h"

#include <streambuf>

/// The MCP servers that a TOML document configures.
namespace ServerToml {

/// The tables [mcp_servers.NAME], in order of name. A document that is broken has none, and so has one of
/// more than 8 MiB, with more than 10,000 servers or with more nesting than anybody writes: 256 dots in a
/// line, 16 values within each other.
QList<MCPInspector::ConfiguredServer> read(std::streambuf& text, const QString& scope);

} // namespace ServerToml
