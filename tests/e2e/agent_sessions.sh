#!/usr/bin/env bash
# Compares the sessions that are found with real coding agents, in private namespaces: every process that an agent
# started belongs to its session and to no other, also when the agent was killed.
# Run by hand, because it needs packages of the npm registry (docs/testing.md):
#   agent_sessions.sh TRUTH AGENTS
# TRUTH is tavrin_session_truth. AGENTS contains claude-code/, codex/, gemini/, qwen/ and servers/, each with its
# node_modules. With chromium, the first session starts a headless one.
set -euo pipefail
script_arguments=("$@")
truth=$(realpath "$1")
agents=$(realpath "$2")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh
make_machine_private "$PWD" "$(dirname "$truth")" "$agents"
start_display
home=$private_files/home
servers=$agents/servers/node_modules/.bin
mkdir -p "$home/src/app" "$home/src/lib" "$home/.claude" "$home/.codex" "$home/.gemini" "$home/.qwen"
export HOME=$home TMUX_TMPDIR=$private_files npm_config_cache=$private_files/npm-cache
unset XDG_CACHE_HOME XDG_DATA_HOME XDG_CONFIG_HOME CLAUDECODE CLAUDE_CODE_SESSION_ID CLAUDE_PROJECT_DIR

# Listens on the port given, and marks its process with the name of its session.
cat >"$home/listen.js" <<'JS'
require("http").createServer().listen(Number(process.argv[2]), "127.0.0.1");
JS
# A server that starts a development server beside itself, in a session of its own, and one that loses its parent.
cat >"$home/with-dev-server" <<WRAPPER
#!/bin/sh
setsid node "$home/listen.js" "\$1" </dev/null >/dev/null 2>&1 &
(sleep 100000 </dev/null >/dev/null 2>&1 &)
exec "$servers/mcp-server-memory"
WRAPPER
# What the hook of an agent starts: a development server and a browser that lose their parent.
cat >"$home/hook" <<HOOK
#!/bin/sh
[ "\$PWD" = "$home/src/app" ] || exit 0
setsid sh -c 'node "$home/listen.js" 5170 & exit 0' </dev/null >/dev/null 2>&1
command -v chromium >/dev/null || exit 0
setsid sh -c 'chromium --headless --no-sandbox --disable-gpu --remote-debugging-port=0 \
    --user-data-dir="$home/profile" about:blank & exit 0' </dev/null >/dev/null 2>&1
HOOK
chmod +x "$home/with-dev-server" "$home/hook"

key=sk-ant-api03-$(printf 'a%.0s' {1..95})
trusted='{"hasTrustDialogAccepted": true, "hasCompletedProjectOnboarding": true}'
cat >"$home/.claude.json" <<JSON
{"hasCompletedOnboarding": true, "theme": "dark",
 "customApiKeyResponses": {"approved": ["${key: -20}"], "rejected": []},
 "projects": {"$home/src/app": $trusted, "$home/src/lib": $trusted},
 "mcpServers": {
   "wrapped": {"command": "$home/with-dev-server", "args": ["0"]},
   "npx": {"command": "npx", "args": ["-y", "@modelcontextprotocol/server-filesystem", "$home"]}}}
JSON
cat >"$home/.claude/settings.json" <<JSON
{"hooks": {"SessionStart": [{"hooks": [{"type": "command", "command": "$home/hook"}]}]}}
JSON
cat >"$home/.codex/config.toml" <<TOML
[mcp_servers.wrapped]
command = "$home/with-dev-server"
args = ["5171"]
[projects."$home/src/lib"]
trust_level = "trusted"
TOML
echo '{"OPENAI_API_KEY": "sk-none"}' >"$home/.codex/auth.json"
for agent in gemini qwen; do
    port=$([ $agent = gemini ] && echo 5172 || echo 5173)
    cat >"$home/.$agent/settings.json" <<JSON
{"selectedAuthType": "gemini-api-key", "security": {"auth": {"selectedType": "gemini-api-key"}, "folderTrust": {"enabled": false}},
 "mcpServers": {"wrapped": {"command": "$home/with-dev-server", "args": ["$port"]}}}
JSON
done
sed -i 's/gemini-api-key/openai/g' "$home/.qwen/settings.json"
export ANTHROPIC_API_KEY=$key ANTHROPIC_BASE_URL=http://127.0.0.1:9 DISABLE_AUTOUPDATER=1
export CLAUDE_CODE_DISABLE_NONESSENTIAL_TRAFFIC=1 GEMINI_API_KEY=none OPENAI_API_KEY=none
export OPENAI_BASE_URL=http://127.0.0.1:9 OPENAI_MODEL=none

spawn "$truth" >"$private_files/found"
run() { # SESSION FOLDER COMMAND...: in a pane of its own, with what its processes carry to tell them apart
    tmux new-session -d -s "$1" -x 150 -y 40 -c "$2" env WHOSE="$1" "${@:3}"
}
run claude-a "$home/src/app" "$agents/claude-code/node_modules/.bin/claude"
sleep 8 # until the first has its session file
run claude-b "$home/src/app" "$agents/claude-code/node_modules/.bin/claude"
run codex "$home/src/lib" "$agents/codex/node_modules/.bin/codex"
run gemini "$home/src/lib" "$agents/gemini/node_modules/.bin/gemini"
run qwen "$home/src/lib" "$agents/qwen/node_modules/.bin/qwen"
tmux new-session -d -s shell -c "$home/src/app" env WHOSE=nobody bash -c 'sleep 100000 & exec sleep 100000'

# Prints the last complete block.
found() { tac "$private_files/found" | sed -n '/^end$/,$p' | sed 1d | sed '/^end$/,$d'; }
# Prints the PIDs of a kind of line (session or left) that has the PID in it.
line_with() { { found | grep -E "^$1 [^:]*:.* $2:" || true; } | { grep -oE ' [0-9]+:' || true; } | tr -d ' :' | sort -n; }
# Prints the PIDs of the processes that carry the mark, from the pane's own down.
marked() {
    local environment pid
    for environment in /proc/[0-9]*/environ; do
        pid=${environment#/proc/}
        if grep -qzx "WHOSE=$1" "$environment" 2>/dev/null; then echo "${pid%/environ}"; fi
    done | sort -n
}
# Succeeds when the line has all processes that carry the mark, and none with another mark. Some programs overwrite
# their environment: those carry none.
compare() { # WHAT KIND MARK
    local pids found_pids pid missing=() foreign=()
    pids=$(marked "$3")
    found_pids=$(line_with "$2" "$(head -n 1 <<<"$pids")")
    for pid in $pids; do
        grep -qx "$pid" <<<"$found_pids" || missing+=("$pid")
    done
    for pid in $found_pids; do
        grep -qz '^WHOSE=' "/proc/$pid/environ" && ! grep -qzx "WHOSE=$3" "/proc/$pid/environ" && foreign+=("$pid")
    done
    if [ -n "$found_pids" ] && [ ${#missing[@]}${#foreign[@]} = 00 ]; then
        echo "ok: $1 ($(wc -l <<<"$found_pids") processes)"
        return
    fi
    found >&2
    for pid in "${missing[@]}" "${foreign[@]}"; do
        echo "$pid $(tr '\0' ' ' 2>/dev/null <"/proc/$pid/cmdline" | cut -c 1-100)" >&2
    done
    fail "$1"
}
sleep "${SETTLE:-40}"
for agent in claude-a claude-b codex gemini qwen; do
    compare "everything that $agent started is its session" session "$agent"
done
[ -z "$(line_with '(session|left)' "$(marked nobody | head -n 1)")" ] || fail "a shell's programs are nobody's"
echo "ok: a shell's programs are nobody's"
for port in 5170 5171 5172 5173; do
    found | grep -E "^session .*:dev:$port\b" >/dev/null || fail "the server on port $port is shown with it"
done
echo "ok: development servers are shown with their ports"

# Kills the agents of a session all at once. What they started lives on where it does not read from them.
for agent in claude-a codex; do
    host=$(line_with session "$(marked "$agent" | head -n 1)" | head -n 1)
    before=$(line_with session "$host")
    kill -KILL $(found | grep "^session [^:]*:.* $host:" | grep -oE '[0-9]+:agent' | cut -d : -f 1)
    sleep 12
    left=$(for pid in $before; do not alive "$pid" || echo "$pid"; done)
    [ -n "$left" ] && [ "$(line_with left "$(head -n 1 <<<"$left")")" = "$left" ] || { found >&2; fail "what $agent left"; }
    echo "ok: what $agent left is found when it was killed ($(wc -l <<<"$left") processes)"
done
compare "the other session in its folder is whole" session claude-b
kill "$spawned"
spawn "$truth" >"$private_files/found"
sleep 8
compare "the same for a program that started only then" left claude-a
compare "and the other session is whole" session claude-b
echo "1 passed, 0 failed"
