"""The program itself on a real display, driven from outside by keys, clicks and signals."""

import contextlib, ctypes, itertools, os, pathlib, shutil, socket, subprocess, sys, tempfile, unittest
from signal import SIGHUP, SIGINT, SIGTERM
from unittest import mock
from urllib import parse

from outside import ABOUT, DATES, MAIN, MESSAGE, SUMS, TIMES, TOTALS, Program, output, state, wait, xdo

# Stands before the C library.
STILL_CLOCK = b"""#include <stdlib.h>
long time(long* to) { long now = atol(getenv("NOW")); return to ? *to = now : now; }"""
FULL_DISK = 'trap "" XFSZ; ulimit -f 0'


class ProgramTest(unittest.TestCase):
    def start(self, **arguments):
        program = Program(BINARY, **arguments)
        self.addCleanup(program.clean)
        return program

    def assert_shows(self, program, controls, expected, title=MAIN):
        with contextlib.suppress(AssertionError):
            wait(lambda: program.read(controls, title) == expected, expected, 3)
        self.assertEqual(program.read(controls, title), expected)

    def assert_calculates(self, program):
        program.difference()
        self.assert_shows(program, TOTALS[6:], "18 1.113 66.793")  # to that time of the next day

    def assert_ended(self, program, code=0, lines=0):
        ended, told = program.end()
        self.assertEqual((ended, len(told.splitlines()) <= lines), (code, True), told)
        self.assertEqual([*program.home.rglob("*.htm")], [])

    def test_modes_picked_day_sums_and_date_settings(self):
        program = self.start()
        self.assert_calculates(program)
        program.click("optDataTime_2")
        program.enter("txtData_0", "0101200531122005")
        program.click("cmdCalcola")
        self.assert_shows(program, TOTALS[:6], "364 52 303 52 52 09")
        program.click("optDataTime_1")
        program.enter("txtData_0", "0101200531122005")
        program.enter("txtTime_0", "081530104540")
        program.click("cmdCalcola")
        self.assert_shows(program, TOTALS, "364 52 303 52 52 09 8.738 524.310 31.458.610")

        program.enter("txtData_1", "022004")
        program.click("cmdNowData_0", "GIORNO_29")  # the Monday of February's last week
        self.assert_shows(program, DATES[:3], "23 02 2004")
        program.click("sums icon")
        for added, expected in (("235950", "23 59 50"), ("010115", "01 01 05")):
            program.press(*added, title=SUMS)
            program.click("cmdSommaOre", title=SUMS)
            self.assert_shows(program, [f"txtCalc_{i}" for i in range(3)], expected, SUMS)
        program.click("date icon")
        self.assertEqual(program.asked("gnome-control-center"), "datetime")

    def test_pin_moves_and_hides_nothing(self):
        program = self.start()
        window = program.window()
        program.press("Tab")
        place = xdo("getwindowgeometry", window)
        watch = subprocess.Popen(["xprop", "-spy", "-id", window, "WM_STATE"], text=True, stdout=subprocess.PIPE)
        for pinned in (True, False):
            program.click("imgOnTop")
            wait(lambda: ("ABOVE" in state(window, "_NET_WM_STATE")) == pinned, f"pinned: {pinned}")
            self.assertEqual(xdo("getwindowgeometry", window), place)
        watch.kill()
        self.assertEqual(watch.communicate()[0].count("window state"), 1)  # hidden, it would change

    def test_one_of_four_opens_and_a_killed_one_locks_nobody_out(self):
        first = self.start()
        programs = [first, *(self.start(beside=first) for _ in range(3))]
        shown = lambda title: [program for program in programs if program.windows(title)]
        wait(lambda: len(shown(MAIN) + shown(MESSAGE)) == 4, "four windows")
        opened, refused = shown(MAIN), shown(MESSAGE)
        self.assertEqual(len(opened), 1)
        for program in refused:
            program.dismiss()
            self.assert_ended(program)
        opened[0].process.kill()
        opened[0].process.wait()
        self.start(beside=first).window()

    def test_fades_where_that_can_be_seen(self):
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        screen = ctypes.c_void_p(x11.XOpenDisplay(None))
        self.addCleanup(x11.XCloseDisplay, screen)
        for translucent in (False, True):
            program = self.start()
            program.click("sums icon")
            opacity = state(program.window(SUMS), "_NET_WM_WINDOW_OPACITY").split()[-1]
            self.assertEqual(opacity.isdigit() and int(opacity) < 0xFFFFFFFF, translucent)
            program.process.terminate()  # in the midst of the fade
            self.assert_ended(program)
            x11.XSetSelectionOwner(screen, x11.XInternAtom(screen, b"_NET_WM_CM_S0", 0),
                                   x11.XDefaultRootWindow(screen), 0)  # as a compositor does
            x11.XSync(screen, 0)

    def test_small_screen_without_manager_that_goes_away(self):
        server = subprocess.Popen(["Xvfb", "-noreset", "-displayfd", "1", "-screen", "0", "640x480x24"],
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.addCleanup(server.communicate)
        self.addCleanup(server.kill)
        self.enterContext(mock.patch.dict(os.environ, DISPLAY=":" + server.stdout.readline().strip()))
        program = self.start()
        self.assert_calculates(program)
        program.click("help icon")
        program.asked("xdg-open")
        server.kill()
        self.assert_ended(program, code=1, lines=1)

    def test_no_display(self):
        for address in (None, "", ":987", "nowhere.invalid:0"):
            with self.subTest(address=address):
                self.assertEqual(self.start(DISPLAY=address).end(), (
                    1, "Impossibile avviare il programma: nessuno schermo raggiungibile.\n"))

    def test_surroundings(self):
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        card, clock, fonts, own, victim = (folder / name for name in ("card", "clock", "fonts", "vellarno", "victim"))
        os.mkfifo(card)
        subprocess.run(["cc", "-shared", "-fPIC", "-xc", "-", "-o", clock], input=STILL_CLOCK, check=True)
        fonts.mkdir()
        shutil.copy(output("fc-match", "-f%{file}", "Liberation Serif"), bytes(fonts))
        own.mkdir(0o700)
        (folder / "1#%20").mkdir(0o700)
        (own / "HelpVellarno.htm").symlink_to(victim)
        mute = self.enterContext(socket.socket(socket.AF_UNIX))  # takes calls and never answers
        mute.bind(f"{folder}/mute")
        mute.listen(50)

        def at(now, zone, shown):
            return {"NOW": now, "TZ": zone, "shown": shown, "LD_PRELOAD": clock,
                    "ASAN_OPTIONS": "verify_asan_link_order=0"}
        rows = {
            "no bus": {"DBUS_SESSION_BUS_ADDRESS": "nonsense"},
            "mute sound": {"PULSE_SERVER": f"unix:{folder}/mute", "ALSA_CONFIG_PATH": card},
            "no locale": {"LC_ALL": "C"}, "unknown locale": {"LC_ALL": "xx_YY", "lines": 1},
            "no time zone": {"TZ": "No/Where"}, "one font": {"fonts": f"<dir>{fonts}</dir>"},
            "no folder": {"XDG_RUNTIME_DIR": None, "lines": 1},
            "unfit folder": {"XDG_RUNTIME_DIR": "/proc", "lines": 1},
            "odd folder": {"XDG_RUNTIME_DIR": folder / "1#%20"},
            "full folder": {"before": FULL_DISK, "help": False},
            "link in the help's place": {"XDG_RUNTIME_DIR": folder, "help": False},
            "1970": at(5, "UTC", "12 01 1970 00 00 05"),
            "2150": at(5_680_326_896, "UTC", "12 01  12 34 56"),  # a year that the entry refuses
            "after a day left out": at(1_325_239_201, "Pacific/Apia", "12 12 2011 00 00 01"),
            "half an hour left out": at(1_286_033_400, "Australia/Lord_Howe", "11 10 2010 02 30 00"),
            "large letters": {"QT_FONT_DPI": 192, "scale": 2}, "large": {"QT_SCALE_FACTOR": 2, "scale": 2}}
        # Three windows and four ways to end: among a dozen rows each pair comes up.
        windows = itertools.cycle((("cmdCalcola", MESSAGE), ("about icon", ABOUT), ("sums icon", SUMS)))
        for (name, row), (opener, title), way in zip(
                rows.items(), windows, itertools.cycle((SIGTERM, SIGINT, SIGHUP, None))):
            with self.subTest(name, window=title, way=way):
                shown, lines, helps = (row.pop(*pair) for pair in (("shown", ""), ("lines", 0), ("help", True)))
                program = self.start(**row)
                self.assert_calculates(program)
                program.click("optDataTime_1")
                if shown:
                    program.click("cmdNowTime_0", "cmdNowData_0", "GIORNO_15")
                    self.assert_shows(program, DATES[:3] + TIMES[:3], shown)
                program.click("help icon")
                if helps:
                    page = pathlib.Path(parse.unquote(program.asked("xdg-open").removeprefix("file://")))
                    self.assertEqual(page.stat().st_size, 7231)
                else:
                    program.dismiss()
                program.click(opener)
                program.window(title)
                program.process.send_signal(way) if way else program.close()
                self.assert_ended(program, lines=lines)
        self.assertFalse(victim.exists())


if __name__ == "__main__":
    BINARY = sys.argv.pop(1)
    unittest.main()
