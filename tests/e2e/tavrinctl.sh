#!/usr/bin/env bash
# Runs every command of tavrinctl on the real machine and beside a running Tavrin, in private namespaces, where it
# sees only its own processes:
#   tavrinctl.sh PROGRAM TAVRINCTL IDLE_PROCESS
set -euo pipefail
script_arguments=("$@")
program=$(realpath "$1")
tavrinctl=$(realpath "$2")
idle_process=$(realpath "$3")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh
make_machine_private "$(dirname "$program")" "$(dirname "$idle_process")" "$PWD"

unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
private_files=$(mktemp -d)
end_with_shell
export XDG_RUNTIME_DIR=$private_files/runtime HOME=$private_files/home XDG_CONFIG_HOME=$private_files/home/.config
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
mkdir -m 700 "$XDG_RUNTIME_DIR" "$HOME"

# Checks the exit status of a command.
ends_with() {
    local wanted=$1 status=0
    shift
    "$@" >"$private_files/said" 2>"$private_files/complained" </dev/null || status=$?
    [ "$status" = "$wanted" ] || { echo "$* ended with $status" >&2 && cat "$private_files/complained" >&2 && return 1; }
}
# Checks a document of this kind, which comes from a look of its own ("direct") or from the running program.
is_document() { "$tavrinctl" "$1" --json --no-cpu "${@:3}" | tests/e2e/cli_documents.py "$1" "$2"; }
once() { # as check, without waiting
    "${@:2}" || fail "$1"
    echo "ok: $1"
}
start_idle() {
    cp "$idle_process" "$private_files/$1"
    spawn "$private_files/$1" 20 polite >/dev/null
}

start_idle hog
hog=$spawned
for kind in status groups processes sessions servers alerts caches log; do
    once "$kind is as documented" is_document "$kind" direct
done
mkdir -p "$HOME/app/node_modules/dep"
echo '{}' >"$HOME/app/package.json"
once "projects is as documented" is_document projects direct
once "watch writes lines" ends_with 0 "$tavrinctl" watch --interval 0.25 --count 2
once "one each" test "$(wc -l <"$private_files/said")" = 2
once "a full disk is said" ends_with 4 bash -c "'$tavrinctl' processes >/dev/full"
once "in words" grep -q "No space left" "$private_files/complained"
once "a closed pipe ends it without a word" ends_with 0 bash -c "{ '$tavrinctl' watch --interval 0.25 || [ \$? = 4 ]; } | head -n 1"
once "without a word" test ! -s "$private_files/complained"
narrow() { script -qc "stty cols 20; '$tavrinctl' $1 --no-cpu" /dev/null </dev/null | sed 's/\x1b\[[0-9;]*m//g; s/\r$//' |
    python3 -c 'import sys; sys.exit(any(len(line.rstrip()) > 20 for line in sys.stdin))'; }
for kind in status processes; do once "$kind fits 20 columns" narrow "$kind"; done

# The actions.
once "quit refuses without an answer" ends_with 3 "$tavrinctl" quit "$hog"
once "a dry run only tells" ends_with 0 "$tavrinctl" quit hog --dry-run
once "the process runs" alive "$hog"
once "quit ends it" ends_with 0 "$tavrinctl" quit "$hog" --yes
check "it has ended" not alive "$hog"
once "the log tells" grep -q "pid=$hog" "$HOME/Library/Logs/Tavrin/actions.log"
once "so does the command" ends_with 0 bash -c "'$tavrinctl' log --kind quit | grep -q 'pid=$hog'"
once "free does not guess what is idle" ends_with 1 "$tavrinctl" free --yes
mkdir -p "$HOME/.npm/_cacache"
head -c 3000000 /dev/zero >"$HOME/.npm/_cacache/blob"
once "clean only lists" ends_with 0 "$tavrinctl" clean "npm / pnpm / yarn" --dry-run
once "what would go" grep -q "$HOME/.npm" "$private_files/said"
once "clean refuses without an answer" ends_with 3 "$tavrinctl" clean "npm / pnpm / yarn"
once "the file is there" test -f "$HOME/.npm/_cacache/blob"
once "clean cleans" ends_with 0 "$tavrinctl" clean "npm / pnpm / yarn" --yes
once "the file is gone" test ! -e "$HOME/.npm/_cacache/blob"

# Agents.
ask_mcp() {
    printf '%s\n' '{"jsonrpc":"2.0","id":1,"method":"initialize","params":{"protocolVersion":"2025-06-18","capabilities":{},"clientInfo":{"name":"t","version":"0"}}}' \
        '{"jsonrpc":"2.0","method":"notifications/initialized"}' \
        '{"jsonrpc":"2.0","id":2,"method":"tools/call","params":{"name":"memory_status","arguments":{}}}' |
        "$tavrinctl" mcp | grep -q '"id":2.*memory_left_bytes'
}
once "an agent's last question is answered before the end" ask_mcp

# Beside a running Tavrin.
start_bus
spawn "$program" --hidden
tavrin=$spawned
monitor() { gdbus call --session -d org.example.tavrin -o /org/example/tavrin -m "org.example.tavrin.Monitor.$1" "${@:2}"; }
check "the program is on the bus" monitor Report status
for kind in status groups processes sessions servers alerts caches; do
    once "$kind comes from the running program, as documented" is_document "$kind" program
done
once "unless it is not to be asked" is_document status direct --local
gdbus introspect --session -d org.example.tavrin -o /org/example/tavrin --xml >"$private_files/introspected.xml"
interface='import sys, xml.etree.ElementTree as tree
found = tree.parse(sys.argv[1]).find("interface[@name=\"org.example.tavrin.Monitor\"]")
print(*sorted((part.tag, part.get("name"), part.get("type") or "", part.get("access") or "",
    *((arg.get("name") or "", arg.get("type"), arg.get("direction")) for arg in part.findall("arg"))) for part in found), sep="\n")'
once "the bus has what is documented" diff <(python3 -c "$interface" packaging/org.example.tavrin.Monitor.xml) \
    <(python3 -c "$interface" "$private_files/introspected.xml")
spawn gdbus monitor --session -d org.example.tavrin >"$private_files/signals"
check "who listens is told of new figures" grep -q "PropertiesChanged.*MemoryUsedBytes" "$private_files/signals"
once "a section can be opened" monitor Show cleanup
once "an unknown one cannot" not monitor Show nowhere
once "nor is there an unknown document" not monitor Report secrets
once "nonsense is answered" tests/e2e/bus_fuzz.py 300
once "and harms nothing" alive "$tavrin"
once "the program still tells" is_document status program
start_idle big
once "what is idle is asked of the program" ends_with 0 "$tavrinctl" free --min-idle 60 --yes
once "nothing was idle for so long" alive "$spawned"
kill "$tavrin"
wait "$tavrin" || fail "the program ends well"
once "without it there is a look again" is_document status direct
echo "1 passed, 0 failed"
