#!/usr/bin/env bash
# Lets the program live in a control group whose memory is full, with a real notification daemon, and has the kernel
# end a process there. By hand and as root, because it makes a control group:
#   memory_shortage.sh PROGRAM IDLE_PROCESS
set -euo pipefail
script_arguments=("$@")
program=$(realpath "$1")
idle_process=$(realpath "$2")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh

limit=$((300 << 20))

# In processes of its own, so that the program sees no others. Whoever is outside owns the control group.
if [ -z "${TAVRIN_GROUP:-}" ]; then
    if [ -e /sys/fs/cgroup/cgroup.controllers ]; then
        TAVRIN_GROUP=/sys/fs/cgroup/tavrin-shortage
        mkdir "$TAVRIN_GROUP"
        echo "$limit" >"$TAVRIN_GROUP/memory.max"
        echo 0 >"$TAVRIN_GROUP/memory.swap.max"
    else
        TAVRIN_GROUP=/sys/fs/cgroup/memory/tavrin-shortage
        mkdir "$TAVRIN_GROUP"
        echo "$limit" >"$TAVRIN_GROUP/memory.limit_in_bytes"
    fi
    export TAVRIN_GROUP
    trap 'within_ten_seconds rmdir "$TAVRIN_GROUP"' EXIT
    unshare --mount --pid --fork --mount-proc --kill-child bash "$0" "${script_arguments[@]}"
    exit
fi
group=$TAVRIN_GROUP

spawn_in_group() {
    spawn bash -c 'echo $$ >"$0/cgroup.procs" && exec "$@"' "$group" "$@"
}
told() { grep -qF -- "$1" "$private_files/notifications"; }
sheet_is_open() { screen find "Send memory pressure only|Kill .* and free RAM" >/dev/null; }
milliseconds() { date +%s%3N; }
# Prints how long it takes until a command succeeds, at most 20 s.
time_until() {
    local what=$1 begin
    shift
    begin=$(milliseconds)
    until "$@"; do
        [ $(($(milliseconds) - begin)) -lt 20000 ] || fail "$what"
        sleep 0.02
    done
    echo "ok: $what after $(($(milliseconds) - begin)) ms"
}

start_listening
mkdir -p "$home/.config/Tavrin" "$private_files/group"
printf '[General]\npref.startAtLogin=false\npref.pollIntervalSeconds=10\npref.alertRAMLow_enabled=false\n' \
    >"$home/.config/Tavrin/Tavrin.ini"
export HOME=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=xcb
printf '[ours]\nappname = Tavrin\naction_name = free_ram\n' >"$private_files/dunstrc"
spawn dunst -conf "$private_files/dunstrc" -print >"$private_files/notifications" 2>/dev/null

# The file is of the group, and is read again and again; the process leaves 64 MiB for it and for the program.
spawn_in_group head -c 400M /dev/urandom >"$private_files/big"
wait "$spawned" || true
spawn_in_group "$program"
pid=$spawned
main_window "$pid" >/dev/null || fail "the main window appears"
sleep 12 # until what the start has stalled is over
! told "summary: 'Programs wait for memory'" || echo "(the start stalled too)"
: >"$private_files/notifications"
spawn_in_group "$idle_process" 190 polite >/dev/null
for _ in 1 2 3; do
    spawn_in_group bash -c 'while :; do cat "$0" >/dev/null; done' "$private_files/big"
done
time_until "the stall is told of" told "summary: 'Programs wait for memory'"
cat /proc/pressure/memory
dunstctl action
time_until "the sheet that frees memory is open" sheet_is_open
xdotool key Escape
grep -E 'VmRSS|VmLck' "/proc/$pid/status"
cat "/proc/$pid/oom_score_adj"

# One that takes more than there is.
cp "$idle_process" "$private_files/greedy"
spawn_in_group "$private_files/greedy" 2000 polite >/dev/null
shows "the kill is told of" "The kernel ended greedy \(PID [0-9]+, .*\) at .* because memory ran out.*"
grep -P '\tkernel\tok\t' "$home/Library/Logs/Tavrin/actions.log"
alive "$pid" || fail "the program lives on"
echo "1 passed, 0 failed"
