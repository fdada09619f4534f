#include "Core/Mcp/ServerDocument.h"

#include "Core/Log.h"
#include "Core/Mcp/JsonText.h"
#include "Core/Sampling/ProgramPath.h"

#include <nlohmann/json.hpp>

#include <istream>
#include <map>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::ConfiguredServer;
using nlohmann::json;

constexpr std::size_t maxKeptBytes = 8 << 20;
constexpr std::size_t bytesOfServer = 256; // about, without its texts

using ServersByName = std::map<QString, ConfiguredServer>;

/// Keeps the servers of a document. Every function returns whether the parser goes on.
class ServerReader : public json::json_sax_t {
public:
    explicit ServerReader(const ServerDocument::Form& form)
        : m_form(form) {}

    bool null() override { return takeScalar(); }
    bool boolean(bool) override { return takeScalar(); }
    bool number_integer(json::number_integer_t) override { return takeScalar(); }
    bool number_unsigned(json::number_unsigned_t) override { return takeScalar(); }
    bool number_float(json::number_float_t, const std::string&) override { return takeScalar(); }
    bool binary(json::binary_t&) override { return takeScalar(); }
    bool string(std::string& text) override;
    bool start_object(std::size_t) override { return open(true); }
    bool key(std::string& name) override;
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(false); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t, const std::string&, const json::exception&) override { return false; }

    ServerDocument::Servers servers(const QString& scope) const;

private:
    /// The place of the parser. Levels that lead to no server are only counted.
    enum class Place { elsewhere, document, projects, project, servers, server, arguments };

    Place placeWithin(bool isObject) const;
    Place place() const {
        return m_places.empty() || m_depthElsewhere > 0 ? Place::elsewhere : m_places.back();
    }
    bool open(bool isObject);
    bool close();
    bool takeScalar();
    bool keep(std::size_t bytes);
    ServersByName& current() { return m_isInProject ? m_ofProjects[m_folder] : m_own; }

    ServerDocument::Form m_form;
    std::vector<Place> m_places;
    std::size_t m_depthElsewhere = 0; ///< 0: in the last place
    std::string m_key;                ///< the last key of the document, a project or a server
    bool m_isInProject = false;
    QString m_folder;
    ConfiguredServer* m_server = nullptr;
    bool m_isMixed = false; ///< the arguments are not all strings
    std::size_t m_keptBytes = 0;
    ServersByName m_own;
    std::map<QString, ServersByName> m_ofProjects;
};

ServerReader::Place ServerReader::placeWithin(bool isObject) const {
    if (m_places.empty())
        return isObject ? Place::document : Place::elsewhere;
    switch (m_places.back()) {
    case Place::document:
        if (isObject && m_key == m_form.member)
            return Place::servers;
        return isObject && m_form.hasProjects && m_key == "projects" ? Place::projects : Place::elsewhere;
    case Place::projects:
        return isObject ? Place::project : Place::elsewhere;
    case Place::project:
        return isObject && m_key == "mcpServers" ? Place::servers : Place::elsewhere;
    case Place::servers:
        return isObject ? Place::server : Place::elsewhere;
    case Place::server:
        return !isObject && m_key == "args" ? Place::arguments : Place::elsewhere;
    case Place::arguments:
    case Place::elsewhere:
        break;
    }
    return Place::elsewhere;
}

bool ServerReader::open(bool isObject) {
    if (m_depthElsewhere > 0) {
        ++m_depthElsewhere;
        return true;
    }
    const Place within = placeWithin(isObject);
    if (within == Place::elsewhere) {
        takeScalar(); // as wrong among arguments as a number
        m_depthElsewhere = 1;
        return true;
    }
    if (within == Place::servers)
        m_isInProject = m_places.back() == Place::project;
    m_isMixed = false;
    m_places.push_back(within);
    return true;
}

bool ServerReader::close() {
    if (m_depthElsewhere > 0)
        --m_depthElsewhere;
    else
        m_places.pop_back();
    return true;
}

bool ServerReader::key(std::string& name) {
    const Place at = place();
    if (at == Place::document || at == Place::project || at == Place::server)
        m_key = name;
    switch (at) {
    case Place::document:
        if (name == m_form.member)
            m_own.clear();
        else if (name == "projects")
            m_ofProjects.clear();
        break;
    case Place::projects:
        m_folder = QString::fromStdString(name);
        m_ofProjects.erase(m_folder);
        break;
    case Place::project:
        if (name == "mcpServers")
            m_ofProjects.erase(m_folder);
        break;
    case Place::servers: {
        const QString text = QString::fromStdString(name);
        m_server = &current()[text];
        *m_server = {.name = text, .command = u"?"_s};
        return keep(bytesOfServer + name.size());
    }
    case Place::server:
        if (name == "command")
            m_server->command = u"?"_s;
        else if (name == "args")
            m_server->args.clear();
        break;
    case Place::arguments:
    case Place::elsewhere:
        break;
    }
    return true;
}

bool ServerReader::string(std::string& text) {
    if (place() == Place::server && m_key == "command") {
        m_server->command = QString::fromStdString(text);
        return keep(text.size());
    }
    if (place() == Place::arguments && !m_isMixed) {
        m_server->args.append(QString::fromStdString(text));
        return keep(text.size() + sizeof(QString));
    }
    return true;
}

bool ServerReader::takeScalar() {
    if (place() == Place::arguments) {
        m_isMixed = true;
        m_server->args.clear();
    }
    return true;
}

bool ServerReader::keep(std::size_t bytes) {
    m_keptBytes += bytes;
    return m_keptBytes <= maxKeptBytes;
}

ServerDocument::Servers ServerReader::servers(const QString& scope) const {
    const auto scoped = [](ConfiguredServer server, const QString& where) {
        server.scope = where;
        return server;
    };
    ServerDocument::Servers result;
    for (const auto& [name, server] : m_own)
        result.own.append(scoped(server, scope));
    for (const auto& [folder, servers] : m_ofProjects) {
        const QString where = u"project "_s + ProgramPath::withTilde(folder);
        for (const auto& [name, server] : servers)
            result.ofProjects.append(scoped(server, where));
    }
    return result;
}

} // namespace

ServerDocument::Servers ServerDocument::read(std::streambuf& text, const Form& form, const QString& scope) {
    JsonText shortened(text);
    std::istream stream(&shortened);
    ServerReader reader(form);
    const bool isWhole = json::sax_parse(stream, &reader, json::input_format_t::json, true, form.hasComments);
    if (!isWhole)
        qCWarning(Log::mcp) << "a JSON document is not understood to its end";
    return isWhole ? reader.servers(scope) : Servers();
}
