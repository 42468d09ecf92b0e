"""The whole program for Windows in a real window, under Wine. Its pages and reports are held against the console's."""

import re
import unittest

from wine_desktop import (ABOUT, ACCEPT, CLOSE, CONSOLE, CUSTOMISE, LINK, MADE, NO_DRIVE, OPEN_SECTION, PERCENT, REPORT,
                          SAVE, SECTIONS, STATUS, TITLE, TRANSPARENCY, VALUES, WineDesktop, wait_for)

GROUND, WHITE = (255, 0, 0), (255, 255, 255)
# A point of the white page with no control on it, and one of the skin, from the window's corner.
PAGE, SKIN = (600, 490), (400, 526)
# Rows that go on between two looks.
MOVING = ("Total free space", "Usage time", "Memory in use", "Space in use", "Free space")
# A row that keeps what stood there as long as the share of so much memory cannot be worked out.
AVAILABLE = "Available memory"
TIMES = 50
# KB, for all that these times leave behind: a picture of 48 pixels takes 9.
MOST_GROWTH = 300
# The system's own number of where the name of a file is written.
FILE_NAME = 1148
# Left and top of the window's client area, centred with the frame that Wine draws.
WINDOW = (123, 117)
FORMATS = (("rtf", ".rtf"), ("html", ".htm"), ("bbcode", ".txt"), ("text", ".txt"))


def still(line):
    """A row without the figures that go on."""
    if line.startswith(AVAILABLE):
        return AVAILABLE
    return re.sub(r"\d[\d.:]*", "0", line) if line.startswith(MOVING) else line


def split_pages(text, titles):
    """Title and rows of each page of the console's text. The console writes ":" behind a heading, as copying does."""
    lines, pages = text.splitlines(), []
    for title in titles:
        start = lines.index(title)
        pages.append([title])
        del lines[:start + 2]
        end = next((i for i, line in enumerate(lines) if line in titles), len(lines))
        pages[-1] += [still(line).removesuffix(":") for line in lines[:end]]
    return [trimmed(page) for page in pages]


def percent_of(panel):
    """The transparency that the panel writes, "28 %"."""
    return int(panel.text(PERCENT).split()[0])


def near(colour, expected, tolerance=4):
    return all(abs(a - b) <= tolerance for a, b in zip(colour, expected))


def trimmed(page):
    """Without the empty rows at its end."""
    while not page[-1]:
        page = page[:-1]
    return page


def without_time(report):
    """Seconds, time and date stand in the title, "Report made by ... 2.5 in 0.27 sec. at 06:18 PM on the date 11/23/2026."""
    return re.sub(rb"(?<=in )[\d.,]+( sec\. at )[^<}\[\r\n]*?\d{4}", rb"0\1", report)


class SmallScreenTest(unittest.TestCase):
    def test_all_of_the_window_is_on_it(self):
        with WineDesktop(size=(800, 480)) as desktop:
            program = desktop.start_program()
            self.addCleanup(program.wait)
            self.addCleanup(program.kill)
            form = desktop.wait(condition=lambda form: form.text(STATUS) not in ("", "Getting information..."))
            self.assertAlmostEqual(form.width / 777, form.height / 553, delta=0.01)
            self.assertGreater(form.height, 0.75 * 553)
            self.assertLess(form.top + form.height, 480)
            last = form.text(SECTIONS + 12)
            desktop.press(form, SECTIONS + 12)
            desktop.wait(condition=lambda form: form.text(TITLE) == last)


class ProgramTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = WineDesktop()
        cls.addClassCleanup(cls.desktop.close)

    def start(self, **overrides):
        """The program's process and window, its first page collected."""
        program = self.desktop.start_program(**overrides)
        self.addCleanup(self.desktop.end, program)
        return program, self.desktop.wait(condition=lambda form: form.text(STATUS) not in ("", "Getting information..."))

    def close(self, program):
        self.desktop.type("alt+F4")
        self.assertEqual(program.wait(20), 0)

    def open_pages(self, titles, open_page):
        """Title and rows of all pages, as their controls say it."""
        pages = []
        for number, title in enumerate(titles):
            open_page(number)
            # The last control that says anything new.
            shown = self.desktop.wait(condition=lambda form, title=title: form.text(OPEN_SECTION) == title)
            pages.append(trimmed([still(line) for line in shown.page()]))
        return pages

    def test_pages_by_mouse_and_keyboard_say_what_the_console_says(self):
        self.desktop.write_settings(ChkTrans=0)
        program, form = self.start()
        titles = [form.text(SECTIONS + n) for n in range(13)]
        told = self.desktop.wine(CONSOLE, "page", "all").decode()
        expected = split_pages(told, titles)
        by_mouse = self.open_pages(titles, lambda n: self.desktop.press(form, SECTIONS + n))
        self.assertEqual(by_mouse, expected)
        self.assertTrue(all(len(page) > 4 for page in expected[:10]), expected)
        self.desktop.press(form, SECTIONS + 11)
        self.assertTrue(self.desktop.wait(condition=lambda form: form.text(TITLE) == titles[11]).text(NO_DRIVE))

        self.desktop.type("Tab", "Home")
        by_keyboard = self.open_pages(titles, lambda n: self.desktop.type(*(["Down"] if n else []), "Return"))
        self.assertEqual(by_keyboard, expected)

        self.desktop.press(form, SECTIONS + 7)
        shown = self.desktop.wait(condition=lambda form: form.text(TITLE) == titles[7])
        self.desktop.type("Right", "Down", "ctrl+c")
        self.assertTrue(wait_for(lambda: self.desktop.clipboard() == shown.page()[2]), self.desktop.clipboard())
        for key in ("F10", "alt"):
            self.desktop.type(key)
            self.desktop.wait("menu")
            self.desktop.type("Escape")
            self.desktop.wait(condition=lambda _: len(self.desktop.told()) == 1)
        for place, keys, copied in ((VALUES + 1, ["Down"], shown.page()[2]),
                                    (TITLE, ["Up"], "\n".join([titles[7], "", *shown.page()[1:6], ""]))):
            self.desktop.press(shown, place, button=3)
            self.desktop.wait("menu")
            self.desktop.type(*keys, "Return")
            self.assertTrue(wait_for(lambda: self.desktop.clipboard().replace("\r\n", "\n") == copied),
                            (self.desktop.clipboard(), copied))

        self.assertEqual(self.desktop.start_program().wait(20), 0, "a second one ends at once")
        self.assertEqual(len(self.desktop.told()), 1)
        self.close(program)
        self.start()

    def levels(self, last):
        """The levels of white over the ground that the page's point takes until the last one."""
        seen = []

        def reached():
            seen.append(self.desktop.colour(WINDOW[0] + PAGE[0], WINDOW[1] + PAGE[1]))
            return seen[-1] == last
        self.assertTrue(wait_for(reached, 30, 0.002), seen)
        self.assertTrue(all(red == 255 and abs(green - blue) < 2 for red, green, blue in seen), seen)
        return [green for _, green, _ in seen]

    def test_settings_are_mended_and_kept_and_fades_show_what_is_behind(self):
        desktop = self.desktop
        desktop.write_settings(Language="Klingon", ColorValue=3, ShineValue="much", ChkTrans=7, Transparency=99, SCV=211)
        program = desktop.start_program()
        self.addCleanup(desktop.end, program)
        rising = self.levels(WHITE)
        self.assertEqual(rising, sorted(rising))
        self.assertGreater(len(set(rising)), 4)
        mended = {"Language": "English", "ColorValue": "0xff9600", "ShineValue": "0x30", "ChkTrans": "0x1",
                  "Transparency": "0x0", "SCV": "0xd3"}
        self.assertEqual(desktop.settings(), mended)

        form = desktop.wait()
        self.assertEqual((form.left, form.top), WINDOW)
        skin = (form.left + SKIN[0], form.top + SKIN[1])
        before = desktop.colour(*skin)
        desktop.choose(form, CUSTOMISE)
        desktop.wait(condition=lambda form: form.text(TITLE) == "Customize" and form.shows(ACCEPT))
        desktop.type("Down", "Tab", *["Page_Down"] * 2)
        form = desktop.wait(condition=lambda form: form.text(TITLE) == "Personalizar")
        self.assertTrue(wait_for(lambda: not near(desktop.colour(*skin), before, 8)), "the skin follows the slider")
        left, top, _, height = form.place(TRANSPARENCY)
        # The thumb lies beside the left arrow.
        desktop.call("xdotool", "mousemove", str(left + height + 8), str(top + height // 2), "mousedown", "1")
        for _ in range(8):
            desktop.call("xdotool", "mousemove_relative", "5", "0")
        held = desktop.wait(condition=lambda form: form.opacity < 240 and
                            form.opacity == (100 - percent_of(form)) * 255 // 100)
        desktop.call("xdotool", "mouseup", "1")
        self.assertTrue(wait_for(lambda: near(desktop.colour(form.left + PAGE[0], form.top + PAGE[1]),
                                              (255, held.opacity, held.opacity))))
        self.assertEqual(desktop.settings() | {"SCV": ""}, mended | {"SCV": ""}, "nothing is written before Accept")
        desktop.type("Return")
        desktop.wait(condition=lambda form: form.text(TITLE) == "Resumen")
        kept = mended | {"Language": "Spanish", "SCV": "0xc0", "ColorValue": "0x8400ff",
                         "Transparency": hex(percent_of(held))}
        self.assertEqual(desktop.settings(), kept)
        tinted = desktop.colour(*skin)
        desktop.type("alt+F4")
        falling = self.levels(GROUND)
        self.assertEqual(falling, sorted(falling, reverse=True))
        self.assertEqual(program.wait(20), 0)

        program, form = self.start()
        self.assertEqual(form.text(TITLE), "Resumen")
        self.assertTrue(wait_for(lambda: desktop.colour(*skin) == tinted),
                        (desktop.colour(*skin), tinted, desktop.told()[0].opacity))
        self.assertEqual(desktop.settings(), kept)

    def test_the_link_opens_in_the_browser(self):
        desktop = self.desktop
        opened = desktop.home / "opened"
        browser = desktop.home / "xdg-open"
        browser.write_text(f'#!/bin/sh\necho "$1" >> {opened}\n', encoding="utf-8")
        browser.chmod(0o755)
        desktop.write_settings(ChkTrans=0)
        _, form = self.start(PATH=f"{desktop.home}:{desktop.environment['PATH']}")
        desktop.choose(form, ABOUT)
        about = desktop.wait(condition=lambda form: form.shows(ACCEPT) and form.shows(LINK))
        desktop.press(about, LINK)
        self.assertTrue(wait_for(lambda: opened.exists() and opened.read_text()), "nothing was opened")
        self.assertEqual(opened.read_text().rstrip("/\n"), "https://terhaar.example.org")

    def test_report_is_saved_as_the_console_writes_it(self):
        desktop = self.desktop
        desktop.write_settings(ChkTrans=0)
        _, form = self.start()
        before = self.console_reports()
        desktop.choose(form, REPORT)
        dialog = desktop.wait("report", lambda form: form.takes_input(SAVE) and form.takes_input(CLOSE))
        self.assertRegex(dialog.text(MADE), r"^Report made at \d+\.\d+ second/s$")
        saved = {}
        for place, (kind, ending) in enumerate(FORMATS):
            file = desktop.home / f"informe ñ 木 {kind}"
            saved[kind] = file.with_name(file.name + ending)
            if kind == "html":
                saved[kind].write_bytes(b"old")
            self.save(dialog, file, place)
            if kind == "html":
                self.wait_for_question(saved[kind].name)
                desktop.type("Return")
                desktop.wait("dialog", lambda window: FILE_NAME in window.controls)
                self.assertEqual(saved[kind].read_bytes(), b"old")
                desktop.type("Return")
                self.wait_for_question(saved[kind].name)
                desktop.type("Left", "Return")
            self.assertTrue(wait_for(lambda: saved[kind].exists() and saved[kind].stat().st_size > 1000), kind)
            desktop.wait("report")
        after = self.console_reports()
        for kind, file in saved.items():
            # Room on the disk goes on: before or after.
            self.assertIn(without_time(file.read_bytes()), (before[kind], after[kind]))
        desktop.type("Escape")
        desktop.wait()

    def console_reports(self):
        reports = {}
        for kind, _ in FORMATS:
            file = self.desktop.home / kind
            self.desktop.wine(CONSOLE, "report", kind, "--output", f"Z:{file}")
            reports[kind] = without_time(file.read_bytes())
        return reports

    def wait_for_question(self, name):
        asked = f"{name} already exists.\nDo you want to replace it?"
        self.desktop.wait("dialog", lambda window: asked in window.texts)

    def save(self, dialog, file, place):
        """Types the name with letters of any kind, which xdotool cannot, and chooses a kind by how far down it is."""
        self.desktop.press(dialog, SAVE)
        self.desktop.wait("dialog", lambda window: window.title == "Save report as..." and FILE_NAME in window.controls)
        name = f"Z:{file}".replace("/", "\\")
        self.desktop.copy(name)
        self.desktop.type("ctrl+a", "ctrl+v")
        self.desktop.wait("dialog", lambda window: window.text(FILE_NAME) == name)
        self.desktop.type("Tab", *["Down"] * place, "Return")

    def test_a_dead_service_leaves_unknown_rows_and_dialogs_leave_no_memory_behind(self):
        desktop = self.desktop
        desktop.write_settings(ChkTrans=0)
        program, form = self.start(WINEDLLOVERRIDES=desktop.environment["WINEDLLOVERRIDES"] + ";wbemprox=d")
        desktop.press(form, SECTIONS + 7)
        self.assertIn("Name: Unknown", desktop.wait(condition=lambda form: form.text(OPEN_SECTION) == "Bios").page())
        memory = []
        for panel in [CUSTOMISE, ABOUT] * (TIMES // 2):
            for entry, kind, leave, key in ((REPORT, "report", CLOSE, "Escape"), (panel, "form", ACCEPT, "Return")):
                desktop.choose(form, entry)
                desktop.wait(kind, lambda window, leave=leave: window.shows(leave) and window.takes_input(leave))
                desktop.type(key)
                desktop.wait(condition=lambda form: form.text(STATUS))
            memory.append(desktop.memory(program))
        self.assertLess(memory[-1] - memory[4], MOST_GROWTH, memory)
        self.close(program)


if __name__ == "__main__":
    unittest.main()
