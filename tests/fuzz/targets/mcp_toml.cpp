#include "Core/Mcp/ServerToml.h"
#include "fuzz/Fuzz.h"

#include <sstream>

/// The text of a configuration file in TOML.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::stringbuf buffer(Fuzz::bytes(data, size).toStdString());
    const auto servers = ServerToml::read(buffer, QStringLiteral("codex"));
    for (qsizetype i = 0; i < servers.size(); ++i) {
        Fuzz::require(servers[i].scope == u"codex");
        Fuzz::require(i == 0 || servers[i - 1].name <= servers[i].name);
    }
    return 0;
}
