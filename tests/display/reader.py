# SPDX-License-Identifier: Apache-2.0
"""The reader as its user sees it: where things are in its window, and what one does with them."""

import os
import tempfile

from session import Area, Colours, Unmet, wait

# Qt's own style, with its own palette, and the colours that the document in use is printed in.
FRAME = Colours.near((48, 140, 198))
FLASH = Colours((183, 235), (214, 246), (233, 252))
DARK = Colours((0, 180), (0, 180), (0, 180))
HIT = Colours((220, 255), (150, 235), (0, 150))
COVERED = Colours((200, 240), (240, 255), (200, 240))
TOKEN = Colours.near((222, 237, 246), 4)
SUMMARY_LINK = Colours.near((0, 0, 255))
PAGE_LINK = Colours((130, 255), (0, 90), (100, 255))


class Home:
    """A user's directories, empty at first; gone at the end. Whatever programs are started by this
    process lives in them."""

    def __enter__(self):
        self._directory = tempfile.TemporaryDirectory(prefix="tavrin-display-")
        path = self.path = self._directory.name
        inherited = ("XDG_", "QT_", "WAYLAND_", "DBUS_", "LC_", "LANG", "SESSION_", "DESKTOP_")
        for name in list(os.environ):
            if name.startswith(inherited):
                del os.environ[name]
        os.environ.update(
            HOME=path, LC_ALL="C.UTF-8", QT_QPA_PLATFORM="xcb", XDG_RUNTIME_DIR=path,
            XDG_CONFIG_HOME=f"{path}/config", XDG_DATA_HOME=f"{path}/data",
            XDG_STATE_HOME=f"{path}/state", XDG_CACHE_HOME=f"{path}/cache")
        os.chmod(path, 0o700)
        os.chdir(path)
        return self

    def __exit__(self, *_):
        os.chdir("/")
        self._directory.cleanup()

    def file(self, name):
        return os.path.join(self.path, name)


class Reader:
    """The program, and its main window as the window is when nobody has resized it."""

    def __init__(self, session, program):
        self.session = session
        self._program = program
        self.process = None
        self.window = None

    def start(self, *arguments):
        self.process = self.session.start([self._program, *arguments], "reader")
        self.window = self.session.wait_for("Tavrin$")
        self.session.wait_for_focus(self.window)
        self.session.settle(self.document)

    def expect_alive(self):
        if self.process and self.process.poll() is not None:
            raise Unmet(f"expected the reader to run, saw it end with {self.process.returncode}")

    def wait_until_ended(self):
        wait(lambda: self.process.poll() is not None, "the reader to end",
             seen=lambda: f"the windows {self.session.windows()}")
        code = self.process.returncode
        self.process = None
        if code:
            raise Unmet(f"expected the reader to end well, saw {code}")

    # Where things are

    def _inside(self, left, top, right, bottom):
        """Between distances from the window's edges; right and bottom count from there."""
        area = self.window.area
        return Area(area.left + left, area.top + top,
                    area.width - left - right, area.height - top - bottom)

    @property
    def field(self):
        area = self._inside(8, 26, 0, 0)
        return Area(area.left, area.top, 313, 24)

    @property
    def summary(self):
        area = self._inside(9, 55, 0, 205)
        return Area(area.left, area.top, 290, area.height)

    @property
    def recent(self):
        area = self.window.area
        return Area(area.left + 10, area.top + area.height - 168, 310, 158)

    @property
    def sidebar(self):
        area = self._inside(338, 50, 0, 4)
        return Area(area.left, area.top, 266, area.height)

    @property
    def document(self):
        return self._inside(610, 50, 24, 4)

    def tool(self, x):
        """The middle of a button of the tool bar."""
        area = self.window.area
        return area.left + x, area.top + 34

    # What is seen

    def landed(self):
        """The area that flashes, once an entry has been landed at and the flash is over."""
        document = self.document

        def flashing():
            return FLASH.strips_in(self.session.picture(document), 20, 8)

        left, top, right, bottom = wait(flashing, "the landing place to flash",
                                        seen=lambda: "no flash")[0]
        wait(lambda: not flashing(), "the flash to fade")
        self.session.settle(document)
        return Area(document.left + left, document.top + top, right - left, bottom - top)

    def frame(self, picture=None):
        """The area of the frame round the entry; its first part, if it goes on to other pages."""
        document = self.document
        picture = picture or self.session.settle(document)
        box = FRAME.box_in(picture)
        if not box:
            raise Unmet("expected a frame round the entry, saw none")
        return Area(document.left + box[0], document.top + box[1], box[2] - box[0],
                    box[3] - box[1])

    # What is done

    def look_up(self, text):
        self.window.activate()
        self.session.click(self.field.at(0.3, 0.5))
        self.session.press("ctrl+a")
        self.session.type(text)

    def copied(self, *chords, target="UTF8_STRING"):
        """What a command copies."""
        self.session.clear_clipboard()
        self.session.press(*chords)
        return self.session.clipboard(target)

    def text_in(self, area):
        """The text in a line of the document, selected by dragging over it."""
        self.session.drag((area.left - 4, area.at(0, 0.5)[1]),
                          (area.left + area.width + 4, area.at(0, 0.5)[1]))
        self.session.settle(self.document)
        text = self.copied("ctrl+c")
        self.session.press("Escape")
        return text

    def copied_entry(self):
        return self.copied("ctrl+shift+c").split("\n")[0]

    def wait_for_entry(self, title):
        """Until the reader's command to copy the entry copies this one."""
        copied = [""]

        def is_there():
            copied[0] = self.copied_entry()
            return copied[0] == title

        wait(is_there, f"the entry “{title}”", seen=lambda: f"“{copied[0]}”")

    def menu(self, *keys):
        """Opens a menu of the active window by its key, then follows the keys of its items."""
        self.session.press(f"alt+{keys[0]}")
        for key in keys[1:]:
            wait(self.session.popups, "a menu")
            self.session.press(key)
        wait(lambda: not self.session.popups(), "the menu to close")

    def answer_dialog(self, title, name):
        """Types the name of a file in the home directory, where file dialogs begin, and confirms."""
        dialog = self.session.wait_for(title)
        self.session.wait_for_focus(dialog)
        self.session.settle(dialog.area.part(0.2, 0.2, 1, 0.8))
        self.session.type(name)
        self.session.settle(dialog.area.part(0.2, 0.2, 1, 0.8))
        self.session.keep("dialog")
        self.session.press("Return")
        self.session.wait_until_gone(dialog)
