"""The running program, read and used over the desktop's accessibility bus alone."""

import os
import pathlib
import sys
import unittest

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "program"))
import outside

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


class AccessibilityTest(unittest.TestCase):
    def setUp(self):
        bus = {name: os.environ[name] for name in ("DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR")}
        program = outside.Program(BINARY, QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1, **bus)
        self.addCleanup(program.clean)
        # A newer toolkit tells the terminal of each control that the bus asks for too late.
        self.addCleanup(lambda: self.assertEqual(program.end()[::2], (0, [])))
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
        wait(lambda: any(control.name.startswith("Ora: ") for control in self.main.showing()),
             "the clock")

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

    def opened(self, title):
        """A window that has opened; the keys go to it from now on."""
        self.title = title
        return wait(lambda: self.window(title), title)

    def press(self, *keys, says=None):
        self.program.press(*keys, title=self.title)
        if says:
            wait(lambda: self.spoken, f"{says!r} to be said")
            self.assertEqual(self.spoken, [says])
            self.spoken.clear()

    def tab_to(self, name):
        for _ in range(40):
            before = self.focus
            self.press("Tab")
            wait(lambda: self.focus != before, "the focus to go on")
            if self.focus == name:
                return
        self.fail(f"the Tab key doesn't reach {name}")

    def assert_named(self, window, unnamed_labels):
        """Labels without a name are separators, and captions that another control repeats."""
        controls = list(window.showing())
        silent = [control for control in controls if not control.name]
        self.assertEqual(sum(control.role == "label" for control in silent), unnamed_labels)
        for control in silent:
            self.assertIn(control.role, ("label", "image", "panel", "status bar"))
            self.assertFalse(control.actions or "focusable" in control.states, control.role)
        names = [control.name for control in controls if control.name]
        self.assertCountEqual(names, set(names))

    def test_the_results_of_each_mode_are_heard_and_stand_in_the_window(self):
        dates, times = "0101200531122005", "081530104540"
        for mode, mode_says, typed, values in (
                (None, None, times, "- - - - - 02 30 10 - - - - - - 02 150 9.010"),
                ("Ora", "Calcolo tra date e ore, campi vuoti", (*dates, "Tab", *times),
                 "Sabato Sabato 00 11 30 02 30 10 364 52 303 52 52 09 8.738 524.310 31.458.610"),
                ("Data+Ora", "Calcolo tra date, campi vuoti", dates,
                 "Sabato Sabato 00 11 30 - - - 364 52 303 52 52 09 - - -")):
            if mode:
                self.tab_to(mode)
                self.press("Down", says=mode_says)
            self.assert_named(self.main, 10)
            self.press(*typed, "Tab", "space", says=told(values))
            self.assertTrue(all(map(self.main.find, told(values).split(", "))))
        self.tab_to("Calcola la data 'Fine' come giorno intero")
        self.press("space", says=told("Sabato Sabato 01 00 00 - - - 365 52 304 53 52 09 - - -"))
        self.assertIn("inclusa", self.main.find("Totale giorni: 365").node.get_description())
        self.press("ctrl+shift+c", says="Risultati copiati")

    def test_a_period_is_chosen_from_the_calendar_by_keys_alone(self):
        for mode, says in ("Ora", "Calcolo tra date e ore"), ("Data+Ora", "Calcolo tra date"):
            self.tab_to(mode)
            self.press("Down", says=says)
        self.press(*"32", says="Inizio, giorno: vuoto")
        self.press(*"0504201003052010")
        self.tab_to("Calendario per l'inizio")
        self.press("space", says="Calendario per l'inizio: lunedì 5 aprile 2010, festivo")
        self.press("Next", says="mercoledì 5 maggio 2010")
        self.press("Home", says="sabato 1 maggio 2010, festivo")
        self.press("Return", says="Inizio: sabato 1 maggio 2010, festivo")
        self.tab_to("Calendario per la fine")
        self.press("space", says="Calendario per la fine: lunedì 3 maggio 2010")
        self.tab_to("Calcola")
        self.press("space", says="Calendario chiuso, " + told(
            "Sabato Lunedì 00 00 02 - - - 02 01 00 01 01 01 - - -"))

    def test_sums_are_done_by_keys_alone(self):
        self.tab_to("Calcoli in sequenza")
        self.press("space")
        self.assert_named(self.opened(outside.SUMS), 4)
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

    def test_help_and_pin_are_reached_by_keys_alone(self):
        self.press("F1")
        self.assertIn("HelpVellarno.htm", self.program.asked("xdg-open"))
        self.tab_to("Sempre in primo piano")
        for on, state in (True, "attivo"), (False, "non attivo"):
            self.press("space", says=f"Sempre in primo piano: {state}")
            self.assertEqual("checked" in self.main.find("Sempre in primo piano").states, on)

    def test_the_about_box_is_a_dialog_that_holds_the_window(self):
        self.tab_to("Informazioni sul programma")
        self.press("Return")
        box = self.opened(outside.ABOUT)
        self.assertEqual((box.role, "modal" in box.states), ("dialog", True))
        self.assert_named(box, 1)
        sums = self.main.find("Calcoli in sequenza")  # behind the box
        sums.node.do_action(sums.actions.index("Press"))
        self.tab_to("Sito web")
        self.press("Return")
        wait(lambda: not self.window(outside.ABOUT), "the end of the box")
        self.assertIsNone(self.window(outside.SUMS))


if __name__ == "__main__":
    BINARY = os.path.abspath(sys.argv.pop(1))
    unittest.main()
