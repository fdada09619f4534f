#include "Core/Sampling/ProcessName.h"
#include "Core/Sampling/LaunchedProgram.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Splits words at spaces. "~" stands for a space within a word.
QStringList words(const char* text) {
    QStringList list = QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
    for (QString& word : list)
        word.replace(u'~', u' ');
    return list;
}

struct CommandLine {
    const char* executable;
    const char* arguments;
    const char* program;
    bool isLauncher = false;
    bool isScript = false;
};

constexpr bool launcher = true;
constexpr bool script = true;

} // namespace

TEST(LaunchedProgram, IsWhatAnInterpreterOrLauncherWasToldToRun) {
    const CommandLine runs[] = {
        {"/usr/bin/sleep", "sleep 1000", "/usr/bin/sleep"},
        {"/usr/bin/node", "node", "/usr/bin/node"},
        {"/usr/bin/node", "node /opt/x/server.js --port 1", "/opt/x/server.js", !launcher, script},
        {"/opt/node-22/bin/node", "node --import tsx -r dotenv/config app.ts", "app.ts", !launcher, script},
        {"/usr/bin/node", "node -e console.log(1) mcp-server", "/usr/bin/node"},
        {"/usr/bin/node", "npm~exec~@modelcontextprotocol/server-filesystem~/p",
         "@modelcontextprotocol/server-filesystem", launcher},
        {"/usr/bin/node", "node /usr/bin/npx -y @upstash/context7-mcp@1.2", "@upstash/context7-mcp@1.2",
         launcher},
        {"/usr/bin/node", "node /usr/lib/node_modules/npm/bin/npm-cli.js run dev",
         "/usr/lib/node_modules/npm/bin/npm-cli.js"},
        {"/usr/bin/python3.11", "python3 -u -W ignore -m mcp_server_git --repository .", "mcp_server_git"},
        {"/usr/bin/python3.11", "/usr/bin/python3 /usr/bin/gnome-tweaks", "/usr/bin/gnome-tweaks", !launcher,
         script},
        {"/usr/bin/python3.11", "python3 -c import~this x", "/usr/bin/python3.11"},
        {"/usr/bin/uv", "uv tool uvx --from git+x mcp-server-git", "mcp-server-git", launcher},
        {"/usr/bin/uv", "uv run --with mcp python -m weather", "weather", launcher},
        {"/usr/bin/uv", "uv pip install mcp-server", "/usr/bin/uv"},
        {"/usr/bin/dash", "sh -c mcp-server-filesystem~\"$@\" /p", "mcp-server-filesystem", launcher},
        {"/usr/bin/bash", "bash -lc A=1~exec~node~/srv/mcp-server.js", "/srv/mcp-server.js", launcher},
        {"/usr/bin/bash", "/bin/bash /opt/start-server.sh", "/opt/start-server.sh", !launcher, script},
        {"/usr/bin/docker", "docker run -i --rm -e TOKEN --name x ghcr.io/a/b-mcp-server stdio",
         "ghcr.io/a/b-mcp-server", launcher},
        {"/usr/bin/docker", "docker build -t mcp-server .", "/usr/bin/docker"},
        {"/usr/bin/java", "java -Xmx1g -cp a:b -jar mcp-server.jar", "mcp-server.jar"},
        {"/usr/bin/bun", "bun run ./server.ts", "./server.ts", !launcher, script},
        {"/usr/bin/node", "sh~-c", "/usr/bin/node"},
        {"", "", ""},
    };
    for (const CommandLine& run : runs) {
        const auto reading = LaunchedProgram::read(QString::fromUtf8(run.executable), words(run.arguments));
        EXPECT_EQ(reading.program.toStdString(), run.program) << run.arguments;
        EXPECT_EQ(reading.isLauncher, run.isLauncher) << run.arguments;
        EXPECT_EQ(reading.isScript, run.isScript) << run.arguments;
    }
}

TEST(ProcessName, IsWhatAPersonWouldCallIt) {
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {"python3", "/usr/bin/python3.11", "python3 x.py", "python3"},
        {"qemu-system-x86", "/usr/bin/qemu-system-x86_64", "qemu", "qemu-system-x86_64"},
        {"a-worker-in-its", "", "/opt/bin/a-worker-in-its-pool", "a-worker-in-its-pool"},
        {"a-worker-in-its", "", "/opt/bin/worker", "a-worker-in-its"},
        {"gnome-tweaks-wi", "/usr/bin/python3.11", "python3 /usr/bin/gnome-tweaks-with-more",
         "gnome-tweaks-with-more"},
        {"MainThread", "/usr/bin/node", "node /opt/mcp.js", "node"},
        {"node-MainThread", "/opt/node-26/bin/node", "node /opt/mcp.js", "node"},
        {"npm exec @model", "/usr/bin/node", "npm~exec~@modelcontextprotocol/server-x~/p", "node"},
        {"claude", "/usr/bin/node", "claude", "claude"},
        {"claude", "/home/u/.local/share/claude/versions/2.1.42", "claude --resume", "claude"},
        {"bash", "/usr/bin/bash", "-bash", "bash"},
        {"sh", "/usr/bin/busybox", "/bin/sh", "sh"},
        {"tmux: server", "/usr/bin/tmux", "tmux", "tmux"},
        {"gmain", "", "", "gmain"},
        {"chromium", "/usr/lib/chromium/chromium", "/usr/lib/chromium/chromium --type=zygote", "chromium"},
        {"chrome_crashpad", "/opt/google/chrome/chrome_crashpad_handler",
         "/opt/google/chrome/chrome_crashpad_handler", "chrome_crashpad_handler"},
        {"chrome", "/opt/google/chrome/chrome", "/opt/google/chrome/chrome~--type=renderer~--lang=de",
         "Google Chrome Helper (Renderer)"},
        {"chrome", "", "/opt/google/chrome/chrome --type=gpu-process", "Google Chrome Helper (GPU)"},
        {"chrome", "/opt/google/chrome/chrome", "chrome --type=utility", "Google Chrome Helper"},
        {"code", "/usr/share/code/code", "/usr/share/code/code --type=zygote --no-sandbox", "code"},
        {"code", "/usr/share/code/code",
         "/usr/share/code/code --type=utility --utility-sub-type=node.mojom.NodeService",
         "Code Helper (Plugin)"},
        {"cursor", "/opt/cursor/cursor", "cursor --type=utility", "Cursor Helper"},
        {"chromium", "/usr/lib/chromium/chromium", "/usr/lib/chromium/chromium~--type=broker", "chromium"},
        {"chromium", "/usr/lib/chromium/chromium", "/usr/lib/chromium/chromium~--type=renderer~--x",
         "Chromium Helper (Renderer)"},
        {"chrome", "/home/u/.cache/ms-playwright/chromium-1/chrome-linux/chrome", "chrome --type=utility",
         "Chromium Helper"},
        {"Web Content", "/usr/lib/firefox-esr/firefox-esr",
         "/usr/lib/firefox-esr/firefox-esr~-contentproc~-appDir~/usr/lib/firefox-esr/browser~8~tab",
         "Firefox Helper (Web Content)"},
        {"Menu Browser", "/usr/lib/menu/menu", "menu --type=renderer", "In The Menu Helper (Renderer)"},
        {"Isolated Web Co", "/usr/lib/firefox-esr/firefox-esr",
         "firefox-esr -contentproc -childID 3 {x} 41 tab", "Firefox Helper (Isolated Web Content)"},
        {"Socket Process", "/usr/lib/firefox/firefox", "firefox -contentproc {x} 41 socket",
         "Firefox Helper (Socket Process)"},
        {"forkserver", "/usr/lib/firefox/firefox", "firefox -contentproc {x} 41 forkserver", "firefox"},
        {"node", "/home/u/.vscode-server/bin/1/node", "node /bootstrap-fork --type=extensionHost", "node"},
    };
    const auto applicationName = [](const QString& path) {
        if (path == u"/usr/lib/chromium/chromium"_s)
            return u"Chromium-Webbrowser"_s;
        return path == u"/usr/lib/menu/menu"_s ? u"In The Menu"_s : QString();
    };
    for (const auto& [shortName, path, arguments, name] : cases) {
        const QString executable = QString::fromUtf8(path);
        const auto reading = LaunchedProgram::read(executable, words(arguments));
        const ProcessName::Facts facts{.shortName = shortName,
                                       .executablePath = executable,
                                       .arguments = words(arguments),
                                       .script = reading.isScript ? reading.program : QString()};
        EXPECT_EQ(ProcessName::of(facts, applicationName).toStdString(), name) << arguments;
    }
}
