#!/usr/bin/python3
"""Writes a script of random user actions for abacon-drive.

    soak_script.py [--actions N] [--seed S] [--support DIR] [--no-restarts] [--log-file NAME]

The script starts the program (with the introduction dismissed) and then does N
random actions, one or a few driver commands each: drops of random text under random
captions, clicks on buttons, radio buttons, check boxes and the target, choices on the
selector, popups, tabs and lists, typing into fields, assignments from code, timer
ticks, check boxes of the saved formulas, text put on the clipboard by another
application, the shift key and, rarely, a quit and a new launch. It never uses
`expect`: the soak asks only that the program survives.

Every row chosen exists when it is chosen, so a report of the program's handler of
unhandled exceptions in a soak's log is a finding, not noise. Lists of fixed length
(the selector, the tabs, the conversion families, the word lists) are sized from the
support files; lists that change are chosen from only right after an action that
fills them. The same seed gives the same script.
"""

import argparse
import os
import random
import sys
import xml.etree.ElementTree as ET

HERE = os.path.dirname(os.path.abspath(__file__))
DEFAULT_SUPPORT = os.path.normpath(os.path.join(HERE, "..", "..", "support", "VXKSupport"))

# The selector's menu: Calculate, Convert, Solve, Physical Data, Astro Data, Evaluate,
# Settings.
SELECTOR_ENTRIES = 7
TABS = {"TabPanel1": 4, "TabPanel2": 5}

# Push buttons of the window, keypad included. "Save" of the log (PushButton3) is not
# here: each save appends the whole log to the file of the day, so it has a rate of its
# own.
KEYPAD = [5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26,
          27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40]
OTHER_BUTTONS = [1, 2, 4, 41, 42, 43, 44, 45, 46, 47, 48, 49]
BUTTONS = ["PushButton%d" % n for n in KEYPAD + OTHER_BUTTONS]
RADIOS = ["normbutton", "scibutton1"] + ["RadioButton%d" % n for n in range(1, 10)]
CHECKBOXES = ["CheckBox1", "CheckBox2"]
# Fields a user types into or code assigns; the log and the read-only help texts are
# left out, as nobody can type there.
FIELDS = ["EditField4", "EditField5", "TextField1", "TextField3", "TextField4", "EditA",
          "EditB", "EditC", "A1", "B1", "C1", "D2", "E2", "F2", "TextArea7", "TextArea8",
          "TextArea9", "EditField9", "TextField2"]

SEARCH_WORDS = ["moon", "sun", "earth", "electron mass", "the radius of the moon",
                "Mass ELECTRON", "speed of light", "gold", "element iron", "isotope",
                "planck", "mars", "jupiter moons", "sirius", "andromeda", "comet halley",
                "constellation", "galaxy", "moo", "star", "nothing like this", "a", "the "]
# Words that every shipped data file answers, in either search mode.
FOUND_WORDS = ["moon", "sun", "earth"]
UNITS = ["km", "m", "mi", "ft", "in", "cm", "kg", "lb", "g", "F", "C", "K", "m/s", "km/h",
         "mph", "J", "cal", "W", "hp", "Pa", "psi", "l", "gal", "s", "h", "rad", "deg"]
FUNCTIONS = ["sin", "cos", "tan", "asin", "acos", "atan", "sqrt", "log", "exp", "abs",
             "ceil", "floor", "round", "log10"]
UNICODE = ["\u03c0", "\u03a9", "\u221a2", "\u00b0C", "\u00b5m", "\u00e9t\u00e9",
           "\U0001F600", "\u05e9\u05dc\u05d5\u05dd", "\u0627\u0644\u0642\u0645\u0631",
           "\u6708", "e\u0301", "\u200b", "\ufeff", "\u2212", "\u00d7", "\u00f7", "\u2153"]


def quote(text):
    """A double-quoted driver word with its escapes."""
    out = text.replace("\\", "\\\\").replace('"', '\\"')
    out = out.replace("\n", "\\n").replace("\r", "\\r").replace("\t", "\\t")
    return '"' + out + '"'


def support_sizes(folder):
    """Rows of the fixed lists, as the shipped support files give them."""
    sizes = {"families": 0, "fewestConversions": 0, "physicalWords": 0, "astroWords": 0}
    try:
        root = ET.parse(os.path.join(folder, "convert.txt")).getroot()
        families = root.findall("Category")
        sizes["families"] = len(families)
        sizes["fewestConversions"] = min(len(c.findall("List/SubList")) for c in families)
    except (OSError, ET.ParseError, ValueError):
        pass
    for key, name in (("physicalWords", "physicaldata.txt"), ("astroWords", "AstrDataXML.txt")):
        try:
            root = ET.parse(os.path.join(folder, name)).getroot()
            words = {(c.findtext("Key") or "").strip().lower().split(" ")[0]
                     for c in root.findall("Category")}
            sizes[key] = len(words)
        except (OSError, ET.ParseError):
            pass
    return sizes


class Generator:
    def __init__(self, rng, sizes, restarts, log_file):
        self.rng = rng
        self.log_file = log_file
        self.sizes = sizes
        self.restarts = restarts
        self.lines = []

    def emit(self, line):
        self.lines.append(line)

    # ---- texts ----------------------------------------------------------------

    def number(self):
        r = self.rng
        form = r.randrange(8)
        if form == 0:
            return str(r.randrange(0, 10))
        if form == 1:
            return str(r.randrange(-1000, 100000))
        if form == 2:
            return "%.*f" % (r.randrange(1, 6), r.uniform(-1000, 1000))
        if form == 3:
            return "%de%d" % (r.randrange(1, 10), r.randrange(-320, 320))
        if form == 4:
            return r.choice(["&h", "&o", "&b"]) + "".join(r.choice("0123456789ABCDEF")
                                                          for _ in range(r.randrange(1, 9)))
        if form == 5:
            return "".join(r.choice("0123456789") for _ in range(r.randrange(15, 40)))
        if form == 6:
            return r.choice(["PI", "x", "y", "e", "1,000", "0.5"])
        return str(r.randrange(0, 200)) + "!"

    def formula(self, depth=0):
        r = self.rng
        if depth > 3 or r.random() < 0.3:
            return self.number()
        form = r.randrange(5)
        if form == 0:
            return self.formula(depth + 1) + r.choice(["+", "-", "*", "/", "^", "\\", " Mod "]) + \
                self.formula(depth + 1)
        if form == 1:
            return r.choice(FUNCTIONS) + "(" + self.formula(depth + 1) + ")"
        if form == 2:
            return "(" + self.formula(depth + 1) + ")"
        if form == 3:
            return "-" + self.formula(depth + 1)
        # The evaluate form: a formula of x and y with values.
        return self.formula(depth + 1) + ":" + self.number() + (";" + self.number()
                                                                 if r.random() < 0.5 else "")

    def garbage(self):
        r = self.rng
        alphabet = "!@#$%^&*()_+-=[]{}|;':,./<>?`~ \t\"\\abcXYZ019"
        return "".join(r.choice(alphabet) for _ in range(r.randrange(0, 40)))

    def long_text(self):
        r = self.rng
        form = r.randrange(4)
        size = r.randrange(1000, 20000)
        if form == 0:
            depth = r.randrange(100, 5000)
            return "(" * depth + "1" + ")" * depth
        if form == 1:
            return "+".join(self.number() for _ in range(size // 8))
        if form == 2:
            return "".join(r.choice(UNICODE) for _ in range(size // 4))
        return " ".join(r.choice(SEARCH_WORDS) for _ in range(size // 10))

    def text(self):
        r = self.rng
        kind = r.random()
        if kind < 0.30:
            return self.formula()
        if kind < 0.48:
            return self.number() + r.choice(["", " "]) + r.choice(UNITS)
        if kind < 0.63:
            return r.choice(SEARCH_WORDS)
        if kind < 0.68:
            return r.choice(["?", "help", "HELP", "Help ", " ?"])
        if kind < 0.80:
            return self.garbage()
        if kind < 0.90:
            return "".join(r.choice(UNICODE) for _ in range(r.randrange(1, 6))) + \
                r.choice(["", " 5", "+1", " moon"])
        if kind < 0.95:
            return self.formula() + r.choice(["\n", "\r\n", "\r", "\t"]) + self.formula()
        if kind < 0.995:
            return r.choice(["", " ", "  ", "=", ":", ";", "x:", "!", "()", "1/0", "0/0",
                             "1e999999", "-1e999999", "2147483648\\1", "5 Mod 0"])
        return self.long_text()

    # ---- actions --------------------------------------------------------------

    def caption(self):
        self.emit("choose BevelButton1 %d" % self.rng.randrange(SELECTOR_ENTRIES))

    def drop(self):
        if self.rng.random() < 0.4:
            self.caption()
        if self.rng.random() < 0.01:
            self.emit("drop")  # an item without text
        else:
            self.emit("drop " + quote(self.text()))

    def click(self):
        r = self.rng
        kind = r.random()
        if kind < 0.65:
            self.emit("click " + r.choice(BUTTONS))
        elif kind < 0.85:
            self.emit("click " + self.radio())
        elif kind < 0.93:
            self.emit("click " + r.choice(CHECKBOXES))
        elif kind < 0.99:
            self.emit("click ImageWell1")
        else:
            self.emit("click StaticText24")

    def radio(self):
        # Literal search lists the whole data file into the log at every search, so it is
        # chosen less often than the other settings: the log, and with it the memory,
        # would otherwise grow by a data file every few actions.
        choice = self.rng.choice(RADIOS)
        if choice == "RadioButton6" and self.rng.random() < 0.8:
            choice = "RadioButton5"
        return choice

    def choose(self):
        r, s = self.rng, self.sizes
        kind = r.randrange(10)
        if kind == 0:
            self.caption()
        elif kind == 1:
            panel = r.choice(sorted(TABS))
            self.emit("choose %s %d" % (panel, r.randrange(TABS[panel])))
        elif kind == 2 and s["families"]:
            self.emit("choose %s %d" % (r.choice(["PopupMenu2", "Listbox1"]),
                                        r.randrange(s["families"])))
        elif kind == 3 and s["fewestConversions"]:
            self.emit("choose %s %d" % (r.choice(["popconvert", "Listbox2"]),
                                        r.randrange(s["fewestConversions"])))
        elif kind == 4 and s["physicalWords"]:
            # A primary word fills its menu of optional words, which can then be chosen.
            self.emit("choose Listbox4 %d" % r.randrange(s["physicalWords"]))
            if r.random() < 0.7:
                self.optional("PopupMenu1")
        elif kind == 5 and s["astroWords"]:
            self.emit("choose Listbox7 %d" % r.randrange(s["astroWords"]))
            if r.random() < 0.7:
                self.optional("PopupMenu3")
        elif kind == 6:
            # A search from the tab fills its result list (row 0 is always there).
            page = r.randrange(2)
            field, button, results = (("TextField3", "PushButton47", "Listbox5") if page == 0
                                      else ("TextField4", "PushButton49", "Listbox6"))
            self.emit("choose BevelButton1 %d" % (3 + page))
            self.emit("set %s.Text %s" % (field, quote(r.choice(FOUND_WORDS))))
            self.emit("click " + button)
            self.emit("choose %s 0" % results)
        elif kind == 7:
            # Store a formula with "m", then recall, tick or delete the row just made.
            self.emit("set EditField4.Text " + quote(self.formula()))
            self.emit("click PushButton33")
            follow = r.randrange(3)
            if follow == 0:
                self.emit("choose Listbox3 0")
            elif follow == 1:
                self.emit("check Listbox3 0 %s" % r.choice(["on", "off"]))
            else:
                self.emit("check Listbox3 0 on")
                self.emit("click PushButton46")
        elif kind == 8:
            self.emit("leave popconvert")
        else:
            self.emit("choose %s 0" % r.choice(["PopupMenu1", "PopupMenu3"]))

    def optional(self, menu):
        shift = self.rng.random() < 0.2
        if shift:
            self.emit("shift down")
        self.emit("choose %s 1" % menu)
        if shift:
            self.emit("shift up")

    def type_text(self):
        field = self.rng.choice(FIELDS)
        text = self.text()
        if len(text) > 200:
            text = text[:200]  # typing is key by key
        self.emit("type %s %s" % (field, quote(text)))

    def assign(self):
        r = self.rng
        kind = r.randrange(4)
        if kind == 0:
            self.emit("set %s.Text %s" % (r.choice(FIELDS), quote(self.text())))
        elif kind == 1:
            # The hidden formula field and its "RUN" button, as the program's code uses them.
            self.emit("set EditField1.Text " + quote(self.formula()))
            self.emit("push PushButton1")
        elif kind == 2:
            # A radio button is turned on from code, as restoring the settings does; its
            # partners go off by themselves.
            if r.random() < 0.5:
                self.emit("set %s.Value %s" % (r.choice(CHECKBOXES), r.choice(["true", "false"])))
            else:
                self.emit("set %s.Value true" % self.radio())
        else:
            self.emit("push " + r.choice(BUTTONS))

    def other(self):
        r = self.rng
        kind = r.random()
        if kind < 0.5:
            self.emit("clipboard " + quote(self.text()))
        elif kind < 0.7:
            self.emit("events")
        elif kind < 0.9:
            self.emit("click PushButton42")  # Save Preferences
        else:
            self.emit("push PushButton40")

    def restart(self):
        self.emit("shift up")
        self.emit("quit")
        self.emit("launch")

    def action(self):
        r = self.rng.random()
        if self.restarts and r < 0.00003:
            self.restart()
        elif r < 0.0003:
            self.emit("click PushButton3")  # save the log
        elif r < 0.35:
            self.drop()
        elif r < 0.55:
            self.click()
        elif r < 0.70:
            self.choose()
        elif r < 0.80:
            self.type_text()
        elif r < 0.88:
            self.assign()
        elif r < 0.95:
            self.emit("timer")
        else:
            self.other()

    def script(self, actions, seed):
        self.emit("# %d random actions, seed %d" % (actions, seed))
        self.emit('write Preferences/VXKInstr "do not show"')
        self.emit("launch")
        for _ in range(actions):
            self.action()
        # The log's final size, measured by the program's own "Save" into an emptied file
        # of the day (printing the log would cost copies of it that the program never
        # makes), and the formulas kept.
        self.emit("write Application/%s %s" % (self.log_file, quote("")))
        self.emit("click PushButton3")
        self.emit("get Listbox3.ListCount")
        self.emit("events")
        self.emit("quit")
        return self.lines


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--actions", type=int, default=100000)
    parser.add_argument("--seed", type=int, default=20261123)
    parser.add_argument("--support", default=DEFAULT_SUPPORT,
                        help="the support files the run uses (sizes of the fixed lists)")
    parser.add_argument("--no-restarts", action="store_true",
                        help="one launch for the whole script")
    parser.add_argument("--log-file", default="VXLog11-23-26.txt",
                        help="the name the log is saved under at the end: the date of the "
                             "driver's --clock (default that of 2026-11-23)")
    args = parser.parse_args()
    rng = random.Random(args.seed)
    generator = Generator(rng, support_sizes(args.support), not args.no_restarts, args.log_file)
    out = sys.stdout
    for line in generator.script(args.actions, args.seed):
        out.write(line + "\n")


if __name__ == "__main__":
    main()
