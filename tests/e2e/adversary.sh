#!/usr/bin/env bash
# Uses every control of the program at random for a long time, on a machine of processes and files that this script
# makes, and compares what the program did, as the kernel saw it, with what was on show when it was asked to. By hand:
#   adversary.sh PROGRAM CONTROL_PROGRAM IDLE_PROCESS [USES]       10,000 uses by default; CONTROL_PROGRAM is tavrinctl
# Standard error has a line for each use. Fails on a signal to a process that no row, list or question named, and on a removed file that no cleanup target has.
set -euo pipefail
script_arguments=("$@")
program=$(realpath "$1")
control=$(realpath "$2")
idle_process=$(realpath "$3")
uses=${4:-10000}
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh
make_machine_private "$PWD" "$(dirname "$program")" "$(dirname "$idle_process")"
start_listening
children=$private_files/children
mkdir -p "$home/.config/Tavrin" "$home/src/app" "$home/outside" "$home/Downloads" "$children"
export HOME=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=xcb
unset XDG_CACHE_HOME XDG_DATA_HOME XDG_STATE_HOME

cp "$(command -v bash)" "$children/claude"
cp "$(command -v sleep)" "$children/worker"

# Keeps one process running under names that no other has: NAME-1, NAME-2, ... as each ends.
keep() { # NAME ARGUMENT...
    spawn bash -c 'trap "kill \$! 2>/dev/null; exit" TERM
        name=$1; shift
        for ((i = 1; ; i++)); do
            cp "$IDLE" "$CHILDREN/$name-$i"
            "$CHILDREN/$name-$i" "$@" >/dev/null 2>&1 &
            wait; rm -f "$CHILDREN/$name-$i"; sleep 1
        done' keep "$@"
}
export IDLE=$idle_process CHILDREN=$children
keep claude-idle 70 polite
keep claude-firm 60 stubborn
keep ollama 80 polite
keep night 5 polite job=night
keep bystander 90 polite job=day
keep code 60 polite
# Twelve of one name.
for _ in {1..12}; do
    spawn bash -c 'trap "kill \$! 2>/dev/null; exit" TERM
        while :; do "$CHILDREN/helper" 8 polite >/dev/null 2>&1 & wait; sleep 2; done'
done
cp "$idle_process" "$children/helper"
cp "$idle_process" "$children/mcp-server-lost"
# A server that loses its host, and an agent with a worker, again and again.
spawn bash -c 'trap "kill \$! 2>/dev/null; exit" TERM
    while :; do
        ("$CHILDREN/mcp-server-lost" 6 polite >/dev/null 2>&1 & echo $! >"$CHILDREN/lost"); sleep 1
        while kill -0 "$(cat "$CHILDREN/lost")" 2>/dev/null; do sleep 1; done
    done'
spawn bash -c 'trap "kill \$! 2>/dev/null; exit" TERM
    cd "$HOME/src/app"
    while :; do setsid "$CHILDREN/claude" -c "$CHILDREN/worker 100000 & wait" & wait; sleep 1; done'

# Caches that fill again, with ways out of them, and files that no target has.
for file in outside/precious .npm-precious src/app/main.c Downloads/new; do echo precious >"$home/$file"; done
spawn bash -c 'while :; do
        for folder in .npm/_cacache .cache/pip .cache/go-build .cargo/registry/cache .cache/thumbnails; do
            mkdir -p "$HOME/$folder"
            for i in 1 2 3; do [ -e "$HOME/$folder/cache-$i" ] || head -c 300K /dev/zero >"$HOME/$folder/cache-$i"; done
            ln -sfn "$HOME/outside" "$HOME/$folder/way-out"
        done
        sleep 5
    done'

preset='{\"id\":\"6E8F1C52-7B0A-4B57-9A55-0C5F2B9D3E11\",\"name\":\"Left over\",\"pattern\":\"job=night\",'
preset+='\"minIdleMinutes\":0,\"minRSSMB\":0,\"force\":false,\"symbol\":\"globe\"}'
printf '[General]\npref.quickKillPresetsJSON="@ByteArray([%s])"\npref.startAtLogin=false\n' "$preset" \
    >"$home/.config/Tavrin/Tavrin.ini"
tests/e2e/adversary.py "$uses" "$program" "$control" "$private_files/calls" "$home"
for file in outside/precious .npm-precious src/app/main.c Downloads/new; do
    [ "$(cat "$home/$file")" = precious ] || fail "$file is what it was"
done
echo "1 passed, 0 failed"
