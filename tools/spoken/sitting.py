"""One sitting by keys and by ear, for scripts/spoken: what Orca's own log says that it has spoken, step by step."""
import contextlib, os, pathlib, re, shutil, signal, subprocess, sys, tempfile, time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "faults"))
import diary
from displays import started, sweep, wait_for

ENTRY = re.compile(r"^(?=\d\d:\d\d:\d\d\.\d+ - )", re.MULTILINE)
SPEECH = re.compile(r"^\S+ - SPEECH OUTPUT: '(.*?)'(?: voice=\w+| \{.*\}|\{.*\}|None)*$", re.DOTALL)
QUIET, PATIENCE = 1.2, 90  # seconds: without a line in the log, after which a step is over; for a program to start
START, LEFT, RIGHT, UP, DOWN, TAB, BACK = "start", "Left", "Right", "Up", "Down", "Tab", "shift+Tab"

def toolbar(steps):
    """From the page to a button of the toolbar."""
    return ["F6", *[RIGHT] * steps]

# What a person does, the keys that lead there, of which nothing is told, and those of the step. Words to be typed stand behind '.
SITTING = [
    ("the first run", [], [START]),
    ("a name for the journal, and a letter that it cannot hold", [], ["'Home", "U4e2d", TAB]),
    ("the password, twice", [], ["'Rosebud7", TAB, "'Rosebud7"]),
    ("into the bookcase", [], ["Return"]),
    ("along its buttons", [], [TAB] * 9),
    ("to the journals again", [], [TAB]),
    ("a second journal", [TAB, TAB], ["space"]),
    ("it is named, and chosen", [], ["'Away", "Return"]),
    ("to the first one", [], [LEFT]),
    ("its properties: another icon", [TAB] * 5, ["space", TAB, TAB, "space", "space"]),
    ("the colour of its paper", [], [TAB, "space"]),
    ("left as it was", ["Escape"], ["Escape"]),
    ("about", [TAB] * 2, ["space"]),
    ("its links", [], [TAB, TAB]),
    ("back, and out of the program", ["Escape", TAB, TAB], ["space"]),
    ("the lock", [], [START]),
    ("a wrong password", [], ["'Rosebud6", "Return"]),
    ("and the right one", [], ["Return", "'Rosebud7", "Return"]),
    ("the journal opens", [], ["Return"]),
    ("a line is written", [], ["'One."]),
    ("along the toolbar", [], ["F6", *[RIGHT] * 13]),
    ("to the title page", ["Home", RIGHT], ["space"]),
    ("to the first page, by Next", [RIGHT], [RIGHT, "space"]),
    ("a new page is asked for", [], ["space"]),
    ("and declined", [], ["alt+n"]),
    ("the calendar", ["F6", *toolbar(7)], ["space"]),
    ("a day, a week and a month on", [], [RIGHT, DOWN, "Next"]),
    ("its buttons", [], [TAB, TAB, TAB]),
    ("closed", [], ["Escape"]),
    ("the index", toolbar(6), ["space"]),
    ("its first year, and the month below", [], [DOWN, RIGHT, DOWN]),
    ("closed", [], ["Escape"]),
    ("a photograph is chosen", toolbar(9), ["space"]),
    ("by its name", [], ["'lake.jpg", "Return"]),
    ("with a frame", [], [DOWN]),
    ("larger", [TAB] * 2, ["space"]),
    ("laid on the page", [], ["alt+i"]),
    ("the round of F6", [], ["F6", "F6"]),
    ("the photograph is moved", [], [RIGHT, DOWN]),
    ("taken off the page", [], ["Delete"]),
    ("the emoticons", toolbar(8), ["space"]),
    ("the next one, and the one below", [], [RIGHT, DOWN]),
    ("the page of the emoticons", [TAB, TAB], ["space"]),
    ("one is taken", [BACK, BACK], ["space"]),
    ("back over it", [], [LEFT]),
    ("the font", toolbar(10), ["space"]),
    ("left", [], ["Escape"]),
    ("the options", toolbar(11), ["space"]),
    ("another picture", [], [TAB, DOWN]),
    ("closed", [], ["Escape"]),
    ("the help of the page", [], ["F1"]),
    ("a line on, and to the next link", [], [DOWN, TAB]),
    ("what does not stand in it", ["ctrl+f"], ["'Zebra", "Return"]),
    ("left", [], ["Escape"]),
    ("the book is closed", [], ["alt+F4"]),
    ("a journal would be deleted", [], ["Delete"]),
    ("help in the box", [], ["F1"]),
    ("back to the question, and no", [], ["Escape", "Escape"]),
    ("out of the program", [BACK], ["space"]),
]

class Ear:
    """Reads on in Orca's log."""
    def __init__(self, log): self.log, self.at = log, 0

    def sentences(self):
        """What was said since the last time, once nothing has come for a while."""
        size, since = -1, time.monotonic()
        while time.monotonic() < since + QUIET:
            if (now := self.log.stat().st_size) != size: size, since = now, time.monotonic()
            time.sleep(0.02)
        with open(self.log, "rb") as log:
            log.seek(self.at)
            text = log.read(size - self.at).decode(errors="replace")
        self.at = size
        said = [match[1] for entry in ENTRY.split(text) if (match := SPEECH.match(entry.strip()))]
        return [" ".join(sentence.split()) for sentence in said if sentence.strip()]

# Orca keeps its log to itself until there is much of it; and what a key is called is no matter of the program.
CUSTOM = """import orca.debug
orca.debug.debugFile.reconfigure(line_buffering=True)
"""
PROFILE = ('{"general": {}, "pronunciations": {}, "keybindings": {}, "profiles": {"default": {"profile": ["Default", "default"], '
           '"enableKeyEcho": false, "pronunciations": {}, "keybindings": {}}}}')

def settings(home):
    """A voice that speaks to nobody: each sentence is given to a program that does nothing, and no sound device is asked."""
    modules, orca, pictures = home / "voice/modules", home / ".local/share/orca", home / "Pictures"
    for folder in (modules, orca, pictures): folder.mkdir(parents=True)
    shutil.copy(diary.ROOT / "assets/year/lake.jpg", pictures)
    (home / ".asoundrc").write_text("pcm.!default { type null }\nctl.!default { type null }\n")
    (home / "voice/speechd.conf").write_text('AudioOutputMethod "alsa"\nAudioALSADevice "null"\nAddModule "nobody" "sd_generic" "nobody.conf"\nDefaultModule nobody\n')
    (modules / "nobody.conf").write_text('GenericExecuteSynth "true"\nAddVoice "en" "MALE1" "nobody"\n')
    (orca / "orca-customizations.py").write_text(CUSTOM)
    (orca / "user-settings.conf").write_text(PROFILE)

@contextlib.contextmanager
def family(*command, **variables):
    """With the children that it leaves."""
    with started(*command, **variables) as parent:
        try: yield parent
        finally: os.killpg(parent.pid, signal.SIGKILL)

@contextlib.contextmanager
def desktop(home):
    """A display with a window manager, the bus of assistive technologies and Orca. The environment of the program, and Orca's log."""
    number, end = os.pipe()
    variables = {"HOME": str(home), "XDG_RUNTIME_DIR": str(home), "XDG_DATA_HOME": str(home / ".local/share"), "LC_ALL": "C.UTF-8",
                 "GSETTINGS_BACKEND": "memory"}
    with open(number) as answer, started("Xvfb", "-displayfd", str(end), "-screen", "0", "1280x1024x24", "-nolisten", "tcp", pass_fds=[end]) as server:
        os.close(end)
        name = answer.readline().strip()
        variables["DISPLAY"] = f":{name}"
        bus = subprocess.run(["dbus-daemon", "--session", "--fork", "--print-address=1", "--print-pid=1"], capture_output=True, text=True,
                             env=os.environ | variables).stdout.split()
        variables["DBUS_SESSION_BUS_ADDRESS"] = bus[0]
        log = home / "orca.log"
        try:
            with started("openbox", **variables), \
                 family("speech-dispatcher", "--run-single", "--timeout", "0", "--config-dir", str(home / "voice"), **variables), \
                 family("/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1", "--screen-reader=1", **variables), \
                 family("orca", "--debug-file", str(log), "-e", "speech", "-d", "braille", "-d", "braille-monitor", **variables):
                wait_for(lambda: log.exists() and "SPEECH OUTPUT" in log.read_text(errors="replace"), PATIENCE)
                yield variables, log
        finally:
            os.kill(int(bus[1]), 15)
            sweep(name, server)

class Person:
    """Sits at the keyboard of that display, before the program in that folder."""
    def __init__(self, folder, variables, log):
        self.folder, self.variables, self.ear, self.program = folder, os.environ | variables | {"QT_QPA_PLATFORM": "xcb"}, Ear(log), None

    def begin(self):
        if self.program: self.program.wait(PATIENCE)
        self.program = subprocess.Popen([self.folder / "thornquill"], env=self.variables, stderr=subprocess.DEVNULL)
        shown = ["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(self.program.pid)]
        subprocess.run(shown, check=True, capture_output=True, env=self.variables, timeout=PATIENCE)

    def press(self, key):
        """What is said of it."""
        orders = ["type", "--delay", "60", "--", key[1:]] if key.startswith("'") else ["key", key]
        if key == START: return self.begin() or wait_for(self.ear.sentences, PATIENCE)
        subprocess.run(["xdotool", *orders], check=True, env=self.variables)
        return self.ear.sentences()

    def end(self):
        if self.program: self.program.kill(), self.program.wait()

def perform(folder, home):
    """The lines: what was done, and below it what was said."""
    with desktop(home) as (variables, log):
        person = Person(folder, variables, log)
        try:
            for doing, way, keys in SITTING:
                person.ear.sentences()
                for key in way: person.press(key)
                yield f"{doing}:"
                for key in keys: yield from (f"  {said}" for said in person.press(key))
        finally: person.end()

def sitting():
    with tempfile.TemporaryDirectory(prefix="spoken-") as top:
        folder, home = pathlib.Path(top, "diary"), pathlib.Path(top, "home")
        folder.mkdir(), home.mkdir(0o700)
        settings(home)
        diary.furnish(folder, {})
        (folder / "THORNQUILL.HLP").symlink_to(diary.ROOT / "help/THORNQUILL.HLP")
        yield from perform(folder, home)
