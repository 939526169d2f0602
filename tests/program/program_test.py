"""The program itself on a real display, driven from outside by keys, clicks and signals."""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import outside
from outside import ABOUT, DATES, MAIN, MESSAGE, SUMS, TIMES, TOTALS, Program, state, wait, xdo


class ProgramTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def start(self, **arguments):
        program = Program(**arguments)
        self.addCleanup(program.clean)
        return program

    def assert_calculates(self, program):
        expected = ["18", "1.113", "66.793"]  # to the same clock time of the next day
        self.assertEqual(program.difference(expected), expected)

    def assert_shown(self, program, controls, expected, title=MAIN):
        self.assertEqual(program.read(controls, expected, title), expected)

    def assert_ended(self, program, code=0, lines=0):
        ended, told = program.end()
        self.assertEqual((ended, len(told.splitlines()) <= lines), (code, True), told)


class Calculations(ProgramTest):
    def test_each_mode_picked_day_and_sum(self):
        program = self.start()
        self.assert_calculates(program)

        program.click("optDataTime_2")
        program.enter(DATES, "0101200531122005")
        program.click("cmdCalcola")
        year_2005 = ["364", "52", "303", "52", "52", "09"]
        self.assert_shown(program, TOTALS[:6], year_2005)

        program.click("optDataTime_1")
        for fields, digits in ((DATES, "01012005"), (DATES[3:], "31122005"),
                               (TIMES, "081530"), (TIMES[3:], "104540")):
            program.enter(fields, digits)
        program.click("cmdCalcola")
        self.assert_shown(program, TOTALS, year_2005 + ["8.738", "524.310", "31.458.610"])

        program.enter(DATES[1:], "022004")
        program.click("cmdNowData_0")
        program.click("GIORNO_29")  # the Monday of February's last week
        self.assert_shown(program, DATES[:3], ["23", "02", "2004"])

        program.click("sums icon")
        for added, expected in (("235950", ["23", "59", "50"]), ("010115", ["01", "01", "05"])):
            program.type(added, SUMS)
            program.click("cmdSommaOre", SUMS)
            self.assert_shown(program, [f"txtCalc_{i}" for i in range(3)], expected, SUMS)
        program.close()
        self.assert_ended(program)

    def test_pin_moves_and_hides_nothing(self):
        program = self.start()
        program.focus()
        window = program.window()
        place = xdo("getwindowgeometry", window)
        watch = subprocess.Popen(["xprop", "-spy", "-id", window, "WM_STATE"], text=True,
                                 stdout=subprocess.PIPE)
        for pinned in (True, False):
            program.click("imgOnTop")
            wait(lambda: ("ABOVE" in state(window, "_NET_WM_STATE")) == pinned, f"pinned: {pinned}")
            self.assertEqual(xdo("getwindowgeometry", window), place)
        watch.kill()
        self.assertEqual(watch.communicate()[0].count("window state"), 1)  # hidden, it would change


class Instances(ProgramTest):
    def test_second_is_refused_with_a_message(self):
        first = self.start()
        first.window()
        second = self.start(beside=first)
        second.focus(MESSAGE)
        self.assertEqual(second.windows(MAIN), [])
        xdo("key", "Return")
        self.assert_ended(second)
        self.assert_calculates(first)

    def test_killed_one_locks_nobody_out(self):
        first = self.start()
        first.window()
        first.process.kill()
        first.process.wait()
        self.start(beside=first).window()

    def test_one_of_twenty_opens(self):
        programs = [self.start()]
        programs += [self.start(beside=programs[0]) for _ in range(19)]

        def shown():
            windows = [(len(p.windows(MAIN)), len(p.windows(MESSAGE))) for p in programs]
            return all(map(any, windows)) and windows
        self.assertEqual([*map(sum, zip(*wait(shown, "twenty windows", 60)))], [1, 19])


class Endings(ProgramTest):
    def start_with_help(self):
        program = self.start()
        (program.tools / "xdg-open").symlink_to("/bin/true")
        program.click("help icon")
        wait(program.help_file.exists, "the help file")
        return program

    def assert_ended_tidily(self, program, **how):
        self.assert_ended(program, **how)
        self.assertFalse(program.help_file.exists())

    def test_every_state_by_every_way(self):
        states = {MAIN: "picOption", ABOUT: "about icon", SUMS: "sums icon", MESSAGE: "cmdCalcola"}
        cases = [(opened, way) for opened in states for way in ("closed", "SIGTERM")]
        for opened, way in cases + [(MAIN, "SIGINT"), (MAIN, "SIGHUP")]:
            with self.subTest(opened=opened, way=way):
                program = self.start_with_help()
                program.click(states[opened])
                program.window(opened)
                if way == "closed":
                    program.close()
                else:
                    program.process.send_signal(signal.Signals[way])
                self.assert_ended_tidily(program)

    def test_fade(self):
        with outside.compositor():
            for way in (Program.close, lambda program: program.process.terminate()):
                program = self.start()
                program.click("sums icon")
                opacity = state(program.window(SUMS), "_NET_WM_WINDOW_OPACITY")
                self.assertLess(int(re.search(r"= (\d+)", opacity)[1]), 0xFFFFFFFF)
                way(program)
                self.assert_ended(program)

    def test_without_manager_on_a_small_screen_that_goes_away(self):
        with outside.display("640x480x24") as server:
            program = self.start_with_help()
            self.assert_calculates(program)
            server.kill()
            self.assert_ended_tidily(program, code=1, lines=1)

    def test_no_display(self):
        for address in (None, "", ":987", "nowhere.invalid:0"):
            with self.subTest(address=address):
                self.assertEqual(self.start(DISPLAY=address).end(), (
                    1, "Impossibile avviare il programma: nessuno schermo raggiungibile.\n"))


class OtherPrograms(ProgramTest):
    def test_help_and_settings(self):
        program = self.start()
        noted = self.folder / "noted"
        for icon, tool, script, expected in (
                ("help icon", "xdg-open",
                 'f=${1#file://}; stat -c "%s %a" $f; stat -c %a ${f%/*}; echo $f',
                 f"7231 600\n700\n{program.help_file}\n"),
                ("date icon", "gnome-control-center", "echo $*", "datetime\n")):
            with self.subTest(tool):
                path = program.tools / tool
                path.write_text(f"#!/bin/sh\n({script}) >{noted}.part; mv {noted}.part {noted}\n")
                path.chmod(0o700)
                program.click(icon)
                wait(noted.exists, tool)
                self.assertEqual(noted.read_text(), expected)
                noted.unlink()

    def test_link_in_the_help_files_place(self):
        program = self.start()
        program.window()
        victim = self.folder / "victim"
        victim.write_text("mine")
        program.help_file.symlink_to(victim)
        program.click("help icon")
        program.window(MESSAGE)
        program.close()
        self.assert_ended(program)
        self.assertEqual((victim.read_text(), program.help_file.is_symlink()), ("mine", True))


class Surroundings(ProgramTest):
    def test_calculates_and_ends_in_all(self):
        (self.folder / "fonts").mkdir()
        shutil.copy(outside.output("fc-match", "-f%{file}", "Liberation Serif"),
                    bytes(self.folder / "fonts"))
        one_font = outside.plain_letters(self.folder, f"<dir>{self.folder}/fonts</dir>")
        for lines, scale, name, value in (
                (0, 1, "DBUS_SESSION_BUS_ADDRESS", "nonsense"),
                (1, 1, "LC_ALL", "xx_YY"), (0, 1, "LC_ALL", "C"),
                (0, 1, "TZ", "Pacific/Apia"), (0, 1, "TZ", "No/Where"),
                (0, 1, "XDG_RUNTIME_DIR", None), (0, 1, "XDG_RUNTIME_DIR", "/proc"),
                (0, 1, "FONTCONFIG_FILE", one_font), (0, 2, "QT_FONT_DPI", "192"),
                (0, 2, "QT_SCALE_FACTOR", "2")):
            with self.subTest(f"{name}={value}"):
                program = self.start(scale=scale, **{name: value})
                self.assert_calculates(program)
                program.process.terminate()
                self.assert_ended(program, lines=lines)

    def test_sound_services_that_never_answer(self):
        os.mkfifo(self.folder / "card")
        with outside.mute_server(self.folder / "server") as server:
            program = self.start(PULSE_SERVER=server, ALSA_CONFIG_PATH=f"{self.folder}/card")
            program.focus()
            program.click("sums icon")
            for action in (lambda: program.window(SUMS), program.close):
                start = time.monotonic()
                action()
                self.assertLess(time.monotonic() - start, 3)
            self.assert_ended(program)


if __name__ == "__main__":
    outside.BINARY = sys.argv.pop(1)
    unittest.main()
