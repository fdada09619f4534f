#include "Core/Mcp/ServerToml.h"

#include "Core/Log.h"

#include <algorithm>
#include <array>
#include <istream>

// An assertion of the parser would end the program for some broken documents, and with NDEBUG the compiler
// would assume that it is true. The parser reports such a document as an error all the same.
#undef NDEBUG
#define TOML_ASSERT(expr) static_assert(true)
#define TOML_EXCEPTIONS 0
#define TOML_ENABLE_FORMATTERS 0
#define TOML_MAX_NESTED_VALUES 16
#include <toml++/toml.h>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::ConfiguredServer;

constexpr std::size_t maxTomlBytes = 8 << 20;
constexpr std::size_t maxServers = 10'000;
constexpr int maxDotsInLine = 256;

/// Ends where a document exceeds the limits. The parser keeps the whole text, builds a table for each dot of
/// a key, and destroys these by recursion.
class TomlText : public std::streambuf {
public:
    explicit TomlText(std::streambuf& source)
        : m_source(source) {}

    bool isRefused() const { return m_isRefused; }

protected:
    int_type underflow() override {
        const auto count = m_isRefused ? 0 : m_source.sgetn(m_block.data(), m_block.size());
        if (count <= 0)
            return traits_type::eof();
        m_bytes += static_cast<std::size_t>(count);
        m_isRefused = m_bytes > maxTomlBytes || !std::all_of(m_block.begin(), m_block.begin() + count,
                                                             [this](char byte) { return isTakenIn(byte); });
        if (m_isRefused)
            return traits_type::eof();
        setg(m_block.data(), m_block.data(), m_block.data() + count);
        return traits_type::to_int_type(*gptr());
    }

    /// Goes back to the start, as the parser does after it found no byte order mark.
    pos_type seekoff(off_type offset, std::ios_base::seekdir from, std::ios_base::openmode) override {
        const bool isStart = offset == 0 && (from == std::ios_base::beg || m_bytes == 0);
        if (!isStart || m_bytes > m_block.size())
            return pos_type(off_type(-1));
        setg(eback(), eback(), egptr());
        return 0;
    }

private:
    bool isTakenIn(char byte) {
        m_dots = byte == '\n' ? 0 : m_dots + (byte == '.');
        return m_dots <= maxDotsInLine;
    }

    std::streambuf& m_source;
    std::array<char, 16 << 10> m_block;
    std::size_t m_bytes = 0;
    int m_dots = 0;
    bool m_isRefused = false;
};

QString textOf(const std::string& text) {
    return QString::fromStdString(text);
}

QStringList argumentsOf(const toml::table& entry) {
    const toml::array* array = entry["args"].as_array();
    QStringList arguments;
    for (std::size_t i = 0; array && i < array->size(); ++i) {
        const toml::value<std::string>* text = array->get_as<std::string>(i);
        if (!text)
            return {};
        arguments.append(textOf(text->get()));
    }
    return arguments;
}

ConfiguredServer serverOf(std::string_view name, const toml::node& value, const QString& scope) {
    ConfiguredServer server{.name = textOf(std::string(name)), .command = u"?"_s, .scope = scope};
    if (const toml::table* entry = value.as_table()) {
        if (const auto* command = (*entry)["command"].as_string())
            server.command = textOf(command->get());
        server.args = argumentsOf(*entry);
    }
    return server;
}

} // namespace

QList<ConfiguredServer> ServerToml::read(std::streambuf& text, const QString& scope) {
    TomlText limited(text);
    std::istream stream(&limited);
    const toml::parse_result document = toml::parse(stream);
    if (!document || limited.isRefused()) {
        qCWarning(Log::mcp) << "a TOML document is not understood";
        return {};
    }
    QList<ConfiguredServer> servers;
    const toml::table* tables = document.table()["mcp_servers"].as_table();
    if (tables && tables->size() <= maxServers) {
        for (const auto& [name, value] : *tables)
            servers.append(serverOf(name.str(), value, scope));
    }
    std::ranges::sort(servers, {}, &ConfiguredServer::name);
    return servers;
}
