# SPDX-License-Identifier: Apache-2.0
"""The headings of a Markdown file, and the anchors that they have where it is read as such."""
import re

FENCE = re.compile(r"^ {0,3}```")
HEADING = re.compile(r"^(#{1,6}) (.+?)\s*$")


def slug(title):
    text = re.sub(r"[`*]|\[([^]]*)\]\([^)]*\)", r"\1", title).lower()
    return re.sub(r"[^\w\- ]", "", text).replace(" ", "-")


def lines(text):
    """Each line, with whether it lies outside of code that is fenced."""
    is_code = False
    for line in text.splitlines():
        if FENCE.match(line):
            is_code = not is_code
            yield line, False
        else:
            yield line, not is_code


def anchors(text):
    found = (HEADING.match(line) for line, is_text in lines(text) if is_text)
    return {slug(heading[2]) for heading in found if heading}
