# SPDX-License-Identifier: Apache-2.0
"""A virtual X display with a window manager: real keys and mouse events go in, windows, pixels and
the clipboard come out."""

import os
import re
import select
import subprocess
import time

from PIL import Image, ImageChops
from Xlib import X, XK, display
from Xlib.error import BadDrawable, BadMatch, BadWindow
from Xlib.ext import xtest
from Xlib.protocol import event

PATIENCE = 10.0
POLL = 0.02
STILL = 0.3

KEYS = {"ctrl": "Control_L", "shift": "Shift_L", "alt": "Alt_L", "-": "minus", "+": "plus"}


class Unmet(Exception):
    """Something was waited for in vain."""


def wait(condition, expected, patience=PATIENCE, seen=None):
    """What the condition gives as soon as that is true; None and False are waited out."""
    end = time.monotonic() + patience
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise Unmet(f"expected {expected}" + (f", saw {seen()}" if seen else ""))
        time.sleep(POLL)


class Area:
    """A rectangle of the screen."""

    def __init__(self, left, top, width, height):
        self.left, self.top, self.width, self.height = left, top, width, height

    def __repr__(self):
        return f"{self.width}×{self.height} at {self.left}, {self.top}"

    def at(self, x, y):
        """The point at shares of the width and height."""
        return self.left + round(self.width * x), self.top + round(self.height * y)

    def part(self, left, top, right, bottom):
        """The rectangle between shares of the width and height."""
        x, y = self.at(left, top)
        x2, y2 = self.at(right, bottom)
        return Area(x, y, x2 - x, y2 - y)


class Window:
    """A window that the window manager looks after."""

    def __init__(self, session, xid):
        self._session = session
        self._x = session.connection.create_resource_object("window", xid)
        self.xid = xid

    def __eq__(self, other):
        return isinstance(other, Window) and self.xid == other.xid

    def __repr__(self):
        return f"“{self.title}”"

    def _property(self, name):
        try:
            atom = self._session.atom(name)
            value = self._x.get_full_property(atom, X.AnyPropertyType)
        except BadWindow:
            return None
        return value.value if value else None

    @property
    def title(self):
        value = self._property("_NET_WM_NAME")
        return value.decode() if value else ""

    @property
    def area(self):
        """Without the window manager's frame."""
        try:
            size = self._x.get_geometry()
            place = self._x.translate_coords(self._session.root, 0, 0)
        except (BadDrawable, BadWindow):
            raise Unmet("expected a window, saw it gone") from None
        return Area(-place.x, -place.y, size.width, size.height)

    def activate(self):
        """As a task bar does it."""
        self._session.ask_manager(self._x, "_NET_ACTIVE_WINDOW", [2, X.CurrentTime, 0])
        self._session.wait_for_focus(self)

    def close(self):
        """As the button of its frame does it."""
        self._session.ask_manager(self._x, "_NET_CLOSE_WINDOW", [X.CurrentTime, 2])


class Session:
    """The display, from start to end; use it with `with`."""

    def __init__(self, folder, size=(1600, 1000)):
        self._folder = folder
        self._size = size
        self._processes = []
        self._pictures = 0

    def __enter__(self):
        try:
            self._start_server()
            self.start(["openbox", "--sm-disable"], "openbox")
            wait(lambda: self._root_property("_NET_SUPPORTING_WM_CHECK"), "a window manager")
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self._processes):
            if process.poll() is None:
                process.terminate()
        for process in reversed(self._processes):
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()

    def _start_server(self):
        ours, theirs = os.pipe()
        width, height = self._size
        with open(os.path.join(self._folder, "Xvfb.log"), "wb") as log:
            self._processes.append(subprocess.Popen(
                ["Xvfb", "-displayfd", str(theirs), "-screen", "0", f"{width}x{height}x24",
                 "-nolisten", "tcp", "-noreset"], pass_fds=[theirs], stdout=log, stderr=log))
        os.close(theirs)
        with open(ours, encoding="ascii") as told:
            ready, _, _ = select.select([told], [], [], PATIENCE)
            number = told.readline().strip() if ready else ""
        if not number:
            raise Unmet("expected Xvfb to start")
        self.name = f":{number}"
        self.connection = display.Display(self.name)
        self.root = self.connection.screen().root
        self._own = self.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)

    def start(self, command, name):
        """Starts a program on this display; it ends with the session."""
        environment = dict(os.environ, DISPLAY=self.name)
        with open(os.path.join(self._folder, f"{name}.log"), "ab") as log:
            process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL,
                                       stdout=log, stderr=log)
        self._processes.append(process)
        return process

    def atom(self, name):
        return self.connection.intern_atom(name)

    # Windows

    def _root_property(self, name):
        value = self.root.get_full_property(self.atom(name), X.AnyPropertyType)
        return list(value.value) if value else []

    def ask_manager(self, window, message, data):
        """Sends one of the messages that a window manager takes from pagers."""
        asked = event.ClientMessage(window=window, client_type=self.atom(message),
                                    data=(32, (data + [0] * 5)[:5]))
        self.root.send_event(asked, X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self.connection.flush()

    def windows(self):
        return [Window(self, xid) for xid in self._root_property("_NET_CLIENT_LIST_STACKING")]

    def active(self):
        ids = self._root_property("_NET_ACTIVE_WINDOW")
        return Window(self, ids[0]) if ids and ids[0] else None

    def find(self, title):
        """The uppermost window whose title matches a pattern, or None."""
        for window in reversed(self.windows()):
            if re.search(title, window.title):
                return window
        return None

    def wait_for(self, title, patience=PATIENCE):
        return wait(lambda: self.find(title), f"a window “{title}”", patience,
                    lambda: f"the windows {self.windows()}")

    def wait_until_gone(self, window):
        wait(lambda: window not in self.windows(), f"no window {window}",
             seen=lambda: f"the windows {self.windows()}")

    def wait_for_focus(self, window):
        wait(lambda: self.active() == window, f"{window} to be the active window",
             seen=lambda: f"{self.active()}")

    def wait_for_rest(self):
        """Until no window has come, gone, or been put before another for a while."""
        last, since = None, 0

        def rests():
            nonlocal last, since
            now = [window.xid for window in self.windows()], self.active()
            if now != last:
                last, since = now, time.monotonic()
            return time.monotonic() - since > STILL

        wait(rests, "the windows to come to rest")

    def popups(self):
        """Areas of menus and lists on top of all, the latest first."""
        areas = []
        for child in reversed(self.root.query_tree().children):
            try:
                attributes = child.get_attributes()
                size = child.get_geometry()
            except (BadDrawable, BadWindow):
                continue
            is_shown = attributes.map_state == X.IsViewable and attributes.override_redirect
            if is_shown and size.width > 20 and size.height > 10 and size.x >= 0:
                areas.append(Area(size.x, size.y, size.width, size.height))
        return areas

    # Keys

    def _code(self, symbol):
        codes = self.connection.keysym_to_keycodes(symbol)
        usable = sorted((index, code) for code, index in codes if index < 2)
        if not usable:
            raise ValueError(f"no key gives {symbol:#x}")
        index, code = usable[0]
        return code, index == 1

    def _fake(self, kind, detail):
        xtest.fake_input(self.connection, kind, detail)
        self.connection.sync()

    def press(self, *chords):
        """Chords such as "ctrl+shift+c" or "Return", one after the other."""
        for chord in chords:
            names = [KEYS.get(name, name) for name in re.findall(r"[^+]+|\+$", chord)]
            codes = []
            for name in names:
                code, shifted = self._code(XK.string_to_keysym(name))
                codes += [self._code(XK.XK_Shift_L)[0], code] if shifted else [code]
            for code in codes:
                self._fake(X.KeyPress, code)
            for code in reversed(codes):
                self._fake(X.KeyRelease, code)

    def hold(self, key, action):
        """Does something while a key is down."""
        code, _ = self._code(XK.string_to_keysym(KEYS.get(key, key)))
        self._fake(X.KeyPress, code)
        try:
            action()
        finally:
            self._fake(X.KeyRelease, code)

    def type(self, text):
        for letter in text:
            code, shifted = self._code(XK.XK_Return if letter == "\n" else ord(letter))
            shift = self._code(XK.XK_Shift_L)[0]
            if shifted:
                self._fake(X.KeyPress, shift)
            self._fake(X.KeyPress, code)
            self._fake(X.KeyRelease, code)
            if shifted:
                self._fake(X.KeyRelease, shift)

    # Mouse

    def move(self, point):
        xtest.fake_input(self.connection, X.MotionNotify, x=point[0], y=point[1])
        self.connection.sync()

    def click(self, point, button=1, times=1):
        """No faster than a hand clicks."""
        self.move(point)
        for _ in range(times):
            self._fake(X.ButtonPress, button)
            time.sleep(POLL)
            self._fake(X.ButtonRelease, button)
            time.sleep(POLL)

    def drag(self, start, end, steps=12, over=None):
        """Presses, moves in steps as a hand does, and lets go, once `over` is true."""
        self.move(start)
        self._fake(X.ButtonPress, 1)
        for step in range(1, steps + 1):
            self.move(tuple(round(a + (b - a) * step / steps) for a, b in zip(start, end)))
            time.sleep(POLL)
        try:
            if over:
                over()
        finally:
            self._fake(X.ButtonRelease, 1)

    # Pixels

    def picture(self, area=None):
        """What the screen shows now."""
        area = area or Area(0, 0, *self._size)
        left, top = max(area.left, 0), max(area.top, 0)
        width = min(area.left + area.width, self._size[0]) - left
        height = min(area.top + area.height, self._size[1]) - top
        try:
            raw = self.root.get_image(left, top, width, height, X.ZPixmap, 0xFFFFFFFF)
        except BadMatch:
            raise Unmet(f"expected {area} to be on the screen") from None
        return Image.frombytes("RGB", (width, height), raw.data, "raw", "BGRX")

    def keep(self, name, picture=None):
        """Leaves a picture in the folder, numbered in the order of taking."""
        self._pictures += 1
        path = os.path.join(self._folder, f"{self._pictures:02}-{name}.png")
        (picture or self.picture()).save(path)

    def settle(self, area=None, still=STILL, patience=PATIENCE):
        """The picture of an area that has stopped changing."""
        last = self.picture(area)
        since = time.monotonic()
        end = since + patience
        while time.monotonic() - since < still:
            time.sleep(POLL * 2)
            now = self.picture(area)
            if difference(last, now):
                last, since = now, time.monotonic()
            if time.monotonic() > end:
                raise Unmet(f"expected the pixels in {area} to settle within {patience:.0f} s")
        return last

    def wait_for_change(self, area, before, expected, patience=PATIENCE):
        """The settled picture of an area that differs from a former one."""
        wait(lambda: difference(before, self.picture(area)), expected, patience,
             lambda: "the same pixels as before")
        return self.settle(area)

    # Clipboard

    def clear_clipboard(self):
        """So that what is read next is what is copied next."""
        selection = self.atom("CLIPBOARD")
        self._own.set_selection_owner(selection, X.CurrentTime)
        self.connection.sync()
        # The server refuses another owner whose key was pressed in the same millisecond.
        time.sleep(POLL)

    def clipboard(self, target="UTF8_STRING"):
        """The text that another program has copied since clear_clipboard."""
        selection = self.atom("CLIPBOARD")

        def is_copied():
            owner = self.connection.get_selection_owner(selection)
            return owner != X.NONE and owner.id != self._own.id

        wait(is_copied, "something to be copied", seen=lambda: "an empty clipboard")
        self._own.convert_selection(selection, self.atom(target), self.atom("TAVRIN_TEST"),
                                    X.CurrentTime)

        def converted():
            while self.connection.pending_events():
                told = self.connection.next_event()
                if told.type == X.SelectionNotify:
                    return told
            return None

        if wait(converted, "the clipboard to be handed over").property == X.NONE:
            raise Unmet(f"expected the clipboard to hold {target}")
        value = self._own.get_full_property(self.atom("TAVRIN_TEST"), X.AnyPropertyType)
        return value.value.decode()


def difference(one, other):
    """How many pixels differ visibly between two pictures of one size."""
    if one.size != other.size:
        return one.size[0] * one.size[1]
    box = ImageChops.difference(one, other).getbbox()
    if not box:
        return 0
    changed = ImageChops.difference(one.crop(box), other.crop(box)).convert("L")
    return sum(changed.histogram()[9:])


class Colours:
    """A range of colours: the least and the greatest value of red, green and blue."""

    def __init__(self, red, green, blue):
        self._ranges = (red, green, blue)

    @classmethod
    def near(cls, colour, tolerance=14):
        return cls(*((value - tolerance, value + tolerance) for value in colour))

    def _mask(self, picture):
        """White where the picture is of these colours."""
        masks = [band.point([255 if least <= value <= most else 0 for value in range(256)])
                 for band, (least, most) in zip(picture.split(), self._ranges)]
        return ImageChops.multiply(masks[0], ImageChops.multiply(masks[1], masks[2]))

    def share_of(self, picture):
        return self._mask(picture).histogram()[255] / (picture.width * picture.height)

    def box_in(self, picture):
        """The box of all such pixels as left, top, right and bottom, or None."""
        return self._mask(picture).getbbox()

    def strips_in(self, picture, width, height):
        """The boxes of rows below one another that hold at least so many such pixels."""
        mask = self._mask(picture)
        rows = [mask.crop((0, row, mask.width, row + 1)).tobytes() for row in range(mask.height)]
        strips = []
        for top, row in enumerate(rows):
            if row.count(255) < width:
                continue
            left, right = row.find(255), row.rfind(255) + 1
            if strips and strips[-1][3] == top:
                before = strips.pop()
                left, right = min(left, before[0]), max(right, before[2])
                strips.append((left, before[1], right, top + 1))
            else:
                strips.append((left, top, right, top + 1))
        return [strip for strip in strips if strip[3] - strip[1] >= height]
