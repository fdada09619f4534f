#include "Core/Mcp/ServerDocument.h"

#include "Core/Mcp/JsonText.h"
#include "Core/Mcp/ServerToml.h"
#include "support/Each.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::ConfiguredServer;

ServerDocument::Servers read(const std::string& text, const ServerDocument::Form& form = {}) {
    std::stringbuf buffer(text);
    return ServerDocument::read(buffer, form, u"user"_s);
}

QStringList names(const std::string& text, const ServerDocument::Form& form = {}) {
    return each(read(text, form).own, &ConfiguredServer::name);
}

QList<ConfiguredServer> readToml(const std::string& text) {
    std::stringbuf buffer(text);
    return ServerToml::read(buffer, u"codex"_s);
}

std::string repeated(const std::string& text, int times) {
    std::string result;
    while (times-- > 0)
        result += text;
    return result;
}

/// Returns a document with one server after `content`.
std::string behind(const std::string& content) {
    return "{\"x\": " + content + R"(, "mcpServers": {"kept": {}}})";
}

} // namespace

TEST(ServerDocumentTest, KeepsNameCommandAndArgumentsInAnyOrder) {
    const auto servers = read("\xef\xbb\xbf"
                              R"({"mcpServers": {
        "zeta": {"args": ["-y", "pk\u00e9"], "env": {"command": "no", "args": [1]}, "command": "npx"},
        "Beta": {"url": "https://a.b/mcp"}, "alpha": 7, "list": [{"command": "no"}],
        "mixed": {"args": ["a", ["b"], "c"], "command": {"command": "no"}}, "twice": {}, "twice": {"command": "c"},
        "wrong": {"command": "c", "command": null, "args": ["a"], "args": "b"}},
        "other": {"mcpServers": {"no": {}}}, "projects": {"/a": {"mcpServers": {"no": {}}}}})");
    EXPECT_EQ(servers.own, (QList<ConfiguredServer>{{u"Beta"_s, u"?"_s, {}, u"user"_s},
                                                    {u"alpha"_s, u"?"_s, {}, u"user"_s},
                                                    {u"list"_s, u"?"_s, {}, u"user"_s},
                                                    {u"mixed"_s, u"?"_s, {}, u"user"_s},
                                                    {u"twice"_s, u"c"_s, {}, u"user"_s},
                                                    {u"wrong"_s, u"?"_s, {}, u"user"_s},
                                                    {u"zeta"_s, u"npx"_s, {u"-y"_s, u"pké"_s}, u"user"_s}}));
    EXPECT_TRUE(servers.ofProjects.isEmpty());
}

TEST(ServerDocumentTest, ProjectsHaveServersOfTheirOwn) {
    const auto servers = read(R"({"projects": {
        "/b": {"mcpServers": {"two": {"command": "x"}, "one": {}}, "history": [{"mcpServers": {"no": {}}}]},
        "/a": {"mcpServers": {"no": {}}, "mcpServers": {"three": {}}}, "/c": {"mcpServers": {"no": {}}}, "/c": 1,
        "mcpServers": {"no": {}}}, "mcpServers": {"own": {}}})",
                              {.hasProjects = true});
    EXPECT_EQ(each(servers.own, &ConfiguredServer::name), QStringList(u"own"_s));
    EXPECT_EQ(servers.ofProjects, (QList<ConfiguredServer>{{u"three"_s, u"?"_s, {}, u"project /a"_s},
                                                           {u"one"_s, u"?"_s, {}, u"project /b"_s},
                                                           {u"two"_s, u"x"_s, {}, u"project /b"_s}}));
}

TEST(ServerDocumentTest, ABrokenDocumentHasNoServers) {
    const std::string valid = R"({"mcpServers": {"one": {}}})";
    EXPECT_EQ(names(valid), QStringList(u"one"_s));
    for (const char* text :
         {"", "{", "[]", "null", "{}", R"({"mcpServers": []})", "\xff\xfe",
          R"({"mcpServers": {"a": {}}, "mcpServers": null})", R"({"mcpServers": {"cut": {})"})
        EXPECT_EQ(names(text), QStringList()) << text;
    for (const std::string& text :
         {valid + "x", valid + std::string(1, '\0'), behind("\"\xff\""), behind(R"("\x")"),
          behind(R"("\ud83)"), behind("\"a\nb\""), behind("01"), behind("1e999"), behind("1 /* c */"),
          behind(repeated("[", 1'000'000)),
          std::string(R"({"mcpServers": {"big": {"args": [")" + repeated("\",\"", 500'000) + "\"]}}}")})
        EXPECT_EQ(names(text), QStringList()) << text.substr(0, 80);
    EXPECT_EQ(names("// a \"\n" + behind("1 /* c */"), {.hasComments = true}), QStringList(u"kept"_s));
    EXPECT_EQ(names(R"({"servers": {"code": {}}, "mcpServers": {"no": {}}})", {.member = "servers"}),
              QStringList(u"code"_s));
}

TEST(ServerDocumentTest, DeepOrLongContentHidesNoServer) {
    const int beyond = 2 * static_cast<int>(JsonText::maxTokenBytes);
    for (const std::string& content :
         {repeated("[", 1'000'000) + repeated("]", 1'000'000),
          repeated(R"({"args":)", 200'000) + "1" + repeated("}", 200'000), '"' + repeated("x", beyond) + '"',
          '"' + repeated("\xc3\xa9", beyond / 2) + '"', '"' + repeated("\\\\\\\"", beyond / 4) + '"',
          '"' + repeated("\\ud83d\\ude00", beyond / 12) + '"', '"' + repeated("\\ud83d", beyond / 6) + '"',
          repeated(" ", beyond) + "1" + repeated("\n", beyond),
          "0." + repeated("1", beyond) + "e-" + repeated("0", beyond)})
        EXPECT_EQ(names(behind(content)), QStringList(u"kept"_s)) << content.substr(0, 20);

    std::stringbuf text('"' + repeated("x", beyond) + "\",2");
    JsonText shortened(text);
    std::stringstream passedOn;
    passedOn << &shortened;
    EXPECT_EQ(passedOn.str(), '"' + repeated("x", JsonText::maxTokenBytes) + "\",2");
}

TEST(ServerDocumentTest, HalfASurrogatePairIsReplaced) {
    for (const auto& [written, meant] : {std::pair(R"(\ud83d)", u"\uFFFD"_s),
                                         {R"(a\ud83db)", u"a\uFFFDb"_s},
                                         {R"(\ude00\ud83d)", u"\uFFFD\uFFFD"_s},
                                         {R"(\ud83d\ud83d\ude00)", u"\uFFFD\U0001F600"_s},
                                         {R"(\ud83d\n\\ude00)", u"\uFFFD\n\\ude00"_s},
                                         {R"(\uD83D\uDE00)", u"\U0001F600"_s}})
        EXPECT_EQ(names(R"({"mcpServers": {")" + std::string(written) + R"(": 1}})"), QStringList(meant))
            << written;
}

TEST(ServerTomlTest, ReadsTheTablesOfServers) {
    const auto servers = readToml("\xef\xbb\xbfmodel = 'x'\n[mcp_servers.zeta]\nargs = ['-y', \"p\\u00e9\"]\n"
                                  "command = 'npx'\n[mcp_servers.zeta.env]\ncommand = 'no'\n"
                                  "[mcp_servers.\"a b\"]\nurl = 'https://a.b'\nargs = ['a', 1]\n"
                                  "[mcp_servers]\nodd = 7\n[projects.'/x']\nmcp_servers.no = {}\n");
    EXPECT_EQ(servers, (QList<ConfiguredServer>{{u"a b"_s, u"?"_s, {}, u"codex"_s},
                                                {u"odd"_s, u"?"_s, {}, u"codex"_s},
                                                {u"zeta"_s, u"npx"_s, {u"-y"_s, u"pé"_s}, u"codex"_s}}));
}

TEST(ServerTomlTest, ABrokenOrExcessiveDocumentHasNoServers) {
    const std::string valid = "[mcp_servers.a]\ncommand = 'x'\n";
    const int maxBytes = 8 << 20;
    EXPECT_EQ(readToml(valid).size(), 1);
    EXPECT_EQ(readToml(valid + '#' + repeated("x", maxBytes - static_cast<int>(valid.size()) - 1)).size(), 1);
    const std::string deepLine = "x" + repeated(".x", 200) + " = [{";
    for (const std::string& text :
         {std::string("mcp_servers = 1"), std::string("mcp_servers = []"), valid + "x", std::string("[/"),
          valid + "x = '\xff'", valid + valid, valid + '#' + repeated("x", maxBytes),
          valid + "x = " + repeated("[", 100'000), valid + "x = " + repeated("{x=", 100'000),
          valid + "[x" + repeated(".x", 1'000'000) + "]\n", valid + repeated(deepLine, 100'000)})
        EXPECT_TRUE(readToml(text).isEmpty()) << text.substr(0, 60);
    std::string crowd = "[mcp_servers]\n";
    for (int i = 0; i <= 10'000; ++i)
        crowd += "s" + std::to_string(i) + " = 1\n";
    EXPECT_TRUE(readToml(crowd).isEmpty());
    std::string nested;
    for (int i = 0; i < 7; ++i)
        nested += "x" + repeated(".x", 200) + " = [\n{";
    EXPECT_EQ(readToml(valid + nested + "x = 1" + repeated("}]", 7)).size(), 1); // within the limits
}
