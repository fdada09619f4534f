#!/usr/bin/python3
"""Uses the program at random and judges what it did: adversary.py USES MACHINE PROGRAM CONTROL_PROGRAM INSIDE CALLS HOME

MACHINE is the first process of the namespaces that the program runs in, INSIDE the library through which it is used, CALLS
where strace writes about it. Standard error gets a line for each use. Before each use the names of all that is on show are
noted; a signal is lawful when a use in the seconds before could end something and its target was named there. The names of
the processes tell them apart.
"""

import collections
import json
import random
import re
import socket
import subprocess
import sys
import time

USES, MACHINE, PROGRAM, CONTROL, INSIDE, CALLS, HOME = int(sys.argv[1]), *sys.argv[2:]
# What may take effect so long after a use: SIGTERM, the wait, SIGKILL, what is measured, and the tick before.
EFFECT_SECONDS = 30
ANSWER_SECONDS = 30
ENDS = re.compile(r"(Kill|Quit|Force|End|Free|Clean|Delete|Remove|Purge|Left over|Idle|Chrome|Cursor|VSCode)|^Key |^tavrinctl ")
ACTS = re.compile(r"^(Kill|Quit|Force|End|Free|Clean|Delete|Remove|Purge|Rescan|Start|Find|Pause|Resume)")
TRACED = ["nsenter", "-t", MACHINE, "-p", "-m", "strace", "-f", "--seccomp-bpf", "-qq", "-ttt", "--decode-fds=path,pidfd",
          "--decode-pids=comm", "-s", "4096",
          "-e", "trace=kill,tgkill,tkill,pidfd_send_signal,unlink,unlinkat,rmdir,rename,renameat,renameat2"]
ENDS_OF_ITS_OWN = (0, -15, -9)  # its menu has "Quit", and its list has itself
OF_THE_PRESET = "night-"  # its button says its pattern, and how many match
# The rest leaves the program running, and this script able to go on.
AVOIDED = re.compile(r"Quit Tavrin|Export CSV.*|Add folder.*|Choose.*|Deep Purge.*|Start at login|Copy.*|Reveal.*|Open.*folder.*")
KEYS = ["Tab", "shift+Tab", "Return", "space", "Escape", "Down", "Up", "Home", "End", "Delete", "shift+Delete", "Menu",
        "ctrl+a", "ctrl+1", "ctrl+2", "ctrl+3", "ctrl+4", "ctrl+5", "F5", "ctrl+i", "F1", "Right", "Left", "ctrl+f"]
COMMANDS = [["free", "--min-idle", "0", "--min-mb", "50", "--yes"], ["free", "--dry-run", "--min-idle", "0"],
            ["end-leftovers", "--yes"], ["preset", "Left over", "--yes"], ["clean", "User caches", "--yes"],
            ["clean", "Go build cache", "--dry-run"], ["status"], ["processes"], ["sessions"], ["caches", "--scan"]]
# The program's settings, log, socket and temporary files, and what the toolkit keeps.
OWN = re.compile(re.escape(HOME) + r"/(\.config/|Library/(Logs|Application Support)/Tavrin|\.local/state/|\.cache/(mesa|qt|font))"
                 r"|/(tmp|run|dev/shm)/(?!.*/home/)")
OWN_TOOLS = ("cleanup", "du", "project_leftov", "project_leftove", "memory_pressur", "memory_pressure", "osascript", "sh", "")
CACHES = re.compile(re.escape(HOME) + r"/(\.npm|\.cache|\.cargo|\.local/share/Trash)(/|$)")


def numberless(name):
    return re.sub(r"\d+", "#", name)


class Machine:
    def __init__(self):
        self.uses = []  # (time, what, names on show)
        self.counts = collections.Counter()
        self.traces = []
        self.start()

    def start(self):
        ours, its = socket.socketpair()
        self.program = subprocess.Popen([*TRACED, "-E", f"LD_PRELOAD={INSIDE}", "-E", f"USE_FROM_INSIDE={its.fileno()}",
                                         "-o", self.new_trace(), PROGRAM], pass_fds=[its.fileno()])
        its.close()
        ours.settimeout(ANSWER_SECONDS)
        self.inside = ours.makefile("rw")
        time.sleep(5)

    def new_trace(self):
        self.traces.append(f"{CALLS}.{len(self.traces)}")
        return self.traces[-1]

    def ask(self, request):
        self.inside.write(request + "\n")
        self.inside.flush()

    def look(self):
        """Returns [name, number of actions, whether it can be used now] of all in the windows, also what is scrolled away."""
        self.ask("look")
        return json.loads(self.inside.readline())

    def note(self, what, names):
        self.uses.append((time.time(), what, names))
        print(f"{time.time():.3f} {what}", file=sys.stderr)

    def use(self):
        kind = random.random()
        if kind < 0.02:
            self.command(random.choice(COMMANDS))
        elif kind < 0.35:
            key = random.choice(KEYS)
            self.note(f"Key {key}", {name for name, *_ in self.look()} if key in (
                "Return", "space", "Delete", "shift+Delete") else set())
            subprocess.run(["xdotool", "key", key], check=False)
        else:
            self.press()

    def press(self):
        shown = self.look()
        choices = [(i, name, actions) for i, (name, actions, is_usable) in enumerate(shown)
                   if name and actions and is_usable and not AVOIDED.fullmatch(name)]
        if not choices:
            subprocess.run(["xdotool", "key", "Escape"], check=False)
            return
        # As often what is rare as what there are many of, and what acts twice as often.
        kinds = sorted({numberless(name) for _, name, _ in choices})
        kind = random.choices(kinds, [2 if ACTS.search(kind) else 1 for kind in kinds])[0]
        index, name, actions = random.choice([each for each in choices if numberless(each[1]) == kind])
        self.note(f"Press {name}", {name for name, *_ in shown})
        self.counts[kind[:40]] += 1
        self.ask(f"press {index} {random.randrange(actions)}")
        if ENDS.search(name):
            time.sleep(1)  # so that few uses could be what a signal comes of

    def command(self, arguments):
        """What it says afterwards has to name whom it ended."""
        calls = self.new_trace()
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
            if at > when + 0.2 or not ENDS.search(what):
                continue
            if any(comm in name for name in names) or ("Left over" in what and comm.startswith(OF_THE_PRESET)):
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
    seed = int(time.time())
    print("seed", seed)
    random.seed(seed)
    machine = Machine()
    done = 0
    while done < USES:
        try:
            machine.use()
        except (OSError, ValueError):  # it is gone, or says half of an answer
            status = machine.program.wait(ANSWER_SECONDS)
            print("the program has ended:", status, flush=True)
            if status not in ENDS_OF_ITS_OWN:
                return 1
            machine.start()
        done += 1
        if done % 500 == 0:
            print(done, "uses", flush=True)
    time.sleep(EFFECT_SECONDS)
    machine.program.kill()  # the tracer, and the program with it
    unlawful, counts = judge(machine)
    for what, count in sorted(counts.items()):
        print(f"{what}: {count}")
    print("controls used:", len(machine.counts))
    for line in unlawful:
        print("NOT ASKED FOR:", line)
    return 1 if unlawful else 0


sys.exit(main())
