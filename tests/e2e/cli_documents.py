#!/usr/bin/env python3
"""Compares a document of tavrinctl on standard input with docs/cli.md: cli_documents.py KIND SOURCE"""
import json
import re
import sys

COMMON = {"schema", "kind", "source", "sampled_at"}
MEMORY = {"memory_bytes", "memory_certainty", "swap_bytes", "rss_bytes"}


def documented(kind):
    rows = {}
    for line in open("docs/cli.md", encoding="utf-8"):
        row = re.match(r"\| `(\w+)` \| (.*) \|$", line)
        if row:
            rows.setdefault(row[1], set(re.findall(r"`(\w+)`", row[2])))
    names = rows[kind] | COMMON | MEMORY
    if kind == "status":
        names |= rows["alerts"]
    if kind == "sessions":
        names |= rows["processes"]
    return names


def check(value, names, path=""):
    if isinstance(value, list):
        for element in value:
            check(element, names, path + "[]")
    elif isinstance(value, dict):
        for key, member in value.items():
            assert key in names, f"{path}.{key} is not documented"
            assert not key.endswith("_bytes") or member is None or (type(member) is int and member >= 0), (path, key, member)
            assert not key.endswith("_at") or member is None or re.fullmatch(r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ", member), (path, key, member)
            check(member, names, path + "." + key)


document = json.load(sys.stdin)
assert document["schema"] == 1 and document["kind"] == sys.argv[1] and document["source"] == sys.argv[2], document
check(document, documented(sys.argv[1]))
