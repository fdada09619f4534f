#!/usr/bin/env bash
# Runs a program in private PID and mount namespaces, with read-only files except in an empty /tmp. FOLDER remains
# visible:
#   alone.sh FOLDER PROGRAM ARG...
set -euo pipefail
script_arguments=("$@")
. "$(dirname "$0")/../../tests/e2e/lib.sh"
make_machine_private "$1"
shift
exec "$@"
