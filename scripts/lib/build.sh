# Configuring and building, the same for every script. Sourced from the top of the tree.

# build PRESET [TARGET...]: builds everything by default. It prints to standard error, so that standard output is the
# script's own.
build() {
    local preset=$1
    shift
    cmake --preset "$preset" --log-level=WARNING >&2
    cmake --build --preset "$preset" ${1:+--target "$@"} >&2
}
