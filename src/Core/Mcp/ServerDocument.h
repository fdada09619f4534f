#pragma once

#include "Core/Mcp/MCPInspector.h"

#include <streambuf>

/// The MCP servers that a JSON document configures.
namespace ServerDocument {

/// The format of a program's configuration.
struct Form {
    const char* member = "mcpServers"; ///< an object with an object for each server
    bool hasProjects = false; ///< "projects" contains an object for each folder, with its own "mcpServers"
    bool hasComments = false; ///< as in C++
};

struct Servers {
    QList<MCPInspector::ConfiguredServer> own; ///< by name
    /// By folder, then name, with the scope "project FOLDER".
    QList<MCPInspector::ConfiguredServer> ofProjects;

    bool operator==(const Servers&) const = default;
};

/// Reads the whole text, a token at a time. Of members with one name the last counts, as in JavaScript.
/// Returns no servers for a broken document, a number beyond double, or servers of more than 8 MiB.
Servers read(std::streambuf& text, const Form& form, const QString& scope);

} // namespace ServerDocument
