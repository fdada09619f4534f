#!/usr/bin/env bash
# Runs a program that sees no process but its own and can change no file but those of an empty /tmp, where
# FOLDER stays in sight:
#   alone.sh FOLDER PROGRAM ARG...
set -euo pipefail
script_arguments=("$@")
. "$(dirname "$0")/../../tests/e2e/lib.sh"
make_machine_private "$1"
shift
exec "$@"
