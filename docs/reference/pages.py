# SPDX-License-Identifier: Apache-2.0
"""Writes guides as Doxygen reads them: headings with anchors, links to what the reference holds. Names in
backquotes that begin with one of a public header lead to what they name, and have to name something.

usage: pages.py DIRECTORY GUIDE.md … <HEADERS
"""
import pathlib
import re
import sys

from headings import HEADING, lines, slug

# `SpecificationManager::entry`
NAME = re.compile(r"`([A-Z]\w*(?:::\w+)*)`$")
LINK = re.compile(r"(!?)\[([^]]*)\]\(([^)#\s]*)(#[^)\s]*)?\)")


def with_links(line, page):
    def replaced(link):
        is_image, text, path, anchor = link.groups()
        if re.match(r"\w+:", path):
            return link[0]
        name = pathlib.PurePath(path)
        if is_image:
            return f"![{text}]({name.name})"
        if name.suffix == ".md" or not path:
            target = (name.stem if path else page) + (f"-{anchor[1:]}" if anchor else "")
            return f"[{text}](@ref {target})"
        if name.suffix == ".h":
            return f"[{text}](@ref {name.name})"
        if name.name == "examples":
            return f"[{text}](examples.html)"
        # A file of the sources, which the reference does not hold.
        return text

    def in_prose(text):
        # The project's name is no class to read about.
        return re.sub(r"\bTavrin\b(?!::)", "%Tavrin", LINK.sub(replaced, text))

    line = re.sub(r"\*\*(`[^`]*`)\*\*", r"<b>\1</b>", line)
    return "".join(in_code(part) if part.startswith("`") else in_prose(part)
                   for part in re.split(r"(`[^`]*`)", line))


def in_code(code):
    name = NAME.match(code)
    known = name and PUBLIC.get(name[1].split("::")[0])
    if not known:
        # Doxygen ends code at an apostrophe, and shows what escapes a bar in a table.
        marked = f"`{code}`" if "'" in code else code
        return marked.replace(r"\|", r"`\|`")
    # A header of functions alone has a page by its file.
    declares = rf"\b(class|struct) (\w+ )?{known.stem}\b|\bnamespace Tavrin::{known.stem}\b"
    is_name = re.search(declares, known.read_text(encoding="utf-8"))
    return f"[{name[1]}](@ref {'Tavrin::' + name[1] if is_name else known.name})"


def page(guide):
    name = guide.stem
    for line, is_text in lines(guide.read_text(encoding="utf-8")):
        heading = is_text and HEADING.match(line)
        if heading:
            anchor = name if heading[1] == "#" else f"{name}-{slug(heading[2])}"
            yield f"{line.replace('`', '').rstrip()} {{#{anchor}}}"
        else:
            yield with_links(line, name) if is_text else line


PUBLIC = {header.stem: header for header in map(pathlib.Path, sys.stdin.read().split())}
directory, *guides = map(pathlib.Path, sys.argv[1:])
for guide in guides:
    (directory / guide.name).write_text("\n".join(page(guide)) + "\n", encoding="utf-8")
