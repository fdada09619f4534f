# A private X display with a window manager, a tray and a session bus. Sourced, never run.
#
#   start_display           sets DISPLAY, XAUTHORITY and XDG_RUNTIME_DIR; ends with the shell
#   start_tray              restarts the tray after `tray_program` was ended
#   start_bus               sets DBUS_SESSION_BUS_ADDRESS where there is none; ends with the shell
#   spawn PROGRAM ARG...    starts a program in the background that ends with the shell; sets `spawned`
#   main_window PID         waits for the program's window and prints its id

started=()
private_files=

# In a session of its own, so that Ctrl+C reaches the script alone and programs end in order.
spawn() {
    setsid "$@" &
    spawned=$!
    started+=("$spawned")
}

# Ends all that was started, the last first, and waits for it.
end_everything() {
    local i pid
    for ((i = ${#started[@]} - 1; i >= 0; i--)); do
        pid=${started[i]}
        # Only a child that still runs: its PID may be another process's by now.
        jobs -pr | grep -qx "$pid" || continue
        kill "$pid" 2>/dev/null || true
        for _ in {1..30}; do
            jobs -pr | grep -qx "$pid" || break
            sleep 0.1
        done
        jobs -pr | grep -qx "$pid" && kill -KILL "$pid" 2>/dev/null
        wait "$pid" 2>/dev/null || true
    done
    started=()
    [ -z "$private_files" ] || rm -rf "$private_files"
    private_files=
}

end_with_shell() {
    trap end_everything EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
}

# Tries a command ten times a second until it succeeds; fails after ten seconds.
within_ten_seconds() {
    for _ in {1..100}; do
        "$@" && return
        sleep 0.1
    done
    return 1
}

# Waits for the first line that a program writes to FILE, and prints it.
first_line() {
    within_ten_seconds test -s "$1" && head -n 1 "$1"
}

has_window_manager() {
    xprop -root -notype _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

has_panel() {
    xdotool search --onlyvisible --class tint2 >/dev/null 2>&1
}

start_display() {
    end_with_shell
    private_files=$(mktemp -d)
    local number
    # A private session, so that another Tavrin of the same user is not brought forward.
    export XDG_RUNTIME_DIR=$private_files/runtime
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    export XAUTHORITY=$private_files/xauthority
    touch "$XAUTHORITY"
    xauth -q add :0 . "$(mcookie)"
    spawn Xvfb -displayfd 3 -screen 0 1280x800x24 -dpi 96 -nolisten tcp -noreset -auth "$XAUTHORITY" \
        3>"$private_files/display" 2>"$private_files/xvfb.log"
    if ! number=$(first_line "$private_files/display"); then
        cat "$private_files/xvfb.log" >&2
        echo "The private X display did not start." >&2
        return 1
    fi
    export DISPLAY=:$number
    xauth -q add "$DISPLAY" . "$(xauth -q list | awk 'NR == 1 { print $3 }')"
    spawn openbox --sm-disable >/dev/null 2>&1
    start_tray
    if ! within_ten_seconds has_window_manager || ! within_ten_seconds has_panel; then
        echo "The window manager or the panel did not start on the private display." >&2
        return 1
    fi
}

# Starts the desktop's panel with the tray; sets `tray_program`.
start_tray() {
    # At its first start it writes its settings, and other folders may be read-only.
    spawn env XDG_CONFIG_HOME="$private_files/panel" tint2 >/dev/null 2>&1
    tray_program=$spawned
}

# Starts a session bus unless the shell has one.
start_bus() {
    [ -z "${DBUS_SESSION_BUS_ADDRESS:-}" ] || return 0
    end_with_shell
    private_files=${private_files:-$(mktemp -d)}
    spawn dbus-daemon --session --nofork --print-address=3 3>"$private_files/bus" 2>/dev/null
    DBUS_SESSION_BUS_ADDRESS=$(first_line "$private_files/bus")
    export DBUS_SESSION_BUS_ADDRESS
}

# The tray item is a window too; the main window is the only wide one.
main_window() {
    local window WIDTH
    for _ in {1..200}; do
        kill -0 "$1" 2>/dev/null || return 1
        for window in $(xdotool search --onlyvisible --pid "$1" 2>/dev/null); do
            WIDTH=0
            eval "$(xdotool getwindowgeometry --shell "$window" 2>/dev/null | grep '^WIDTH=')"
            if [ "$WIDTH" -ge 600 ]; then
                echo "$window"
                return
            fi
        done
        sleep 0.1
    done
    return 1
}
