#!/usr/bin/env bash
# Makes the Debian package from a build tree, judges it, and starts what it holds:
#   debian_package.sh BUILD_FOLDER
set -euo pipefail
build=$(realpath "$1")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh

fail() {
    echo "FAILED: $1" >&2
    exit 1
}
check() {
    local what=$1
    shift
    "$@" || fail "$what"
    echo "ok: $what"
}
same() { diff <(echo "$1") <(echo "$2") >&2; }
none() { [ -z "$1" ] || { echo "$1" >&2 && return 1; }; }
field() { dpkg-deb -f "$package" "$1"; }

start_display
start_bus
work=$private_files/package
root=$work/unpacked
mkdir "$work"

cpack --config "$build/CPackConfig.cmake" -B "$work" >"$work/cpack.log" 2>&1 || { cat "$work/cpack.log" >&2 && fail "cpack makes the package"; }
package=$(echo "$work"/*.deb)
version=$(sed -n 's/^project(tavrin VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
check "it is named after its version" same "$(basename "$package")" "tavrin_${version}_$(dpkg --print-architecture).deb"

# What is in it.
expected='-rw-r--r-- root/root ./usr/share/applications/org.example.tavrin.desktop
-rw-r--r-- root/root ./usr/share/bash-completion/completions/tavrin
-rw-r--r-- root/root ./usr/share/bash-completion/completions/tavrinctl
-rw-r--r-- root/root ./usr/share/dbus-1/interfaces/org.example.tavrin.Monitor.xml
-rw-r--r-- root/root ./usr/share/dbus-1/services/org.example.tavrin.service
-rw-r--r-- root/root ./usr/share/doc/tavrin/changelog.gz
-rw-r--r-- root/root ./usr/share/doc/tavrin/copyright
-rw-r--r-- root/root ./usr/share/fish/vendor_completions.d/tavrin.fish
-rw-r--r-- root/root ./usr/share/fish/vendor_completions.d/tavrinctl.fish
-rw-r--r-- root/root ./usr/share/icons/hicolor/128x128/apps/tavrin.png
-rw-r--r-- root/root ./usr/share/icons/hicolor/16x16/apps/tavrin.png
-rw-r--r-- root/root ./usr/share/icons/hicolor/22x22/apps/tavrin.png
-rw-r--r-- root/root ./usr/share/icons/hicolor/24x24/apps/tavrin.png
-rw-r--r-- root/root ./usr/share/icons/hicolor/256x256/apps/tavrin.png
-rw-r--r-- root/root ./usr/share/icons/hicolor/32x32/apps/tavrin.png
-rw-r--r-- root/root ./usr/share/icons/hicolor/48x48/apps/tavrin.png
-rw-r--r-- root/root ./usr/share/icons/hicolor/512x512/apps/tavrin.png
-rw-r--r-- root/root ./usr/share/icons/hicolor/64x64/apps/tavrin.png
-rw-r--r-- root/root ./usr/share/icons/hicolor/scalable/apps/tavrin.svg
-rw-r--r-- root/root ./usr/share/icons/hicolor/symbolic/apps/tavrin-symbolic.svg
-rw-r--r-- root/root ./usr/share/man/man1/tavrin.1.gz
-rw-r--r-- root/root ./usr/share/man/man1/tavrinctl.1.gz
-rw-r--r-- root/root ./usr/share/metainfo/org.example.tavrin.metainfo.xml
-rw-r--r-- root/root ./usr/share/polkit-1/actions/org.example.tavrin.policy
-rw-r--r-- root/root ./usr/share/zsh/vendor-completions/_tavrinctl
-rwxr-xr-x root/root ./usr/bin/tavrin
-rwxr-xr-x root/root ./usr/bin/tavrinctl
-rwxr-xr-x root/root ./usr/libexec/tavrin/cleanup
-rwxr-xr-x root/root ./usr/libexec/tavrin/du
-rwxr-xr-x root/root ./usr/libexec/tavrin/fetch_feed
-rwxr-xr-x root/root ./usr/libexec/tavrin/memory_pressure
-rwxr-xr-x root/root ./usr/libexec/tavrin/osascript
-rwxr-xr-x root/root ./usr/libexec/tavrin/project_leftovers
-rwxr-xr-x root/root ./usr/libexec/tavrin/purge'
listing=$(dpkg-deb -c "$package")
check "it holds these files and no other" same "$expected" \
    "$(awk '!/^d/ { print $1, $2, $6 }' <<<"$listing" | LC_ALL=C sort)"
check "its folders are open to everyone" none "$(grep '^d' <<<"$listing" | grep -v '^drwxr-xr-x root/root')"

# Removing it leaves nothing behind: no configuration files, no scripts that would make some.
check "it has no scripts" same "control md5sums" "$(dpkg-deb --ctrl-tarfile "$package" | tar t | sed 's|^\./||; /^$/d' | sort | xargs)"
for library in libqt6core6 libqt6gui6 libqt6widgets6 libqt6network6 libqt6dbus6 libqt6svg6 libxcb1; do
    check "it depends on $library" grep -qE "(^|, )$library( \(|,|$)" <<<"$(field Depends)"
done
missing=$(field Depends | tr ',' '\n' | sed 's/ (.*//; s/ //g' | while read -r name; do
    dpkg-query -W -f='${Status}\n' "$name" 2>/dev/null | grep -q 'ok installed' || echo "$name"
done)
check "what it depends on exists here" none "$(grep -vx hicolor-icon-theme <<<"$missing")"
for name in Maintainer Homepage Description Section Installed-Size; do
    check "it states its $name" test -n "$(field "$name")"
done

check "lintian has nothing to say" none "$(lintian --allow-root --tag-display-limit 0 "$package" 2>&1)"

# What is unpacked.
dpkg-deb -x "$package" "$root"
dpkg-deb -e "$package" "$work/control"
check "the checksums fit" eval "(cd '$root' && md5sum --quiet -c '$work/control/md5sums')"
check "the desktop entry is valid" desktop-file-validate "$root/usr/share/applications/org.example.tavrin.desktop"
check "the metainfo is valid" appstreamcli validate --no-net --no-color "$root/usr/share/metainfo/"*.xml
policy=$root/usr/share/polkit-1/actions/org.example.tavrin.policy
action='import sys, xml.etree.ElementTree as tree
action = tree.parse(sys.argv[1]).find("action")
path = action.find("annotate[@key=\"org.freedesktop.policykit.exec.path\"]").text
print(path, action.find("icon_name").text, action.find("defaults/allow_active").text)'
check "the administrator's question is about the purge as installed" same \
    "/usr/libexec/tavrin/purge tavrin auth_admin" "$(python3 -c "$action" "$policy")"
entry=$root/usr/share/applications/org.example.tavrin.desktop
check "menu, metainfo and icon fit together" eval "grep -q '>org.example.tavrin.desktop<' '$root'/usr/share/metainfo/*.xml &&
    grep -qx 'Icon=tavrin' '$entry' && [ -x '$root/usr/bin/'\$(sed -n '/^Exec=/{s///p;q}' '$entry') ]"
check "the bus starts it as installed" grep -qx "Exec=/usr/bin/tavrin --hidden" \
    "$root/usr/share/dbus-1/services/org.example.tavrin.service"
for page in tavrin tavrinctl; do
    check "the manual page of $page has no faults" none "$(man --warnings -E UTF-8 -l -Tutf8 -Z "$root/usr/share/man/man1/$page.1.gz" 2>&1 >/dev/null)"
done
check "the icons have their sizes" eval "file '$root'/usr/share/icons/hicolor/*/apps/*.png |
    sed -E 's|.*/([0-9]+)x[0-9]+/apps.*: +PNG image data, ([0-9]+) x ([0-9]+).*|\1 \2 \3|' | awk '\$1 != \$2 || \$1 != \$3 { exit 1 }'"
zcat "$root/usr/share/man/man1/tavrinctl.1.gz" | tr -d '\\' >"$work/manual"
knowing=("$work/manual" "$root/usr/share/bash-completion/completions/tavrinctl"
    "$root/usr/share/zsh/vendor-completions/_tavrinctl" "$root/usr/share/fish/vendor_completions.d/tavrinctl.fish")
for command in $("$root/usr/bin/tavrinctl" --help | awk '/^  [a-z]/ { print $1 }'); do
    check "manual page and completions know $command" same 4 "$(grep -lw -- "$command" "${knowing[@]}" | wc -l)"
done
programs=("$root/usr/bin/tavrin" "$root/usr/bin/tavrinctl" "$root/usr/libexec/tavrin/"*)
check "the terminal's program loads no windows" none "$(ldd "$root/usr/bin/tavrinctl" | grep -E 'Gui|Widgets|Svg|xcb')"
check "programs are stripped" none "$(file "${programs[@]}" | grep -v ', stripped')"
check "programs search no folder of the build" none "$(readelf -d "${programs[@]}" | grep -iE 'r(un)?path')"
check "programs find their libraries" none "$(ldd "${programs[@]}" | grep 'not found')"

# A program in the same place, with the same code, answers where the tools are.
cp "$build/tests/tool_host" "$root/usr/bin/"
for path in cleanup /usr/bin/du /usr/bin/memory_pressure /usr/bin/osascript /usr/sbin/purge; do
    tool=$root/usr/libexec/tavrin/$(basename "$path")
    check "$path is answered by ours" same "$tool" "$("$root/usr/bin/tool_host" where "$path")"
    status=0
    said=$("$tool" --no-such-option 2>&1) || status=$?
    check "it runs" same "2 usage: $(basename "$path")" "$status $(head -n 1 <<<"$said" | cut -d' ' -f1,2)"
done

# The program itself.
home=$private_files/home
mkdir "$home"
unset XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME
export HOME=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=xcb
spawn "$root/usr/bin/tavrin"
pid=$spawned
window=$(main_window "$pid") || fail "the main window appears"
class=$(sed -n 's/^StartupWMClass=//p' "$entry")
check "the window belongs to the desktop entry" grep -q "\"$class\"" <<<"$(xprop -id "$window" WM_CLASS)"
check "it came from the package" same "$root/usr/bin/tavrin" "$(readlink "/proc/$pid/exe")"
autostart=$home/.config/autostart/tavrin.desktop
check "it starts at login, which the desktop skips once the program is gone" \
    within_ten_seconds grep -qsxF "TryExec=$root/usr/bin/tavrin" "$autostart"
kill "$pid"
wait "$pid" || fail "it ends well"

# Beside the caches of system libraries it leaves its settings, its log and the entry that starts it at login.
check "it leaves only what is the user's" none \
    "$(cd "$home" && find . -type f | grep -vE '^\./(\.cache/|\.config/Tavrin/|Library/Logs/Tavrin/|\.config/autostart/tavrin\.desktop$)')"
echo "1 passed, 0 failed"
