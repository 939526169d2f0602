"""The program as others see it: its windows, what it asks of the desktop, and how it ends."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time

SOURCES = pathlib.Path(__file__).parents[2]
PATIENCE = 60  # seconds, for a program under sanitizers on a busy machine
MAIN, MESSAGE = "Vellarno 2.0", "Vellarno"
SUMS, ABOUT = "Calcoli tra tempo e tra date", "Informazioni"


# Middles of what is hovered over and clicked at, in the main window.
PLACES = {
    "lblLabel_5": (445, 147), "lblTotali_8": (419, 195), "imgOnTop": (452, 255),
    "optDataTime_1": (188, 255), "cmdCalcola": (384, 255), "sums icon": (386, 299),
    "date icon": (411, 299), "help icon": (437, 299), "about icon": (463, 299)}


def output(*command):
    return subprocess.run(map(str, command), capture_output=True, timeout=PATIENCE).stdout.decode()


def xdo(*command):
    return output("xdotool", *command).split()


def wait(condition, what):
    """The first true value of the condition."""
    end = time.monotonic() + PATIENCE
    while not (value := condition()):
        assert time.monotonic() < end, f"waited in vain for {what}"
        time.sleep(0.02)
    return value


class Program:
    """One run, in a home of its own unless it shares that of another. The desktop's programs that
    it starts only note what they were asked for; what it plays is kept."""

    FONTS = "<include>/etc/fonts/fonts.conf</include>"
    SOUND_CARD = """pcm.!default {{ type file; file "{0}/played"; format raw; slave.pcm none }}
        pcm.none {{ type null }}"""

    def __init__(self, binary, beside=None, scale=1, fonts=FONTS, before=":", **environment):
        self.scale = scale
        self.home = beside.home if beside else pathlib.Path(tempfile.mkdtemp())
        for tool in ("xdg-open", "date-settings"):
            self.write(tool, f'#!/bin/sh\necho "{tool} $*" >>"$HOME/asked"\n').chmod(0o700)
        (self.home / "applications").mkdir(exist_ok=True)
        self.write("applications/gnome-datetime-panel.desktop",
                   "[Desktop Entry]\nExec=date-settings system datetime\n")
        variables = os.environ | dict.fromkeys(
            ("HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "TMPDIR"), self.home) | {
            "PATH": f"{self.home}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8",
            "FONTCONFIG_FILE": self.write("fonts", f"<fontconfig>{fonts}</fontconfig>"),
            "ALSA_CONFIG_PATH": self.write("sound", self.SOUND_CARD.format(self.home)),
            "CANBERRA_DRIVER": "alsa", "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.home}/none",
            "ASAN_OPTIONS": f"log_path={self.home}/report", "LSAN_OPTIONS": "exitcode=0",
        } | environment
        self.process = subprocess.Popen(
            ["sh", "-c", f'{before}; exec "$0"', binary], cwd=self.home, text=True,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
            env={name: str(value) for name, value in variables.items() if value is not None})

    def write(self, name, text):
        path = self.home / name
        if not path.exists():  # another run that shares the home may be reading it
            path.write_text(text)
        return path

    def asked(self, tool):
        """What the desktop's program was asked for, once it was."""
        note = self.home / "asked"
        asked = lambda: note.exists() and re.findall(f"^{tool} (.*)\n", note.read_text(), re.M)
        return wait(asked, tool)[0]

    def windows(self, title):
        return xdo("search", "--all", "--onlyvisible", "--pid", self.process.pid,
                   "--name", f"^{title}$")

    def window(self, title=MAIN):
        return wait(lambda: self.windows(title), f"the window {title!r}")[0]

    def hover(self, control):
        xdo("mousemove", "--window", self.window(), *(n * self.scale for n in PLACES[control]))

    def click(self, *controls):
        for control in controls:
            self.hover(control)
            xdo("click", 1)

    def press(self, *keys, title=MAIN):
        xdo("windowactivate", "--sync", self.window(title))
        xdo("key", "--delay", 8, *keys)

    def close(self):
        """Asks as the user does until the program is gone, boxes first."""
        gone = lambda: self.process.poll() is not None or xdo("key", "alt+F4")
        wait(gone, "the end of the program")

    def end(self):
        """How the program ended: exit code, what it wrote on the terminal, and what the sanitizers
        have against it. A leak counts where our own code is seen to have asked for the memory."""
        told = self.process.communicate(timeout=PATIENCE)[0]
        faults = [block for report in self.home.glob("report*")
                  for block in report.read_text().split("\n\n")
                  if (re.search(r"#\d.*(vellarno|Main\.cpp)", block) if "leak of" in block else
                      "ERROR" in block and "LeakSanitizer" not in block)]
        return self.process.returncode, told, faults

    def clean(self):
        self.process.kill()
        self.process.communicate()
        shutil.rmtree(self.home, ignore_errors=True)
