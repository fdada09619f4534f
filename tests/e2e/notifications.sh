#!/usr/bin/env bash
# Shows alerts through a real notification daemon on a private display, and uses their actions:
#   notifications.sh PROGRAM
set -euo pipefail
program=$(realpath "$1")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh

# The daemon runs the action of that key on a click.
start_daemon() { # KEY
    printf '[ours]\nappname = Tavrin\naction_name = %s\n' "$1" >"$private_files/dunstrc"
    : >"$private_files/notifications"
    spawn dunst -conf "$private_files/dunstrc" -print >"$private_files/notifications" 2>/dev/null
    daemon=$spawned
    check "a daemon runs" owner_is "$daemon"
}
owner_is() {
    local answer
    answer=$(dbus-send --session --print-reply --dest=org.freedesktop.DBus / \
        org.freedesktop.DBus.GetConnectionUnixProcessID string:org.freedesktop.Notifications 2>/dev/null) &&
        grep -qw "$1" <<<"$answer"
}
told() { grep -qF -- "$1" "$private_files/notifications"; }
shows_now() { [ "$(dunstctl count displayed)" = "$1" ]; }
check_shown() { # WHAT
    within_ten_seconds shows_now 1 || { cat "$private_files/notifications"; fail "$1"; }
    echo "ok: $1"
}
window_shown() {
    local window WIDTH
    for window in $(xdotool search --onlyvisible --pid "$pid" 2>/dev/null); do
        WIDTH=0
        eval "$(xdotool getwindowgeometry --shell "$window" 2>/dev/null | grep '^WIDTH=')"
        [ "$WIDTH" -lt 600 ] || return 0
    done
    return 1
}
start_program() {
    spawn "$program"
    pid=$spawned
    main_window "$pid" >/dev/null || fail "the main window appears"
}
end_program() {
    kill "$pid"
    check "the program ends" not alive "$pid"
}
close_window() {
    xdotool windowactivate --sync "$(main_window "$pid")" key alt+F4
    check "the window is closed" not window_shown
}

start_listening
export HOME=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

mkdir -p "$home/.config/Tavrin"
# One alert alone, whatever else goes on on this machine.
cat >"$home/.config/Tavrin/Tavrin.ini" <<'EOF'
[General]
pref.startAtLogin=false
pref.pollIntervalSeconds=1
pref.alertRAMLow_freeGB=100000
pref.notifyPressure=false
pref.notifyMemoryFull=false
pref.notifyThermal=false
EOF

start_daemon free_ram
start_program
check_shown "a danger is shown"
check "with its text" told "summary: 'Free RAM low'"
check "as critical" told "urgency: CRITICAL"
check "under the program's name" told "desktop_entry: 'org.example.tavrin'"
check "with its actions" told '"free_ram": "Free RAM…"'
close_window
dunstctl action
check "its action brings the window back" window_shown
shows "with the sheet that frees memory" "Send memory pressure only|Kill .* and free RAM"
check "the notification is gone" shows_now 0
end_program
kill "$daemon"
start_daemon default

start_program
check_shown "it is shown by the next start"
close_window
kill -STOP "$daemon"
sleep 7 # the figures change meanwhile
alive "$pid" || fail "the program goes on while the daemon hangs"
"$program" || fail "a second start ends well"
check "the program goes on while the daemon hangs" window_shown
kill -CONT "$daemon"
close_window
dunstctl action
check "a click brings the window back" window_shown
end_program

start_program
check_shown "it is shown once more"
end_program
check "the program takes its notification with it" shows_now 0

start_program
check_shown "it is shown again"
kill "$daemon"
check "the daemon ends" not owner_is "$daemon"
start_daemon default
sleep 3
shows_now 0 || fail "the next daemon shows nothing again"
echo "ok: the next daemon shows nothing again"
end_program
echo "1 passed, 0 failed"
