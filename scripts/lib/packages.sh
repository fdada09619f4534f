# Installs the Debian packages that the scripts need. Sourced, never run.
#
#   need build display      installs the missing packages of these groups

packages_of() {
    case $1 in
    # Tests and benchmarks are part of every configuration, so that no script changes the cache of another.
    build) echo g++ cmake ninja-build pkg-config qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-l10n-tools qcoro-qt6-dev libxcb1-dev libxcb-res0-dev \
        libtomlplusplus-dev nlohmann-json3-dev \
        libgtest-dev libgmock-dev ;;
    test) echo lintian man-db procps git ccache fonts-dejavu-core desktop-file-utils libglib2.0-bin appstream openssl weston dunst ;;
    package) echo dpkg-dev file git patchelf lintian xz-utils ;;
    display) echo xvfb xauth openbox tint2 xdotool x11-utils imagemagick dbus \
        at-spi2-core python3-gi gir1.2-atspi-2.0 util-linux mount fonts-dejavu-core ;;
    screenshots) echo fonts-dejavu-core ;;
    wayland) echo qt6-wayland ;;
    mutate) echo git python3 ccache util-linux mount ;;
    fuzz) echo clang-16 libclang-rt-16-dev ;;
    lint) echo clang-format cppcheck ;;
    *) echo "packages.sh: no group named '$1'" >&2 && return 1 ;;
    esac
}

need() {
    local group packages missing=() package
    for group in "$@"; do
        packages=$(packages_of "$group") || return
        for package in $packages; do
            is_installed "$package" || [[ " ${missing[*]} " = *" $package "* ]] || missing+=("$package")
        done
    done
    [ ${#missing[@]} -eq 0 ] && return
    if ! command -v apt-get >/dev/null; then
        echo "Cannot look for packages: there is no apt-get here. Going on with what there is." >&2
        return
    fi
    may_install "${missing[@]}" || return
    echo "Installing ${missing[*]}" >&2
    install_packages "${missing[@]}"
}

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

may_install() {
    if [ "$(id -u)" = 0 ] || sudo -n true 2>/dev/null; then
        return
    fi
    [ -t 0 ] && command -v sudo >/dev/null && return
    echo "Packages are missing; run this as root: apt-get install -y --no-install-recommends $*" >&2
    return 1
}

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

apt() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 "$@" \
        </dev/null >>"$apt_log" 2>&1
}

# Fetches the package lists only when there are none or they are outdated.
install_packages() {
    local apt_log status=0
    apt_log=$(mktemp)
    compgen -G '/var/lib/apt/lists/*_Packages*' >/dev/null || apt update || true
    local install=(install -y --no-install-recommends "$@")
    if ! apt "${install[@]}" && ! { apt update && apt "${install[@]}"; }; then
        tail -n 20 "$apt_log" >&2
        echo "Could not install: $*" >&2
        status=1
    fi
    rm -f "$apt_log"
    return $status
}
