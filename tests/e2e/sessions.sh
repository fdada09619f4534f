#!/usr/bin/env bash
# Ends, pauses and resumes agent sessions with the program, driven by the keyboard and checked by its accessible names,
# on a private display in private namespaces. The agents are copies of the shell.
#   sessions.sh PROGRAM
set -euo pipefail
script_arguments=("$@")
program=$(realpath "$1")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh
make_machine_private "$PWD" "$(dirname "$program")"
start_listening
agents=$private_files/agents
log=$home/Library/Logs/Tavrin/actions.log
mkdir -p "$home/.config/Tavrin" "$home/src/app" "$home/src/lib" "$agents"
export HOME=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=xcb
unset XDG_CACHE_HOME XDG_DATA_HOME CLAUDECODE CLAUDE_CODE_SESSION_ID
cp "$(command -v bash)" "$agents/claude"
cp "$(command -v sleep)" "$agents/worker"

# Starts an agent in a folder with a worker, and one that loses its parent. Sets `spawned`.
start_agent() { # FOLDER TRAP
    (
        cd "$1"
        exec setsid "$agents/claude" -c "$2; '$agents/worker' 100000 & ('$agents/worker' 100001 &); wait; wait"
    ) &
    spawned=$!
    started+=("$spawned")
}
of() { pgrep -f "^$agents/worker $1" || true; } # the workers with that argument
stopped() { [ "$(sed 's/.*) //' "/proc/$1/stat" | cut -c 1)" = T ]; }
all_gone() { local pid; for pid in "$@"; do not alive "$pid" || return 1; done; }
log_ends() { tail -n 1 "$log" 2>/dev/null | grep -Eq "$1"; }

start_agent "$home/src/app" "trap 'echo saved >\"$home/saved\"; exit' TERM"
polite=$spawned
polite_workers=$(sleep 1; of 10000)
start_agent "$home/src/lib" "trap '' TERM"
stubborn=$spawned
sleep 1
stubborn_workers=$(comm -13 <(sort <<<"$polite_workers") <(of 10000 | sort))
[ "$(wc -w <<<"$polite_workers $stubborn_workers")" = 4 ] || fail "two workers each"
sleep 100000 &
bystander=$!
started+=("$bystander")

spawn "$program"
pid=$spawned
main_window "$pid" >/dev/null || fail "the main window appears"
screen click Sessions || fail "the section Sessions"
shows "both sessions are there" "2 sessions, .*"
shows "with what they started" "~/src/app, .*, 3 processes, .*"

press "~/src/lib, .*"
press "Pause: .*"
press "Pause"
check "a paused agent is stopped" stopped "$stubborn"
for worker in $stubborn_workers; do stopped "$worker" || fail "and so is its worker"; done
stopped "$polite" && fail "the other is not"
shows "it is marked" "~/src/lib, Paused, .*"
press "Resume: .*"
check "it goes on" not stopped "$stubborn"

press "~/src/app, .*" Delete
press "End session"
check "the agent could save" test -e "$home/saved"
check "it has ended with what it started" all_gone "$polite" $polite_workers
shows "the result says so" "claude in ~/src/app: ended 3 of 3.*"
check "the log has it" log_ends "\[session\] claude in ~/src/app — ended=3/3 forced=0 freed=[0-9]+"
alive "$stubborn" && alive "$bystander" || fail "nothing else has ended"
press "Dismiss"

press "~/src/lib, .*" Delete
press "End session"
check "an agent that refuses is killed" all_gone "$stubborn"
check "with what it started" all_gone $stubborn_workers
shows "the result says so" "claude in ~/src/lib: ended 3 of 3.*"
shows "by force" "claude \($stubborn\) Force-killed"
press "Dismiss"

start_agent "$home/src/app" ":"
killed=$spawned
shows "a new session appears with what it started" "~/src/app, .*, 3 processes, .*"
workers=$(of 10000)
kill -KILL "$killed"
shows "what it left is named" "Left by claude in ~/src/app, .*"
press "End left-overs: Left by claude in ~/src/app"
press "End left-overs"
check "it is ended" all_gone $workers
alive "$bystander" || fail "nothing else has ended"

start_agent "$home/src/app" ":"
last=$spawned
shows "another session appears" "1 session, .*"
press "~/src/app, .*"
press "Pause: .*"
press "Pause"
check "it is paused" stopped "$last"
kill "$pid"
check "it goes on when the program ends" not stopped "$last"
echo "1 passed, 0 failed"
