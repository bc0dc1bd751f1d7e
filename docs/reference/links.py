# SPDX-License-Identifier: Apache-2.0
"""Prints the links that lead nowhere, of the pages below a directory and of Markdown files; fails if
there is one. Links to other hosts are not followed.

usage: links.py DIRECTORY FILE.md …
"""
import html.parser
import pathlib
import re
import sys
import urllib.parse

from headings import anchors, lines


class Page(html.parser.HTMLParser):
    """The anchors of a page, and what it links to."""

    def __init__(self, text):
        super().__init__()
        self.anchors = set()
        self.links = set()
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in ("id", "name"):
                self.anchors.add(value)
            elif name in ("href", "src") and value:
                self.links.add(value)


def markdown_links(text):
    prose = "\n".join(line for line, is_text in lines(text) if is_text)
    return set(re.findall(r"\]\(([^)\s]+)\)", re.sub(r"`[^`]*`", "", prose)))


class Anchors:
    """The anchors of a file, read once."""

    def __init__(self, pages):
        self.known = {path: page.anchors for path, page in pages.items()}

    def of(self, path):
        if path not in self.known:
            is_markdown = path.suffix == ".md"
            self.known[path] = anchors(path.read_text(encoding="utf-8")) if is_markdown else set()
        return self.known[path]


def dead_links(path, links, known):
    for link in sorted(links):
        parts = urllib.parse.urlsplit(link)
        if parts.scheme or parts.netloc:
            continue
        target = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
        anchor = urllib.parse.unquote(parts.fragment)
        if not target.exists():
            yield f"{link}: there is no such file"
        elif anchor and anchor not in known.of(target):
            yield f"{link}: the page has no such anchor"


directory, *guides = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
pages = {path: Page(path.read_text(encoding="utf-8")) for path in sorted(directory.rglob("*.html"))}
if not pages:
    sys.exit(f"{directory}: no pages")
known = Anchors(pages)
sources = {path: page.links for path, page in pages.items()}
sources.update((path, markdown_links(path.read_text(encoding="utf-8"))) for path in guides)
found = [f"{path.relative_to(pathlib.Path.cwd())}: {fault}"
         for path, links in sources.items() for fault in dead_links(path, links, known)]
print("\n".join(found), end="\n" if found else "", file=sys.stderr)
sys.exit(1 if found else 0)
