# SPDX-License-Identifier: Apache-2.0
"""Prints what Doxygen found amiss and nothing excuses; fails if there is any of it.

Classes, enumerations and functions need a comment. None is asked of what says all by its name: values
and aliases, operators, destructors, copies, what is made with nothing but a parent, what reads a value,
what sets one that can be read, and what overrides or is left to the compiler.

usage: warnings.py WARNINGS.txt
"""
import pathlib
import re
import sys

MEMBER = re.compile(r"Member (?P<name>operator\s?\S+?|~?\w+)(?P<rest>[ (].*)?"
                    r" \((?P<kind>[\w ]+)\) of (?P<scope_kind>\w+) (?P<scope>\S+) is not documented\.")
# "value() const", "value() const =0"
READS = re.compile(r"^\(\) const\b")
TAKES_PARENT = re.compile(r"^\(Q(Object|Widget) \*parent=nullptr\)$")
TAKES_ONE = re.compile(r"^\([^,]+\)")
LEFT_TO_OTHERS = re.compile(r"\boverride\b|= ?(default|delete)\b")


def copies(name, rest):
    return re.match(rf"^\((const )?{name} ?&&?\w*\)", rest)


def sets_what_can_be_read(name, rest, header):
    if not (re.match(r"set[A-Z]", name) and TAKES_ONE.match(rest)):
        return False
    read = name[3].lower() + name[4:]
    names = f"{read}|is{name[3:]}|{name[3:]}"
    return re.search(rf"\b({names})\(\) const\b", header.read_text(encoding="utf-8"))


def is_excused(text, header):
    member = MEMBER.search(text)
    if not member:
        return False
    name, rest = member["name"], member["rest"] or ""
    if member["kind"] != "function":
        return member["kind"] in ("variable", "typedef", "property", "enumvalue", "friend")
    if member["scope_kind"] == "namespace":
        return name.startswith("operator")
    return bool(name.startswith(("~", "operator")) or READS.match(rest)
                or LEFT_TO_OTHERS.search(rest) or copies(name, rest) or TAKES_PARENT.match(rest)
                or sets_what_can_be_read(name, rest, header))


found = []
# What is inherited is told of once for each class.
for line in dict.fromkeys(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8").splitlines()):
    place = re.match(r"(?P<file>[^:]+):\d+: ", line)
    if not place or not is_excused(line, pathlib.Path(place["file"])):
        found.append(line)
print("\n".join(found), end="\n" if found else "", file=sys.stderr)
sys.exit(1 if found else 0)
