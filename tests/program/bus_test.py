"""The program as a screen reader meets it: over the accessibility bus, without a mouse.

Run by bus_test.sh, which gives it a private bus: bus_test.py PROGRAM-FOLDER.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

import pyatspi
from gi.repository import GLib

PATIENCE = 30  # Seconds until something that was to happen is given up.


def holds(condition, seconds):
    """Lets events in until the condition holds; returns what it gave, or nothing in time."""
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    tick = GLib.timeout_add(20, lambda: True)
    try:
        while time.monotonic() < end:
            found = condition()
            if found:
                return found
            context.iteration(True)
    finally:
        GLib.source_remove(tick)
    return None


def wait_until(condition):
    found = holds(condition, PATIENCE)
    if not found:
        raise AssertionError("waited in vain")
    return found


def repeat_until(action, condition):
    """Nothing is told to a listener before the program has heard of it: the action is repeated."""
    for _ in range(PATIENCE):
        action()
        if holds(condition, 1):
            return
    raise AssertionError("repeated in vain")


def descendants(node):
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is not None:
            yield child
            yield from descendants(child)


def named(node, name):
    return next((one for one in descendants(node) if one.name == name), None)


def starting(node, words):
    return next((one for one in descendants(node) if one.name.startswith(words)), None)


def press(node):
    action = node.queryAction()
    names = [action.getName(index) for index in range(action.nActions)]
    action.doAction(names.index("Press"))


def act(node, name):
    action = node.queryAction()
    names = [action.getName(index) for index in range(action.nActions)]
    action.doAction(names.index(name))


def checked(node):
    return node.getState().contains(pyatspi.STATE_CHECKED)


def extents(node):
    return node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


OPERABLE = (
    pyatspi.ROLE_PUSH_BUTTON,
    pyatspi.ROLE_CHECK_BOX,
    pyatspi.ROLE_COMBO_BOX,
    pyatspi.ROLE_SLIDER,
    pyatspi.ROLE_SCROLL_BAR,
    pyatspi.ROLE_TEXT,
)


def nameless_controls(window):
    return [
        one.getRoleName()
        for one in descendants(window)
        if one.getRole() in OPERABLE and not one.name
    ]


class Program:
    """The program in a folder of its own, with the settings given."""

    def __init__(self, settings=""):
        self.folder = tempfile.mkdtemp()
        home = os.path.join(self.folder, "tonvik")
        shutil.copytree(FOLDER, home)
        if settings:
            with open(os.path.join(home, "tonvik.ini"), "w", encoding="cp1251") as file:
                file.write(settings)
        environment = dict(os.environ, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.process = subprocess.Popen([os.path.join(home, "tonvik")], env=environment)
        self.window = wait_until(self.main_window)

    def main_window(self):
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.clearCache()  # A program that came while nobody listened is not in it.
        for application in desktop:
            if application and application.get_process_id() == self.process.pid:
                for window in application:
                    if window and window.name in ("Тонвик", "Tonvik") and starting(window, "C"):
                        return window
        return None

    def other_window(self, name):
        """Another window of the program, once it is open."""
        return wait_until(lambda: named(self.window.parent, name))

    def end(self):
        self.process.terminate()
        self.process.wait(PATIENCE)
        shutil.rmtree(self.folder)


class Russian(unittest.TestCase):
    def setUp(self):
        self.program = Program()
        self.addCleanup(self.program.end)
        self.window = self.program.window
        self.board = wait_until(lambda: starting(self.window, "Гриф"))
        self.keyboard = wait_until(lambda: starting(self.window, "Клавиатура"))

    def key(self, words):
        return starting(self.keyboard, words)

    def labels(self):
        return [one.name for one in self.window if one.getRole() == pyatspi.ROLE_LABEL]

    def test_a_triad_is_marked_and_named(self):
        for key in ("C, октава 1", "E, октава 1", "G, октава 1"):
            press(self.key(key))
        wait_until(lambda: not any(checked(key) for key in self.keyboard))
        for key in ("A, октава 1", "C, октава 2", "E, октава 2"):
            press(self.key(key))
        wait_until(lambda: sum(checked(key) for key in self.keyboard) == 3)
        wait_until(lambda: self.key("A, октава 1").name == "A, октава 1, отмечена")
        wait_until(lambda: named(self.window, "A C E "))
        self.assertNotIn("Am", self.labels())
        press(starting(self.window, "Назвать аккорд"))
        wait_until(lambda: "Am" in self.labels())

    def test_thirty_six_keys(self):
        self.assertEqual(self.keyboard.childCount, 36)
        self.assertEqual(len({key.name for key in self.keyboard}), 36)
        self.assertEqual(self.keyboard.getChildAtIndex(13).name, "C диез, октава 2")
        for key in self.keyboard:
            self.assertEqual(key.getRole(), pyatspi.ROLE_CHECK_BOX)

    def test_strings_and_barre(self):
        names = [part.name for part in self.board]
        self.assertEqual(
            names,
            [
                "струна 6, E, открыта",
                "струна 5, A, лад 3, C",
                "струна 4, D, лад 2, E",
                "струна 3, G, открыта",
                "струна 2, B, лад 1, C",
                "струна 1, E, открыта",
                "барре, снято",
            ],
        )
        press(self.board.getChildAtIndex(6))
        wait_until(lambda: self.board.getChildAtIndex(6).name == "барре, лад 1, струны с 1 по 6")
        wait_until(lambda: checked(self.board.getChildAtIndex(6)))
        wait_until(lambda: "под барре" in " ".join(part.name for part in self.board))

    def test_a_string_is_fretted_and_muted(self):
        third = self.board.getChildAtIndex(3)
        self.assertEqual(third.queryValue().maximumValue, 16)
        third.queryValue().currentValue = 2
        wait_until(lambda: third.name == "струна 3, G, лад 2, A")
        act(third, "Заглушить")
        wait_until(lambda: third.name == "струна 3, G, лад 2, A, заглушена")
        press(third)
        wait_until(lambda: third.name != "струна 3, G, лад 2, A, заглушена")

    def listen(self, kind):
        """What is told from now on, as names, of one kind of event."""
        told = []
        heard = lambda event: told.append(event.source.name)
        pyatspi.Registry.registerEventListener(heard, kind)
        self.addCleanup(pyatspi.Registry.deregisterEventListener, heard, kind)
        return told

    def test_a_mark_that_moves_is_told(self):
        marks = self.listen("object:state-changed:checked")
        names = self.listen("object:property-change:accessible-name")
        marked = "D, октава 3, отмечена"
        repeat_until(
            lambda: press(self.key("D, октава 3")), lambda: marked in marks and marked in names
        )
        self.assertNotIn("E, октава 1, отмечена", marks)

    def test_a_finger_that_moves_is_told(self):
        frets = self.listen("object:property-change:accessible-value")
        names = self.listen("object:property-change:accessible-name")
        string = self.board.getChildAtIndex(3).queryValue()

        def move():
            for fret in (0, 2):
                string.currentValue = fret

        moved = "струна 3, G, лад 2, A"
        repeat_until(move, lambda: moved in frets and moved in names)

    def test_what_sounds_is_told_once(self):
        told = self.listen("object:property-change:accessible-name")
        thin = self.board.getChildAtIndex(5).queryValue()

        def move():
            for fret in (6, 3):  # A#, G.
                thin.currentValue = fret

        repeat_until(move, lambda: "C/E" in told)
        thin.currentValue = 6
        wait_until(lambda: named(self.window, "C7/E"))
        told.clear()
        thin.currentValue = 3
        marked = "струна 1, E, лад 3, G"
        wait_until(lambda: "C/E" in told and marked in told)
        thin.currentValue = 15  # Another G.
        wait_until(lambda: "струна 1, E, лад 15, G" in told)
        self.assertEqual(told.count("C/E"), 1)

    def test_the_part_with_the_focus_is_told(self):
        focus = self.listen("object:state-changed:focused")

        def move():
            for key in ("D, октава 2", "C, октава 2"):
                act(self.key(key), "SetFocus")

        repeat_until(move, lambda: "C, октава 2" in focus)
        wait_until(
            lambda: self.key("C, октава 2").getState().contains(pyatspi.STATE_FOCUSED)
        )

    def test_parts_lie_in_their_picture(self):
        for picture in (self.board, self.keyboard):
            around = extents(picture)
            for part in picture:
                inside = extents(part)
                self.assertGreaterEqual(inside.x, around.x - 1)
                self.assertLessEqual(inside.x + inside.width, around.x + around.width + 1)
                self.assertGreater(inside.width * inside.height, 0)

    def test_ways_to_play_are_read(self):
        first = (
            "C, x32010: струна 6 не звучит, струна 5 третий лад, безымянный палец, "
            "струна 4 второй лад, средний палец, струна 3 открыта, "
            "струна 2 первый лад, указательный палец, струна 1 открыта"
        )
        strip = wait_until(lambda: starting(self.window, "Аппликатуры аккорда"))
        self.assertEqual(strip.childCount, 706)
        self.assertEqual(strip.getChildAtIndex(0).name, first)
        wait_until(lambda: named(self.window, "Аппликатур: 706"))
        press(starting(self.window, "Все аппликатуры аккорда"))
        window = self.program.other_window("Аппликатуры")
        grid = wait_until(lambda: starting(window, "Аппликатуры"))
        self.assertEqual(grid.childCount, 706)
        self.assertEqual(grid.getChildAtIndex(0).name, first)
        self.assertEqual(nameless_controls(window), [])
        named(window, "без барре").queryAction().doAction(0)
        wait_until(lambda: starting(window, "Показано: "))
        wait_until(lambda: 0 < grid.childCount < 706)

    def test_the_sheet_is_read(self):
        press(starting(self.window, "Добавить то, что на грифе"))
        press(starting(self.window, "Диаграммы аккордов"))
        sheet = self.program.other_window("Диаграмма аккордов")
        # The bars that move a text say nothing that its lines do not.
        self.assertEqual(set(nameless_controls(sheet)) - {"scroll bar"}, set())
        press(starting(sheet, "Вписать весь список"))
        pages = wait_until(lambda: named(sheet, "Страницы листа"))
        wait_until(lambda: pages.childCount == 1)
        diagram = pages.getChildAtIndex(0)
        self.assertTrue(diagram.name.startswith("C, 032010: струна 6 открыта"))
        self.board.getChildAtIndex(1).queryValue().currentValue = 0
        wait_until(lambda: self.board.getChildAtIndex(1).name == "струна 5, A, открыта")
        act(diagram, "Поставить на гриф")
        wait_until(lambda: self.board.getChildAtIndex(1).name == "струна 5, A, лад 3, C")

    def test_every_control_has_a_name(self):
        self.assertEqual(nameless_controls(self.window), [])


class English(unittest.TestCase):
    def test_names_follow_the_language(self):
        program = Program("[Settings]\r\nLanguage=english.lng\r\nUser=1\r\n")
        self.addCleanup(program.end)
        keyboard = wait_until(lambda: starting(program.window, "Keyboard"))
        board = wait_until(lambda: starting(program.window, "Fretboard"))
        self.assertEqual(keyboard.getChildAtIndex(0).name, "C, octave 1, marked")
        self.assertEqual(keyboard.getChildAtIndex(13).name, "C sharp, octave 2")
        self.assertEqual(board.getChildAtIndex(0).name, "string 1, E, open")
        self.assertEqual(board.getChildAtIndex(4).name, "string 5, A, fret 3, C")
        self.assertEqual(board.getChildAtIndex(6).name, "barre, off")


if __name__ == "__main__":
    FOLDER = sys.argv.pop(1)
    pyatspi.Registry.getDesktop(0).childCount  # Starts the registry before the first program.
    unittest.main(verbosity=2)
