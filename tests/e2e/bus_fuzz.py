#!/usr/bin/python3
"""Calls the running Tavrin on the session bus with nonsense: bus_fuzz.py COUNT"""
import random
import sys

from gi.repository import Gio, GLib

TEXTS = ["", "status", "free-ram", "\x01\n", "x" * 100000, "../..", "org.example.tavrin.Monitor", "Version"]
VALUES = [
    lambda: GLib.Variant("s", random.choice(TEXTS)),
    lambda: GLib.Variant("i", random.randint(-(2**31), 2**31 - 1)),
    lambda: GLib.Variant("d", float("nan")),
    lambda: GLib.Variant("as", random.choices(TEXTS, k=3)),
    lambda: GLib.Variant("a{sv}", {"activation-token": GLib.Variant("i", 7)}),
    lambda: GLib.Variant("av", [GLib.Variant("t", 2**64 - 1)]),
    lambda: GLib.Variant("v", GLib.Variant("b", True)),
    lambda: GLib.Variant("ay", b"\xff\x00"),
]
MEMBERS = [
    ("org.example.tavrin.Monitor", "Report"),
    ("org.example.tavrin.Monitor", "Show"),
    ("org.example.tavrin.Monitor", "Quit"),
    ("org.freedesktop.Application", "Activate"),
    ("org.freedesktop.Application", "Open"),
    ("org.freedesktop.Application", "ActivateAction"),
    ("org.freedesktop.DBus.Properties", "Get"),
    ("org.freedesktop.DBus.Properties", "Set"),
    ("org.freedesktop.DBus.Properties", "GetAll"),
]

# Half of the calls have arguments of the right types.
PROPER = {
    "Report": ["s"],
    "Show": ["s"],
    "Activate": ["a{sv}"],
    "Open": ["as", "a{sv}"],
    "ActivateAction": ["s", "av", "a{sv}"],
    "Get": ["s", "s"],
    "Set": ["s", "s", "v"],
    "GetAll": ["s"],
}


def arguments(member):
    if member in PROPER and random.random() < 0.5:
        wanted = PROPER[member]
        return [next(value for value in iter(lambda: random.choice(VALUES)(), None) if value.get_type_string() == kind)
                for kind in wanted]
    return [random.choice(VALUES)() for _ in range(random.randint(0, 3))]


random.seed(1)
bus = Gio.bus_get_sync(Gio.BusType.SESSION)
answered = 0
for _ in range(int(sys.argv[1])):
    interface, member = random.choice(MEMBERS)
    values = arguments(member)
    try:
        bus.call_sync("org.example.tavrin", "/org/example/tavrin", interface, member,
                      GLib.Variant.new_tuple(*values), None, Gio.DBusCallFlags.NO_AUTO_START, 5000)
        answered += 1
    except GLib.Error as error:
        name = Gio.DBusError.get_remote_error(error) or error.message
        assert "NoReply" not in name and "ServiceUnknown" not in name, name
print(answered, "calls had an answer")
