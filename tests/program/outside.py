"""The program as others see it: its windows, what its screen shows, and how it ends."""

import os, pathlib, re, shutil, subprocess, tempfile, time
from xml.etree import ElementTree

PATIENCE = 15  # seconds, for a program under sanitizers on a busy machine
MAIN, MESSAGE, SUMS, ABOUT = "Vellarno 2.0", "Vellarno", "Calcoli tra tempo e tra date", "Informazioni"


def places(widget, left=0, top=0):
    """Each control below a widget of a layout, with its left, top, width and height in the window."""
    for child in widget.findall("widget"):
        x, y, width, height = (int(side.text) for side in child.find("property[@name='geometry']/rect"))
        yield child.get("name"), (left + x, top + y, width, height)
        yield from places(child, left + x, top + y)


PLACES = {title: dict(places(ElementTree.parse(pathlib.Path(__file__).parents[2] / layout).find("widget")))
          for title, layout in ((MAIN, "mainwindow/frmMain.ui"), (SUMS, "minicalc/frmMiniCalc.ui"))}
PLACES[MAIN] |= {f"{name} icon": (x, 291, 20, 16)  # where the strip puts them
                 for name, x in (("sums", 376), ("date", 401), ("help", 427), ("about", 453))}


def output(*command):
    return subprocess.run(map(str, command), capture_output=True, timeout=PATIENCE).stdout


def xdo(*command):
    return output("xdotool", *command).decode().split()


def wait(condition, what):
    """The first true value of the condition."""
    end = time.monotonic() + PATIENCE
    while not (value := condition()):
        assert time.monotonic() < end, f"waited in vain for {what}"
        time.sleep(0.02)
    return value


class Program:
    """One run, in a home of its own unless it shares that of another. The desktop's programs that it
    starts only note what they were asked for."""

    def __init__(self, binary, beside=None, scale=1, fonts="<include>/etc/fonts/fonts.conf</include>", before=":",
                 **environment):
        self.scale = scale
        self.home = beside.home if beside else pathlib.Path(tempfile.mkdtemp())
        for tool in ("xdg-open", "gnome-control-center"):
            (self.home / tool).write_text(f'#!/bin/sh\necho "{tool} $*" >>"$HOME/asked"\n')
            (self.home / tool).chmod(0o700)
        (self.home / "leaks").write_text("leak:libfontconfig\nleak:libdbus-1\n")  # those libraries' own
        (self.home / "fonts").write_text(  # a figure looks the same wherever it stands
            f"""<fontconfig>{fonts}<match target="font"><edit name="antialias"><bool>false</bool></edit>
            <edit name="hintstyle"><const>hintfull</const></edit></match></fontconfig>""")
        variables = os.environ | dict.fromkeys(("HOME", "XDG_RUNTIME_DIR", "TMPDIR"), self.home) | {
            "PATH": f"{self.home}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8",
            "FONTCONFIG_FILE": self.home / "fonts", "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.home}/none",
            "LSAN_OPTIONS": f"suppressions={self.home}/leaks:print_suppressions=0"} | environment
        self.process = subprocess.Popen(
            ["sh", "-c", f'{before}; exec "$0"', binary], cwd=self.home, text=True, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, env={name: str(v) for name, v in variables.items() if v is not None})

    def asked(self, tool):
        """What the desktop's program was asked for, once it was."""
        note = self.home / "asked"
        return wait(lambda: note.exists() and re.findall(f"^{tool} (.*)\n", note.read_text(), re.M), tool)[0]

    def windows(self, title):
        return xdo("search", "--all", "--onlyvisible", "--pid", self.process.pid, "--name", f"^{title}$")

    def window(self, title=MAIN):
        return wait(lambda: self.windows(title), f"the window {title!r}")[0]

    def click(self, *controls, title=MAIN):
        for control in controls:
            left, top, width, height = (n * self.scale for n in PLACES[title][control])
            xdo("mousemove", "--window", self.window(title), left + min(width, height) // 2, top + height // 2,
                "click", 1)

    def press(self, *keys, title=MAIN):
        xdo("windowactivate", "--sync", self.window(title))
        xdo("key", "--delay", 8, *keys)

    def enter(self, field, digits, title=MAIN):
        self.click(field, title=title)
        self.press(*digits, title=title)

    def picture(self, control, title=MAIN):
        """The text inside a control's frame, cut close; false where there is none."""
        left, top, width, height = (n * self.scale for n in PLACES[title][control])
        frame = 3 * self.scale * control.startswith("lbl")
        cut = f"{width - 2 * frame}x{height - 2 * frame}+{left + frame}+{top + frame}"
        size, bits = output("import", "-silent", "-window", self.window(title), "-crop", cut, "+dither", "-monochrome",
                            "-trim", "pbm:-").split(b"\n", 2)[1:]
        return size != b"1 1" and (size, bits * (self.scale == 1))  # enlarged letters may stand between two pixels

    def wait_until_alike(self, pairs, title=MAIN):
        """A figure is read by its likeness to one that was typed."""
        for control, entry in pairs.items():
            wait(lambda: (seen := self.picture(control, title)) and seen == self.picture(entry, title), control)

    def close(self):
        """Asks as the user does until the program is gone, boxes first."""
        wait(lambda: self.process.poll() is not None or xdo("key", "alt+F4"), "the end of the program")

    def end(self):
        """How the program ended: its exit code and all that it wrote on the terminal."""
        told = self.process.communicate(timeout=PATIENCE)[0]
        return self.process.returncode, told

    def clean(self):
        self.process.kill()
        self.process.communicate()
        shutil.rmtree(self.home, ignore_errors=True)
