#include "Core/Sessions/AgentTable.h"

#include <QDir>

#include <algorithm>
#include <initializer_list>

namespace {

constexpr qsizetype maxIdLength = 128;
constexpr const char* configVariable = "CLAUDE_CONFIG_DIR";

struct Agent {
    QStringView name;
    QStringView resumeCommand;
};

// By the documentation and the "--help" of each, 2026.
constexpr std::initializer_list<Agent> agents = {
    {u"aider", u"aider --restore-chat-history"},
    {u"claude", u"claude --continue"},
    {u"codex", u"codex resume --last"},
    {u"copilot", u"copilot --continue"},
    {u"cursor-agent", u"cursor-agent resume"},
    {u"gemini", u"gemini --resume latest"},
    {u"goose", u"goose session --resume"},
    {u"opencode", u"opencode --continue"},
    {u"qwen", u"qwen --continue"},
};

struct Alias {
    QStringView name;
    QStringView typed;
};

constexpr std::initializer_list<Alias> aliases = {
    {u"claude-code", u"claude"}, {u"gemini-cli", u"gemini"}, {u"goosed", u"goose"}, {u"qwen-code", u"qwen"}};

struct Variables {
    QStringView agent;
    const char* id;
    const char* folder; // null where the agent names none
};

constexpr std::initializer_list<Variables> marks = {
    {u"claude", "CLAUDE_CODE_SESSION_ID", "CLAUDE_PROJECT_DIR"},
    {u"codex", "CODEX_THREAD_ID", nullptr},
    {u"codex", "CODEX_SESSION_ID", nullptr},
    {u"gemini", "GEMINI_CLI_SESSION_ID", "GEMINI_PROJECT_DIR"},
    {u"gemini", "GEMINI_SESSION_ID", "GEMINI_PROJECT_DIR"},
};

} // namespace

QString AgentTable::typedName(const QString& agent) {
    const auto found = std::ranges::find(aliases, agent, &Alias::name);
    return found == aliases.end() ? agent : found->typed.toString();
}

QString AgentTable::resumeCommand(const QString& agent) {
    const auto found = std::ranges::find(agents, agent, &Agent::name);
    return found == agents.end() ? QString() : found->resumeCommand.toString();
}

const QByteArrayList& AgentTable::variables() {
    static const QByteArrayList names = [] {
        QByteArrayList all{configVariable};
        for (const Variables& mark : marks) {
            all.append(mark.id);
            if (mark.folder && !all.contains(mark.folder))
                all.append(mark.folder);
        }
        return all;
    }();
    return names;
}

std::optional<AgentTable::Mark> AgentTable::markIn(const QHash<QByteArray, QByteArray>& environment) {
    for (const Variables& mark : marks) {
        const QByteArray id = environment.value(mark.id);
        if (id.isEmpty() || id.size() > maxIdLength)
            continue;
        const QString folder = mark.folder ? QString::fromUtf8(environment.value(mark.folder)) : QString();
        return Mark{.agent = mark.agent.toString(),
                    .id = QString::fromUtf8(id),
                    .folder = QDir::isAbsolutePath(folder) ? QDir::cleanPath(folder) : QString()};
    }
    return std::nullopt;
}

QString AgentTable::claudeFolder(const QHash<QByteArray, QByteArray>& environment) {
    const QString moved = QString::fromUtf8(environment.value(configVariable));
    if (QDir::isAbsolutePath(moved))
        return moved;
    const QString home = QDir::homePath();
    return home.isEmpty() ? QString() : home + QStringLiteral("/.claude");
}
