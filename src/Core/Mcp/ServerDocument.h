#pragma once

#include "Core/Mcp/MCPInspector.h"

#include <streambuf>

/// The MCP servers that a JSON document configures.
namespace ServerDocument {

/// How a program writes its servers down.
struct Form {
    const char* member = "mcpServers"; ///< of the document: an object with an object for each server
    bool hasProjects = false; ///< "projects" holds an object for each folder, with "mcpServers" of its own
    bool hasComments = false; ///< as in C++
};

struct Servers {
    QList<MCPInspector::ConfiguredServer> own; ///< in order of name
    /// In order of folder, then name; their scope is "project FOLDER".
    QList<MCPInspector::ConfiguredServer> ofProjects;

    bool operator==(const Servers&) const = default;
};

/// Reads to the end of the text, a token at a time. Of members that have one name the last counts, as in
/// JavaScript. A document that is broken, has a number beyond double, or whose servers need more than 8 MiB,
/// has none.
Servers read(std::streambuf& text, const Form& form, const QString& scope);

} // namespace ServerDocument
