#!/usr/bin/python3
"""Uses the active window of the display as a screen reader's user does.

    screen.py find NAME      waits until a shown object has that name, and prints the name
    screen.py gone NAME      waits until none has
    screen.py describe NAME  waits as find does, and prints the accessible description
    screen.py tab NAME       presses Tab until it has the keyboard focus
    screen.py click NAME     clicks into its middle

NAME is a regular expression for the whole accessible name. On timeout the status is 1 and all shown objects are
printed.
"""

import re
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

TIMEOUT = 20  # seconds
MAX_TABS = 80


def below(thing):
    """Yields the shown objects inside an object, itself first, without those that vanish meanwhile."""
    if thing and is_(thing, Atspi.StateType.SHOWING):
        yield thing
        for part in asked(lambda: [thing.get_child_at_index(i) for i in range(thing.get_child_count())], []):
            yield from below(part)


def asked(question, otherwise):
    try:
        return question()
    except GLib.Error:
        return otherwise


def is_(thing, state):
    return asked(lambda: thing.get_state_set().contains(state), False)


def name_of(thing):
    return asked(lambda: thing.get_name() or "", "")


def on_show():
    desktop = Atspi.get_desktop(0)
    desktop.set_cache_mask(Atspi.Cache.NONE)
    for i in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(i)
        program.set_cache_mask(Atspi.Cache.NONE)
        for j in range(program.get_child_count()):
            window = program.get_child_at_index(j)
            if window and is_(window, Atspi.StateType.ACTIVE):
                yield from below(window)


def wait_for(answer):
    """Returns the first answer that is neither None nor False, or None on timeout."""
    end = time.monotonic() + TIMEOUT
    while True:
        found = answer()
        if found:
            return found
        if time.monotonic() > end:
            return None
        time.sleep(0.05)


def find(name, usable=False):
    for thing in on_show():
        states = (Atspi.StateType.FOCUSABLE, Atspi.StateType.ENABLED) if usable else ()
        if name.fullmatch(name_of(thing)) and all(is_(thing, state) for state in states):
            return thing
    return None


def focused():
    """Returns the focused control. Its parents are focused too, and so is a list's current item at all times."""
    items = (Atspi.Role.LIST_ITEM, Atspi.Role.TABLE_CELL, Atspi.Role.TREE_ITEM)
    last = None
    for thing in on_show():
        if is_(thing, Atspi.StateType.FOCUSED) and thing.get_role() not in items:
            last = thing
    return last


def input_(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)


def tab(name):
    at = wait_for(focused)
    for _ in range(MAX_TABS):
        if not at or name.fullmatch(name_of(at)):
            return at
        input_("key", "Tab")
        # One step at a time: a second one before the first is done could skip the control.
        before = at
        at = wait_for(lambda: (now := focused()) and now.path != before.path and now)
    return None


def click(name):
    thing = wait_for(lambda: find(name, usable=True))
    if thing:
        box = thing.get_extents(Atspi.CoordType.SCREEN)
        input_("mousemove", str(box.x + box.width // 2), str(box.y + box.height // 2), "click", "1")
    return thing


def main():
    Atspi.init()
    name = re.compile(sys.argv[2])
    done = {
        "find": lambda: wait_for(lambda: find(name)),
        "describe": lambda: wait_for(lambda: find(name)),
        "gone": lambda: wait_for(lambda: not find(name)),
        "tab": lambda: tab(name),
        "click": lambda: click(name),
    }[sys.argv[1]]()
    if not done:
        shown = [f"{thing.get_role_name()} {name_of(thing)!r}" for thing in on_show() if name_of(thing)]
        print("On show:", *shown, sep="\n    ", file=sys.stderr)
        return 1
    if sys.argv[1] == "find":
        print(name_of(done))
    if sys.argv[1] == "describe":
        print(asked(done.get_description, ""))
    return 0


sys.exit(main())
