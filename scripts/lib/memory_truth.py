"""Compares the ledger of true memory with the kernel on real programs, which it starts and ends itself.

memory_truth.py TOOL [RUNS]     TOOL is tavrin_memory_truth; RUNS is how often each program is ended, 3 by default

Prints a line for each run: resident memory added up, the ledger's sum, the sum of all smaps_rollup read at once, the
difference, what was promised, and by how much the used memory and swap of the machine fell.
"""

import ctypes
import mmap
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

MIB = 1 << 20
PAGE = "<body><script>let a=[];for(let i=0;i<300000;i++)a.push({n:i,t:'x'+i});document.title=a.length</script>"
MADV_HUGEPAGE, MADV_NOHUGEPAGE, MADV_PAGEOUT = 14, 15, 21


def parents():
    result = {}
    for pid in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{pid}/stat") as file:
                result[int(pid)] = int(file.read().rpartition(")")[2].split()[1])
        except OSError:
            pass
    return result


def family(root):
    parent = parents()
    found = [root]
    for pid in found:
        found += [child for child, of in parent.items() if of == pid]
    return found


def rollup_sum(pids):
    total = 0
    for pid in pids:
        try:
            with open(f"/proc/{pid}/smaps_rollup") as file:
                total += sum(int(line.split()[1]) for line in file if line.startswith(("Pss:", "SwapPss:")))
        except OSError:
            pass
    return total * 1024


def used():
    with open("/proc/meminfo") as file:
        kib = {line.split(":")[0]: int(line.split()[1]) for line in file}
    return (kib["MemTotal"] - kib["MemAvailable"]) * 1024, (kib["SwapTotal"] - kib["SwapFree"]) * 1024


def steady_used():
    """Returns the median of a second, because other programs go on."""
    samples = []
    for _ in range(11):
        samples.append(used())
        time.sleep(0.1)
    return sorted(s[0] for s in samples)[5], sorted(s[1] for s in samples)[5]


def forked(body):
    """Starts a process group of our own that runs `body` and waits."""
    pid = os.fork()
    if pid == 0:
        os.setsid()
        body()
        while True:
            time.sleep(1000)
    return pid


def area(size, advice):
    memory = mmap.mmap(-1, size, mmap.MAP_PRIVATE | mmap.MAP_ANONYMOUS)
    memory.madvise(advice)
    for at in range(0, size, 4096):
        memory[at] = at % 251
    return memory


def fork_of_fifty():
    global kept
    kept = area(500 * MIB, MADV_NOHUGEPAGE)
    for _ in range(50):
        if os.fork() == 0:
            return


def half_swapped():
    global kept
    kept = area(400 * MIB, MADV_NOHUGEPAGE)
    address = ctypes.addressof(ctypes.c_char.from_buffer(kept))
    ctypes.CDLL(None).madvise(ctypes.c_void_p(address), ctypes.c_size_t(200 * MIB), MADV_PAGEOUT)


def huge_pages():
    global kept
    kept = area(400 * MIB, MADV_HUGEPAGE)


def nodes():
    for _ in range(4):
        subprocess.Popen(["node", "-e", "let a=Buffer.alloc(6e7,1);setInterval(()=>a[0]++,1e6)"])


def browser(command):
    def start():
        folder = tempfile.mkdtemp(dir=os.environ["HOME"])
        with open(f"{folder}/page.html", "w") as file:
            file.write(PAGE)
        subprocess.Popen([part.format(folder=folder) for part in command]
                         + [f"file://{folder}/page.html?{tab}" for tab in range(10)],
                         stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return start


PROGRAMS = [
    ("fork of 50 sharing 500 MiB", fork_of_fifty, 6, None),
    ("huge pages", huge_pages, 3, None),
    ("half in swap", half_swapped, 6, None),
    ("four node servers", nodes, 6, "node"),
    ("chromium, ten tabs", browser(["chromium", "--no-first-run", "--no-sandbox", "--disable-gpu",
                                    "--user-data-dir={folder}"]), 30, "chromium"),
    ("firefox, ten tabs", browser(["firefox-esr", "--profile", "{folder}"]), 30, "firefox-esr"),
]


def run(name, start, settling, tool):
    root = forked(start)
    time.sleep(settling)
    output = subprocess.run([tool, str(root)], capture_output=True, text=True).stdout
    told = {line.split()[0]: int(line.split()[1]) for line in output.splitlines()}
    truth = rollup_sum(family(root))
    memory, swap = steady_used()
    for pid in family(root):
        os.kill(pid, signal.SIGKILL)
    os.waitpid(root, 0)
    time.sleep(2)
    memory_after, swap_after = steady_used()
    back = memory - memory_after + swap - swap_after
    promised = told["promised_bytes"] + told["promised_swap_bytes"]
    print(f"{name}: resident {told['resident_bytes'] / MIB:.0f}, ledger {told['sum_bytes'] / MIB:.0f}, "
          f"rollup {truth / MIB:.0f} ({100 * (told['sum_bytes'] / truth - 1):+.1f} %), "
          f"promised {promised / MIB:.0f}, back {back / MIB:.0f} ({100 * (promised / back - 1):+.1f} %)", flush=True)


def main():
    tool = sys.argv[1]
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 3
    with tempfile.TemporaryDirectory() as home:
        os.environ["HOME"] = home
        for name, start, settling, needs in PROGRAMS:
            if needs and not shutil.which(needs):
                print(f"{name}: not installed")
                continue
            for _ in range(runs):
                run(name, start, settling, tool)


main()
