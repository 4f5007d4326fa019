# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Programs on an X display of their own, seen through the accessibility bus and used by real clicks and keys.

    with Desktop() as desktop:
        desktop.open(["build/dev/ui/orvel"])
        desktop.choose("File", "New Client")
        desktop.type_into("File name:", "new\\n")
        desktop.end()

Controls are known by their accessible names. Whatever is looked for is waited for. There can be one desktop in a
process, since its environment holds the addresses.
Needs the Debian packages xvfb, openbox, xdotool, dbus, at-spi2-core, python3-gi, gir1.2-atspi-2.0.
"""

import os
import subprocess
import tempfile
import time

PATIENCE = 20  # seconds
PATIENCE_AT_THE_START = 90


class Desktop:
    WINDOWS = ("frame", "dialog")  # roles

    def __init__(self):
        self.processes = []
        self.program = None

    def __enter__(self):
        self.home = tempfile.TemporaryDirectory()
        try:
            self._start()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        self.end()
        for process in reversed(self.processes):
            self._stop(process)
        self.home.cleanup()

    def open(self, command):
        """Starts the program that everything else is about, in place of the one before."""
        self.end()
        self.program = self._run(*command, stderr=subprocess.PIPE)

    def end(self):
        """Ends the program if it still runs."""
        if self.program is not None:
            self._stop(self.program)
            self.program = None

    def status(self):
        """Waits until the program ends by itself; its exit status."""
        return self.program.wait(PATIENCE)

    # --- What is there -----------------------------------------------------------------------------------

    def find(self, name, role=None, window=None):
        """The control of that accessible name that is shown, in the window of that title where one is given."""
        return self.wait_for(lambda: self._search(name, role, window), "%s %s" % (role or "control", name))

    def is_there(self, name, role=None):
        return self._search(name, role) is not None

    def wait_until_gone(self, name, role=None):
        self.wait_for(lambda: not self.is_there(name, role), "the end of " + name)

    def wait_for(self, condition, what):
        """Until the condition is true, as long as the program runs; what it was then."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            found = condition()
            if found:
                return found
            if self.program.poll() is not None:
                raise AssertionError("%s: the program ended: %s" % (what, self.program.stderr.read()))
            time.sleep(0.05)
        raise AssertionError("waited in vain for " + what)

    def wait_for_text(self, name):
        """Waits for a label of that text."""
        self.find(name, "label")

    def text_of(self, name):
        control = self.find(name, "text")
        return self.bus.Text.get_text(control, 0, -1)

    def colored_parts(self, name):
        """The parts of a text box that are not black: colour, as in "255,0,0", first position and the one behind."""
        control = self.find(name, "text")
        parts, position, end = [], 0, self.bus.Text.get_character_count(control)
        while position < end:
            attributes, first, position = self.bus.Text.get_attribute_run(control, position, False)
            if attributes.get("fg-color", "0,0,0") != "0,0,0":
                parts.append((attributes["fg-color"], first, position))
        return parts

    def place_of(self, title):
        """Left, top, width and height of a window's inside, once they stay the same."""
        def look():
            answer = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$", "getwindowgeometry",
                                     "--shell"], capture_output=True, text=True, check=False).stdout
            values = dict(line.split("=") for line in answer.splitlines())
            return tuple(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT")) if "X" in values else None
        places = [None]

        def stays():
            places.append(look())
            time.sleep(0.3)
            return places[-1] is not None and places[-1] == places[-2]
        self.wait_for(stays, title + " to stay where it is")
        return places[-1]

    # --- What is done ------------------------------------------------------------------------------------

    def press(self, name, role="push button", window=None):
        self._click(self.find(name, role, window))

    def choose(self, menu, item, window=None):
        """Opens a menu of the menu bar and clicks on an item."""
        self._click(self.find(menu, "menu item", window))
        self._click(self.find(item, "menu item", window))
        self.wait_for(lambda: not self.is_there(item, "menu item"), "the menu to close")

    def press_cell(self, row, column):
        """Clicks on a cell of the measurement grid that is in sight; rows are counted from 1, columns from 0."""
        self._click(self.find("Measurements", "table").get_accessible_at(row - 1, column))

    def select(self, name, number):
        """Chooses the entry of a combo box that is so many steps below the text it shows."""
        self._click(self.find(name, "text"))
        self.keys(*["Down"] * number)

    def type_into(self, name, text):
        """Replaces the text of a text box; "\\n" presses Return."""
        self._click(self.find(name, "text"))
        self.keys("ctrl+a")
        self.type(text)

    def wait_until_active(self, title):
        """Until the keys go to the window of that title."""
        def is_active():
            answer = subprocess.run(["xdotool", "getwindowfocus", "getwindowname"], capture_output=True, text=True,
                                    check=False)
            return answer.stdout.strip() == title
        self.wait_for(is_active, "the keys to go to " + title)

    def place(self, title, left, top, width, height):
        self._xdotool("search", "--onlyvisible", "--name", f"^{title}$", "windowmove", str(left), str(top), "windowsize",
                      str(width), str(height))

    def minimize(self, title):
        self._xdotool("search", "--onlyvisible", "--name", f"^{title}$", "windowminimize")

    def press_key_until(self, key, name, role):
        """Until the control of that name has the keys."""
        def has_keys():
            return self.find(name, role).get_state_set().contains(self.bus.StateType.FOCUSED)
        for _ in range(100):
            if has_keys():
                return
            self.keys(key)
            time.sleep(0.05)
        raise AssertionError("%s does not lead to %s" % (key, name))

    def type(self, text):
        self._xdotool("type", "--delay", "5", text.replace("\n", "\r"))

    def keys(self, *names, delay=20):
        self._xdotool("key", "--delay", str(delay), *names)

    # ------------------------------------------------------------------------------------------------------

    def _start(self):
        # Without -noreset the server starts anew when its last client leaves: the first look for the window manager
        # would throw a window manager out that is just coming in.
        os.environ.update(
            DISPLAY=":" + self._first_line_of("Xvfb", "-displayfd", "1", "-noreset", "-screen", "0", "1280x1024x24"),
            XDG_RUNTIME_DIR=self.home.name,
            HOME=self.home.name,
            QT_QPA_PLATFORM="xcb",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            GSETTINGS_BACKEND="memory",
        )
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._first_line_of(
            "dbus-daemon", "--session", "--nofork", "--print-address=1")
        self.processes.append(self._run("openbox"))
        self._wait_for_the_window_manager()
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi
        Atspi.init()
        self.bus = Atspi

    @staticmethod
    def _run(*command, **options):
        return subprocess.Popen(command, stdin=subprocess.DEVNULL, text=True,
                                **({"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL} | options))

    @staticmethod
    def _stop(process):
        if process.poll() is None:
            process.terminate()
            process.wait()
        for pipe in (process.stdout, process.stderr):
            if pipe is not None:
                pipe.close()

    def _first_line_of(self, *command):
        process = self._run(*command, stdout=subprocess.PIPE)
        self.processes.append(process)
        line = process.stdout.readline().strip()
        if not line:
            raise RuntimeError(command[0] + " does not start")
        return line

    @staticmethod
    def _wait_for_the_window_manager():
        end = time.monotonic() + PATIENCE_AT_THE_START
        while subprocess.run(["xdotool", "get_num_desktops"], capture_output=True, check=False).returncode != 0:
            if time.monotonic() > end:
                raise RuntimeError("the window manager does not start")
            time.sleep(0.05)

    def _xdotool(self, *arguments):
        subprocess.run(["xdotool", *arguments], check=True)

    def _click(self, control):
        area = self._place_that_stays(control)
        self._xdotool("mousemove", str(area.x + area.width // 2), str(area.y + area.height // 2), "click", "1")

    def _place_that_stays(self, control):
        """Where the control is, once the window manager has put its window there."""
        places = []

        def stays():
            area = self.bus.Component.get_extents(control, self.bus.CoordType.SCREEN)
            places.append((area.x, area.y, area.width, area.height))
            time.sleep(0.05)
            return len(places) > 2 and places[-1] == places[-2] == places[-3] and area
        return self.wait_for(stays, "a control to stay in its place")

    def _search(self, name, role, window=None):
        shown = self.bus.StateType.SHOWING
        place = self._application() if window is None else self._search(window, self.WINDOWS)
        roles = (role,) if isinstance(role, str) else role
        for control in self._controls(place):
            try:
                if (control.get_name() == name and (roles is None or control.get_role_name() in roles)
                        and control.get_state_set().contains(shown)):
                    return control
            except Exception:  # the control has gone meanwhile
                continue
        return None

    def _application(self):
        screen = self.bus.get_desktop(0)
        for i in range(screen.get_child_count()):
            application = screen.get_child_at_index(i)
            if application is not None and application.get_process_id() == self.program.pid:
                return application
        return None

    def _controls(self, control):
        if control is None:
            return
        yield control
        try:
            count = control.get_child_count()
        except Exception:  # it has gone meanwhile
            return
        for i in range(count):
            try:
                child = control.get_child_at_index(i)
            except Exception:
                continue
            yield from self._controls(child)
