#!/usr/bin/env bash
# Fills the caches of real tools, without a network, in a home folder of its own, cleans each with the target that is
# meant for it, and uses the tool again:
#   cleanup_tools.sh CLEAN_TARGET
# A tool that is not installed is skipped.
set -euo pipefail
script_arguments=("$@")
clean_target=$(realpath "$1")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh
make_machine_private "$PWD" "$(dirname "$clean_target")"

# Rust's own tools are in the user's home.
export RUSTUP_HOME=${RUSTUP_HOME:-$HOME/.rustup}
PATH=$PATH:${CARGO_HOME:-$HOME/.cargo}/bin
export HOME=/tmp/home GIT_CONFIG_GLOBAL=/dev/null
unset CARGO_HOME XDG_CACHE_HOME XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME
mkdir "$HOME"
cd "$HOME"
failures=0

# Says at once whether the command succeeded, and goes on.
check() {
    local name=$1
    shift
    if "$@" >/tmp/said 2>&1; then
        echo "ok: $name"
    else
        echo "FAILED: $name" >&2
        sed 's/^/    /' /tmp/said >&2
        failures=$((failures + 1))
    fi
}
is_empty() { [ -z "$(find "$@" -mindepth 1 -type f -print -quit 2>/dev/null)" ]; }
is_filled() { ! is_empty "$@"; }
commit() { git -C "$1" init -q && git -C "$1" add -A && git -C "$1" -c user.name=a -c user.email=a@b commit -qm x; }

# verify TOOL TARGET FOLDERS: the function use_TOOL fills the FOLDERS (a pattern), TARGET empties them, and the tool
# works again.
verify() {
    if ! command -v "$1" >/dev/null; then
        echo "skipped: $1 is not installed"
        return
    fi
    local use=use_${1//-/_}
    check "$1 fills its cache" "$use"
    check "$1: there is something in $3" is_filled $3
    check "$1: \"$2\" is cleaned" "$clean_target" "$2"
    check "$1: $3 is empty" is_empty $3
    check "$1 works again" "$use"
}

mkdir library hook program
printf '[package]\nname = "library"\nversion = "1.0.0"\nedition = "2021"\n' >library/Cargo.toml
mkdir library/src program/src
echo 'pub fn answer() -> u8 { 42 }' >library/src/lib.rs
commit library
printf '[package]\nname = "program"\nversion = "1.0.0"\nedition = "2021"\n[dependencies]\nlibrary = { git = "file://%s/library" }\n' \
    "$HOME" >program/Cargo.toml
echo 'fn main() { assert_eq!(library::answer(), 42); }' >program/src/main.rs
use_cargo() { (cd program && rm -rf target && cargo check -q); }

echo 'int main(void) { return 0; }' >a.c
use_ccache() { ccache gcc -c a.c -o a.o && test -s a.o && rm a.o; }

printf -- '- id: good\n  name: good\n  entry: ./good\n  language: script\n' >hook/.pre-commit-hooks.yaml
printf '#!/bin/sh\nexit 0\n' >hook/good
chmod +x hook/good
commit hook
mkdir checked
touch checked/a
commit checked
printf 'repos:\n- repo: file://%s/hook\n  rev: %s\n  hooks: [{id: good}]\n' \
    "$HOME" "$(git -C hook rev-parse HEAD)" >checked/.pre-commit-config.yaml
use_pre_commit() { (cd checked && pre-commit run --all-files); }

verify cargo "Cargo sources and checkouts" "$HOME/.cargo/git/checkouts"
verify ccache "ccache / sccache" "$HOME/.cache/ccache/?"
verify pre-commit pre-commit "$HOME/.cache/pre-commit"
exit $((failures > 0))
