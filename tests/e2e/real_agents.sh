#!/usr/bin/env bash
# Tests the program with real coding agents and MCP servers, on a private display in private namespaces: no server in
# use is an orphan, and only the servers that a killed agent leaves behind are found and killed.
# Run by hand, because it needs packages of the npm registry (docs/testing.md):
#   real_agents.sh PROGRAM AGENTS
# AGENTS contains claude-code/ and servers/, each with its node_modules.
set -euo pipefail
script_arguments=("$@")
program=$(realpath "$1")
agents=$(realpath "$2")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh
make_machine_private "$PWD" "$(dirname "$program")" "$agents"

start_listening
servers=$agents/servers/node_modules/.bin
project=$home/src/app
copies=$private_files/copies
mkdir -p "$home/.config/Tavrin" "$project" "$copies"
export HOME=$home XDG_CONFIG_HOME=$home/.config TMUX_TMPDIR=$private_files QT_QPA_PLATFORM=xcb
unset XDG_CACHE_HOME XDG_DATA_HOME CLAUDECODE CLAUDE_CODE_SESSION_ID
export npm_config_cache=$private_files/npm-cache

# The pipe of this server outlives its host, and it has no terminal: it is left behind when the host is killed.
cat >"$home/keeps-pipe" <<WRAPPER
#!/bin/sh
[ -n "\$1" ] || exec setsid "\$0" again
{ cat; exec sleep 100000; } | "$servers/mcp-server-memory"
WRAPPER
chmod +x "$home/keeps-pipe"

key=sk-ant-api03-$(printf 'a%.0s' {1..95})
cat >"$home/.claude.json" <<JSON
{"hasCompletedOnboarding": true, "theme": "dark",
 "customApiKeyResponses": {"approved": ["${key: -20}"], "rejected": []},
 "projects": {"$project": {"hasTrustDialogAccepted": true, "hasCompletedProjectOnboarding": true}},
 "mcpServers": {
   "direct": {"command": "$servers/mcp-server-filesystem", "args": ["$project"]},
   "everything": {"command": "$servers/mcp-server-everything"},
   "docs": {"command": "$servers/context7-mcp"},
   "left-behind": {"command": "$home/keeps-pipe"},
   "npx": {"command": "npx", "args": ["-y", "@modelcontextprotocol/server-filesystem", "$project"]}}}
JSON
export ANTHROPIC_API_KEY=$key ANTHROPIC_BASE_URL=http://127.0.0.1:9 DISABLE_AUTOUPDATER=1
export CLAUDE_CODE_DISABLE_NONESSENTIAL_TRAFFIC=1

spawn "$program"
pid=$spawned
main_window "$pid" >/dev/null || fail "the main window appears"
screen click Optimize || fail "the section Optimize"

tmux new-session -d -s agent -x 150 -y 40 -c "$project" "$agents/claude-code/node_modules/.bin/claude"
shows "five servers run, each in one row" "Running 5"
sleep 10 # for servers that start late
shows "five servers still run" "Running 5"
shows "none of them is an orphan" "Orphans 0"
claude=$(pgrep -xo claude)
shows "the host of the server behind npx is the agent" \
    "Running .*/mcp-server-filesystem, PID [0-9]+, parent: claude, .*"
tests/e2e/screen.py describe "Running .*/mcp-server-filesystem, .*" | grep -qx "in use by claude ($claude) in ~/src/app" ||
    fail "the row says who uses it"
echo "ok: the row says who uses it"

# The same node under the names of the other hosts, each with a server below a launcher.
cp "$(readlink -f "$(command -v node)")" "$copies/node"
cat >"$copies/host.js" <<'JS'
require("child_process").spawn("sh", ["-c", process.argv[2] + " /tmp"], {stdio: ["pipe", "ignore", "ignore"]});
setInterval(() => {}, 1000);
JS
names=(codex gemini qwen opencode crush goose amp aider cursor cursor-agent copilot continue cline code codium
    code-insiders windsurf trae zed idea)
for name in "${names[@]}"; do
    ln "$copies/node" "$copies/$name"
    spawn "$copies/$name" "$copies/host.js" "$servers/mcp-server-filesystem"
done
shows "every host's server runs" "Running $((5 + ${#names[@]}))"
shows "none of them is an orphan either" "Orphans 0"

kill -KILL "$claude"
shows "a killed agent leaves one server behind" "Orphans 1"
orphan=$(pgrep -f "node .*/mcp-server-memory")
tests/e2e/screen.py describe "Orphan .*, PID $orphan, .*" |
    grep -qE "^orphan: its host claude \($claude\) ended at [0-9]{1,2}:[0-9]{2}" || fail "the row says whose it was"
echo "ok: the row says whose it was"
before=$(pgrep -f "mcp-server-filesystem" | sort)
press "Kill orphans"
check "the orphan is gone" not alive "$orphan"
shows "none is left" "Orphans 0"
[ "$(pgrep -f "mcp-server-filesystem" | sort)" = "$before" ] || fail "all others live on"
tail -n 1 "$home/Library/Logs/Tavrin/actions.log" | grep -q "killed=1/1" || fail "the log tells of one"
echo "1 passed, 0 failed"
