#!/usr/bin/env bash
# Fills the caches of real tools in a home folder of its own, cleans each with the target that is meant for it, and uses
# the tool again:
#   cleanup_tools.sh CLEAN_TARGET [TOOL...]
# Without TOOLs all of them. A tool that is not installed is skipped. Packages come from a server of the script; only
# apt-get, which is asked for by name, fetches one.
set -euo pipefail
script_arguments=("$@")
clean_target=$(realpath "$1")
shift
wanted=("$@")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh
. tests/e2e/lib.sh
make_machine_private "$PWD" "$(dirname "$clean_target")"
server=$PWD/tests/e2e/package_server.py

# Some tools are in the user's home.
export RUSTUP_HOME=${RUSTUP_HOME:-$HOME/.rustup} PYENV_ROOT=${PYENV_ROOT:-$HOME/.pyenv}
PATH=$PATH:${CARGO_HOME:-$HOME/.cargo}/bin
export HOME=/tmp/home GIT_CONFIG_GLOBAL=/dev/null
unset PIP_NO_CACHE_DIR PIP_CACHE_DIR CARGO_HOME XDG_CACHE_HOME XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME GOPATH GOCACHE GOMODCACHE GRADLE_USER_HOME
mkdir "$HOME" /tmp/bin
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
is_empty() { [ -z "$(find "$@" -type f -print -quit 2>/dev/null)" ]; }
is_filled() { ! is_empty "$@"; }
commit() { git -C "$1" init -q && git -C "$1" add -A && git -C "$1" -c user.name=a -c user.email=a@b commit -qm x; }

# verify TOOL TARGET FOLDERS: the function use_TOOL fills the FOLDERS (a pattern), TARGET empties them, and the tool
# works again.
verify() {
    if [ ${#wanted[@]} -gt 0 ] && [[ " ${wanted[*]} " != *" $1 "* ]]; then
        return
    fi
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

# --- Without a server
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
use_sccache() { sccache gcc -c a.c -o a.o && test -s a.o && rm a.o; }

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

mkdir -p java/src/main/java
echo "apply plugin: 'java'" >java/build.gradle
echo 'class A {}' >java/src/main/java/A.java
use_gradle() { (cd java && rm -rf build && gradle -g "$HOME/.gradle" --offline --no-daemon -q compileJava); }

verify cargo "Cargo sources and checkouts" "$HOME/.cargo/git/checkouts"
verify ccache "ccache / sccache" "$HOME/.cache/ccache/?"
verify sccache "ccache / sccache" "$HOME/.cache/sccache"
verify gradle Gradle "$HOME/.gradle/caches"
verify pre-commit pre-commit "$HOME/.cache/pre-commit"

# --- With packages of the script's server
exec 3< <(exec "$server")
read -r registry <&3
export npm_config_registry=$registry NPM_CONFIG_REGISTRY=$registry BUN_CONFIG_REGISTRY=$registry
export YARN_NPM_REGISTRY_SERVER=$registry YARN_UNSAFE_HTTP_WHITELIST=127.0.0.1
export YARN_CACHE_FOLDER=$HOME/.cache/yarn PYTHON_KEYRING_BACKEND=keyring.backends.null.Keyring
export GOPROXY=$registry/go GOSUMDB=off GOFLAGS=-mod=mod PIP_CONFIG_FILE=/dev/null PIP_INDEX_URL=$registry/simple PIP_TRUSTED_HOST=${registry#http://}

use_pip() { rm -rf pip && pip download -q -d pip tavrin-sample && test -s pip/tavrin_sample-1.0-py3-none-any.whl; }
use_poetry() {
    rm -rf poetry && mkdir poetry && cd poetry
    printf '[tool.poetry]\nname = "a"\nversion = "1"\ndescription = ""\nauthors = []\n[tool.poetry.dependencies]\npython = ">=3.9"\ntavrin-sample = "*"\n[[tool.poetry.source]]\nname = "here"\nurl = "%s/simple/"\ndefault = true\n' \
        "$registry" >pyproject.toml
    poetry install --no-root --no-interaction && poetry run python -c 'import tavrin_sample; assert tavrin_sample.answer == 42'
    local status=$?
    cd ..
    return $status
}
in_new_project() {
    rm -rf js && mkdir js && echo '{"name": "a", "version": "1.0.0"}' >js/package.json && echo "registry=$registry" >js/.npmrc
    (cd js && "$@")
}
use_npm() { in_new_project npm install tavrin-sample && test -s js/node_modules/tavrin-sample/sample.js; }
use_npx() { [ "$(npx --yes tavrin-sample)" = 42 ]; }
use_pnpm() { in_new_project pnpm add tavrin-sample && test -s js/node_modules/tavrin-sample/sample.js; }
use_yarn() { in_new_project yarn add tavrin-sample && test -s js/node_modules/tavrin-sample/sample.js; }
use_bun() { in_new_project bun add tavrin-sample && test -s js/node_modules/tavrin-sample/sample.js; }
use_deno() { rm -f deno.lock && [ "$(deno run --allow-all npm:tavrin-sample@1.0.0)" = 42 ]; }
mkdir go_program
printf 'module a\n\ngo 1.19\n\nrequire example.org/sample v1.0.0\n' >go_program/go.mod
printf 'package a\n\nimport "example.org/sample"\n\nconst Twice = 2 * sample.Answer\n' >go_program/a.go
use_go() { (cd go_program && rm -f go.sum && go build ./...); }

verify pip "Python (uv / pip)" "$HOME/.cache/pip"
verify poetry Poetry "$HOME/.cache/pypoetry/cache $HOME/.cache/pypoetry/artifacts"
verify npm "npm / pnpm / yarn" "$HOME/.npm"
verify npx "npx cache" "$HOME/.npm/_npx"
verify pnpm "npm / pnpm / yarn" "$HOME/.local/share/pnpm/store"
verify yarn "npm / pnpm / yarn" "$HOME/.cache/yarn"
verify bun "Bun / Deno" "$HOME/.bun/install/cache"
verify deno "Bun / Deno" "$HOME/.cache/deno/npm"
verify go "Go build cache" "$HOME/.cache/go-build/??"
verify go "Cargo / Go / Swift" "$HOME/go/pkg/mod/cache"

# --- What the system's own tools clean, with a pkexec that asks for no password
printf '#!/bin/sh\n[ "$1" = --disable-internal-agent ] && shift\nexec "$@"\n' >/tmp/bin/pkexec
chmod +x /tmp/bin/pkexec
export PATH=/tmp/bin:$PATH CONTAINERS_STORAGE_CONF=$HOME/storage.conf
printf 'export PATH="%s" CONTAINERS_STORAGE_CONF=%s\n' "$PATH" "$CONTAINERS_STORAGE_CONF" >"$HOME/.profile"
printf '[storage]\ndriver = "vfs"\ngraphroot = "%s/containers"\nrunroot = "/tmp/run-containers"\n' "$HOME" >"$HOME/storage.conf"

# Sizes in kB count as nothing.
use_podman() { head -c 5000000 /dev/urandom >big && tar -c big | podman import - sample && podman create sample /nothing && podman volume create; }
use_apt_get() {
    apt-get -y -o Debug::NoLocking=1 -o Dir::State::lists=/var/lib/apt/lists --download-only --reinstall install hostname
}
# Messages of a gigabyte, in files that the journal is through with.
use_journalctl() {
    local folder=/var/log/journal/$(cat /etc/machine-id)
    mkdir -p "$folder"
    seq 1 1600000 | awk '{ printf "__REALTIME_TIMESTAMP=%d\nMESSAGE=%s %0450d\n\n", 1.7e15 + $1 * 1000, $1, $1 }' |
        /lib/systemd/systemd-journal-remote --output="$folder/remote-a.journal" -
    journal_is over
}
# Whether the journal takes more than 700 MB, which "over" asks, or "under".
journal_is() { [ "$1" = "$([ "$(du -sm /var/log/journal | cut -f1)" -gt 700 ] && echo over || echo under)" ]; }
if [ "$(id -u)" = 0 ] && [ ${#wanted[@]} -gt 0 ]; then
    for folder in /var/cache /var/log/journal /var/lib/containers /run /dev/shm /var/tmp; do
        ! mkdir -p "$folder" 2>/dev/null || mount -n -t tmpfs tmpfs "$folder" # what cannot be made has no tool
    done
    mkdir -p /var/cache/apt/archives/partial
    verify podman Podman "$HOME/containers/vfs/dir $HOME/containers/volumes"
    verify apt-get "Downloaded system packages" "/var/cache/apt/archives/*.deb"
    if [[ " ${wanted[*]} " = *" journalctl "* ]]; then
        check "journalctl fills its journal" use_journalctl
        check "journalctl: the journal is cleaned" "$clean_target" "System journal over 500 MB"
        check "journalctl: the newest messages stay" journal_is under
        check "journalctl works again" journalctl -n 1
    fi
fi
exit $((failures > 0))
