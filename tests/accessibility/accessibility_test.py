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


def told(values):
    """What is said of the results, "-" for each that is empty."""
    return ", ".join(f"{name}: {value}" for name, value in zip(RESULTS, values.split())
                     if value != "-")


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
        self.program, self.title, self.spoken, self.focus = program, outside.MAIN, [], ""
        self.listener = Atspi.EventListener.new(self.hear)
        for event in "object:state-changed:showing", "object:state-changed:focused":
            self.listener.register(event)
            self.addCleanup(self.listener.deregister, event)
        self.application = wait(lambda: next(
            (child for child in children(Atspi.get_desktop(0))
             if child.get_process_id() == program.process.pid and children(child)), None),
            "the program")
        self.application.set_cache_mask(Atspi.Cache.NONE)
        self.main = self.window(outside.MAIN)
        clock = lambda: any(control.name.startswith("Ora: ") for control in self.main.showing())
        wait(clock, "the clock")

    def hear(self, event):
        try:
            control = Control(event.source)
        except GLib.Error:  # it has gone meanwhile
            return
        if event.detail1 and event.type.endswith("focused"):
            self.focus = control.name
        elif event.detail1 and control.role == "notification":
            self.spoken.append(control.name)

    def window(self, title):
        return next((Control(child) for child in children(self.application)
                     if child.get_name() == title), None)

    def open(self, name, title):
        self.main.find(name).act()
        return wait(lambda: self.window(title), title)

    def expect_spoken(self, text):
        wait(lambda: self.spoken, f"{text!r} to be said")
        self.assertEqual(self.spoken, [text])
        self.spoken.clear()

    def press(self, *keys, says=None):
        self.program.press(*keys, title=self.title)
        if says:
            self.expect_spoken(says)

    def tab_to(self, name):
        for _ in range(40):
            before = self.focus
            self.press("Tab")
            wait(lambda: self.focus != before, "the focus to go on")
            if self.focus == name:
                return
        self.fail(f"the Tab key doesn't reach {name}")

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

    def compare(self, mode, spoken, typed, values):
        """A calculation whose results are all said and all stand in the window."""
        self.main.choose(mode)
        self.expect_spoken(spoken)
        self.named(self.main, 10)
        self.main.fill(typed)
        self.main.find("Calcola").act()
        self.expect_spoken(told(values))
        names = [control.name for control in self.main.showing()]
        shown = [name for name in names
                 if name.rpartition(": ")[0] in RESULTS and not name.endswith(": ")]
        self.assertCountEqual(shown, told(values).split(", "))

    def test_a_calculation_of_each_mode_is_done_and_heard(self):
        self.compare("Data+Ora", "Calcolo tra date e ore", DATES | TIMES, "Sabato Sabato 00 11 30 02 30 10 "
                     "364 52 303 52 52 09 8.738 524.310 31.458.610")
        self.compare("Ora", "Calcolo tra ore, campi vuoti", TIMES, "- - - - - 02 30 10 - - - - - - 02 150 9.010")
        self.compare("Data", "Calcolo tra date, campi vuoti", DATES, "Sabato Sabato 00 11 30 - - - 364 52 303 52 52 09 - - -")

    def test_a_total_tells_its_meaning_under_the_options(self):
        self.main.choose("Data")
        self.main.fill(DATES)
        self.main.choose("Calcola la data 'Fine' come giorno intero")
        days = wait(lambda: self.main.find("Totale giorni: 365"), "the whole day")
        self.assertIn("inclusa", days.node.get_description())

    def test_two_dates_are_compared_by_keys_alone(self):
        self.tab_to("Ora")
        self.press("Down", says="Calcolo tra date e ore")
        self.tab_to("Data+Ora")
        self.press("Down", says="Calcolo tra date")
        self.press(*"32", says="Inizio, giorno: vuoto")
        self.press(*"0504201003052010")
        self.tab_to("Calendario per l'inizio")
        self.press("space", says="Calendario per l'inizio: lunedì 5 aprile 2010, festivo")
        self.press("Down", says="lunedì 12 aprile 2010")
        self.press("Next", says="mercoledì 12 maggio 2010")
        self.press("Home", says="sabato 1 maggio 2010, festivo")
        self.press("Return", says="Inizio: sabato 1 maggio 2010, festivo")
        self.tab_to("Calendario per la fine")
        self.press("space", says="Calendario per la fine: lunedì 3 maggio 2010")
        self.press("End", says="lunedì 31 maggio 2010")
        self.press("Right", says="martedì 1 giugno 2010")
        self.press("space", says="Fine: martedì 1 giugno 2010")
        self.tab_to("Calendario per la fine")
        self.press("space", says="Calendario per la fine: martedì 1 giugno 2010")
        self.tab_to("Calcola")
        self.press("space", says="Calendario chiuso, " + told("Sabato Martedì 00 01 00 - - - 31 05 25 05 05 01 - - -"))
        self.press("ctrl+shift+c", says="Risultati copiati")

    def test_sums_are_done_by_keys_alone(self):
        self.tab_to("Calcoli in sequenza")
        self.press("space")
        self.title = outside.SUMS
        self.tab_to("Uguale")
        self.press("minus", says="Sottrai")
        self.press("Return", says="Progressivo: 00:00:00")
        self.press(*"000001", "Return", says="Progressivo: 23:59:59")
        self.tab_to("hh:mm:ss")
        self.press("Down", says="Formato esteso, minuti e secondi a tre cifre")
        self.tab_to("Tempo")
        self.press("Down", says="Calcolo con la data")
        self.tab_to("Giorni")
        self.press("Down", says="settimane")
        self.tab_to("Data, giorno")
        self.press(*"310120051", "Tab", "Return", says="Data: 07/02/2005")

    def test_help_pin_and_about_box_are_reached_by_keys_alone(self):
        self.press("F1")
        self.assertIn("HelpVellarno.htm", self.program.asked("xdg-open"))
        self.tab_to("Sempre in primo piano")
        for on, state in (True, "attivo"), (False, "non attivo"):
            self.press("space", says=f"Sempre in primo piano: {state}")
            self.assertEqual("checked" in self.main.find("Sempre in primo piano").states, on)
        self.tab_to("Informazioni sul programma")
        self.press("Return")
        self.title = outside.ABOUT
        self.tab_to("Sito web")
        self.press("Return")
        wait(lambda: not self.window(outside.ABOUT), "the end of the box")

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
