# Archives of the program and of its sources. Sourced from the top of the tree, never run.
#
#   source_date                                the time of the last commit, in seconds since 1970
#   relocatable_archive BUILD NAME FOLDER      makes FOLDER/NAME.tar.xz of what BUILD installs and its libraries
#   source_archive NAME FOLDER                 makes FOLDER/NAME.tar.xz of the last commit
#
# Both use SOURCE_DATE_EPOCH for every file, so that the same content gives the same archive.

source_date() { git log -1 --format=%ct 2>/dev/null || stat -c %Y CMakeLists.txt; }

# Of every system with a desktop, and bound to its kernel, its drivers or its fonts.
of_every_system='^(ld-linux.*|linux-vdso|libc|libm|libdl|libpthread|librt|libresolv|libutil|libstdc\+\+|libgcc_s|libGL.*|libEGL.*|libgbm|libdrm.*|libX11|libX11-xcb|libxcb|libXau|libXdmcp|libfontconfig|libfreetype|libharfbuzz|libz|libexpat|libuuid|libbsd|libmd|libsystemd|libudev|libselinux|libcap|libgcrypt|libgpg-error|liblzma|libzstd|liblz4)\.so'

libraries_of() {
    ldd "$@" 2>/dev/null | sed -n 's/.* => \(\/[^ ]*\) (.*/\1/p' | sort -u | while read -r library; do
        [[ $(basename "$library") =~ $of_every_system ]] || echo "$library"
    done
}

packed() { # FOLDER NAME RESULT
    tar --sort=name --mtime="@$SOURCE_DATE_EPOCH" --owner=0 --group=0 --numeric-owner --mode=go=rX,u+rw \
        -C "$1" -c "$2" | xz -T1 -9 >"$3"
}

relocatable_archive() (
    set -euo pipefail
    build=$1 name=$2 folder=$3
    work=$(mktemp -d)
    trap 'rm -rf "$work"' EXIT
    root=$work/$name
    cmake --install "$build" --prefix "$root" --strip >/dev/null
    # These name an installed program by its path.
    rm -r "$root/share/polkit-1" "$root/share/dbus-1/services"
    sed -i '/^DBusActivatable=/d' "$root/share/applications/org.example.tavrin.desktop"

    qt=$(qtpaths6 --query QT_INSTALL_PLUGINS 2>/dev/null || echo "/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/qt6/plugins")
    plugins=$root/lib/plugins
    for kind in platforms platforminputcontexts tls iconengines imageformats wayland-shell-integration \
        wayland-decoration-client wayland-graphics-integration-client; do
        [ -d "$qt/$kind" ] || continue
        mkdir -p "$plugins/$kind"
        cp "$qt/$kind"/*.so "$plugins/$kind/"
    done
    # What would need a screen of its own, or a picture format that nothing here has.
    rm -f "$plugins/platforms"/libq{eglfs,linuxfb,vnc,minimalegl,vkkhrdisplay}.so
    find "$plugins/imageformats" -name '*.so' ! -name 'libqsvg.so' -delete
    printf '[Paths]\nPrefix = ..\nPlugins = lib/plugins\n' >"$root/bin/qt.conf"
    mapfile -t programs < <(find "$root/bin" "$root/libexec" -type f -perm -u+x; find "$plugins" -name '*.so')
    libraries_of "${programs[@]}" | xargs -r cp -L -t "$root/lib"
    patchelf --set-rpath '$ORIGIN/../lib' "$root/bin/tavrin" "$root/bin/tavrinctl"
    patchelf --set-rpath '$ORIGIN/../../lib' "$root"/libexec/tavrin/*
    patchelf --set-rpath '$ORIGIN' "$root"/lib/*.so*
    find "$plugins" -name '*.so' -exec patchelf --set-rpath '$ORIGIN/../..' {} +
    printf '[Paths]\nPrefix = ../..\nPlugins = lib/plugins\n' >"$root/libexec/tavrin/qt.conf"
    packed "$work" "$name" "$folder/$name.tar.xz"
)

source_archive() {
    git archive --format=tar --prefix="$1/" HEAD | xz -T1 -9 >"$2/$1.tar.xz"
}
