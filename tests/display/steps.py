# SPDX-License-Identifier: Apache-2.0
"""What a user does with the reader, step by step; each goes on where the one before has ended."""

import contextlib
import json
import os
import re
import shutil
import sys

from PIL import Image

from reader import COVERED, DARK, FRAME, HIT, PAGE_LINK, SUMMARY_LINK, TOKEN
from session import Area, Unmet, difference, wait

# Where the button is in the tool bar.
FIT_PAGE = 688

STEPS = []


def step(text):
    def add(function):
        STEPS.append((text, function))
        return function
    return add


def expect(condition, expected, seen):
    if not condition:
        raise Unmet(f"expected {expected}, saw {seen}")


class Stage:
    """What the steps share."""

    def __init__(self, session, home, reader, maps, corpus):
        self.session, self.home, self.reader = session, home, reader
        self.maps, self.corpus = maps, corpus
        self.form = None
        self.places = None

    @contextlib.contextmanager
    def dragged(self, path, over=None):
        """Drags a file out of another program's window into the document. That program is there as
        long as the context, since it hands out the data; what became of the drag is yielded."""
        session, reader = self.session, self.reader
        script = os.path.join(os.path.dirname(__file__), "drag_source.py")
        process = session.start([sys.executable, script, path], "drag-source")
        try:
            source = session.wait_for("^Files$")
            session.wait_for_focus(source)
            session.settle(source.area)
            session.drag(source.area.at(0.5, 0.5), reader.document.at(0.5, 0.5), over=over)
            yield session.wait_for("^Files: ").title
        finally:
            process.terminate()
            process.wait(5)

    def saved(self):
        """The references in the file of the form, after it has been saved."""
        self.session.press("ctrl+s")
        wait(lambda: "*" not in self.form.title, "the form to be saved",
             seen=lambda: f"{self.form}")
        with open(self.home.file("work.json"), encoding="utf-8") as file:
            return json.load(file)["citations"][0]["references"]

    def tokens(self):
        """The areas of the tokens of the form, from left to right."""
        area = self.form.area
        # Above the letters the tint is without gaps.
        row = Area(area.left + 250, area.top + area.height - 55, area.width - 260, 1)
        column = self.session.picture(row).transpose(Image.Transpose.TRANSPOSE)
        return [Area(row.left + top, row.top, bottom - top, 14)
                for _, top, _, bottom in TOKEN.strips_in(column, 1, 20)]


@step("starts with maps and asks for a PDF")
def start(stage):
    stage.reader.start("--maps", stage.maps)
    area = stage.reader.window.area
    expect((area.width, area.height) == (1240, 800), "a window of 1240×800", area)
    seen = DARK.share_of(stage.session.picture(stage.reader.document))
    expect(0 < seen < 0.02, "a line of text in an empty pane", f"{seen:.1%} dark pixels")


@step("refuses a dropped file that is no PDF")
def refuse_drop(stage):
    path = stage.home.file("notes.txt")
    with open(path, "w", encoding="utf-8") as file:
        file.write("nothing")
    before = stage.session.picture(stage.reader.document)
    with stage.dragged(path) as became:
        expect(became == "Files: IgnoreAction", "the drop to be refused", became)
        now = stage.session.settle(stage.reader.document)
        expect(not difference(before, now), "the window as it was", "a change")


@step("imports a dropped PDF, with a target shown meanwhile")
def import_drop(stage):
    session, reader = stage.session, stage.reader
    before = session.picture(reader.document)
    pane = reader.window.area.part(0, 0.03, 1, 1)

    def over():
        wait(lambda: FRAME.share_of(session.picture(pane)) > 0.005, "the drop target")
        session.keep("drop-target")

    with stage.dragged(os.path.join(stage.corpus, "slepc.pdf"), over) as became:
        expect(became == "Files: CopyAction", "the file to be taken", became)
        wait(lambda: FRAME.share_of(session.picture(pane)) < 0.001, "the drop target to go")
        session.wait_for_change(reader.document, before, "the pane to ask for a look-up")
        session.wait_for_focus(reader.window)


@step("offers entries below the field as one types, and opens the one looked up")
def look_up(stage):
    session, reader = stage.session, stage.reader
    reader.look_up("2.1")
    popup = wait(session.popups, "suggestions")[0]
    gap = popup.top - (reader.field.top + reader.field.height)
    expect(abs(gap) < 8, "the list right below the field", f"a gap of {gap} pixels")
    session.settle(popup)
    session.keep("suggestions")
    session.press("Return")
    session.wait_for("^SLEPc Users Manual")
    place = reader.landed()
    text = reader.text_in(place)
    expect(text == "2.1 Eigenvalue Problems", "the heading to flash", f"“{text}”")
    below = (reader.frame().top - reader.document.top) / reader.document.height
    expect(below < 0.25, "the entry at the top of the view", f"its frame {below:.0%} below")
    reader.wait_for_entry("Section 2.1 Eigenvalue Problems")
    html = reader.copied("ctrl+shift+c", target="text/html")
    expect('href="spec://2.1/slepc-users-manual/' in html, "a copied link", html)


@step("selects by dragging over lines and by double click, and copies what is selected")
def select(stage):
    session, reader = stage.session, stage.reader
    frame = reader.frame()
    heading = frame.top - 20
    session.drag((frame.left + 60, heading), (frame.left + 100, frame.top + 6))
    session.settle(reader.document)
    session.keep("selection")
    text = reader.copied("ctrl+c")
    expect(re.fullmatch(r"\w+ Problems\nIn this section.*", text),
           "text of two lines to be copied", f"“{text}”")
    session.click((frame.left + 60, heading), times=2)
    session.settle(reader.document)
    text = reader.copied("ctrl+c")
    expect(text == "Eigenvalue", "a word to be copied", f"“{text}”")


@step("follows a link of the page, and comes back")
def follow_link(stage):
    session, reader = stage.session, stage.reader
    document = reader.document
    session.press("Escape")
    before = session.settle(document)
    line = before.crop((0, 0, before.width, 110))
    link = PAGE_LINK.box_in(line)
    expect(link, "a link in the text", "none")
    session.click((document.left + link[2] - 4, document.top + link[1] + 4))
    session.wait_for_change(document, before, "the target of the link")
    session.keep("link-target")
    session.press("alt+Left")
    wait(lambda: not difference(before, session.picture(document)), "the place one came from",
         seen=lambda: f"{difference(before, session.picture(document))} other pixels")


@step("follows a link of the summary")
def follow_summary(stage):
    session, reader = stage.session, stage.reader
    summary = reader.summary
    blue = SUMMARY_LINK.box_in(session.settle(summary))
    expect(blue, "a link in the summary", "none")
    session.move(summary.at(0.5, 0.5))
    session.click((summary.left + blue[2] - 12, summary.top + blue[1] + 6))
    reader.wait_for_entry("Chapter 9 Bibliography")


@step("goes to an entry by the list of recent places")
def recent(stage):
    session, reader = stage.session, stage.reader
    session.click((reader.recent.left + 40, reader.recent.top + 18))
    reader.landed()
    reader.wait_for_entry("Section 2.1 Eigenvalue Problems")


@step("finds text, marks every hit and goes from hit to hit")
def find(stage):
    session, reader = stage.session, stage.reader
    document = reader.document
    page = document.part(0, 0.15, 1, 1)
    session.click(document.at(0.03, 0.5))
    session.press("ctrl+f")
    session.type("eigenvector")
    wait(lambda: HIT.share_of(session.picture(page)) > 0.0003, "a marked hit",
         seen=lambda: "none")
    first = session.settle(page)
    session.keep("find")
    session.press("Return")
    session.wait_for_change(page, first, "the next hit")
    session.press("Escape")
    wait(lambda: HIT.share_of(session.picture(document)) == 0, "the marks to go")


@step("zooms by key, wheel and button")
def zoom(stage):
    session, reader = stage.session, stage.reader
    reader.look_up("2.2\n")
    reader.landed()
    session.click(reader.document.at(0.03, 0.5))
    usual = reader.frame().width
    session.press("ctrl++")
    wait(lambda: reader.frame().width > usual * 1.05, "larger pages",
         seen=lambda: f"a frame of {reader.frame().width} pixels after {usual}")
    session.keep("zoomed")
    session.press("ctrl+0")
    wait(lambda: abs(reader.frame().width - usual) < 2, "the usual size",
         seen=lambda: f"a frame of {reader.frame().width} pixels instead of {usual}")
    session.move(reader.document.at(0.5, 0.5))
    session.hold("ctrl", lambda: session.click(reader.document.at(0.5, 0.5), button=5))
    wait(lambda: reader.frame().width < usual * 0.95, "smaller pages",
         seen=lambda: f"a frame of {reader.frame().width} pixels after {usual}")
    smaller = reader.frame().width
    session.click(reader.tool(FIT_PAGE))
    wait(lambda: reader.frame().width not in (smaller, usual), "a whole page",
         seen=lambda: f"a frame of {reader.frame().width} pixels still")
    session.keep("whole-page")
    session.press("ctrl+0")
    wait(lambda: abs(reader.frame().width - usual) < 2, "the usual size",
         seen=lambda: f"a frame of {reader.frame().width} pixels instead of {usual}")


@step("imports a PDF by the file dialog")
def import_dialog(stage):
    session, reader = stage.session, stage.reader
    shutil.copy(os.path.join(stage.corpus, "theora.pdf"), stage.home.path)
    reader.window.activate()
    reader.menu("f", "i")
    reader.answer_dialog("^Import PDF", "theora.pdf")
    session.wait_for_focus(reader.window)
    reader.menu("f", "s")
    files = session.wait_for("^Auxiliary Files|^Spec")
    session.wait_for_focus(files)
    session.settle(files.area)
    session.keep("specifications")
    session.press("ctrl+w")
    session.wait_until_gone(files)


@step("jumps to an entry of another document by the palette")
def palette(stage):
    session, reader = stage.session, stage.reader
    session.press("ctrl+k")
    session.type("frame layout")
    session.settle(reader.recent)
    session.keep("palette")
    session.press("Return")
    session.wait_for("^Theora Specification")
    reader.landed()
    reader.wait_for_entry("Section 2.1 Frame Layout")


@step("filters the outline and opens a row of it")
def outline(stage):
    session, reader = stage.session, stage.reader
    sidebar = reader.sidebar
    session.click((sidebar.left + 100, sidebar.top + 48))
    session.type("signedness")
    session.settle(sidebar.part(0, 0.1, 1, 1))
    session.keep("outline")
    session.click((sidebar.left + 70, sidebar.top + 100))
    text = reader.text_in(reader.landed())
    expect(text == "5.2.1 Signedness", "the heading to flash", f"“{text}”")


@step("cites entries in a form and saves it")
def cite(stage):
    session, reader = stage.session, stage.reader
    reader.menu("f", "n")
    stage.form = session.wait_for("^New Citations")
    session.wait_for_focus(stage.form)
    session.type("The pump stops.")
    session.press("Tab")
    session.type("2.1 Eigenvalue")
    session.settle(stage.form.area.part(0.4, 0.5, 1, 0.88))
    session.keep("token-completion")
    session.press("Down", "Return")
    session.type("Figure 3-3\n")
    wait(lambda: len(stage.tokens()) == 2, "two tokens", seen=stage.tokens)
    session.keep("tokens")
    session.press("ctrl+s")
    reader.answer_dialog("^Save Citations", "work")
    wait(lambda: stage.form.title.startswith("work.json"), "the form to be named after its file",
         seen=lambda: f"{stage.form}")
    references = stage.saved()
    expect(references == ["spec://2.1/slepc-users-manual/1", "Figure 3-3"],
           "the references in the file", references)


@step("drags a token behind another, and undoes it")
def drag_token(stage):
    session = stage.session
    first, second = stage.tokens()
    session.drag(first.at(0.3, 0.5), (second.left + second.width + 30, second.at(0, 0.5)[1]))
    wait(lambda: stage.form.title.startswith("work.json*"), "a change", seen=lambda: f"{stage.form}")
    session.keep("dragged-token")
    references = stage.saved()
    expect(references == ["Figure 3-3", "spec://2.1/slepc-users-manual/1"],
           "the references the other way round", references)
    session.press("ctrl+z")
    wait(lambda: stage.form.title.startswith("work.json*"), "a change", seen=lambda: f"{stage.form}")
    references = stage.saved()
    expect(references == ["spec://2.1/slepc-users-manual/1", "Figure 3-3"],
           "the references as they were", references)


@step("audits what is cited, and exports a report")
def audit(stage):
    session, reader = stage.session, stage.reader
    reader.menu("r", "a")
    table = session.wait_for("^Spec References")
    session.wait_for_rest()
    table.activate()
    session.settle(table.area.part(0, 0.15, 1, 1))
    session.keep("audit")
    session.click((table.area.left + table.area.width - 50, table.area.top + 22))
    reader.answer_dialog("^Export Audit", "audit.csv")
    path = stage.home.file("audit.csv")
    wait(lambda: os.path.exists(path), "a report in the file", seen=lambda: "no file")
    with open(path, encoding="utf-8-sig") as file:
        text = file.read()
    expect(text.startswith("status,") and "Eigenvalue Problems" in text, "a report", text[:80])
    session.wait_for_rest()
    table.activate()
    session.press("ctrl+w")
    session.wait_until_gone(table)


@step("marks in the document what is cited")
def coverage(stage):
    session, reader = stage.session, stage.reader
    stage.form.activate()
    reader.menu("r", "c")
    session.wait_for_focus(reader.window)
    wait(lambda: COVERED.share_of(session.picture(reader.document)) > 0.05, "marked text",
         seen=lambda: "none")
    session.settle(reader.document)
    session.keep("coverage")
    stage.places = session.picture(reader.recent)
    session.wait_for("^SLEPc Users Manual")


@step("asks before a form with changes closes, and keeps it on Cancel")
def close_form(stage):
    session = stage.session
    stage.form.activate()
    session.press("alt+p", "ctrl+End")
    session.type(" And restarts.")
    wait(lambda: "*" in stage.form.title, "a change", seen=lambda: f"{stage.form}")
    stage.form.close()
    sheet = session.wait_for("^Do you want to save")
    session.wait_for_focus(sheet)
    session.settle(sheet.area)
    session.keep("unsaved")
    session.press("Escape")
    session.wait_until_gone(sheet)
    expect(stage.form in session.windows(), "the form", session.windows())


@step("asks before it quits, and stays on Cancel")
def quit_and_cancel(stage):
    session, reader = stage.session, stage.reader
    reader.window.activate()
    session.press("ctrl+q")
    sheet = session.wait_for("^Do you want to save")
    session.wait_for_focus(sheet)
    session.keep("quit")
    session.press("Escape")
    session.wait_until_gone(sheet)
    windows = session.windows()
    expect(reader.window in windows and stage.form in windows, "both windows", windows)
    reader.expect_alive()


@step("quits without saving when told so")
def quit_and_discard(stage):
    session, reader = stage.session, stage.reader
    reader.window.close()
    sheet = session.wait_for("^Do you want to save")
    session.wait_for_focus(sheet)
    session.settle(sheet.area)
    area = sheet.area
    session.click((area.left + 90, area.top + area.height - 34))
    reader.wait_until_ended()
    with open(stage.home.file("work.json"), encoding="utf-8") as file:
        expect("restarts" not in file.read(), "the file as it was", "the change in it")


@step("is after a restart as it was, with what was imported")
def restart(stage):
    session, reader = stage.session, stage.reader
    reader.start()
    places = session.settle(reader.recent)
    session.keep("restarted")
    expect(not difference(places, stage.places), "the recent places of the last run",
           f"{difference(places, stage.places)} other pixels")
    reader.look_up("4.1\n")
    reader.landed()
    reader.wait_for_entry("Section 4.1 Mathematical Background")
    session.keep("reopened")
    reader.window.close()
    reader.wait_until_ended()
