#!/usr/bin/env bash
# Frees memory and disk space with the program, driven by keyboard and mouse and checked by its accessible names, on
# a private display; all that can be ended or deleted was made by this script:
#   relief.sh PROGRAM IDLE_PROCESS
set -euo pipefail
script_arguments=("$@")
program=$(realpath "$1")
idle_process=$(realpath "$2")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh
make_machine_private "$PWD" "$(dirname "$program")" "$(dirname "$idle_process")"

open_section() { screen click "$1" || fail "the section $1"; }

# Starts IDLE_PROCESS under a name of its own with further arguments; sets `spawned`.
start_idle() {
    local name=$1
    shift
    [ -e "$children/$name" ] || cp "$idle_process" "$children/$name"
    spawn "$children/$name" "$@" >"$children/$name.said"
    first_line "$children/$name.said" >/dev/null || fail "the child $name starts"
}

log=
lines=0
# Checks that the log has `lines` lines and the last one matches.
log_ends() { [ "$(wc -l <"$log")" = "$lines" ] && tail -n 1 "$log" | grep -Eqx "$1"; } 2>/dev/null
logged() {
    lines=$((lines + 1))
    check "the log has one more line: $2" log_ends "[-0-9]+T[:0-9]+Z"$'\t'"$1"$'\t'"ok"$'\t'"[0-9]+"$'\t'"$2"
}

start_listening
children=$private_files/children
log=$home/Library/Logs/Tavrin/actions.log
mkdir -p "$home/.config/Tavrin" "$home/.npm/_cacache" "$home/outside" "$home/tools" "$children"

# The presets as the program stores them. No other process has the pattern in its arguments.
preset='{\"id\":\"6E8F1C52-7B0A-4B57-9A55-0C5F2B9D3E11\",\"name\":\"Left over\",\"pattern\":\"job=night\",'
preset+='\"minIdleMinutes\":0,\"minRSSMB\":0,\"force\":false,\"symbol\":\"globe\"}'
cat >"$home/.config/Tavrin/Tavrin.ini" <<INI
[General]
pref.quickKillPresetsJSON="@ByteArray([$preset])"
INI

# A cache of a known size, with a hidden file and symlinks to the outside.
head -c 5M /dev/urandom >"$home/.npm/_cacache/package"
echo hidden >"$home/.npm/.hidden"
echo precious >"$home/outside/precious"
ln -s "$home/outside" "$home/.npm/way-out"
ln -s "$home/outside/precious" "$home/.npm/.way-out"

# A container tool that shadows the machine's.
echo "PATH=$home/tools:\$PATH" >"$home/.profile"
printf '#!/bin/sh\nprintf "Images\\t7B\\t7B\\n"\n' >"$home/tools/docker"
chmod +x "$home/tools/docker"

start_idle claude-idle 450 polite
idle=$spawned
start_idle claude-stubborn 420 stubborn
stubborn=$spawned
helpers=()
for _ in {1..12}; do
    start_idle relief-helper 8 polite
    helpers+=("$spawned")
done
start_idle night-worker 2 polite job=night-1
worker=$spawned
start_idle other-worker 2 polite JOB=NIGHT-2
second_worker=$spawned
start_idle bystander 2 polite job=day
bystander=$spawned

export HOME=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=xcb
unset XDG_CACHE_HOME XDG_DATA_HOME
spawn "$program"
pid=$spawned
main_window "$pid" >/dev/null || fail "the main window appears"

# Free RAM: one quits, one has to be killed.
free_one() { # NAME PID OUTCOME-SHOWN OUTCOME-LOGGED
    shows "$1 is offered" "$1, PID $2 • Claude Code & Agents, [45][0-9.]+ MB, idle .*"
    press "$1, PID $2 • .*"
    shows "it alone is ticked" "1 selected • [45][0-9.]+ MB targeted"
    shows "the button says so" "Kill 1 and free RAM"
    xdotool key Return
    shows "the sheet shows what became of it" "$1 \($2\) $3"
    check "$1 is gone" not alive "$2"
    logged quit "\[free RAM\] $2:$4 freed=[0-9]+"
}
press "Free RAM"
shows "nothing has been idle for ten minutes" "No idle hogs above your thresholds"
press "Min idle: 10 min" Home
shows "the slider goes to 0" "Min idle: 0 min"
shows "nothing is ticked yet" "0 selected • 0 bytes targeted"
free_one claude-idle "$idle" "Quit" quit
free_one claude-stubborn "$stubborn" "Force-killed" forced
xdotool key Escape
hides "Escape closes the sheet" "Select all"

# Twelve processes of one name.
open_section Processes
press "Group duplicates"
press "Min RAM 50 MB" Home
press "Search name or path" r
xdotool type elief-helper
shows "twelve processes are one row" "relief-helper ×12"
sweep() {
    press "Processes" Home
    xdotool key Menu Down Down Return # the row's second action; menus are not accessible
    shows "the sweep is to be confirmed" "Kill all 12 “relief-helper” processes\?"
}
sweep
xdotool key Escape
hides "Escape closes the dialog" "Kill all 12 .*"
for helper in "${helpers[@]}"; do
    alive "$helper" || fail "Escape kills nobody"
done
sweep
press "Kill 12 \(≈[0-9.]+ MB\)"
shows "the outcome is shown" "Killed 12/12 “relief-helper” processes \(≈[0-9.]+ MB targeted\)"
for helper in "${helpers[@]}"; do
    check "helper $helper is gone" not alive "$helper"
done
logged quit "\[nuke duplicates\] relief-helper — 12/12 PIDs"

# A preset kills what it matches and nothing else.
open_section Optimize
press "Left over, .*, 2 matching"
shows "the outcome of the preset is shown" "Left over: killed 2/2"
check "the first match is gone" not alive "$worker"
check "the second match is gone" not alive "$second_worker"
alive "$bystander" || fail "the bystander lives on"
logged quit "\[quickKill\] Left over — matched=2 killed=2"
shows "nothing matches any more" "Left over, .*, 0 matching"

# A server whose host has ended.
cp /bin/sh "$children/claude"
cat >"$children/host" <<HOST
"$children/mcp-server-relief" 60 polite >"$children/server.said" &
echo \$! >"$children/server.pid"
wait
HOST
cp "$idle_process" "$children/mcp-server-relief"
spawn "$children/claude" "$children/host"
host=$spawned
server=$(first_line "$children/server.pid") || fail "the server starts"
shows "the server has a host" "Running mcp[-]server-relief, PID $server, parent: claude, [67][0-9.]+ MB"
shows "so none is an orphan" "Orphans 0"
kill "$host"
shows "without its host it is one" "Orphan mcp[-]server-relief, PID $server, parent: .*, [67][0-9.]+ MB"
shows "the card counts it" "Orphans 1"
press "Kill orphans"
shows "the outcome of the orphans is shown" "Killed 1 orphan MCP server\(s\)"
check "the orphan is gone" not alive "$server"
logged quit "\[orphan MCPs\] killed=1/1"

# A cache.
open_section Cleanup
press "Rescan"
shows "the scan tells the size" "npm / pnpm / yarn, 5 MB, Scanned .*"
shows "the container tool's report is read" "Docker, 7 bytes, Scanned .*"
press "npm / pnpm / yarn, .*"
shows "the drawer lists the folder" "$home/.npm, 5 MB"
press "Clean 5 MB"
shows "the clean is to be confirmed" "Delete npm / pnpm / yarn\?"
xdotool key Escape
hides "Escape closes the dialog" "Delete npm .*"
[ -e "$home/.npm/_cacache/package" ] || fail "Escape deletes nothing"
press "Clean 5 MB"
press "Delete 5 MB"
logged clean "npm / pnpm / yarn"
shows "the next scan finds next to nothing" "npm / pnpm / yarn, 0 bytes, Scanned .*"
[ -d "$home/.npm" ] || fail "the folder stays"
[ -z "$(ls -A "$home/.npm")" ] || fail "the folder is empty"
[ "$(cat "$home/outside/precious")" = precious ] || fail "what lies behind a symlink survives"
echo "ok: the contents are gone, and nothing else"

# Ending in the middle of a scan.
cat >"$home/tools/docker" <<TOOL
#!/bin/sh
trap : TERM
sleep 1000 &
echo \$! >"$children/grandchild"
echo \$\$ >"$children/child"
while :; do wait; done
TOOL
press "Rescan"
child=$(first_line "$children/child") || fail "the container tool starts"
grandchild=$(first_line "$children/grandchild")
# "Measuring Docker (46 of 47)": all but one.
all_others_are_measured() {
    local shown measured total
    shown=$(screen find "Measuring Docker .*" | tr -dc '0-9 ')
    read -r measured total <<<"$shown" && [ "$measured" -eq $((total - 1)) ]
}
check "a tool that hangs does not hold up the others" all_others_are_measured
alive "$child" && alive "$grandchild" || fail "the tool hangs"
kill "$pid"
check "a tool that hangs does not hold up the end" not alive "$pid"
check "no child is left behind" not alive "$child"
check "no grandchild is left behind" not alive "$grandchild"

alive "$bystander" || fail "the bystander lives on to the end"
[ "$(wc -l <"$log")" = "$lines" ] || fail "nothing else is in the log: $(cat "$log")"
echo "1 passed, 0 failed"
