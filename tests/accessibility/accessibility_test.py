"""The running program, read and used over the desktop's accessibility bus alone."""

import collections
import os
import pathlib
import sys
import unittest

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "program"))
import outside

ENDS = "Inizio", "Fine"
DATES = dict(zip((f"{end}, {part}" for end in ENDS for part in ("giorno", "mese", "anno")),
                 ("01", "01", "2005", "31", "12", "2005")))
TIMES = dict(zip((f"{end}, {part}" for end in ENDS for part in ("ore", "minuti", "secondi")),
                 ("08", "15", "30", "10", "45", "40")))
RESULTS = [
    "Giorno della settimana dell'inizio", "Giorno della settimana della fine", "Anni", "Mesi",
    "Giorni", "Ore", "Minuti", "Secondi", "Totale giorni", "Totale settimane",
    "Totale giorni lavorativi", "Totale sabati", "Totale domeniche", "Totale festivi",
    "Totale ore", "Totale minuti", "Totale secondi"]


def wait(condition, what):
    """The first true value of the condition, while the events of the bus are served."""
    def serve():
        while GLib.MainContext.default().iteration(False):
            pass
        return condition()
    return outside.wait(serve, what)


def children(node):
    count = range(node.get_child_count())
    return [child for i in count if (child := node.get_child_at_index(i))]


class Control:
    """A control or a window, as it was when it was found."""

    def __init__(self, node):
        self.node, self.role, self.name = node, node.get_role_name(), node.get_name()
        self.states = {state.value_nick for state in node.get_state_set().get_states()}
        self.actions = [node.get_action_name(i) for i in range(node.get_n_actions())]

    def showing(self):
        for control in map(Control, children(self.node)):
            if "showing" in control.states:
                yield control
                yield from control.showing()

    def find(self, name):
        return next((control for control in self.showing() if control.name == name), None)

    def act(self, action="Press"):
        self.node.do_action(self.actions.index(action))  # fails when the answer is long in coming

    def choose(self, name, action="Toggle", on=True):
        self.find(name).act(action)
        wait(lambda: ("checked" in self.find(name).states) == on, f"the choice of {name}")

    def fill(self, texts):
        for control in self.showing():
            if control.name in texts:
                Atspi.EditableText.set_text_contents(control.node, texts[control.name])


class AccessibilityTest(unittest.TestCase):
    def setUp(self):
        bus = {name: os.environ[name] for name in ("DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR")}
        program = outside.Program(BINARY, QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1, **bus)
        self.addCleanup(program.clean)
        self.addCleanup(lambda: self.assertEqual(program.end(), (0, "", [])))
        self.addCleanup(program.process.terminate)
        self.spoken = []
        self.listener = Atspi.EventListener.new(
            lambda event: event.detail1 and self.spoken.append(Control(event.source)))
        self.listener.register("object:state-changed:showing")
        self.addCleanup(self.listener.deregister, "object:state-changed:showing")
        self.application = wait(lambda: next(
            (child for child in children(Atspi.get_desktop(0))
             if child.get_process_id() == program.process.pid and children(child)), None),
            "the program")
        self.application.set_cache_mask(Atspi.Cache.NONE)
        self.main = self.window(outside.MAIN)
        clock = lambda: any(control.name.startswith("Ora: ") for control in self.main.showing())
        wait(clock, "the clock")

    def window(self, title):
        return next((Control(child) for child in children(self.application)
                     if child.get_name() == title), None)

    def open(self, name, title):
        self.main.find(name).act()
        return wait(lambda: self.window(title), title)

    def expect_spoken(self, text):
        notes = lambda: [control.name for control in self.spoken
                         if control.role == "notification"]
        wait(lambda: notes() == [text], f"{text!r} to be said")
        self.spoken.clear()

    def named(self, window, unnamed_labels):
        """Labels without a name are separators, and captions that another control repeats."""
        controls = list(window.showing())
        silent = [control for control in controls if not control.name]
        self.assertEqual(sum(control.role == "label" for control in silent), unnamed_labels)
        for control in silent:
            self.assertIn(control.role, ("label", "image", "panel", "status bar"))
            self.assertFalse(control.actions or "focusable" in control.states, control.role)
        names = collections.Counter(control.name for control in controls if control.name)
        self.assertEqual([name for name, times in names.items() if times > 1], [])
        return controls

    def compare(self, mode, typed, values):
        """A calculation whose results are all said and all stand in the window."""
        self.main.choose(mode)
        self.named(self.main, 10)
        self.main.fill(typed)
        self.main.find("Calcola").act()
        results = [f"{name}: {value}" for name, value in zip(RESULTS, values.split())
                   if value != "-"]
        self.expect_spoken(", ".join(results))
        names = [control.name for control in self.main.showing()]
        shown = [name for name in names
                 if name.rpartition(": ")[0] in RESULTS and not name.endswith(": ")]
        self.assertCountEqual(shown, results)

    def test_a_calculation_of_each_mode_is_done_and_heard(self):
        self.compare("Data+Ora", DATES | TIMES, "Sabato Sabato 00 11 30 02 30 10 "
                     "364 52 303 52 52 09 8.738 524.310 31.458.610")
        self.compare("Ora", TIMES, "- - - - - 02 30 10 - - - - - - 02 150 9.010")
        self.compare("Data", DATES, "Sabato Sabato 00 11 30 - - - 364 52 303 52 52 09 - - -")

    def test_a_total_tells_its_meaning_under_the_options(self):
        self.main.choose("Data")
        self.main.fill(DATES)
        self.main.choose("Calcola la data 'Fine' come giorno intero")
        days = wait(lambda: self.main.find("Totale giorni: 365"), "the whole day")
        self.assertIn("inclusa", days.node.get_description())

    def test_the_pin_tells_its_state(self):
        for pinned in (True, False):
            self.main.choose("Sempre in primo piano", "Press", pinned)

    def test_a_day_of_the_calendar_is_named_and_picked(self):
        self.main.choose("Data")
        self.main.fill({"Inizio, mese": "04", "Inizio, anno": "2010"})
        self.main.find("Calendario per l'inizio").act()
        find_day = lambda: self.main.find("lunedì 5 aprile 2010, festivo")
        easter_monday = wait(find_day, "the calendar")
        days = [c for c in self.named(self.main, 10) if " aprile 2010" in c.name]
        self.assertEqual(len(days), 30)
        for day in (easter_monday, easter_monday):  # the second press finds the calendar closed
            day.act()
        wait(lambda: not find_day(), "the end of the calendar")
        typed = self.main.find("Inizio, giorno").node
        self.assertEqual(Atspi.Text.get_text(typed, 0, -1), "05")

    def test_sums_are_done_and_heard(self):
        sums = self.open("Calcoli in sequenza", outside.SUMS)
        for side, unnamed, unit, typed, spoken in (
                ("Tempo", 4, "hh:mm:ss", "10 00 00 01 30 00", "Progressivo: 11:30:00"),
                ("Data", 2, "Mesi", "31 01 2005 1", "Data: 28/02/2005")):
            sums.choose(side)
            fields = [c.name for c in self.named(sums, unnamed) if c.role == "text"]
            sums.choose(unit)
            sums.fill(dict(zip(fields, typed.split())))
            sums.find("Uguale").act()
            self.expect_spoken(spoken)

    def test_the_about_box_is_a_dialog_that_holds_the_window(self):
        box = self.open("Informazioni sul programma", outside.ABOUT)
        self.assertEqual((box.role, "modal" in box.states), ("dialog", True))
        self.named(box, 1)
        self.main.find("Calcoli in sequenza").act()  # behind the box
        box.find("Chiudi").act()
        wait(lambda: not self.window(outside.ABOUT), "the end of the box")
        self.assertIsNone(self.window(outside.SUMS))


if __name__ == "__main__":
    BINARY = os.path.abspath(sys.argv.pop(1))
    unittest.main()
