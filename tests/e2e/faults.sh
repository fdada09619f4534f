#!/usr/bin/env bash
# Starts the program on a machine that lacks something, as root and by hand:
#   faults.sh PROGRAM CONTROL_PROGRAM [FAULT]...      all of them by default; CONTROL_PROGRAM is tavrinctl
# Prints for each whether the program goes on, whether it counts processes, how it ends, and what it said to standard
# error. With PICTURES=FOLDER a picture of each is left there.
set -euo pipefail
program=$(realpath "$1")
control=$(realpath "$2")
cd "$(dirname "$0")/../.."
. scripts/lib/display.sh

all='nothing pressure control_groups_none control_groups_v2 rollup_none hidden_processes seccomp sys proc_twice home_read_only home_full
    home_frozen many_processes locale_c locale_unknown fonts_none font_large screen_small screen_large screens_two bus_refuses'
size=1280x800 user=0
started_by=()

# Each prepares the private machine that it runs in, before the display starts, and may set `size`, `user`,
# `started_by` and the environment.
nothing() { :; }
pressure() { mount -t tmpfs tmpfs /proc/pressure; }
control_groups_none() { mount -t tmpfs tmpfs /sys/fs/cgroup; }
control_groups_v2() { mount -t cgroup2 cgroup2 /sys/fs/cgroup; }
rollup_none() {
    echo '#define _GNU_SOURCE
        #include <dlfcn.h>
        #include <errno.h>
        #include <string.h>
        #define REFUSING(name) int name(int folder, const char* path, int flags, int mode) { \
            if (strstr(path, "/smaps_rollup")) { errno = ENOENT; return -1; } \
            return ((int (*)(int, const char*, int, int))dlsym(RTLD_NEXT, #name))(folder, path, flags, mode); }
        REFUSING(openat)
        REFUSING(openat64)' >/tmp/refusing.c
    gcc -shared -fPIC -o /tmp/refusing.so /tmp/refusing.c
    started_by=(env LD_PRELOAD=/tmp/refusing.so)
}
hidden_processes() { mount -o remount,hidepid=2 /proc; user=1000; }
seccomp() {
    started_by=(strace -f -o /dev/null -e trace=pidfd_open,pidfd_send_signal,process_vm_readv
        -e inject=pidfd_open,pidfd_send_signal,process_vm_readv:error=EPERM)
}
sys() { mount -t tmpfs tmpfs /sys; }
proc_twice() { mount -t proc proc /proc; mkdir -p /tmp/proc; mount -t proc proc /tmp/proc; }
home_read_only() { mount -t tmpfs -o ro tmpfs "$HOME"; }
home_full() { mount -t tmpfs -o size=4k tmpfs "$HOME"; head -c 64k /dev/zero >"$HOME/full" 2>/dev/null || true; }
home_frozen() {
    truncate -s 32M /tmp/volume
    mkfs.ext4 -q /tmp/volume
    mount -o loop /tmp/volume "$HOME"
    (sleep 6; fsfreeze -f "$HOME"; sleep 8; fsfreeze -u "$HOME") &
}
many_processes() {
    echo '#include <unistd.h>
        int main(void) {
            for (int i = 0; i < 32100; ++i)
                if (fork() == 0)
                    return pause();
            return symlink("/", "/tmp/forked") || pause(); }' >/tmp/many.c
    gcc -static -o /tmp/many /tmp/many.c # a small one is forked sooner
    /tmp/many &
    while [ ! -e /tmp/forked ]; do sleep 0.5; done
}
locale_c() { export LC_ALL=C; }
locale_unknown() { export LC_ALL=xx_YY.UTF-8 LANGUAGE=xx; }
fonts_none() {
    printf '<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig></fontconfig>' >/tmp/fonts.conf
    export FONTCONFIG_FILE=/tmp/fonts.conf
}
font_large() { export QT_FONT_DPI=192; }
screen_small() { size=1024x600; }
screen_large() { size=3840x2160; export QT_SCALE_FACTOR=2; }
screens_two() { size=1280x800; export QT_SCREEN_SCALE_FACTORS='1;2'; second_screen=yes; }
bus_refuses() { refused=yes; }

write_bus_configuration() {
    local refusals=
    [ -z "${refused:-}" ] || refusals='<deny send_type="method_call"/>
        <allow send_destination="org.freedesktop.DBus" send_interface="org.freedesktop.DBus"
            send_member="Hello"/>'
    echo '<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
        "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
        <busconfig><type>session</type><listen>unix:path=/tmp/bus</listen>
        <policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
        <allow own="*"/>'"$refusals"'</policy></busconfig>'
}

as_user() { setpriv --reuid "$user" --regid "$user" --clear-groups "$@"; }
run() {
    local fault=$1 pid state=0 shown count
    mount -t tmpfs tmpfs /tmp
    export HOME=/tmp/home XDG_RUNTIME_DIR=/tmp/runtime XAUTHORITY=/tmp/xauthority XDG_CONFIG_HOME=/tmp/home/.config
    mkdir -m 777 "$HOME"
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    "$fault"
    Xvfb :7 -screen 0 "${size}x24" ${second_screen:+-screen 1 2560x1600x24 +xinerama} -nolisten tcp -ac >/dev/null 2>&1 &
    export DISPLAY=:7 QT_QPA_PLATFORM=xcb
    within_ten_seconds xdpyinfo >/dev/null 2>&1
    openbox --sm-disable >/dev/null 2>&1 &
    write_bus_configuration >/tmp/bus.conf
    as_user dbus-daemon --config-file=/tmp/bus.conf --nofork >/dev/null 2>&1 &
    export DBUS_SESSION_BUS_ADDRESS=unix:path=/tmp/bus
    within_ten_seconds test -S /tmp/bus
    chown -R "$user" "$XDG_RUNTIME_DIR" 2>/dev/null || true
    as_user "${started_by[@]}" "$program" 2>/tmp/said &
    pid=$!
    sleep "${SETTLING:-16}"
    shown=$(as_user timeout 20 "$control" status --no-cpu 2>&1 | tr -s ' ' | grep -E '^Processes|^tavrinctl' || echo "no answer")
    [ -z "${PICTURES:-}" ] || import -window root png:- >&9 || true
    count=$(find /proc -maxdepth 1 -name '[0-9]*' | wc -l)
    pgrep -x tavrin >/dev/null && echo "$fault: goes on; $shown ($count in /proc)" || echo "$fault: HAS ENDED"
    pkill -TERM -x tavrin || true # in this namespace of processes
    wait "$pid" || state=$?
    echo "    ends with $state; $(sort /tmp/said | uniq -c | sort -rn | head -n 4 | tr '\n' ';')"
}

if [ "${3:-}" = --inside ]; then
    run "$4"
    exit
fi
shift 2
for fault in ${*:-$all}; do
    picture=${PICTURES:+$PICTURES/$fault.png}
    unshare --mount --pid --fork --mount-proc --kill-child \
        bash tests/e2e/faults.sh "$program" "$control" --inside "$fault" 9>"${picture:-/dev/null}" || echo "$fault: the attempt failed"
done
