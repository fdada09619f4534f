#!/usr/bin/env bash
# The machine of adversary.sh, as the first process of a namespace, which no signal from inside ends: it keeps processes
# and caches going, whatever is done to them. Reads IDLE, the program idle_process, and CHILDREN, a folder for copies.
declare -A kept=() count=()

cp "$(command -v bash)" "$CHILDREN/claude"
cp "$(command -v sleep)" "$CHILDREN/worker"
cp "$IDLE" "$CHILDREN/helper"
cp "$IDLE" "$CHILDREN/mcp-server-lost"

# Starts a command under KEY unless the last one that had it still runs.
keep() { # KEY COMMAND...
    [ -n "${kept[$1]:-}" ] && kill -0 "${kept[$1]}" 2>/dev/null && return
    "${@:2}" >/dev/null 2>&1 &
    kept[$1]=$!
}
# The same under a name that no other process has: NAME-1, NAME-2, ... as each ends.
keep_unique() { # NAME ARGUMENT...
    [ -n "${kept[$1]:-}" ] && kill -0 "${kept[$1]}" 2>/dev/null && return
    rm -f "$CHILDREN/$1-${count[$1]:-0}"
    count[$1]=$((${count[$1]:-0} + 1))
    cp "$IDLE" "$CHILDREN/$1-${count[$1]}"
    keep "$1" "$CHILDREN/$1-${count[$1]}" "${@:2}"
}
# A server that has lost its host.
keep_lost() {
    kill -0 "$(cat "$CHILDREN/lost" 2>/dev/null)" 2>/dev/null && return
    ("$CHILDREN/mcp-server-lost" 6 polite >/dev/null 2>&1 & echo $! >"$CHILDREN/lost")
}
# An agent with a worker.
agent() { cd "$HOME/src/app" && exec setsid "$CHILDREN/claude" -c "$CHILDREN/worker 100000 & wait"; }
# Caches that fill again, with ways out of them.
fill_caches() {
    for folder in .npm/_cacache .cache/pip .cache/go-build .cargo/registry/cache .cache/thumbnails; do
        mkdir -p "$HOME/$folder"
        for i in 1 2 3; do [ -e "$HOME/$folder/cache-$i" ] || head -c 300K /dev/zero >"$HOME/$folder/cache-$i"; done
        ln -sfn "$HOME/outside" "$HOME/$folder/way-out"
    done
}

while :; do
    keep_unique claude-idle 70 polite
    keep_unique claude-firm 60 stubborn
    keep_unique ollama 80 polite
    keep_unique night 5 polite job=night
    keep_unique bystander 90 polite job=day
    keep_unique code 60 polite
    for i in {1..12}; do keep "helper $i" "$CHILDREN/helper" 8 polite; done # twelve of one name
    keep_lost
    keep agent agent
    fill_caches
    sleep 2
done
