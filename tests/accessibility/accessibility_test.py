"""The running program, read and used over the desktop's accessibility bus alone."""

import collections, os, pathlib, sys, unittest

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib
sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "program"))
import outside

DATES, TIMES = (
    dict(zip((f"{end}, {part}" for end in ("Inizio", "Fine") for part in parts.split()), typed.split()))
    for parts, typed in (("giorno mese anno", "01 01 2005 31 12 2005"), ("ore minuti secondi", "08 15 30 10 45 40")))
RESULTS = ["Giorno della settimana dell'inizio", "Giorno della settimana della fine", "Anni", "Mesi", "Giorni", "Ore",
           "Minuti", "Secondi", "Totale giorni", "Totale settimane", "Totale giorni lavorativi", "Totale sabati",
           "Totale domeniche", "Totale festivi", "Totale ore", "Totale minuti", "Totale secondi"]
# The mode, what is typed, and the results.
MODES = (("Data+Ora", DATES | TIMES,
          "Sabato Sabato 00 11 30 02 30 10 364 52 303 52 52 09 8.738 524.310 31.458.610"),
         ("Ora", TIMES, "- - - - - 02 30 10 - - - - - - 02 150 9.010"),
         ("Data", DATES, "Sabato Sabato 00 11 30 - - - 364 52 303 52 52 09 - - -"))


def wait(condition, what):
    """The first true value of the condition, while the events of the bus are served."""
    def serve():
        while GLib.MainContext.default().iteration(False):
            pass
        return condition()
    return outside.wait(serve, what)


def children(node):
    return [child for i in range(node.get_child_count()) if (child := node.get_child_at_index(i))]


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
        wait(lambda: ("checked" in self.find(name).states) == on, name)

    def fill(self, texts):
        for control in self.showing():
            if control.name in texts:
                Atspi.EditableText.set_text_contents(control.node, texts[control.name])


class AccessibilityTest(unittest.TestCase):
    def setUp(self):
        program = outside.Program(BINARY, QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1,
                                  DBUS_SESSION_BUS_ADDRESS=os.environ["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(program.clean)
        self.addCleanup(lambda: self.assertEqual((program.process.terminate(), program.end()), (None, (0, ""))))
        spoken = self.spoken = []
        self.listener = Atspi.EventListener.new(lambda event: event.detail1 and spoken.append(Control(event.source)))
        self.listener.register("object:state-changed:showing")
        self.addCleanup(self.listener.deregister, "object:state-changed:showing")
        self.application = wait(lambda: next((
            child for child in children(Atspi.get_desktop(0))
            if child.get_process_id() == program.process.pid and children(child)), None), "the program")
        self.application.set_cache_mask(Atspi.Cache.NONE)
        self.main = self.window(outside.MAIN)
        wait(lambda: any(control.name.startswith("Ora: ") for control in self.main.showing()), "the clock")

    def window(self, title):
        return next((Control(child) for child in children(self.application) if child.get_name() == title), None)

    def open(self, name, title):
        self.main.find(name).act()
        return wait(lambda: self.window(title), title)

    def expect_spoken(self, text):
        wait(lambda: [control.name for control in self.spoken if control.role == "notification"] == [text], text)
        self.spoken.clear()

    def named(self, window, unnamed_labels):
        """Labels without a name are the separators, and captions that another control repeats."""
        controls = list(window.showing())
        silent = [c for c in controls if not c.name]
        self.assertEqual(sum(c.role == "label" for c in silent), unnamed_labels)
        self.assertLessEqual({c.role for c in silent}, {"label", "image", "panel", "status bar"})
        self.assertEqual([c.role for c in silent if c.actions or "focusable" in c.states], [])
        names = collections.Counter(c.name for c in controls if c.name)
        self.assertEqual([name for name, times in names.items() if times > 1], [])
        return controls

    def test_modes(self):
        for mode, typed, values in MODES:
            with self.subTest(mode):
                self.main.choose(mode)
                self.named(self.main, 10)
                self.main.fill(typed)
                self.main.find("Calcola").act()
                results = [f"{name}: {value}" for name, value in zip(RESULTS, values.split()) if value != "-"]
                self.expect_spoken(", ".join(results))
                shown = [c.name for c in self.main.showing() if c.name.rpartition(": ")[0] in RESULTS]
                self.assertCountEqual([name for name in shown if not name.endswith(": ")], results)
        self.main.choose("Calcola la data 'Fine' come giorno intero")
        days = wait(lambda: self.main.find("Totale giorni: 365"), "the whole day")
        self.assertIn("inclusa", days.node.get_description())
        for pinned in (True, False):
            self.main.choose("Sempre in primo piano", "Press", pinned)

    def test_calendar(self):
        self.main.choose("Data")
        self.main.fill({"Inizio, mese": "04", "Inizio, anno": "2010"})
        self.main.find("Calendario per l'inizio").act()
        easter_monday = wait(lambda: self.main.find("lunedì 5 aprile 2010, festivo"), "the calendar")
        self.assertEqual(sum(" aprile 2010" in control.name for control in self.named(self.main, 10)), 30)
        for day in (easter_monday, easter_monday):  # the second press finds the calendar closed
            day.act()
        wait(lambda: not self.main.find(easter_monday.name), "the end of the calendar")
        self.assertEqual(Atspi.Text.get_text(self.main.find("Inizio, giorno").node, 0, -1), "05")

    def test_sums(self):
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

    def test_about(self):
        box = self.open("Informazioni sul programma", outside.ABOUT)
        self.assertEqual((box.role, "modal" in box.states), ("dialog", True))
        self.named(box, 1)
        self.main.find("Calcoli in sequenza").act()  # behind the box
        box.find("Chiudi").act()
        wait(lambda: not self.window(outside.ABOUT), "the end of the box")
        self.assertIsNone(self.window(outside.SUMS))


if __name__ == "__main__":
    BINARY = sys.argv.pop(1)
    unittest.main()
