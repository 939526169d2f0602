"""The running program, read and used over the desktop's accessibility bus alone."""

import collections, functools, os, pathlib, sys, unittest

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib
sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "program"))
import outside

# What a screen reader finds in each window, by role; of a name with a value, the part before the colon.
NAMES = [(area, role, row.split("; ")) for area, role, row in (
    line.split(" | ") for line in pathlib.Path(__file__).with_name("names.txt").read_text("utf-8").splitlines())]
FIELDS, BOXES, RESULTS = NAMES[0][2], NAMES[3][2], NAMES[4][2]
DATES, TIMES = (dict(zip(FIELDS[at:], typed.split())) for at, typed in (
    (0, "01 01 2005 31 12 2005"), (6, "08 15 30 10 45 40")))
PERIOD, CLOCK = ({f"{name}: {value}" for name, value in zip(names, values.split())} for names, values in (
    (RESULTS[:3] + RESULTS[6:12] + RESULTS[15:], "00 11 30 364 52 303 52 52 09 Sabato Sabato"), (RESULTS[3:6], "02 30 10")))
# The mode, what is typed, the results, and the check boxes that the mode switches on.
MODES = (("Data+Ora", DATES | TIMES, BOXES[1:], PERIOD | CLOCK | {
             "Totale ore: 8.738", "Totale minuti: 524.310", "Totale secondi: 31.458.610"}),
         ("Ora", TIMES, [], CLOCK | {"Totale ore: 02", "Totale minuti: 150", "Totale secondi: 9.010"}),
         ("Data", DATES, BOXES, PERIOD))


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
    """A control or a window. Each property is read once, when it is asked for."""
    def __init__(self, node):
        self.node = node
    role = functools.cached_property(lambda self: self.node.get_role_name())
    name = functools.cached_property(lambda self: self.node.get_name())
    title = functools.cached_property(lambda self: self.name.partition(": ")[0])
    states = functools.cached_property(lambda self: {s.value_nick for s in self.node.get_state_set().get_states()})
    usable = functools.cached_property(lambda self: {"enabled", "sensitive"} <= self.states)
    actions = functools.cached_property(lambda self: "Action" in self.node.get_interfaces() and [
        Atspi.Action.get_action_name(self.node, i) for i in range(Atspi.Action.get_n_actions(self.node))])

    def showing(self):
        for control in map(Control, children(self.node)):
            if "showing" in control.states:
                yield control
                yield from control.showing()

    def find(self, name):
        return next((control for control in self.showing() if control.name == name), None)

    def act(self, action="Press"):
        Atspi.Action.do_action(self.node, self.actions.index(action))  # fails when the answer is long in coming

    def choose(self, name, action="Toggle", on=True):
        self.find(name).act(action)
        wait(lambda: ("checked" in self.find(name).states) == on, name)

    def texts(self, names):
        return {c.name: Atspi.Text.get_text(c.node, 0, -1) for c in self.showing() if c.name in names}

    def fill(self, texts):
        for control in self.showing():
            if control.name in texts:
                Atspi.EditableText.set_text_contents(control.node, texts[control.name])
        assert self.texts(texts) == texts, texts


class AccessibilityTest(unittest.TestCase):
    def setUp(self):
        program = outside.Program(BINARY, QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1,
                                  DBUS_SESSION_BUS_ADDRESS=os.environ["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(program.clean)
        self.addCleanup(lambda: self.assertEqual((program.process.terminate(), program.end()), (None, (0, ""))))
        heard = self.heard = []
        self.listener = Atspi.EventListener.new(lambda event: heard.append(event.source.get_name()))
        self.listener.register("object:property-change:accessible-name")
        self.application = wait(lambda: next((
            child for child in children(Atspi.get_desktop(0))
            if child.get_process_id() == program.process.pid and children(child)), None), "the program")
        self.application.set_cache_mask(Atspi.Cache.NONE)
        self.main = self.window(outside.MAIN)
        wait(lambda: any(name.startswith("Ora: ") for name in heard), "the clock")

    def window(self, title):
        return next((Control(child) for child in children(self.application) if child.get_name() == title), None)

    def open(self, name, title):
        self.main.find(name).act()
        return wait(lambda: self.window(title), title)

    def named(self, window, areas, unnamed_labels):
        """Labels without a name are the separators, and captions that another control repeats."""
        controls = list(window.showing())
        silent = collections.Counter(c.role for c in controls if not c.name)
        self.assertEqual(silent.pop("label"), unnamed_labels)
        self.assertLessEqual(set(silent), {"image", "panel", "status bar"})
        self.assertEqual([c.role for c in controls if not c.name and (c.actions or "focusable" in c.states)], [])
        self.assertEqual({n: k for n, k in collections.Counter(c.name for c in controls if c.name).items() if k > 1}, {})
        expected = {(role, name) for area, role, row in NAMES if area in areas.split() for name in row}
        self.assertEqual(expected - {(c.role, c.title) for c in controls}, set())
        return controls

    def test_modes(self):
        for mode, typed, boxes, results in MODES:
            with self.subTest(mode):
                self.main.choose(mode)
                controls = self.named(self.main, "main", 10)
                self.assertEqual({c.name for c in controls if c.role in ("text", "check box") and c.usable}, {*typed, *boxes})
                self.assertEqual([c.name for c in controls if "checked" in c.states], [mode])
                self.main.fill(typed)
                self.heard.clear()
                self.main.find("Calcola").act()
                wait(lambda: results <= {*self.heard}, f"the news of {results}")
                self.assertEqual({c.name for c in self.main.showing()
                                  if c.title in RESULTS and c.name != c.title + ": "}, results)
        self.main.choose(BOXES[0])
        wait(lambda: {"Anni: 01", "Mesi: 00", "Giorni: 00"} <= {*self.heard}, "the whole day")
        self.assertIn("inclusa", self.main.find("Totale giorni: 365").node.get_description())
        for pinned in (True, False):
            self.main.choose("Sempre in primo piano", "Press", pinned)

    def test_calendar(self):
        self.main.choose("Data")
        self.main.fill({"Inizio, mese": "04", "Inizio, anno": "2010"})
        self.main.find("Calendario per l'inizio").act()
        weekdays = "lunedì martedì mercoledì giovedì venerdì sabato domenica".split() * 5
        names = [f"{weekdays[day + 2]} {day} aprile 2010" + ", festivo" * (day in (4, 5, 11, 18, 25))  # 5: Easter Monday
                 for day in range(1, 31)]
        wait(lambda: self.main.find(names[0]), "the calendar")
        controls = self.named(self.main, "main calendar", 10)
        self.assertEqual([c.name for c in controls if "2010" in c.name and c.usable], names)
        for name in (names[15], names[20]):  # the second press finds the calendar closed
            next(c for c in controls if c.name == name).act()
        wait(lambda: not self.main.find(names[0]), "the end of the calendar")
        self.assertEqual([*self.main.texts(FIELDS[:3]).values()], ["16", "04", "2010"])

    def test_sums(self):
        sums = self.open("Calcoli in sequenza", outside.SUMS)
        for side, area, unnamed, unit, typed, result in (
                ("Tempo", "times", 4, "hh:mm:ss", "10 00 00 01 30 00", "11 30 00"),
                ("Data", "dates", 2, "Mesi", "31 01 2005 1", "28 02 2005")):
            with self.subTest(side):
                sums.choose(side)
                fields = [c.name for c in self.named(sums, "sums " + area, unnamed) if c.role == "text"]
                sums.choose(unit)
                sums.fill(dict(zip(fields, typed.split())))
                sums.find("Uguale").act()
                wait(lambda: [*sums.texts(fields[:3]).values()] == result.split(), result)

    def test_about(self):
        box = self.open("Informazioni sul programma", outside.ABOUT)
        self.assertEqual((box.role, "modal" in box.states), ("dialog", True))
        self.named(box, "about", 1)
        self.main.find("Calcoli in sequenza").act()  # behind the box
        box.find("Chiudi").act()
        wait(lambda: not self.window(outside.ABOUT), "the end of the box")
        self.assertIsNone(self.window(outside.SUMS))


if __name__ == "__main__":
    BINARY = sys.argv.pop(1)
    unittest.main()
