#!/usr/bin/env bash
# Tests the program with real browsers, on a private display in private namespaces: their helpers by name, a preset
# that ends helpers only, and quitting an application so that its next start finds no crash.
# Run by hand, because it needs Debian's chromium and firefox-esr; xterm is optional:
#   browsers.sh PROGRAM
# Started by root it continues as nobody, with a browser of another user beside it.
set -euo pipefail
script_arguments=("$@")
program=$(realpath "$1")
build=$(dirname "$program")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh
for needed in chromium firefox-esr; do
    command -v $needed >/dev/null || { echo "skipped: $needed is not installed"; exit 77; }
done

if [ -z "${BROWSERS_STAGE:-}" ]; then
    make_machine_private "$PWD" "$build"
    # The browsers' own sandboxes write to these.
    mount -n -t tmpfs tmpfs /dev/shm
    mount -n -o remount,bind,rw /proc
    export BROWSERS_STAGE=started OTHER_USER=
    become() { # USER COMMAND...
        setpriv --reuid="$1" --regid="$(id -g "$1")" --clear-groups "${@:2}"
    }
    if become nobody true 2>/dev/null; then
        # The browser of another user, started on request.
        (
            until [ -e /tmp/start-other ]; do sleep 0.2; done
            HOME=/tmp/other become daemon chromium --headless --user-data-dir=/tmp/other --remote-debugging-port=0
        ) >/dev/null 2>&1 &
        OTHER_USER=daemon become nobody bash "$0" "$@"
        exit
    fi
fi
chromium=(chromium --no-first-run)
[ "$(id -u)" != 0 ] || chromium+=(--no-sandbox)

# Prints this user's processes whose executable matches.
running() {
    local folder
    for folder in /proc/[0-9]*; do
        [[ -O $folder && $(readlink "$folder/exe") =~ $1 ]] 2>/dev/null && [ "$(cut -d' ' -f3 "$folder/stat")" != Z ] &&
            basename "$folder"
    done 2>/dev/null || true
}
# Prints those of them whose arguments match too.
running_with() {
    local pid
    for pid in $(running "$1"); do
        tr '\0' ' ' 2>/dev/null <"/proc/$pid/cmdline" | grep -qE -- "$2" && echo "$pid"
    done 2>/dev/null || true
}
none_of() { [ -z "$(running "$1")" ]; }
all_gone() {
    local pid
    for pid in "$@"; do alive "$pid" && ! grep -qs '^State:.Z' "/proc/$pid/status" && return 1; done
    return 0
}
shown_windows() { [ "$(xprop -root _NET_CLIENT_LIST | grep -o 0x | wc -l)" -ge "$1" ]; }
windows_of() { xdotool search --onlyvisible --pid "$1" 2>/dev/null; }
chromium_files=/usr/lib/chromium/
firefox_files=/usr/lib/firefox-esr/
helper_words='--type=(renderer|gpu-process|utility)'

start_chromium() {
    spawn env -u QT_LINUX_ACCESSIBILITY_ALWAYS_ON "${chromium[@]}" "${pages[@]}" >>"$home/chromium.log" 2>&1
    check "Chromium shows its tabs" has_helpers "$chromium_files" 'type=renderer' 4
    chromium_main=$spawned
}
start_firefox() {
    spawn env -u QT_LINUX_ACCESSIBILITY_ALWAYS_ON firefox-esr --new-instance --profile "$home/firefox" \
        "${pages[@]}" >>"$home/firefox.log" 2>&1
    check "Firefox shows its tabs" has_helpers "$firefox_files" ' tab ' 5
}
has_helpers() { [ "$(running_with "$1" "$2" | wc -l)" -ge "$3" ]; }
start_program() {
    spawn "$program"
    pid=$spawned
    window=$(main_window "$pid") || fail "the main window appears"
    to_program
    screen click Processes || fail "the section Processes"
    press "Group duplicates"
    press "Min RAM 50 MB" Home
}
# A browser that is still starting may take the keyboard again.
to_program() {
    local times=0
    for _ in {1..60}; do
        if [ "$(xdotool getactivewindow 2>/dev/null)" = "$window" ]; then
            times=$((times + 1))
            [ $times -lt 10 ] || return 0
        else
            times=0
            xdotool windowactivate "$window"
        fi
        sleep 0.3
    done
    fail "the program's window is the active one"
}
search() { # TEXT
    press "Search name or path" ctrl+a
    xdotool key BackSpace
    xdotool type -- "$1"
}
# Opens the menu of the first row of a search; "Up Up Up" is the application's entry, before the groups and "Copy".
row_menu() { # SEARCH ROW KEY...
    search "$1"
    shows "there is a row \"$2\"" "$2"
    press "Processes" Home
    xdotool key Menu "${@:3}" Return
}
quit_by_menu() { # SEARCH ROW APPLICATION [BUTTON]
    row_menu "$1" "$2" Up Up Up
    shows "$3 is to be confirmed" "Quit “$3” and all [0-9]+ helpers\?"
    [ -z "${4:-}" ] || press "$4"
}
exit_type() {
    python3 -c 'import json, sys; print(json.load(open(sys.argv[1]))["profile"].get("exit_type"))' \
        "$home/.config/chromium/Default/Preferences"
}
check_chromium_ended_well() {
    [ "$(exit_type)" = Normal ] || fail "Chromium's exit type is \"Normal\", not \"$(exit_type)\""
    echo "ok: Chromium's next start finds no crash"
}
check_firefox_ended_well() {
    local profile=$home/firefox
    [ -s "$profile/sessionstore.jsonlz4" ] || fail "Firefox has saved its session"
    [ -z "$(find "$profile/sessionstore-backups" -name 'recovery.*' 2>/dev/null)" ] ||
        fail "Firefox's session does not have to be recovered"
    grep -q '"sessionstore-final-state-write-complete":true' "$profile/sessionCheckpoints.json" ||
        fail "Firefox has come to its last checkpoint"
    ! grep -q 'toolkit.startup.recent_crashes' "$profile/prefs.js" || fail "Firefox counts no crash"
    [ -z "$(find "$profile/minidumps" -type f 2>/dev/null)" ] || fail "Firefox has written no dump"
    echo "ok: Firefox's next start finds no crash"
}

start_listening
export HOME=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=xcb
unset XDG_CACHE_HOME XDG_DATA_HOME
log=$home/Library/Logs/Tavrin/actions.log
mkdir -p "$home/.config/Tavrin" "$home/firefox"
pages=()
for page in 1 2 3 4; do
    echo "<title>Page $page</title><p>Page $page" >"$home/$page.html"
    pages+=("file://$home/$page.html")
done
preset='{\"id\":\"6E8F1C52-7B0A-4B57-9A55-0C5F2B9D3E11\",\"name\":\"My browser\",\"pattern\":\"Chromium Helper\",'
preset+='\"minIdleMinutes\":0,\"minRSSMB\":0,\"force\":false,\"symbol\":\"globe\"}'
printf '[General]\npref.quickKillPresetsJSON="@ByteArray([%s])"\n' "$preset" >"$home/.config/Tavrin/Tavrin.ini"

# Helpers by name.
start_chromium
start_firefox
start_program
helpers=$(running_with "$chromium_files" "$helper_words")
others=$(($(running "^${chromium_files}chromium\$" | wc -l) - $(wc -l <<<"$helpers")))
search chrom
shows "Chromium's tabs are helpers" "Chromium Helper \(Renderer\) ×[4-9]"
shows "so is what draws" "Chromium Helper \(GPU\)"
shows "so are its utilities" "Chromium Helper( ×[0-9])?"
shows "the main process, zygotes and the broker are not" "chromium ×$others"
shows "nor is who waits for crashes" "chrome_crashpad_handler.*"
search firefox
shows "Firefox's tabs are helpers" "Firefox Helper \(Web Content\)( ×[0-9])?"
shows "so are those of local files" "Firefox Helper \(File Content\)( ×[0-9])?"
shows "the main process and the fork server are not" "firefox-esr ×2"
shows "nor is who waits for crashes" "crashhelper"

# A preset ends the helpers and leaves the browser standing.
screen click Optimize || fail "the section Optimize"
press "My browser, .*, [0-9]+ matching"
shows "the outcome of the preset is shown" "My browser: killed ([0-9]+)/\1"
# shellcheck disable=SC2086
check "every helper is gone" all_gone $helpers
sleep 3
alive "$chromium_main" || fail "the browser stands"
[ -n "$(windows_of "$chromium_main")" ] || fail "its window is there"
echo "ok: the browser stands"

# Both quit, whole and clean.
screen click Processes || fail "the section Processes"
quit_by_menu chromium "chromium ×[0-9]+" "Chromium Web Browser" "Quit Chromium Web Browser \(≈.*"
shows "the outcome is shown" "Chromium Web Browser quit cleanly — .*"
none_of "$chromium_files" || fail "nothing of Chromium is left: $(running "$chromium_files")"
check_chromium_ended_well
row_menu "Firefox Helper (Web" "Firefox Helper \(Web Content\) ×[0-9]" Down Down
shows "the sweep of its helpers means Firefox" "Quit “Firefox ESR” and all [0-9]+ helpers\?"
press "Quit Firefox ESR \(≈.*"
shows "the outcome is shown" "Firefox ESR quit cleanly — .*"
none_of "$firefox_files" || fail "nothing of Firefox is left: $(running "$firefox_files")"
check_firefox_ended_well

# The next start, with two windows and two profiles, which are one application.
start_chromium
spawn env "${chromium[@]}" --user-data-dir="$home/second" >/dev/null 2>&1
check "the second profile runs" has_helpers "$chromium_files" "type=zygote" 6
start_firefox
firefox-esr --profile "$home/firefox" --new-window "${pages[0]}" >/dev/null 2>&1
check "Firefox has a second window" shown_windows 5
to_program
quit_by_menu chromium "chromium ×[0-9]+" "Chromium Web Browser" "Quit Chromium Web Browser \(≈.*"
shows "the outcome is shown" "Chromium Web Browser quit cleanly — .*"
none_of "$chromium_files" || fail "nothing of Chromium is left: $(running "$chromium_files")"
check_chromium_ended_well
quit_by_menu firefox-esr "firefox-esr ×2" "Firefox ESR" "Quit Firefox ESR \(≈.*"
shows "the outcome is shown" "Firefox ESR quit cleanly — .*"
none_of "$firefox_files" || fail "nothing of Firefox is left: $(running "$firefox_files")"
check_firefox_ended_well

# By force, without harm to other applications.
start_chromium
mkdir "$home/tail.app"
cp "$(command -v tail)" "$home/tail.app/tail"
spawn "$home/tail.app/tail" -f /dev/null
meant=$spawned
spawn tail -f /dev/null
bystander=$spawned
to_program
press "Group duplicates"
quit_by_menu tail.app tail tail "Force-quit tail \(no save prompt\)"
shows "the outcome is shown" "tail quit cleanly — 1 helpers closed .*"
all_gone "$meant" || fail "tail.app is gone"
alive "$bystander" || fail "the other tail stays"
press "Group duplicates"
quit_by_menu chromium "chromium ×[0-9]+" "Chromium Web Browser"
others_tabs() { pgrep -u "$OTHER_USER" -f 'chromium --type=renderer' >/dev/null; }
if [ -n "$OTHER_USER" ]; then
    touch /tmp/start-other
    check "another user's Chromium runs" others_tabs
fi
press "Force-quit Chromium Web Browser .*"
shows "the outcome is shown" "Chromium Web Browser quit cleanly — .*"
none_of "$chromium_files" || fail "nothing of Chromium is left: $(running "$chromium_files")"
alive "$bystander" || fail "the other tail stays"
[ -z "$OTHER_USER" ] || check "another user's Chromium stays" others_tabs

# What ends with a terminal.
if command -v xterm >/dev/null; then
    spawn xterm -e sh -c 'sleep 1000; true'
    check "the terminal runs a program" pgrep -x sleep >/dev/null
    terminal=$spawned
    to_program
    row_menu xterm xterm Up Up Up
    shows "the terminal is to be confirmed" "Quit “XTerm” and all 1 helpers\?"
    screen describe "Quit “XTerm” .*" | tr '\n' ' ' | grep -qE 'What runs in its terminals ends too .*: sh, sleep\.' ||
        fail "the dialog says what else ends"
    asleep=$(pgrep -x sleep)
    press "Quit XTerm .*"
    shows "the outcome is shown" "XTerm quit cleanly — .*"
    check "the terminal is gone, and what ran in it" all_gone "$terminal" "$asleep"
fi

# The default presets, on stand-ins.
kill "$pid"
check "the program ends" all_gone "$pid"
rm "$home/.config/Tavrin/Tavrin.ini"
start_kind() { # PATH ARGUMENT...
    mkdir -p "$home/opt/$(dirname "$1")"
    [ -e "$home/opt/$1" ] || cp "$build/tests/idle_process" "$home/opt/$1"
    spawn "$home/opt/$1" 1 polite "${@:2}" >/dev/null
}
stay=()
go=()
for path in google/chrome/chrome code/code cursor/cursor slack/slack discord/Discord; do
    for kind in "" --type=zygote --type=crashpad-handler; do
        start_kind "$path" $kind
        stay+=("$spawned")
    done
    for kind in --type=renderer --type=gpu-process --type=utility; do
        start_kind "$path" $kind
        case $path in slack* | discord*) stay+=("$spawned") ;; *) go+=("$spawned") ;; esac
    done
    start_kind "$path" --type=utility --utility-sub-type=node.mojom.NodeService
    case $path in slack* | discord*) stay+=("$spawned") ;; *) go+=("$spawned") ;; esac
done
start_program
for name in "Google Chrome" Code Cursor Slack Discord; do
    search "$name Helper"
    for role in "" " \(Renderer\)" " \(GPU\)" " \(Plugin\)"; do
        shows "a helper of $name" "$name Helper$role"
    done
done
screen click Optimize || fail "the section Optimize"
for name in Chrome Cursor VSCode; do # "h.", or the patterns would match screen.py's own arguments
    press "$name h.lpers, .*, 4 matching"
    shows "the outcome of the preset is shown" "$name h.lpers: killed 4/4"
done
check "the helpers are gone" all_gone "${go[@]}"
for one in "${stay[@]}"; do
    alive "$one" || fail "the applications themselves stay, and those without a preset"
done
! grep $'\tfail\t' "$log" || fail "the log tells of no failure"
echo "1 passed, 0 failed"
