#!/usr/bin/env bash
# Uses every control of the program at random for a long time, on a machine of processes and files that this script
# makes, and compares what the program did, as the kernel saw it, with what was on show when it was asked to. By hand:
#   adversary.sh PROGRAM CONTROL_PROGRAM IDLE_PROCESS INSIDE [USES]       10,000 uses by default; CONTROL_PROGRAM is
#   tavrinctl, INSIDE the library use_from_inside
# Standard error has a line for each use. Fails on a signal to a process that no row, list or question named, and on a
# removed file that no cleanup target has.
set -euo pipefail
script_arguments=("$@")
program=$(realpath "$1")
control=$(realpath "$2")
idle_process=$(realpath "$3")
inside=$(realpath "$4")
uses=${5:-10000}
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh
make_machine_private "$PWD" "$(dirname "$program")" "$(dirname "$idle_process")" "$(dirname "$inside")"
start_listening
children=$private_files/children
mkdir -p "$home/.config/Tavrin" "$home/src/app" "$home/outside" "$home/Downloads" "$children"
export HOME=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=xcb
unset XDG_CACHE_HOME XDG_DATA_HOME XDG_STATE_HOME

# Files that no target has.
for file in outside/precious .npm-precious src/app/main.c Downloads/new; do echo precious >"$home/$file"; done

preset='{\"id\":\"6E8F1C52-7B0A-4B57-9A55-0C5F2B9D3E11\",\"name\":\"Left over\",\"pattern\":\"job=night\",'
preset+='\"minIdleMinutes\":0,\"minRSSMB\":0,\"force\":false,\"symbol\":\"globe\"}'
printf '[General]\npref.quickKillPresetsJSON="@ByteArray([%s])"\npref.startAtLogin=false\n' "$preset" \
    >"$home/.config/Tavrin/Tavrin.ini"
# The program sees neither the display nor what uses it, and so cannot end them.
export IDLE=$idle_process CHILDREN=$children
spawn unshare --mount --pid --fork --mount-proc --kill-child tests/e2e/adversary_machine.sh
within_ten_seconds pgrep -P "$spawned" >/dev/null
machine=$(pgrep -P "$spawned")
tests/e2e/adversary.py "$uses" "$machine" "$program" "$control" "$inside" "$private_files/calls" "$home"
for file in outside/precious .npm-precious src/app/main.c Downloads/new; do
    [ "$(cat "$home/$file")" = precious ] || fail "$file is what it was"
done
echo "1 passed, 0 failed"
