"""The program as others see it: its windows, the figures on its screen, and how it ends."""

import contextlib
import ctypes
import itertools
import os
import pathlib
import re
import shutil
import socket
import subprocess
import tempfile
import time
import xml.etree.ElementTree

HERE = pathlib.Path(__file__).parent
PATIENCE = 15  # seconds, for a program under sanitizers on a busy machine
BINARY = ""

MAIN, MESSAGE = "Vellarno 2.0", "Vellarno"
SUMS, ABOUT = "Calcoli tra tempo e tra date", "Informazioni"


def places(layout):
    """Left, top, width and height in its window of every control of a layout."""
    found = {}

    def walk(widget, left, top):
        for child in widget.findall("widget"):
            sides = [int(side.text) for side in child.find("property[@name='geometry']/rect")]
            found[child.get("name")] = (left + sides[0], top + sides[1], *sides[2:])
            walk(child, left + sides[0], top + sides[1])
    walk(xml.etree.ElementTree.parse(HERE.parents[1] / layout).find("widget"), 0, 0)
    return found


PLACES = {MAIN: places("mainwindow/frmMain.ui"), SUMS: places("minicalc/frmMiniCalc.ui")}
# The strip gives its icons places of their own.
PLACES[MAIN] |= {f"{name} icon": (x, 291, 20, 16)
                 for name, x in (("sums", 376), ("date", 401), ("help", 427), ("about", 453))}
TIMES, DATES = ([f"{field}_{i}" for i in range(6)] for field in ("txtTime", "txtData"))
TOTALS = [f"lblTotali_{i}" for i in range(9)]


def output(*command):
    return subprocess.run(command, capture_output=True, timeout=PATIENCE).stdout


def xdo(*command):
    return output("xdotool", *map(str, command)).decode().split()


def state(window, name):
    return output("xprop", "-id", window, name).decode()


def wait(condition, what, patience=PATIENCE):
    """The first true value of the condition."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        if value := condition():
            return value
        time.sleep(0.03)
    raise AssertionError(f"waited in vain for {what}")


def plain_letters(folder, fonts="<include>/etc/fonts/fonts.conf</include>"):
    """A setting of the fonts under which a digit looks the same wherever it stands."""
    path = folder / "fonts.conf"
    path.write_text(f"""<fontconfig>{fonts}<match target="font">
        <edit name="antialias"><bool>false</bool></edit>
        <edit name="hintstyle"><const>hintfull</const></edit></match></fontconfig>""")
    return str(path)


class Program:
    """One run, with a home and a run-time folder of its own unless it shares those of another."""

    def __init__(self, beside=None, scale=1, **environment):
        self.scale = scale
        self.home = beside.home if beside else pathlib.Path(tempfile.mkdtemp())
        self.help_file = self.home / "vellarno" / "HelpVellarno.htm"
        self.tools = self.home / "tools"
        self.tools.mkdir(exist_ok=True)
        variables = os.environ | {
            "HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.home), "TMPDIR": str(self.home),
            "PATH": f"{self.tools}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8",
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.home}/no-bus",
            "FONTCONFIG_FILE": plain_letters(self.home),
            "LSAN_OPTIONS": f"suppressions={HERE}/lsan.supp:print_suppressions=0"} | environment
        self.errors = tempfile.TemporaryFile()
        self.process = subprocess.Popen(
            [BINARY], stdout=self.errors, stderr=self.errors, cwd=self.home,
            env={name: value for name, value in variables.items() if value is not None})

    def windows(self, title):
        return xdo("search", "--all", "--onlyvisible", "--pid", self.process.pid, "--name",
                   f"^{re.escape(title)}$")

    def window(self, title=MAIN):
        return wait(lambda: self.windows(title), f"the window {title!r}")[0]

    def focus(self, title=MAIN):
        managed = xdo("get_desktop")
        xdo("windowactivate" if managed else "windowfocus", "--sync", self.window(title))

    def click(self, control, title=MAIN):
        left, top, width, height = (n * self.scale for n in PLACES[title][control])
        xdo("mousemove", "--window", self.window(title), left + min(width, height) // 2,
            top + height // 2, "click", 1)

    def type(self, digits, title=MAIN):
        self.focus(title)
        xdo("type", "--delay", 8, digits)

    def enter(self, fields, digits):
        """Types into the segments that begin with the first of these."""
        self.click(fields[0])
        self.type(digits)

    def difference(self, expected):
        """Lets the program take 12:34:56 from 07:08:09 and reads the totals. The entry, which holds
        every digit, tells what a digit looks like here."""
        self.enter(TIMES, "123456070809")
        xdo("key", "Tab", "Return")
        wait(self.learn_digits, "twelve digits")
        return self.read(TOTALS[6:], expected)

    def learn_digits(self):
        shapes = [shape for entry in self.shapes(TIMES, MAIN) for shape in entry]
        self.digits = dict(zip(shapes, "123456070809"))
        return len(shapes) == 12

    def read(self, controls, expected, title=MAIN):
        """What the controls show, as soon as that is the expected or will not become it."""
        # Enlarged letters may stand between two pixels: their edges give way by one.
        blur = range(1 - self.scale, self.scale)

        def beyond(shape, other):
            return len(shape - {(x + dx, y + dy) for x, y in other for dx in blur for dy in blur})

        def text(shape):
            if max(y for _, y in shape) < 2 * self.scale:
                return "."
            nearest = min(self.digits, key=lambda one: beyond(shape, one) + beyond(one, shape))
            return self.digits[nearest]

        xdo("mousemove", 0, 0)
        end = time.monotonic() + 3
        while True:
            found = ["".join(map(text, shapes)) for shapes in self.shapes(controls, title)]
            if found == expected or time.monotonic() > end:
                return found

    def shapes(self, controls, title):
        """The separate shapes in each control from left to right, as the cells that are inked,
        counted from the shape's left and the line's lower edge."""
        window = self.window(title)
        window_width = int(xdo("getwindowgeometry", "--shell", window)[3].removeprefix("WIDTH="))
        rgb = output("import", "-silent", "-window", window, "-depth", "8", "rgb:-")

        def inside(control):
            frame = 3 if control.startswith("lbl") else 0
            left, top, width, height = PLACES[title][control]
            columns = [  # Green tells black and pure red from white alike.
                [rgb[3 * (y * window_width + x) + 1]
                 for y in range((top + frame) * self.scale, (top + height - frame) * self.scale)]
                for x in range((left + frame) * self.scale, (left + width - frame) * self.scale)]
            light, dark = max(map(max, columns)), min(map(min, columns))
            ink = [{y for y, value in enumerate(column) if 2 * value < light + dark}
                   for column in columns]
            if light - dark < 100 or not any(ink):
                return []
            lower = max(set.union(*ink))
            return [frozenset((x, lower - y) for x, column in enumerate(run) for y in column)
                    for inked, run in itertools.groupby(ink, bool) if inked]
        return list(map(inside, controls))

    def close(self):
        """Asks as the user does until the program is gone, boxes first."""
        def gone():
            with contextlib.suppress(subprocess.TimeoutExpired):
                return [self.process.wait(0.3)]
            if windows := self.windows(MAIN):
                xdo("windowactivate", windows[0], "key", "alt+F4")
        wait(gone, "the end of the program")

    def end(self):
        """How the program ended: its exit code and all that it wrote on the terminal."""
        code = self.process.wait(PATIENCE)
        self.errors.seek(0)
        return code, self.errors.read().decode()

    def clean(self):
        self.process.kill()
        self.process.wait()
        self.errors.close()
        shutil.rmtree(self.home, ignore_errors=True)


@contextlib.contextmanager
def display(size):
    """A bare X server without a window manager; gives its process."""
    reading, writing = os.pipe()
    command = ["Xvfb", "-noreset", "-displayfd", str(writing), "-screen", "0", size]
    server = subprocess.Popen(command, pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.close(writing)
    with open(reading) as number:
        usual, os.environ["DISPLAY"] = os.environ["DISPLAY"], f":{number.readline().strip()}"
    try:
        yield server
    finally:
        os.environ["DISPLAY"] = usual
        server.kill()
        server.wait()


@contextlib.contextmanager
def compositor():
    """Holds the selection by which programs know that translucency can be shown."""
    x11 = ctypes.CDLL("libX11.so.6")
    number = ctypes.c_ulong
    for function in (x11.XOpenDisplay, x11.XInternAtom, x11.XDefaultRootWindow,
                     x11.XCreateSimpleWindow):
        function.restype = number
    screen = number(x11.XOpenDisplay(None))
    owner = number(x11.XCreateSimpleWindow(screen, number(x11.XDefaultRootWindow(screen)),
                                           0, 0, 1, 1, 0, number(0), number(0)))
    selection = number(x11.XInternAtom(screen, b"_NET_WM_CM_S0", 0))
    x11.XSetSelectionOwner(screen, selection, owner, number(0))
    x11.XSync(screen, 0)
    yield
    x11.XCloseDisplay(screen)


@contextlib.contextmanager
def mute_server(path):
    """A service that takes calls and never answers."""
    with socket.socket(socket.AF_UNIX) as server:
        server.bind(str(path))
        server.listen(50)
        yield f"unix:{path}"
