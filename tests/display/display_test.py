#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Drives the reader on a virtual display as a user does.

usage: display_test.py READER MAPS CORPUS PICTURES
"""

import os
import sys
import time

from reader import Home, Reader
from session import Session, Unmet
from steps import STEPS, Stage

LONGEST = 120.0


def run(stage, number, text, function):
    """Runs a step, prints a line about it, and tells whether it was met."""
    begun = time.monotonic()
    try:
        function(stage)
        stage.reader.expect_alive()
        outcome = "ok"
    except Unmet as unmet:
        outcome = f"FAILED: {unmet}"
    except Exception as fault:  # A step that breaks has failed, and the next ones are tried.
        outcome = f"FAILED: {fault!r}"
    stage.session.keep(f"step-{number}" + ("" if outcome == "ok" else "-failed"))
    print(f"{time.monotonic() - begun:5.1f} s  {text}: {outcome}", flush=True)
    return outcome == "ok"


def main(program, maps, corpus, pictures):
    begun = time.monotonic()
    failed = 0
    with Home() as home, Session(pictures) as session:
        stage = Stage(session, home, Reader(session, program), maps, corpus)
        for number, (text, function) in enumerate(STEPS, 1):
            if time.monotonic() - begun > LONGEST:
                print(f"FAILED: expected to be done in {LONGEST:.0f} s, {text}: not tried")
                failed += 1
            elif not run(stage, number, text, function):
                failed += 1
    print(f"{len(STEPS)} steps, {failed} failed, {time.monotonic() - begun:.0f} s; "
          f"pictures in {pictures}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*(os.path.abspath(argument) for argument in sys.argv[1:])))
