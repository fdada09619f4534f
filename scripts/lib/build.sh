# Configuring and building, the same for every script. Sourced from the top of the tree.

# build PRESET [TARGET]: everything when no target is named. What it prints goes to standard error, so
# that a script's own output stays readable by a program.
build() {
    local preset=$1
    shift
    cmake --preset "$preset" --log-level=WARNING >&2
    cmake --build --preset "$preset" ${1:+--target "$1"} >&2
}
