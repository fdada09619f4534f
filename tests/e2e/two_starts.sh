#!/usr/bin/env bash
# Starts the program twice on a private display, driven by keyboard and checked by its accessible names: changes
# take effect at once and are restored at the second start.
#   two_starts.sh PROGRAM
set -euo pipefail
program=$(realpath "$1")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh

stored() { grep -qxF "$1" "$settings"; } 2>/dev/null
place() { xdotool getwindowgeometry "$main" | awk '/Position|Geometry/ { print $2 }'; }
is_back() { [ "$(place)" = "$before" ] || { echo "$before, then $(place)" >&2 && return 1; }; }
in_task_bar() { ! xprop -id "$main" _NET_WM_STATE | grep -q SKIP_TASKBAR; }
shown_widget() { # found by its width
    local window
    for window in $(xdotool search --onlyvisible --pid "$pid" 2>/dev/null); do
        xdotool getwindowgeometry "$window" | grep -q 'Geometry: 240x' && return
    done
    return 1
}
start() {
    spawn "$program"
    pid=$spawned
    main=$(main_window "$pid") || fail "the main window appears"
}
quit() {
    xdotool windowactivate --sync "$main" key ctrl+q
    wait "$pid" || fail "it ends well, not with $?"
}

start_listening
mkdir "$home"
export HOME=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=xcb
settings=$home/.config/Tavrin/Tavrin.ini
autostart=$home/.config/autostart/tavrin.desktop

# Starts the program with arguments that it only answers; prints its status and what it says.
answer() {
    local status=0 said
    said=$("$program" "$@" 2>&1) || status=$?
    echo "$status ${said%%$'\n'*}"
}
says() { [[ $(answer "${@:2}") = $1 ]] || { answer "${@:2}" >&2 && return 1; }; }

check "it says what it can do" says "0 Usage: tavrin *" --help
check "it knows its version" says "0 Tavrin [0-9]*" --version
check "it does not guess what a wrong option means" says "2 tavrin: *hiden*" --hiden
for display in "" :98765; do
    status=0
    said=$(DISPLAY=$display "$program" 2>&1) || status=$?
    check "without a display ('$display') it names the program that needs none" \
        [ "$status $(wc -l <<<"$said") $(grep -c tavrinctl <<<"$said")" = "1 1 1" ]
done

start
check "the first start where it was built is noted" stored "pref.didFirstLaunchSetup=true"
check "a hidden second start shows nothing" says "0 " --hidden
check "a second start hands its section on" says "0 " --section cleanup
shows "which then opens" "Clean All"
quit
spawn "$program" --hidden
pid=$spawned
within_ten_seconds compgen -G "$XDG_RUNTIME_DIR/tavrin-*.socket" >/dev/null || fail "a hidden start runs"
check "a hidden start shows no main window" not timeout 2 bash -c ". scripts/lib/display.sh; main_window $pid"
"$program"
check "a second start opens it then" main_window "$pid"
kill "$pid"
wait "$pid" || fail "it ends well"
[ ! -e "$autostart" ] || fail "a program where it was built registers nothing"
rm "$settings"

installed=$private_files/installed
mkdir -p "$installed/bin" "$installed/libexec"
cp "$program" "$installed/bin/tavrin"
cp -r "$(dirname "$program")/libexec/tavrin" "$installed/libexec/"
program=$installed/bin/tavrin
start
check "the first start is noted" stored "pref.didFirstLaunchSetup=true"
check "it registers to start at login" grep -qxF "TryExec=$program" "$autostart"
check "the entry is one that a desktop starts" desktop-file-validate "$autostart"

xdotool windowsize --sync "$main" 1120 690 windowmove --sync "$main" 60 40
xdotool windowactivate --sync "$main" key ctrl+comma
shows "Ctrl+comma opens the settings" "Show in task bar"
press "Start at login"
check "the entry is gone once the switch is off" not test -e "$autostart"
check "so is the wish" stored "pref.startAtLogin=false"
press "Show floating widget on launch"
press "Show in task bar"
check "the task bar entry goes at once" not in_task_bar
press "General" Right
press "Poll interval" End
check "the interval is stored" stored "pref.pollIntervalSeconds=10"
shows "and what follows from it is shown" "Keeps 150 samples for the Overview sparklines."
press "Sampling" Right
press "Thermal pressure warning"
check "the alert is off" stored "pref.alertThermal_enabled=false"
xdotool key Escape
before=$(place)
quit

start
check "the window is where it was, as large as it was" is_back
check "the widget opens" shown_widget
check "there is no task bar entry" not in_task_bar
[ ! -e "$autostart" ] || fail "the second start registers nothing"
xdotool windowactivate --sync "$main" key ctrl+comma
shows "the settings open on General" "Show in task bar"
press "General" Right
shows "the interval outlasts the program" "Keeps 150 samples for the Overview sparklines."
xdotool key Escape
quit
echo "1 passed, 0 failed"
