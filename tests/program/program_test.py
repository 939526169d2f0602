"""The program itself on a real display, driven from outside by keys, clicks and signals."""

import itertools
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import wave
from signal import SIGHUP, SIGINT, SIGTERM
from unittest import mock
from urllib import parse

from outside import ABOUT, MAIN, MESSAGE, SOURCES, SUMS, Program, output, wait, xdo

NO_DISPLAY = "Impossibile avviare il programma: nessuno schermo raggiungibile.\n"
LOST_DISPLAY = "Lo schermo non risponde più: il programma termina.\n"


class ProgramTest(unittest.TestCase):
    def start(self, **arguments):
        program = Program(BINARY, **arguments)
        self.addCleanup(program.clean)
        return program

    def assert_ended(self, program, code=0, told=""):
        self.assertEqual(program.end(), (code, told, []))
        self.assertEqual([*program.home.rglob("*.htm")], [])

    def test_the_pin_keeps_the_window_above_without_moving_it(self):
        program = self.start()
        window = program.window()
        place = xdo("getwindowgeometry", window)
        above = lambda: "STATE_ABOVE" in output("xprop", "-id", window, "_NET_WM_STATE")
        for pinned in (True, False):
            time.sleep(0.5)  # else the two were a double click, which is one
            program.click("imgOnTop")
            wait(lambda: above() == pinned, f"a pin that is {pinned}")
            self.assertEqual(xdo("getwindowgeometry", window), place)

    def test_a_window_is_centred_with_its_frame_and_stays_in_reach(self):
        for scale in (1, 4):  # at 4 the screen is smaller than the window
            window = self.start(QT_SCALE_FACTOR=scale).window()
            with self.subTest(scale=scale):
                told = output("xwininfo", "-id", window)
                place = lambda name: int(re.search(rf"{name}:\s+(-?\d+)", told)[1])
                for side, size, screen in (("X", "Width", 1280), ("Y", "Height", 900)):
                    edge = place(f"Relative upper-left {side}")
                    room = screen - edge - place(size) - 1  # the far edge is 1 wide
                    self.assertAlmostEqual(place(f"Absolute upper-left {side}") - edge,
                                           max(0, room // 2), delta=scale)

    def test_a_second_starts_message_lies_above_a_pinned_window(self):
        first = self.start()
        first.click("imgOnTop")
        message = self.start(beside=first).window(MESSAGE)
        above = lambda: output("xprop", "-root", "_NET_CLIENT_LIST_STACKING").split()[-1]
        wait(lambda: int(above(), 16) == int(message), "the message above the window")

    def test_a_balloon_lets_the_mouse_through(self):
        program = self.start()
        program.hover("lblTotali_8")
        balloon = wait(lambda: program.windows(""), "the balloon")[0]
        program.hover("lblLabel_5")  # behind it
        self.assertNotIn(f"window:{balloon}", xdo("getmouselocation"))
        self.assertEqual(program.windows(""), [balloon])

    def test_the_desktops_date_settings_are_started(self):
        program = self.start()
        program.click("date icon")
        self.assertEqual(program.asked("date-settings"), "system datetime")

    def test_a_choice_sounds(self):
        program = self.start()
        program.click("optDataTime_1")
        with wave.open(str(SOURCES / "resources/sounds/202.wav")) as click:
            expected = click.readframes(click.getnframes())
        played = program.home / "played"
        wait(lambda: played.exists() and played.read_bytes() == expected, "the sound")

    def test_one_of_four_opens_and_a_killed_one_locks_nobody_out(self):
        for session in ({}, {"XDG_RUNTIME_DIR": None}):
            first = self.start(**session)
            programs = [first, *(self.start(beside=first, **session) for _ in range(3))]
            shown = lambda title: [program for program in programs if program.windows(title)]
            wait(lambda: len(shown(MAIN) + shown(MESSAGE)) == 4, "four windows")
            opened, = shown(MAIN)
            for program in shown(MESSAGE):
                program.press("Return", title=MESSAGE)
                self.assert_ended(program)
            opened.process.kill()
            opened.process.wait()
            self.start(beside=first, **session).window()

    def test_a_lost_display_is_told_and_leaves_no_page(self):
        server = self.enterContext(subprocess.Popen(
            ["Xvfb", "-noreset", "-displayfd", "1", "-screen", "0", "640x480x24"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True))
        self.addCleanup(server.kill)
        display = ":" + server.stdout.readline().strip()
        self.enterContext(mock.patch.dict(os.environ, DISPLAY=display))
        program = self.start()  # on a small screen without a window manager
        program.click("help icon")
        program.asked("xdg-open")
        server.kill()
        self.assert_ended(program, 1, LOST_DISPLAY)

    def test_without_a_display_it_says_so(self):
        for address in (None, ":987"):
            for session in ({}, {"XDG_RUNTIME_DIR": None}):
                self.assert_ended(self.start(DISPLAY=address, **session), 1, NO_DISPLAY)

    def test_it_works_and_ends_in_order_in_surroundings_of_all_kinds(self):
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        card, odd = folder / "card", folder / "1#%20"
        odd.mkdir(0o700)
        shutil.copy(output("fc-match", "-f%{file}", "Liberation Serif"), odd)
        os.mkfifo(card)  # sound that takes calls and never answers
        rows = {
            "unknown locale and zone": {"LC_ALL": "xx_YY", "TZ": "No/Where"},
            "mute sound": {"ALSA_CONFIG_PATH": card},
            "one font": {"fonts": f"<dir>{odd}</dir>"},
            "large": {"QT_SCALE_FACTOR": 2, "scale": 2},
            "odd folder": {"XDG_RUNTIME_DIR": odd},
            "full folder": {"before": 'trap "" XFSZ; ulimit -f 0'}}
        # Three windows and four ways to end, in changing pairs.
        windows = itertools.cycle(
            (("cmdCalcola", MESSAGE), ("about icon", ABOUT), ("sums icon", SUMS)))
        ways = itertools.cycle((SIGTERM, SIGINT, SIGHUP, None))
        for (name, row), (opener, title), way in zip(rows.items(), windows, ways):
            with self.subTest(name, window=title, way=way):
                program = self.start(**row)
                program.click("help icon")
                if "before" in row:
                    program.press("Return", title=MESSAGE)  # there was no place for the page
                    wait(lambda: not program.windows(MESSAGE), "the end of the message")
                else:
                    page = parse.unquote(program.asked("xdg-open").removeprefix("file://"))
                    self.assertEqual(pathlib.Path(page).stat().st_size, 7231)
                program.click("optDataTime_1", opener)
                program.window(title)
                program.process.send_signal(way) if way else program.close()
                self.assert_ended(program)


if __name__ == "__main__":
    BINARY = os.path.abspath(sys.argv.pop(1))
    unittest.main()
