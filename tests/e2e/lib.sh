# Helpers of the end-to-end tests. Sourced after scripts/lib/display.sh, never run.
#
#   make_machine_private FOLDER...   restarts the script in private namespaces
#   check WHAT COMMAND...            prints "ok: WHAT" once COMMAND succeeds, fails after ten seconds
#   shows WHAT NAME, hides WHAT NAME the same for an accessible name that is shown or gone
#   press NAME [KEY]                 moves the keyboard focus to a control and presses a key there
#   start_listening                  starts a session with accessibility; call it before the program starts
#   fail WHAT                        ends the script, with a picture in the file SCREENSHOT if set

fail() {
    echo "FAILED: $1" >&2
    # An open descriptor, because in private namespaces the file is read-only.
    [ -z "${picture:-}" ] || import -window root png:- >&"$picture"
    exit 1
}
[ -z "${SCREENSHOT:-}" ] || [ -n "${picture:-}" ] || exec {picture}>"$SCREENSHOT"
export picture

check() {
    local what=$1
    shift
    within_ten_seconds "$@" || fail "$what"
    echo "ok: $what"
}
screen() { tests/e2e/screen.py "$@"; }
shows() { screen find "$2" >/dev/null || fail "$1"; echo "ok: $1"; }
hides() { screen gone "$2" || fail "$1"; echo "ok: $1"; }
press() {
    screen tab "$1" || fail "the keyboard reaches \"$1\""
    xdotool key "${2:-space}"
}
start_listening() {
    unset DBUS_SESSION_BUS_ADDRESS
    export LC_ALL=C.UTF-8 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
    start_display
    start_bus
    dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress >/dev/null
    home=$private_files/home
}
not() { ! "$@"; }
alive() { kill -0 "$1" 2>/dev/null; }

# The rest of the script sees only its own processes, an empty /tmp, and all other files read-only; the FOLDERs
# remain visible, also below /tmp. Call it before anything is started.
make_machine_private() {
    local outside here folder
    here=$(readlink /proc/self/ns/mnt)
    outside=${TAVRIN_MOUNTS_OUTSIDE:-$here}
    if [ "$outside" = "$here" ]; then
        local private=(unshare --mount --pid --fork --mount-proc --kill-child)
        [ "$(id -u)" = 0 ] || private+=(--map-root-user)
        if ! "${private[@]}" true 2>/dev/null; then
            echo "skipped: this machine allows no private processes and mounts"
            exit 77
        fi
        TAVRIN_MOUNTS_OUTSIDE=$here exec "${private[@]}" bash "$0" "${script_arguments[@]}"
    fi
    mount -n -t tmpfs tmpfs /mnt
    for folder in "$@"; do
        case $folder in /tmp/*)
            mkdir -p "/mnt${folder#/tmp}"
            mount -n --rbind "$folder" "/mnt${folder#/tmp}"
            ;;
        esac
    done
    findmnt -rno TARGET | grep -vx /mnt | while read -r folder; do
        mount -n -o remount,bind,ro "$(printf %b "$folder")" 2>/dev/null || true
    done
    mount -n --move /mnt /tmp
    unset TMPDIR
}
