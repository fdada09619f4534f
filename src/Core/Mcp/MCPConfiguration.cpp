#include "Core/Mcp/MCPConfiguration.h"

#include "Core/Mcp/ServerToml.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::ConfiguredServer;
using ServerDocument::Form;

constexpr std::size_t filesBeforeProjects = 3;

QByteArray inHome(const QString& path) {
    return QFile::encodeName(QDir::homePath() + u'/' + path);
}

QByteArray inConfigurationHome(const QString& path) {
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' +
                             path);
}

ServerFile::Read jsonFile(const QString& scope, const Form& form = {}) {
    return [scope, form](std::streambuf& text) { return ServerDocument::read(text, form, scope); };
}

ServerFile::Read tomlFile(const QString& scope) {
    return [scope](std::streambuf& text) {
        return ServerFile::Servers{.own = ServerToml::read(text, scope), .ofProjects = {}};
    };
}

} // namespace

MCPConfiguration::MCPConfiguration()
    : m_files{{{inHome(u".claude.json"_s), jsonFile(u"user"_s, {.hasProjects = true})},
               {inHome(u".claude/mcp.json"_s), jsonFile(u"user (alt)"_s)},
               {"./.mcp.json", jsonFile(u"project (cwd)"_s)},
               {inHome(u".cursor/mcp.json"_s), jsonFile(u"cursor"_s, {.hasComments = true})},
               {inConfigurationHome(u"Code/User/mcp.json"_s),
                jsonFile(u"VS Code"_s, {.member = "servers", .hasComments = true})},
               {inHome(u".gemini/settings.json"_s), jsonFile(u"gemini"_s, {.hasComments = true})},
               {inHome(u".codex/config.toml"_s), tomlFile(u"codex"_s)}}} {
    m_pool.setMaxThreadCount(1);
}

const QList<ConfiguredServer>& MCPConfiguration::readConfigured() {
    bool isChanged = false;
    for (ServerFile& file : m_files)
        isChanged |= file.refresh(m_pool);
    if (isChanged)
        mergeFiles();
    return m_configured;
}

bool MCPConfiguration::isUnknown() const {
    return std::ranges::any_of(m_files, &ServerFile::isUnknown);
}

void MCPConfiguration::mergeFiles() {
    m_configured.clear();
    QSet<QString> seen;
    const auto add = [this, &seen](const QList<ConfiguredServer>& servers) {
        for (const ConfiguredServer& server : servers) {
            if (seen.contains(server.name))
                continue;
            seen.insert(server.name);
            m_configured.append(server);
        }
    };
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        if (i == filesBeforeProjects)
            add(m_files[0].servers().ofProjects);
        add(m_files[i].servers().own);
    }
}
