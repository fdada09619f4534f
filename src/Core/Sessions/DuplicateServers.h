#pragma once

#include "Core/Mcp/MCPInspector.h"
#include "Core/Sessions/Session.h"

/// Returns the servers of a session that have a newer one with the same arguments under the same host, in one
/// record for each kind of server.
QList<DuplicateServers> duplicateServers(const Session& session,
                                         const QList<MCPInspector::LiveServer>& servers);
