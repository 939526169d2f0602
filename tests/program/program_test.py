"""The program itself on a real display, driven from outside by keys, clicks and signals."""

import itertools, os, pathlib, shutil, socket, subprocess, sys, tempfile, unittest
from signal import SIGHUP, SIGINT, SIGTERM
from unittest import mock
from urllib import parse

from outside import ABOUT, MAIN, MESSAGE, SUMS, Program, output, wait, xdo

# For each mode what is typed, and figures of the result with entries that hold the same.
TIMES = "optDataTime_0", {"txtTime_0": "235015000515"}, {"lblTotali_6": "txtTime_3", "lblTotali_7": "txtTime_2"}
DATES = ("optDataTime_2", {"txtData_0": "3112200403012005"},  # one day of each kind
         {f"lblTotali_{i}": "txtData_4" if i else "txtData_3" for i in range(6)})
MOMENTS = ("optDataTime_1", {"txtData_0": "2512200427122004", "txtTime_0": "000102004800"},
           {f"lblTotali_{i}": f"txtTime_{entry}" for i, entry in enumerate((2, 1, 0, 1, 1, 1, 4))})


class ProgramTest(unittest.TestCase):
    def start(self, **arguments):
        program = Program(BINARY, **arguments)
        self.addCleanup(program.clean)
        return program

    def calculate(self, program, mode):
        option, typed, results = mode
        program.click(option)
        for field, digits in typed.items():
            program.enter(field, digits)
        program.click("cmdCalcola")
        program.wait_until_alike(results)

    def assert_ended(self, program, code=0, told=""):
        self.assertEqual(program.end(), (code, told))
        self.assertEqual([*program.home.rglob("*.htm")], [])

    def test_modes_picked_day_pin_sums_and_date_settings(self):
        program = self.start()
        for mode in (TIMES, DATES, MOMENTS):
            self.calculate(program, mode)
        program.enter("txtData_1", "02200423022004")
        program.click("cmdNowData_0", "GIORNO_29")  # the Monday of February's last week
        program.wait_until_alike({f"txtData_{i}": f"txtData_{i + 3}" for i in range(3)})

        window = program.window()
        place = xdo("getwindowgeometry", window)
        for pinned in (True, False):
            program.click("imgOnTop")
            wait(lambda: (b"STATE_ABOVE" in output("xprop", "-id", window, "_NET_WM_STATE")) == pinned, "the pin")
            self.assertEqual(xdo("getwindowgeometry", window), place)

        program.click("sums icon")
        for added in ("235950", "010115"):
            program.enter("txtCalc_3", added, SUMS)
            program.click("cmdSommaOre", title=SUMS)
        program.enter("txtCalc_3", "010105", SUMS)
        program.wait_until_alike({f"txtCalc_{i}": f"txtCalc_{i + 3}" for i in range(3)}, SUMS)
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
        server = self.enterContext(subprocess.Popen(
            ["Xvfb", "-noreset", "-displayfd", "1", "-screen", "0", "640x480x24"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True))
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
        card, mute, odd = (folder / name for name in ("card", "mute", "1#%20"))
        odd.mkdir(0o700)
        shutil.copy(output("fc-match", "-f%{file}", "Liberation Serif"), bytes(odd))
        os.mkfifo(card)  # sound that takes calls and never answers
        self.enterContext(socket.create_server(str(mute), family=socket.AF_UNIX, backlog=50))
        rows = {
            "no bus": {"DBUS_SESSION_BUS_ADDRESS": "nonsense"}, "no locale": {"LC_ALL": "C"},
            "unknown locale": {"LC_ALL": "xx_YY"},
            "mute sound": {"PULSE_SERVER": f"unix:{mute}", "ALSA_CONFIG_PATH": card},
            "no time zone": {"TZ": "No/Where"}, "one font": {"fonts": f"<dir>{odd}</dir>"},
            "large": {"QT_SCALE_FACTOR": 2, "scale": 2}, "large letters": {"QT_FONT_DPI": 192, "scale": 2},
            "no folder": {"XDG_RUNTIME_DIR": None}, "unfit folder": {"XDG_RUNTIME_DIR": "/proc"},
            "odd folder": {"XDG_RUNTIME_DIR": odd}, "full folder": {"before": 'trap "" XFSZ; ulimit -f 0'}}
        # Three windows and four ways to end, in changing pairs.
        windows = itertools.cycle((("cmdCalcola", MESSAGE), ("about icon", ABOUT), ("sums icon", SUMS)))
        ways = itertools.cycle((SIGTERM, SIGINT, SIGHUP, None))
        for (name, row), (opener, title), way in zip(rows.items(), windows, ways):
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
