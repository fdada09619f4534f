#include "Core/MCPConfiguration.h"
#include "fuzz/Fuzz.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::ConfiguredServer;

QByteArray written(const QList<ConfiguredServer>& servers) {
    QJsonObject members;
    for (const ConfiguredServer& server : servers)
        members[server.name] =
            QJsonObject{{u"command"_s, server.command}, {u"args"_s, QJsonArray::fromStringList(server.args)}};
    return QJsonDocument(QJsonObject{{u"mcpServers"_s, members}}).toJson();
}

bool isWritable(const ConfiguredServer& server) {
    return Fuzz::isText(server.name) && Fuzz::isText(server.command) &&
           std::all_of(server.args.begin(), server.args.end(), Fuzz::isText);
}

} // namespace

/// The text of a configuration file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QList<ConfiguredServer> servers = MCPConfiguration::parse(Fuzz::bytes(data, size), u"user"_s);
    bool onceEach = true;
    for (qsizetype i = 0; i < servers.size(); ++i) {
        Fuzz::require(servers[i].scope == u"user");
        Fuzz::require(i == 0 || servers[i - 1].name <= servers[i].name);
        onceEach = onceEach && (i == 0 || servers[i - 1].name != servers[i].name);
    }
    if (onceEach && std::all_of(servers.begin(), servers.end(), isWritable))
        Fuzz::require(MCPConfiguration::parse(written(servers), u"user"_s) == servers);
    return 0;
}
