#pragma once

#include "Core/MCPInspector.h"

#include <array>

/// The MCP servers that Claude Code's configuration files name. The files are looked at on every tick and
/// parsed only when they changed.
class MCPConfiguration {
public:
    /// "~/.claude.json", "~/.claude/mcp.json" and "./.mcp.json". Of servers with one name the first is kept;
    /// within a file they are in order of name. A file that is missing, no regular file, above 8 MiB or
    /// unreadable counts as one without servers.
    QList<MCPInspector::ConfiguredServer> readConfigured();

    /// The servers of one file, in order of name. Empty for a text that is no such document.
    static QList<MCPInspector::ConfiguredServer> parse(const QByteArray& json, const QString& scope);

private:
    /// What tells one content of a file from another without reading it.
    struct Version {
        quint64 device = 0;
        quint64 inode = 0;
        qint64 sizeBytes = -1;
        qint64 modifiedSeconds = 0;
        qint64 modifiedNanoseconds = 0;

        bool operator==(const Version&) const = default;
    };
    struct File {
        Version version;
        QList<MCPInspector::ConfiguredServer> servers;
    };

    static Version versionOf(const struct stat& status);
    static QByteArray readFile(const QByteArray& path, Version& version);
    static const QList<MCPInspector::ConfiguredServer>& read(File& file, const QString& path,
                                                             const QString& scope);

    std::array<File, 3> m_files;
};
