#include "Core/KnownPrograms.h"

#include "Core/ProgramPath.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

using KnownPrograms::Program;
using enum ProcGroup;

constexpr bool host = true;

/// In order of name, because it is searched by halves.
constexpr std::array programs = {
    Program{u"aider", agents, host},
    Program{u"amp", agents, host},
    Program{u"antigravity", ides, host},
    Program{u"auggie", agents, host},
    Program{u"claude", agents, host},
    Program{u"claude-code", agents, host},
    Program{u"claude-desktop", agents, host},
    Program{u"cline", agents, host},
    Program{u"clion", ides, host},
    Program{u"clion64", ides, host},
    Program{u"code", ides, host},
    Program{u"code-insiders", ides, host},
    Program{u"code-oss", ides, host},
    Program{u"code-server", ides, host},
    Program{u"codex", agents, host},
    Program{u"codium", ides, host},
    Program{u"continue", agents, host},
    Program{u"copilot", agents, host},
    Program{u"crush", agents, host},
    Program{u"cursor", ides, host},
    Program{u"cursor-agent", agents, host},
    Program{u"datagrip", ides, host},
    Program{u"droid", agents, host},
    Program{u"fleet", ides, host},
    Program{u"gemini", agents, host},
    Program{u"gemini-cli", agents, host},
    Program{u"goland", ides, host},
    Program{u"goose", agents, host},
    Program{u"goosed", agents, host},
    Program{u"idea", ides, host},
    Program{u"kilo", agents, host},
    Program{u"kilocode", agents, host},
    Program{u"kiro", ides, host},
    Program{u"kiro-cli", agents, host},
    Program{u"opencode", agents, host},
    Program{u"phpstorm", ides, host},
    Program{u"pycharm", ides, host},
    Program{u"qwen", agents, host},
    Program{u"qwen-code", agents, host},
    Program{u"rider", ides, host},
    Program{u"rubymine", ides, host},
    Program{u"rustrover", ides, host},
    Program{u"studio", ides, host},
    Program{u"trae", ides, host},
    Program{u"void", ides, host},
    Program{u"vscodium", ides, host},
    Program{u"webstorm", ides, host},
    Program{u"windsurf", ides, host},
    Program{u"zed", ides, host},
    Program{u"zed-editor", ides, host},
};

int order(const Program& program, QStringView name) {
    return QStringView(program.name).compare(name, Qt::CaseInsensitive);
}

static_assert(std::is_sorted(programs.begin(), programs.end(), [](const Program& a, const Program& b) {
    return std::u16string_view(a.name) < std::u16string_view(b.name);
}));

} // namespace

const Program* KnownPrograms::find(QStringView name) {
    const auto found = std::lower_bound(
        programs.begin(), programs.end(), name,
        [](const Program& program, QStringView wanted) { return order(program, wanted) < 0; });
    return found != programs.end() && order(*found, name) == 0 ? &*found : nullptr;
}

const Program* KnownPrograms::of(const ProcSample& process) {
    for (const QStringView name :
         {QStringView(process.name), ProgramPath::lastComponent(process.executablePath),
          ProgramPath::scriptName(process.program), ProgramPath::packageName(process.program)}) {
        if (const Program* known = find(name))
            return known;
    }
    return nullptr;
}
