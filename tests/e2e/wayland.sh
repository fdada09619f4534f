#!/usr/bin/env bash
# Starts the program under a headless Wayland compositor, checks their protocol messages, and ends either; skipped
# without a compositor:
#   wayland.sh PROGRAM
set -euo pipefail
program=$(realpath "$1")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh

if ! command -v weston >/dev/null || ! compgen -G '/usr/lib/*/qt6/plugins/platforms/libqwayland-generic.so' >/dev/null; then
    echo "skipped: this machine lacks weston or qt6-wayland"
    exit 77
fi

# Checks that at least so many requests of the program match.
says() { [ "$(grep -cE -e "-> .*$2" "$said")" -ge "$1" ]; } 2>/dev/null
start_program() {
    said=$private_files/said.$1
    WAYLAND_DEBUG=client spawn "$program" 2>"$said"
    pid=$spawned
    check "the main window has its minimum size" says 1 'set_min_size\(1000, 6[048]0\)'
    check "without a tray the pill shows, and cannot be resized" says 1 'set_max_size\([1-9][0-9]*, 26\)'
    check "both are drawn" says 2 'wl_surface@.*attach\(wl_buffer'
}
ended_with() {
    local status=0
    wait "$pid" || status=$?
    [ "$status" = "$1" ]
}

unset DISPLAY DBUS_SESSION_BUS_ADDRESS
start_bus
export XDG_RUNTIME_DIR=$private_files/runtime HOME=$private_files/home XDG_CONFIG_HOME=$private_files/home/.config
mkdir -m 700 "$XDG_RUNTIME_DIR" "$HOME"
export WAYLAND_DISPLAY=private QT_QPA_PLATFORM=wayland
# Qt 6.4 leaks objects of libwayland; the other tests detect leaks of ours.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0
spawn weston --backend=headless-backend.so --no-config --idle-time=0 --socket="$WAYLAND_DISPLAY" \
    >"$private_files/weston.log" 2>&1
compositor=$spawned
if ! within_ten_seconds test -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY"; then
    cat "$private_files/weston.log" >&2
    fail "the compositor starts"
fi

start_program first
before=$(grep -c 'set_title("Tavrin")' "$said")
"$program" || fail "a second start ends well"
check "the window that cannot be brought forward is opened anew" says $((before + 1)) 'set_title\("Tavrin"\)'
kill "$pid"
ended_with 0 || fail "SIGTERM ends the program well"

start_program second
kill "$compositor"
check "the program ends with its compositor" not alive "$pid"
ended_with 1 || fail "and says that something went wrong"
echo "1 passed, 0 failed"
