"""The program itself on a real display, driven from outside by keys, clicks and signals."""

import ctypes, itertools, os, pathlib, shutil, socket, subprocess, sys, tempfile, unittest
from signal import SIGHUP, SIGINT, SIGTERM
from unittest import mock
from urllib import parse

from outside import ABOUT, MAIN, MESSAGE, SUMS, Program, output, wait, xdo

# For each mode what is typed, and figures of the result with entries that hold the same.
TIMES = "optDataTime_0", {"txtTime_0": "235015000515"}, "lblTotali_6 lblTotali_7", "txtTime_3 txtTime_2"
DATES = "optDataTime_2", {"txtData_0": "3112200403012005"}, *(  # one day of each kind
    " ".join(controls) for controls in zip(*((f"lblTotali_{i}", f"txtData_{4 if i else 3}") for i in range(6))))
MOMENTS = ("optDataTime_1", {"txtData_0": "2512200427122004", "txtTime_0": "000102004800"},
           " ".join(f"lblTotali_{i}" for i in range(7)), " ".join(f"txtTime_{i}" for i in (2, 1, 0, 1, 1, 1, 4)))


def hold_compositors_place(test):
    """Whoever owns this selection composes the screen."""
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    screen = ctypes.c_void_p(x11.XOpenDisplay(None))
    test.addCleanup(x11.XCloseDisplay, screen)
    selection = x11.XInternAtom(screen, b"_NET_WM_CM_S0", 0)
    x11.XSetSelectionOwner(screen, selection, x11.XDefaultRootWindow(screen), 0)
    x11.XSync(screen, 0)


class ProgramTest(unittest.TestCase):
    def start(self, **arguments):
        program = Program(BINARY, **arguments)
        self.addCleanup(program.clean)
        return program

    def calculate(self, program, mode):
        option, typed, results, models = mode
        program.click(option)
        for field, digits in typed.items():
            program.enter(field, digits)
        program.click("cmdCalcola")
        program.wait_until_alike(results, models)

    def assert_ended(self, program, code=0, told=""):
        self.assertEqual(program.end(), (code, told))
        self.assertEqual([*program.home.rglob("*.htm")], [])

    def test_modes_picked_day_pin_sums_and_date_settings(self):
        program = self.start()
        for mode in (TIMES, DATES, MOMENTS):
            self.calculate(program, mode)
        program.enter("txtData_1", "02200423022004")
        program.click("cmdNowData_0", "GIORNO_29")  # the Monday of February's last week
        program.wait_until_alike("txtData_0 txtData_1 txtData_2", "txtData_3 txtData_4 txtData_5")

        place = xdo("getwindowgeometry", program.window())
        for pinned in (True, False):
            program.click("imgOnTop")
            wait(lambda: ("_NET_WM_STATE_ABOVE" in program.properties()) == pinned, f"pinned: {pinned}")
            self.assertEqual(xdo("getwindowgeometry", program.window()), place)

        hold_compositors_place(self)
        program.click("sums icon")
        self.assertRegex(program.properties(SUMS), r"_NET_WM_WINDOW_OPACITY\(CARDINAL\) = (?!4294967295)")
        for added in ("235950", "010115"):
            program.enter("txtCalc_3", added, SUMS)
            program.click("cmdSommaOre", title=SUMS)
        program.enter("txtCalc_3", "010105", SUMS)
        program.wait_until_alike("txtCalc_0 txtCalc_1 txtCalc_2", "txtCalc_3 txtCalc_4 txtCalc_5", SUMS)
        program.click("date icon")
        self.assertEqual(program.asked("gnome-control-center"), "datetime")

    def test_one_of_four_opens_and_a_killed_one_locks_nobody_out(self):
        first = self.start()
        programs = [first, *(self.start(beside=first) for _ in range(3))]
        shown = lambda title: [program for program in programs if program.windows(title)]
        wait(lambda: len(shown(MAIN) + shown(MESSAGE)) == 4, "four windows")
        opened, = shown(MAIN)
        for program in shown(MESSAGE):
            program.press("Return", title=MESSAGE)
            self.assert_ended(program)
        opened.process.kill()
        opened.process.wait()
        self.start(beside=first).window()

    def test_small_screen_without_manager_that_goes_away(self):
        server = subprocess.Popen(["Xvfb", "-noreset", "-displayfd", "1", "-screen", "0", "640x480x24"],
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.addCleanup(server.communicate)
        self.addCleanup(server.kill)
        self.enterContext(mock.patch.dict(os.environ, DISPLAY=":" + server.stdout.readline().strip()))
        program = self.start()
        self.calculate(program, TIMES)
        program.click("help icon")
        program.asked("xdg-open")
        server.kill()
        self.assert_ended(program, 1, "Lo schermo non risponde più: il programma termina.\n")

    def test_no_display(self):
        for address in (None, ":987"):
            self.assert_ended(self.start(DISPLAY=address), 1,
                              "Impossibile avviare il programma: nessuno schermo raggiungibile.\n")

    def test_surroundings(self):
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        card, fonts, odd = (folder / name for name in ("card", "fonts", "1#%20"))
        os.mkfifo(card)
        fonts.mkdir()
        shutil.copy(output("fc-match", "-f%{file}", "Liberation Serif"), bytes(fonts))
        odd.mkdir(0o700)
        mute = self.enterContext(socket.socket(socket.AF_UNIX))  # takes calls and never answers
        mute.bind(f"{folder}/mute")
        mute.listen(50)
        rows = {
            "no bus": {"DBUS_SESSION_BUS_ADDRESS": "nonsense"},
            "mute sound": {"PULSE_SERVER": f"unix:{folder}/mute", "ALSA_CONFIG_PATH": card},
            "no locale": {"LC_ALL": "C"}, "no time zone": {"TZ": "No/Where"}, "one font": {"fonts": f"<dir>{fonts}</dir>"},
            "large": {"QT_SCALE_FACTOR": 2, "scale": 2}, "large letters": {"QT_FONT_DPI": 192, "scale": 2},
            "no folder": {"XDG_RUNTIME_DIR": None}, "unfit folder": {"XDG_RUNTIME_DIR": "/proc"},
            "odd folder": {"XDG_RUNTIME_DIR": odd}, "full folder": {"before": 'trap "" XFSZ; ulimit -f 0'}}
        # Three windows and four ways to end, in changing pairs.
        windows = itertools.cycle((("cmdCalcola", MESSAGE), ("about icon", ABOUT), ("sums icon", SUMS)))
        for (name, row), (opener, title), way in zip(
                rows.items(), windows, itertools.cycle((SIGTERM, SIGINT, SIGHUP, None))):
            with self.subTest(name, window=title, way=way):
                program = self.start(**row)
                self.calculate(program, TIMES)
                program.click("help icon")
                if "before" in row:
                    program.press("Return", title=MESSAGE)  # there was no place for the page
                    wait(lambda: not program.windows(MESSAGE), "the end of the message")
                else:
                    page = pathlib.Path(parse.unquote(program.asked("xdg-open").removeprefix("file://")))
                    self.assertEqual(page.stat().st_size, 7231)
                program.click("optDataTime_1", opener)
                program.window(title)
                program.process.send_signal(way) if way else program.close()
                self.assert_ended(program)


if __name__ == "__main__":
    BINARY = sys.argv.pop(1)
    unittest.main()
