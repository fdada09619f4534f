#!/usr/bin/env bash
# Drives the program on a private display with a window manager and a tray:
#   status_area.sh PROGRAM TRAY_ON_BUS
set -euo pipefail
program=$(realpath "$1")
tray_on_bus=$(realpath "$2")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh

# Prints the id of the program's visible window whose "WIDTHxHEIGHT" matches the pattern.
window_of_size() {
    local window X Y WIDTH HEIGHT SCREEN
    for window in $(xdotool search --onlyvisible --pid "$pid" 2>/dev/null); do
        eval "$(xdotool getwindowgeometry --shell "$window" 2>/dev/null)" || continue
        # shellcheck disable=SC2254 # the pattern is meant to be one
        case ${WIDTH}x$HEIGHT in $1) echo "$window" && return ;; esac
    done
    return 1
}
start_tray_on_bus() {
    spawn "$tray_on_bus" >>"$private_files/items"
    bus_tray=$spawned
}
items_are() { [ "$(grep -cx item "$private_files/items")" = "$1" ]; }
shown() { window_of_size "$1" >/dev/null; }
place() { xdotool getwindowgeometry "$1" | awk '/Position/ { print $2 }'; }
click() { xdotool mousemove "$1" "$2" click "${3:-1}"; }
click_tray() {
    eval "$(xdotool getwindowgeometry --shell "$tray")"
    click $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) "$@"
}
main_window_shown() { shown '[1-9]???x*'; }
moved() { [ "$(place "$widget")" != "$before" ]; }
stands_above() {
    local stack
    stack=$(xprop -root -notype _NET_CLIENT_LIST_STACKING | grep -oE '0x[0-9a-f]+' | while read -r id; do echo $((id)); done)
    [ "$(grep -nx "$1" <<<"$stack" | cut -d: -f1)" -gt "$(grep -nx "$2" <<<"$stack" | cut -d: -f1)" ]
}

panel=320x360
card='240x*'
pill='*x26'

unset DBUS_SESSION_BUS_ADDRESS # the desktop that this runs on may have a tray of its own
start_display
start_bus
home=$private_files/home
mkdir -p "$home/.config/Tavrin"
printf '[General]\npref.showWidgetOnLaunch=true\n' >"$home/.config/Tavrin/Tavrin.ini"
export HOME=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=xcb
spawn "$program"
pid=$spawned

main=$(main_window "$pid") || fail "the main window appears"
tray=$(within_ten_seconds window_of_size '[123]?x[123]?' && window_of_size '[123]?x[123]?') || fail "the tray item appears"
tray=${tray##*$'\n'}
check "the widget opens at launch" shown "$card"
widget=$(window_of_size "$card")

xdotool windowactivate --sync "$main"
click_tray
check "a click on the tray item opens the panel" shown "$panel"
click 400 400
check "an outside click closes it" not shown "$panel"
sleep 0.5
click_tray
check "a click opens it again" shown "$panel"
xdotool key Escape
check "Escape closes it" not shown "$panel"
sleep 0.5
click_tray
check "it opens a third time" shown "$panel"
click_tray
check "a second click closes it" not shown "$panel"
sleep 0.5
shown "$panel" && fail "the click that closes the panel opens it again"

check "the widget is above the main window" stands_above "$widget" "$main"
before=$(place "$widget")
eval "$(xdotool getwindowgeometry --shell "$widget")"
xdotool mousemove $((X + 90)) $((Y + 20)) mousedown 1 mousemove_relative -- -60 -40 mousemove_relative -- -60 -40 mouseup 1
check "the widget is dragged by its background" moved
[ "$(xdotool getactivewindow)" = "$main" ] || fail "a click on the widget leaves the keyboard where it is"
before=$(place "$widget")
click_tray
check "the panel opens for its buttons" shown "$panel"
xdotool key Tab space
check "the panel's button hides the widget" not shown "$card"
xdotool key space
check "and shows it again" shown "$card"
xdotool key Escape
not moved || fail "the widget keeps its place while hidden: $before, then $(place "$widget")"
xdotool windowactivate --sync "$main"
xdotool windowraise "$main"
check "it still stands above the raised main window" stands_above "$widget" "$main"

kill "$tray_program"
check "without a tray the pill shows the figures" shown "$pill"
sleep 1 # the window manager moves the focus about after the panel's end
eval "$(xdotool getwindowgeometry --shell "$(window_of_size "$pill")")"
right=$((X + WIDTH))
[ "$right" -gt 1000 ] && [ "$right" -lt 1140 ] && [ "$Y" -lt 60 ] || fail "the pill stands beside the buttons of a maximized window: $X $Y"
xprop -id "$(window_of_size "$pill")" _NET_WM_STATE | grep -q SKIP_TASKBAR || fail "the pill has no entry in the task bar"
xprop -id "$widget" _NET_WM_STATE | grep -q SKIP_TASKBAR || fail "nor has the widget"
click $((X + WIDTH / 2)) $((Y + HEIGHT / 2))
check "a click on the pill opens the panel" shown "$panel"
xdotool key Escape
check "Escape closes it there too" not shown "$panel"
xdotool mousemove $((X + 20)) $((Y + 10)) mousedown 1 mousemove_relative -- -60 40 mousemove_relative -- -60 40 mouseup 1
pill_moved() { [ "$(xdotool getwindowgeometry "$(window_of_size "$pill")" | awk '/Position/ { print $2 }')" = "$((X - 120)),$((Y + 80))" ]; }
check "the pill is dragged" pill_moved
not shown "$panel" || fail "a drag opens no panel"
start_tray
check "a tray that appears takes the pill's place" not shown "$pill"

xdotool windowactivate --sync "$main" key alt+F4
check "closing the main window orders it out" not main_window_shown
alive "$pid" || fail "the program goes on without its main window"
"$program" || fail "a second start ends well"
check "a second start brings the main window forward" main_window_shown
[ "$(xdotool search --class tavrin 2>/dev/null | wc -l)" -gt 0 ] || fail "windows carry the program's class"

xdotool windowactivate --sync "$(main_window "$pid")" key ctrl+q
check "Ctrl+Q ends the program" not alive "$pid"
wait "$pid" || fail "it ends well, not with $?" # as it would after a leak, under the sanitizers

kill "$tray_program"
spawn "$program"
pid=$spawned
check "a start without any tray shows the pill" shown "$pill"
start_tray_on_bus
check "the item goes to a tray that appears on the bus" items_are 1
check "and the pill goes" not shown "$pill"
kill "$bus_tray"
check "without it the pill shows the figures" shown "$pill"
start_tray_on_bus
check "once it is back it takes the pill's place" not shown "$pill"
check "and has the item again" items_are 2
kill -STOP "$bus_tray"
sleep 4
kill "$pid"
check "a tray that no longer answers does not hold up the program" not alive "$pid"
spawn "$program"
pid=$spawned
check "a start meanwhile shows the pill" shown "$pill"
kill -CONT "$bus_tray"
check "and the item once the tray answers" items_are 3
check "instead of the pill" not shown "$pill"
kill "$pid"
check "the program ends" not alive "$pid"
start_tray
sleep 1 # it is there before the program
DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent spawn "$program"
pid=$spawned
check "without a bus the item goes to the tray on the display" shown '[123]?x[123]?'
echo "1 passed, 0 failed"
