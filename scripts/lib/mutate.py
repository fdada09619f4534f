"""Tries changes to the sources one after another on a copy of the tree, and prints those that no test notices.

    mutate.py [NAME...]      every change of scripts/mutations.txt, or those named

Status 0 when every change is noticed, 1 when one survives, 2 when the list or the tests are broken.
"""

import os
import pathlib
import re
import subprocess
import sys
from dataclasses import dataclass, field

ROOT = pathlib.Path(__file__).resolve().parents[2]
CHANGES = ROOT / "scripts/mutations.txt"
TREE = ROOT / "build/mutate"
BUILD = TREE / "build/debug"
# For quick compiling of one file and linking of one program.
QUICK = ["-DCMAKE_CXX_FLAGS_DEBUG=", "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold", "-DTAVRIN_BENCHMARKS=OFF",
         "-DCMAKE_UNITY_BUILD=OFF", "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"]
TEST_TIMEOUT = 120
CANNOT_RUN = 77  # of tests/e2e/lib.sh


class Disorder(Exception):
    """An error that makes the outcome worthless."""


@dataclass
class Change:
    name: str
    path: str
    test: tuple[str, str]  # a program, and a filter of its tests
    old: list[str] = field(default_factory=list)
    new: list[str] = field(default_factory=list)

    def applied(self, text: str) -> str:
        old, new = "\n".join(self.old), "\n".join(self.new)
        found = text.count(old) if old else 0
        if found != 1:
            raise Disorder(f"{self.name}: its text is found {found} times in {self.path}")
        if old == new:
            raise Disorder(f"{self.name}: changes nothing")
        return text.replace(old, new)


def read_changes(text: str) -> list[Change]:
    """Parses the list. "file" and "test" apply to all changes up to the next of their kind."""
    changes: list[Change] = []
    path, test = "", ("", "")
    for number, line in enumerate(text.splitlines(), start=1):
        word, _, rest = line.partition(" ")
        if not line.strip() or word == "#":
            continue
        if word == "file":
            path = rest
        elif word == "test":
            program, _, tests = rest.partition(" ")
            test = (program, tests or "*")
        elif word == "change":
            changes.append(Change(rest, path, test))
        elif word == "-" and changes:
            changes[-1].old.append(rest)
        elif word == "+" and changes:
            changes[-1].new.append(rest)
        else:
            raise Disorder(f"{CHANGES.name}, line {number}: {line}")
    names = [change.name for change in changes]
    for name in names:
        if names.count(name) > 1:
            raise Disorder(f"{name}: two changes have this name")
    return changes


def check_all(changes: list[Change]) -> None:
    wrong = []
    for change in changes:
        try:
            change.applied((ROOT / change.path).read_text())
        except (Disorder, OSError) as reason:
            wrong.append(str(reason))
    if wrong:
        raise Disorder("\n".join(wrong))


def copy_tree() -> None:
    """Copies the files that git tracks or would add. Unchanged files keep their time, so they are not rebuilt."""
    listing = subprocess.run(
        ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        cwd=ROOT, check=True, capture_output=True).stdout
    wanted = {name for name in os.fsdecode(listing).split("\0") if name and (ROOT / name).is_file()}
    for name in wanted:
        source, target = ROOT / name, TREE / name
        content = source.read_bytes()
        if not target.is_file() or target.read_bytes() != content:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(content)
            target.chmod(source.stat().st_mode)
    for folder, folders, files in os.walk(TREE):
        if pathlib.Path(folder) == TREE:
            folders[:] = [name for name in folders if name != "build"]
        for name in files:
            file = pathlib.Path(folder, name)
            if str(file.relative_to(TREE)) not in wanted:
                file.unlink()


def run(command: list[str]) -> tuple[int, str]:
    ended = subprocess.run(command, cwd=TREE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                           errors="replace")
    return ended.returncode, ended.stdout


def build(programs: list[str]) -> str:
    """Returns the compiler's output on failure, otherwise an empty text."""
    status, said = run(["cmake", "--build", str(BUILD), "--target", *programs])
    return said[-3000:] if status else ""


def run_tests(test: tuple[str, str]) -> tuple[int, str]:
    """Runs tests in private namespaces, where a changed program can do no harm."""
    program, tests = test
    return run(["bash", "scripts/lib/alone.sh", str(TREE), "timeout", "--kill-after=5", str(TEST_TIMEOUT),
                str(BUILD / "tests" / program), f"--gtest_filter={tests}", "--gtest_brief=1"])


def check_tests(changes: list[Change]) -> None:
    """Checks that the tests pass without a change."""
    tests = sorted({change.test for change in changes})
    problem = build(sorted({program for program, _ in tests}))
    if problem:
        raise Disorder(f"The tree does not build:\n{problem}")
    for test in tests:
        status, said = run_tests(test)
        count = re.search(r"^\[=+\] (\d+) tests?", said, re.MULTILINE)
        if status or not count or count[1] == "0":
            raise Disorder(f"{' '.join(test)}: does not pass as it is ({status}):\n{said[-3000:]}")


def is_noticed(change: Change) -> bool:
    file = TREE / change.path
    before = file.read_text()
    file.write_text(change.applied(before))
    try:
        problem = build([change.test[0]])
        if problem:
            raise Disorder(f"{change.name}: does not build:\n{problem}")
        status, said = run_tests(change.test)
    finally:
        file.write_text(before)
    if status == CANNOT_RUN:
        raise Disorder(said)
    return status != 0


def main(names: list[str]) -> int:
    changes = read_changes(CHANGES.read_text())
    check_all(changes)
    unknown = set(names) - {change.name for change in changes}
    if unknown:
        raise Disorder(f"No change is called {', '.join(sorted(unknown))}")
    chosen = [change for change in changes if not names or change.name in names]
    copy_tree()
    status, said = run(["cmake", "--preset", "debug", "--log-level=WARNING", *QUICK])
    if status:
        raise Disorder(said)
    check_tests(chosen)
    survivors, wrong = [], []
    for change in chosen:
        try:
            noticed = is_noticed(change)
        except Disorder as reason:
            wrong.append(str(reason))
            continue
        print("noticed " if noticed else "SURVIVES", change.name, flush=True)
        if not noticed:
            survivors.append(change.name)
    print(f"{len(chosen)} changes, survivors: {', '.join(survivors) or 'none'}")
    if wrong:
        raise Disorder("\n".join(wrong))
    return 1 if survivors else 0


if __name__ == "__main__":
    try:
        sys.exit(main(sys.argv[1:]))
    except Disorder as reason:
        print(reason, file=sys.stderr)
        sys.exit(2)
