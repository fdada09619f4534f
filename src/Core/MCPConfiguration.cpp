#include "Core/MCPConfiguration.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::ConfiguredServer;

/// Parsing goes at some 100 MB/s: more than this would be felt as a stall of the whole program.
constexpr qint64 largestFileBytes = 8 << 20;

QStringList argumentsOf(const QJsonObject& entry) {
    QStringList arguments;
    const QJsonArray array = entry["args"_L1].toArray();
    for (const QJsonValue& value : array) {
        if (!value.isString())
            return {};
        arguments.append(value.toString());
    }
    return arguments;
}

} // namespace

QList<ConfiguredServer> MCPConfiguration::parse(const QByteArray& json, const QString& scope) {
    const QJsonObject servers = QJsonDocument::fromJson(json).object()["mcpServers"_L1].toObject();
    QList<ConfiguredServer> result;
    for (auto member = servers.begin(); member != servers.end(); ++member) {
        const QJsonObject entry = member.value().toObject();
        result.append({.name = member.key(),
                       .command = entry["command"_L1].toString(u"?"_s),
                       .args = argumentsOf(entry),
                       .scope = scope});
    }
    // An object's members are in order of their keys, but for keys that began with a byte order mark.
    std::ranges::stable_sort(result, {}, &ConfiguredServer::name);
    return result;
}

MCPConfiguration::Version MCPConfiguration::versionOf(const struct stat& status) {
    return {.device = status.st_dev,
            .inode = status.st_ino,
            .sizeBytes = status.st_size,
            .modifiedSeconds = status.st_mtim.tv_sec,
            .modifiedNanoseconds = status.st_mtim.tv_nsec};
}

QByteArray MCPConfiguration::readFile(const QByteArray& path, Version& version) {
    const int descriptor = open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return {};
    QByteArray content;
    QFile file;
    struct stat status {};
    // Asked of the open file, because the path may lead elsewhere by now.
    const bool isFile = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        close(descriptor);
    } else if (isFile && status.st_size <= largestFileBytes) {
        content = file.read(largestFileBytes);
    }
    version = versionOf(status);
    return content;
}

const QList<ConfiguredServer>& MCPConfiguration::read(File& file, const QString& path, const QString& scope) {
    const QByteArray encoded = QFile::encodeName(path);
    struct stat status {};
    if (stat(encoded.constData(), &status) != 0 || !S_ISREG(status.st_mode)) {
        file = {};
        return file.servers;
    }
    if (versionOf(status) != file.version) {
        file.version = {};
        file.servers = parse(readFile(encoded, file.version), scope);
    }
    return file.servers;
}

QList<ConfiguredServer> MCPConfiguration::readConfigured() {
    QList<ConfiguredServer> all =
        read(m_files[0], QDir::homePath() + u"/.claude.json"_s, u"user"_s) +
        read(m_files[1], QDir::homePath() + u"/.claude/mcp.json"_s, u"user (alt)"_s) +
        read(m_files[2], u"./.mcp.json"_s, u"project (cwd)"_s);
    QSet<QString> seen;
    all.removeIf([&seen](const ConfiguredServer& server) {
        const bool known = seen.contains(server.name);
        seen.insert(server.name);
        return known;
    });
    return all;
}
