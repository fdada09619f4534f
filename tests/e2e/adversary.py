#!/usr/bin/python3
"""Uses the program at random and judges what it did: adversary.py USES PROGRAM CONTROL_PROGRAM CALLS HOME

CALLS is what strace writes about the program. Standard error gets a line for each use. Before each use the names of all that
is on show are noted; a signal is lawful when a use in the seconds before could end something and its target was named
there. The names of the processes tell them apart.
"""

import collections
import random
import re
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

USES, PROGRAM, CONTROL, CALLS, HOME = int(sys.argv[1]), *sys.argv[2:]
# What may take effect so long after a use: SIGTERM, the wait, SIGKILL, what is measured, and the tick before.
EFFECT_SECONDS = 30
ENDS = re.compile(r"(Kill|Quit|Force|End|Free|Clean|Delete|Remove|Purge|Left over|Idle|Chrome|Cursor|VSCode)|^Key |^tavrinctl ")
TRACED = ["strace", "-f", "--seccomp-bpf", "-qq", "-ttt", "--decode-fds=path,pidfd", "--decode-pids=comm", "-s", "4096",
          "-e", "trace=kill,tgkill,tkill,pidfd_send_signal,unlink,unlinkat,rmdir,rename,renameat,renameat2"]
# The rest leaves the program running, and this script able to go on.
AVOIDED = re.compile(r"Quit Tavrin|Export CSV.*|Add folder.*|Choose.*|Deep Purge.*|Start at login|Copy.*|Reveal.*|Open.*folder.*")
KEYS = ["Tab", "shift+Tab", "Return", "space", "Escape", "Down", "Up", "Home", "End", "Delete", "shift+Delete", "Menu",
        "ctrl+a", "ctrl+1", "ctrl+2", "ctrl+3", "ctrl+4", "ctrl+5", "F5", "ctrl+i", "F1", "Right", "Left", "ctrl+f"]
COMMANDS = [["free", "--min-idle", "0", "--min-mb", "50", "--yes"], ["free", "--dry-run", "--min-idle", "0"],
            ["end-leftovers", "--yes"], ["preset", "Left over", "--yes"], ["clean", "npm", "--yes"],
            ["clean", "npm", "--dry-run"], ["status"], ["processes"], ["sessions"], ["caches", "--scan"]]
# The program's settings, log, socket and temporary files, and what the toolkit keeps.
OWN = re.compile(re.escape(HOME) + r"/(\.config/|Library/(Logs|Application Support)/Tavrin|\.local/state/|\.cache/(mesa|qt|font))"
                 r"|/(tmp|run|dev/shm)/(?!.*/home/)")
OWN_TOOLS = ("cleanup", "du", "project_leftov", "project_leftove", "memory_pressur", "memory_pressure", "osascript", "sh", "")
CACHES = re.compile(re.escape(HOME) + r"/(\.npm|\.cache|\.cargo|\.local/share/Trash)(/|$)")


def asked(question, otherwise):
    try:
        return question()
    except GLib.Error:
        return otherwise


def below(thing, depth=0):
    """Yields an object and what is inside it, also what is scrolled away."""
    if not thing or depth > 30:
        return
    yield thing
    count = asked(thing.get_child_count, 0)
    for i in range(min(count, 400)):
        yield from below(asked(lambda i=i: thing.get_child_at_index(i), None), depth + 1)


def windows():
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(i)
        if program and "tavrin" in (asked(program.get_name, "") or "").lower():
            program.set_cache_mask(Atspi.Cache.NONE)
            for j in range(asked(program.get_child_count, 0)):
                yield asked(lambda j=j: program.get_child_at_index(j), None)


def usable(thing):
    states = asked(thing.get_state_set, None)
    return states and all(states.contains(state) for state in (
        Atspi.StateType.SHOWING, Atspi.StateType.ENABLED)) and asked(thing.get_n_actions, 0) > 0


def numberless(name):
    return re.sub(r"\d+", "#", name)


class Machine:
    def __init__(self):
        self.uses = []  # (time, what, names on show)
        self.counts = collections.Counter()
        self.traces = [CALLS]

    def look(self):
        things = [thing for window in windows() for thing in below(window)]
        return [(thing, asked(thing.get_name, "") or "") for thing in things]

    def note(self, what, names):
        self.uses.append((time.time(), what, names))
        print(f"{time.time():.3f} {what}", file=sys.stderr)

    def use(self):
        kind = random.random()
        if kind < 0.02:
            self.command(random.choice(COMMANDS))
        elif kind < 0.35:
            key = random.choice(KEYS)
            self.note(f"Key {key}", {name for _, name in self.look()} if key in (
                "Return", "space", "Delete", "shift+Delete") else set())
            subprocess.run(["xdotool", "key", key], check=False)
        else:
            self.press()

    def press(self):
        shown = self.look()
        choices = [(thing, name) for thing, name in shown if name and usable(thing) and not AVOIDED.fullmatch(name)]
        if not choices:
            subprocess.run(["xdotool", "key", "Escape"], check=False)
            return
        # As often what is rare as what there are many of.
        name = random.choice(sorted({numberless(name) for _, name in choices}))
        thing, name = random.choice([each for each in choices if numberless(each[1]) == name])
        self.note(f"Press {name}", {name for _, name in shown})
        self.counts[numberless(name)[:40]] += 1
        asked(lambda: thing.do_action(random.randrange(max(thing.get_n_actions(), 1))), False)

    def command(self, arguments):
        """What it says afterwards has to name whom it ended."""
        calls = f"{CALLS}.{len(self.traces)}"
        self.traces.append(calls)
        at = time.time()
        said = subprocess.run([*TRACED, "-o", calls, CONTROL, *arguments], capture_output=True, text=True, timeout=300,
                              check=False, stdin=subprocess.DEVNULL)
        self.uses.append((at, f"tavrinctl {' '.join(arguments)}", {said.stdout}))
        print(f"{at:.3f} tavrinctl {' '.join(arguments)}: {said.stdout!r} {said.stderr!r}", file=sys.stderr)

    def named(self, when, comm):
        """Returns what was used when a process of that name could be seen, or None."""
        for at, what, names in reversed(self.uses):
            if at < when - EFFECT_SECONDS:
                return None
            if at <= when + 0.2 and ENDS.search(what) and any(comm in name for name in names):
                return what
        return None


def target_of(arguments):
    """Returns the name of the process that a call is about, as strace decodes it: "12<name>" or "3<pid:12<name>>"."""
    found = re.search(r"<([^<>]*)>>?(?:,|$)", arguments)
    return found[1] if found else ""


def path_of(arguments):
    """Returns the path that goes, with the folder before it that strace decodes."""
    path = re.search(r'"((?:[^"\\]|\\.)*)"', arguments)
    folder = re.match(r"(?:AT_FDCWD|\d+)<([^>]*)>", arguments)
    if not path or path[1].startswith("/") or not folder:
        return path[1] if path else arguments
    return f"{folder[1]}/{path[1]}"


def judge(machine):
    """Returns the unlawful calls, and how many of each kind there were."""
    unlawful, counts = [], collections.Counter()
    lines = (line for calls in machine.traces for line in open(calls, errors="replace"))
    for line in lines:
        found = re.match(r"\d+(?:<([^>]*)>)? +(\d+\.\d+) (\w+)\((.*)", line)
        if not found or " = -1 " in line:
            continue
        caller, when, call, arguments = found[1] or "", float(found[2]), found[3], found[4]
        if call in ("kill", "tkill", "tgkill", "pidfd_send_signal"):
            target, _, signal = arguments.partition(", SIG")
            if not signal:
                continue  # 0 asks whether the process is there
            who = target_of(target)
            counts[f"{call} {numberless(who)}"] += 1
            if who != caller and who not in OWN_TOOLS and not machine.named(when, who):
                unlawful.append(line.strip())
        else:
            path = path_of(arguments)
            kind = "own file" if OWN.match(path) else "cache" if CACHES.match(path) else path
            counts[f"{call} {kind}"] += 1
            if kind == path or (kind == "cache" and not machine.named(when, "")):
                unlawful.append(line.strip())
    return unlawful, counts


def main():
    Atspi.init()
    random.seed(int(time.time()))
    machine = Machine()
    program = subprocess.Popen([*TRACED, "-o", CALLS, PROGRAM])
    time.sleep(5)
    done = 0
    while done < USES:
        if program.poll() is not None:
            print("the program has ended:", program.returncode, file=sys.stderr)
            return 1
        machine.use()
        done += 1
        if done % 500 == 0:
            print(done, "uses", flush=True)
    time.sleep(EFFECT_SECONDS)
    program.kill()  # the tracer, and the program with it
    unlawful, counts = judge(machine)
    for what, count in sorted(counts.items()):
        print(f"{what}: {count}")
    print("controls used:", len(machine.counts))
    for line in unlawful:
        print("NOT ASKED FOR:", line)
    return 1 if unlawful else 0


sys.exit(main())
