"""scripts/desktops: words that an input method composes, with the real program and a person's keys: on a page, over a turn and a
closing, in a name that the files cannot hold, in the help's box for finding, and none in a password."""
import contextlib, os, shutil, subprocess, time

import diary
from desktops import Desktop, Journey
from displays import wait_for
from screen import PATIENCE, Miss

LATIN, PINYIN = "xkb:us::eng", "libpinyin"
LETTERS, WORD = "nihao", "你好"

class WithInputMethod(Desktop):
    def __init__(self):
        super().__init__("ibus on openbox", ["openbox", "xprop", "xclip", "dbus-run-session", "ibus", "/usr/libexec/ibus-engine-libpinyin"],
                         ["dbus-run-session", "sh", "-c", "ibus-daemon --panel=disable & exec openbox"], False)

    @contextlib.contextmanager
    def session(self, run, desk):
        with super().session(run, desk) as session:
            self.around = os.environ | session | {"QT_IM_MODULE": "ibus"}
            self.choose(PINYIN), self.choose(LATIN)
            yield self.around

    def choose(self, engine):
        """As a person does in the desktop's panel."""
        def ibus(*engine): return subprocess.run(["ibus", "engine", *engine], env=self.around, capture_output=True, text=True).stdout.strip()
        wait_for(lambda: (ibus(engine), ibus() == engine)[1], PATIENCE)

class Composing(Journey):
    def new_diary(self, name):
        folder = super().new_diary(name)
        shutil.copy(diary.ROOT / "help/THORNQUILL.HLP", folder)
        return folder

    def type(self, text):
        """No faster than a person, whose every key the input method is asked about."""
        for letter in text:
            self.desk.type(letter)
            time.sleep(0.1)

    def compose(self):
        self.desktop.choose(PINYIN)
        self.type(LETTERS)
        self.desk.stands_still()

    def composed(self):
        self.compose()
        self.desk.press("space")
        self.desk.stands_still()
        self.desktop.choose(LATIN)

    def click_in_journal(self, x, y):
        """In pixels from the corner of what its window shows; the title bar is above."""
        self.desk.hand("search", "--onlyvisible", "--name", r"Thornquill \[", "mousemove", "--window", "%1", x, 0,
                       "mousemove_relative", "--", 0, y, "click", 1)

    def expect(self, times):
        """So often the word stands in the journal's file."""
        rtf = "".join(f"\\u{(ord(letter) ^ 0x8000) - 0x8000} ?" for letter in WORD).encode()
        shifted = bytes((byte - ord(LETTERS[-1])) % 255 for byte in range(256))  # the password's last letter is the key
        def count():
            data = diary.contents(self.folder).get("j00000.tqf", b"")
            return sum(data[start::2].translate(shifted).count(rtf) for start in (0, 1))
        try: wait_for(lambda: count() == times, PATIENCE)
        except TimeoutError: raise Miss(f"the word {times} times in the file, and it is there {count()} times") from None

    def password(self):
        """The name in Latin letters, the password while the input method would compose them."""
        self.new_diary("diary")
        self.desk.await_change("the window of the first run", lambda: setattr(self, "program", self.start(self.folder)))
        self.type("Home")
        self.desktop.choose(PINYIN)
        for _ in range(2): self.desk.press("Tab"), self.desk.stands_still(), self.type(LETTERS)
        self.desk.await_change("the bookcase", lambda: self.desk.press("Return"))
        self.desk.await_change("the journal", lambda: self.desk.press("Return"))

    def page(self):
        self.composed()
        self.command("Index")
        self.expect(1)
        self.desk.await_change("the journal without the index", lambda: self.desk.press("Escape"), 40)

    def turn(self):
        self.compose()
        self.desk.await_change("the question for a new page", lambda: self.click_in_journal(20, 20), 60)
        self.desktop.choose(LATIN)
        self.desk.await_change("the new page", lambda: self.desk.press("Return"), 60)
        self.expect(2)

    def closing(self):
        self.compose()
        self.desk.await_change("the bookcase", lambda: self.click_in_journal(555, -10))
        self.expect(3)
        self.desktop.choose(LATIN)

    def name(self):
        """A refused word leaves what it was composed over."""
        self.desk.await_change("the dialog for a journal", lambda: self.desk.press("Tab", "Tab", "space"), 60)
        self.type("Old")
        self.desk.press("ctrl+a")
        self.composed()
        self.desk.press("End")
        self.type("er")
        self.desk.await_change("the bookcase", lambda: self.desk.press("Return"), 60)

    def find(self):
        self.desk.await_change("the help", lambda: self.desk.press("F1"))
        self.desk.press("ctrl+f")
        self.composed()
        self.desk.press("ctrl+a", "ctrl+c")
        copied = lambda: subprocess.run(["xclip", "-o", "-selection", "clipboard"], env=self.session, capture_output=True, text=True).stdout
        try: wait_for(lambda: copied() == WORD, PATIENCE)
        except TimeoutError: raise Miss(f"the word in the box, and there is {copied()!r}") from None

    def end(self):
        self.program.terminate()
        try: self.program.wait(PATIENCE)
        except subprocess.TimeoutExpired: raise Miss("the end of the program") from None
        password, journals = diary.read("journal.tqt", (self.folder / "journal.tqt").read_bytes(), 0)
        if (password, [name for name, _ in journals]) != (LETTERS, ["Home", "Older"]): raise Miss(f"Home, Older and {LETTERS}: {password} {journals}")

    STEPS = {"password": password, "page": page, "turn": turn, "closing": closing, "name": name, "find": find, "end": end}
