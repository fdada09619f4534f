#include "Core/Mcp/ServerDocument.h"
#include "fuzz/Fuzz.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <sstream>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::ConfiguredServer;
using ServerDocument::Servers;

Servers read(const QByteArray& text) {
    std::stringbuf buffer(text.toStdString());
    return ServerDocument::read(buffer, {.hasProjects = true}, u"user"_s);
}

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

/// The text of a configuration file in JSON.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Servers servers = read(Fuzz::bytes(data, size));
    for (qsizetype i = 0; i < servers.own.size(); ++i) {
        Fuzz::require(servers.own[i].scope == u"user");
        Fuzz::require(i == 0 || servers.own[i - 1].name < servers.own[i].name);
    }
    for (const ConfiguredServer& server : servers.ofProjects)
        Fuzz::require(server.scope.startsWith(u"project "));
    if (std::all_of(servers.own.begin(), servers.own.end(), isWritable))
        Fuzz::require(read(written(servers.own)).own == servers.own);
    return 0;
}
