"""scripts/desktops: one short journey with the real program on each desktop that is there, by keys and pointer from outside."""
import contextlib, os, pathlib, shutil, signal, struct, subprocess, sys, tempfile, time

import diary
from displays import started, wait_for
from screen import MAGENTA, PATIENCE, Miss, changed, screen


# The desktops: each is a window of one virtual screen, whose keys and pointer are the person's.

class Desktop:
    """A session: its command, the packages' programs that it needs, and how the program is started in it."""
    def __init__(self, name, tools, command, wayland, variables=(), platform=None):
        self.name, self.tools, self.command, self.wayland = name, [*tools, "Xvfb", "xdotool", "xwininfo"], command, wayland
        self.variables, self.platform = dict(variables), platform or ("wayland" if wayland else "xcb")

    def obstacle(self):
        missing = [tool for tool in self.tools if not shutil.which(tool)]
        return missing and f"{missing[0]} is missing" or ("sway" in self.name and not os.getuid() and "sway does not serve root") or None

    @contextlib.contextmanager
    def session(self, run, desk):
        """What the program finds in its environment."""
        outer = {"DISPLAY": desk.number, "XDG_RUNTIME_DIR": str(run), "HOME": str(run), "XDG_CONFIG_HOME": str(run / ".config")}
        furnish(run)
        names = lambda: sorted(path.name for path in run.glob("wayland-*") if path.is_socket())
        with started(*[word.format(run=run, **outer) for word in self.command], **outer, **self.variables) as self.server, contextlib.ExitStack() as end:
            end.callback(lambda: self.all_get(signal.SIGKILL))
            desk.point(640, 900)
            if not self.wayland:
                wait_for(lambda: manager_of(desk), PATIENCE)
                yield outer | {"QT_QPA_PLATFORM": "xcb"}
                return
            inner = {**outer, "WAYLAND_DISPLAY": wait_for(names, PATIENCE)[0], "QT_QPA_PLATFORM": self.platform}
            if self.platform == "xcb": inner["DISPLAY"] = wait_for(lambda: (run / "xwayland").exists() and (run / "xwayland").read_text().strip())
            else: del inner["DISPLAY"]
            desk.stands_still()
            desk.give_keys_to_its_window()
            yield inner

    def log_out(self, server):
        """The person's desktop goes, and the program with it."""
        if self.wayland: self.all_get(signal.SIGTERM)
        else: server.terminate()

    def all_get(self, number):
        """The session's leader and whom it has started."""
        with contextlib.suppress(OSError): os.killpg(self.server.pid, number)

def manager_of(desk):
    told = subprocess.run(["xprop", "-display", desk.number, "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True).stdout
    return "#" in told

def furnish(run):
    (run / "weston").write_text("[shell]\nanimation=none\nclose-animation=none\nstartup-animation=none\nlocking=false\n")
    (run / "sway").write_text("output * resolution 1280x1000\ninput type:keyboard repeat_delay 20000\nexec echo $DISPLAY > %s/xwayland\n" % run)
    (run / "following").write_text((run / "sway").read_text() + "focus_on_window_activation smart\n")
    strict = run / ".config/xfce4/xfconf/xfce-perchannel-xml"
    strict.mkdir(parents=True)
    (strict / "xfwm4.xml").write_text('<?xml version="1.0"?><channel name="xfwm4" version="1.0"><property name="general" type="empty">'
                                      '<property name="prevent_focus_stealing" type="bool" value="true"/></property></channel>')

NESTED = {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}
SWAY = ["sway", "--config", "{run}/sway"]
DESKTOPS = [
    Desktop("openbox", ["openbox", "xprop"], ["openbox"], False),
    Desktop("xfwm4, keeping the focus", ["xfwm4", "xprop", "dbus-run-session"], ["dbus-run-session", "xfwm4", "--compositor=off"], False),
    Desktop("sway", ["sway"], SWAY, True, NESTED),
    Desktop("sway, XWayland", ["sway", "Xwayland"], SWAY, True, NESTED, "xcb"),
    Desktop("following sway", ["sway"], ["sway", "--config", "{run}/following"], True, NESTED),
    Desktop("GNOME's compositor", ["mutter", "dbus-run-session"], ["dbus-run-session", "mutter", "--nested", "--wayland"], True,
            {"MUTTER_DEBUG_DUMMY_MODE_SPECS": "1280x1000"}),
    Desktop("weston", ["weston"], ["weston", "--config={run}/weston", "--backend=x11-backend.so", "--use-pixman", "--width=1280", "--height=1000"], True),
    Desktop("KWin", ["kwin_wayland", "dbus-run-session"], ["dbus-run-session", "kwin_wayland", "--x11-display", "{DISPLAY}", "--width", "1280",
                                                               "--height", "1000", "--no-lockscreen", "--no-global-shortcuts"], True, {"KWIN_COMPOSE": "Q"}),
]


# The journey.

TOOLBAR = ["New", "Title", "Back", "Next", "Last", "Print", "Index", "Cal", "Emote", "Pic"]

class Journey:
    def __init__(self, desktop, desk, server, run, session):
        self.desktop, self.desk, self.server, self.run, self.session = desktop, desk, server, run, session
        self.folder = run / "diary"

    def start(self, folder, **more):
        return subprocess.Popen([folder / "thornquill"], env=self.session | {"LC_ALL": "C.UTF-8", "PATH": os.environ["PATH"]},
                                stdout=subprocess.DEVNULL, **more)

    def new_diary(self, name):
        folder = self.run / name
        folder.mkdir()
        diary.furnish(folder, {})
        return folder

    def command(self, caption):
        """By keys alone: from the page to the toolbar's first button, and along."""
        self.desk.press("F6", *["Right"] * TOOLBAR.index(caption), "space")

    def pages(self):
        files = diary.contents(self.folder)
        return diary.read("j00000.tqf", files["j00000.tqf"], ord("7")) if "j00000.tqf" in files else []

    def first_start(self):
        self.new_diary("diary")
        self.desk.await_change("the window of the first run", lambda: setattr(self, "program", self.start(self.folder)))
        self.desk.type("Home\tRosebud7\tRosebud7")
        self.desk.await_change("the bookcase", lambda: self.desk.press("Return"))
        self.desk.await_change("the journal", lambda: self.desk.press("Return"))

    def pages_written(self):
        self.desk.type("w1 ")
        self.desk.await_change("the question for a new page", lambda: self.command("New"), 60)
        self.desk.await_change("the new page", lambda: self.desk.press("Return"), 60)
        self.desk.type("w2 ")
        self.expect_page(1, "w1", after=self.desk.stands_still)

    def index_behind(self):
        """Behind the journal, the index comes forward by its button, and a page is reached by its keys."""
        self.desk.await_change("the index", lambda: self.command("Index"))
        self.desk.point(*self.desk.white_spot())
        self.desk.hand("click", 1)
        self.desk.stands_still()
        self.desk.type("w3 ")
        self.command("Index")
        self.desk.stands_still()
        self.desk.press("Down")
        self.desk.await_change("the page of the index", lambda: self.desk.press("Return"))
        self.desk.type("w4 ")
        self.expect_page(1, "w1", "w4", after=lambda: self.command("Index"))
        self.desk.stands_still()
        self.desk.await_change("the journal without the index", lambda: self.desk.press("Escape"))

    def expect_page(self, page, *words, after):
        after()
        try: wait_for(lambda: len(self.pages()) > page and sorted(self.pages()[page]) == sorted(words), PATIENCE)
        except TimeoutError: raise Miss(f"{words} on page {page}, and there is {self.pages()}") from None

    def photograph_dragged(self):
        picture(self.run / "photo.bmp", 800, 600)
        self.desk.await_change("the dialog for a file", lambda: self.command("Pic"))
        self.desk.type(str(self.run / "photo.bmp"))
        self.desk.await_change("the dialog for a picture", lambda: self.desk.press("Return"))
        self.desk.await_change("the photograph", lambda: self.desk.press("Return"))
        left, top, right, bottom = self.desk.box_of(MAGENTA) or miss("the photograph on the page")
        self.desk.point((left + right) // 2, (top + bottom) // 2)
        self.desk.hand("click", 1)
        try: wait_for(lambda: self.desk.at(left + 10, top + 10) != MAGENTA, PATIENCE)
        except TimeoutError: raise Miss("the handle over the photograph") from None
        to = left - 120, top + 200
        self.desk.hand("mousemove", left + 30, top + 10, "sleep", 0.1, "mousedown", 1, "sleep", 0.1,
                       *[word for step in range(1, 11) for word in
                         ("mousemove", left + 30 + (to[0] - left - 30) * step // 10, top + 10 + (to[1] - top - 10) * step // 10, "sleep", 0.03)],
                       "mouseup", 1)
        self.desk.stands_still()
        now = self.desk.box_of(MAGENTA) or miss("the photograph where it was dragged")
        across, below = to[0] - now[0], to[1] - now[1]  # the handle lies from the second row to the twenty-first
        if not (-8 <= across < now[2] - now[0] and 0 < below <= 20):
            raise Miss(f"the handle under the pointer, which is {across}, {below} from the photograph's corner")
        self.desk.point(*self.desk.white_spot())
        self.desk.hand("click", 1)

    def printed_to_a_file(self):
        self.desk.await_change("the dialog for printing", lambda: self.command("Print"))
        self.desk.press("Return")
        try: wait_for(lambda: (self.run / "Thornquill.pdf").exists() and b"%%EOF" in (self.run / "Thornquill.pdf").read_bytes()[-16:], PATIENCE)
        except TimeoutError: raise Miss("the file Thornquill.pdf in the home folder") from None
        self.desk.stands_still()

    def second_start(self):
        """Among the windows of another diary. What is typed then tells who has the keys."""
        other = self.new_diary("other")
        self.desk.await_change("the window of another diary", lambda: setattr(self, "other", self.start(other)))
        second = self.start(self.folder, stderr=subprocess.PIPE, text=True)
        try: told = second.communicate(timeout=PATIENCE)[1]
        except subprocess.TimeoutExpired: raise Miss("the end of the second start") from None
        if second.returncode: raise Miss(f"the second start's good end, and it was {second.returncode}")
        in_front = self.has_keys("w5")
        if in_front == ("asks for your attention" in told): raise Miss("in front" if not in_front else "no word, since it is in front")
        return "in front" if in_front else "asks, and says so"

    def launched(self):
        """By a launcher that has the keys, and hands on what the desktop gives it for the press; then once more over an open dialog."""
        if subprocess.run([sys.executable, "-c", "import gi; gi.require_version('Gtk', '3.0')"], stderr=subprocess.DEVNULL).returncode:
            return "no launcher"
        for has_dialog in (False, True):
            if has_dialog: self.desk.await_change("the calendar", lambda: self.command("Cal"))
            self.desk.await_change("the window of the launcher", lambda: setattr(self, "other", self.start_launcher()))
            self.desk.press("Return")
            try: wait_for(lambda: "ended 0" in self.log.read_text(), PATIENCE)
            except TimeoutError: raise Miss(f"the second start's good end, and the launcher says {self.log.read_text()!r}") from None
            self.desk.stands_still()
            in_front = self.escape_closes_dialog() if has_dialog else self.has_keys("w6")
            where = "over a dialog" if has_dialog else "over the page"
            if in_front == ("asks for your attention" in self.log.read_text()): raise Miss(f"{where}, to be in front or to ask, one of them")
            if not in_front: return "asks over a dialog" if has_dialog else "asks, and says so"
        return "in front"

    @property
    def log(self): return self.run / "launcher.log"

    def start_launcher(self):
        command = [sys.executable, pathlib.Path(__file__).with_name("launcher.py"), self.folder / "thornquill"]
        with open(self.log, "w") as log: return subprocess.Popen(command, env=self.session | {"PATH": os.environ["PATH"]}, stdout=log, stderr=log)

    def escape_closes_dialog(self):
        """Then it had the keys. The other window goes, and the journal is there alone."""
        before = self.desk.rows()
        self.desk.press("Escape")
        self.desk.stands_still()
        closed = changed(before, self.desk.rows()) > 90
        self.other.kill(), self.other.wait()
        self.desk.stands_still()
        if not closed: self.desk.await_change("the journal without the calendar", lambda: self.desk.press("Escape"))
        return closed

    def has_keys(self, word):
        """What is typed tells it, when the other window is gone and the page is stored."""
        self.desk.stands_still()
        self.desk.type(f"{word} ")
        self.other.kill(), self.other.wait()
        self.desk.stands_still()
        self.desk.point(*self.desk.white_spot())
        self.desk.hand("click", 1)
        self.desk.stands_still()
        self.desk.await_change("the index", lambda: self.command("Index"))
        self.desk.await_change("the journal without the index", lambda: self.desk.press("Escape"))
        return word in self.pages()[1]

    def logged_out(self):
        self.desk.type("w8 ")
        time.sleep(0.5)
        self.desktop.log_out(self.server)
        try: self.program.wait(PATIENCE)
        except subprocess.TimeoutExpired: raise Miss("the end of the program") from None
        if "w8" not in self.pages()[1]: raise Miss(f"the unstored word, and there is {self.pages()}")

    STEPS = {"first start": first_start, "pages": pages_written, "index": index_behind, "drag": photograph_dragged, "print": printed_to_a_file,
             "second start": second_start, "launcher": launched, "logout": logged_out}

def miss(what): raise Miss(what)

def picture(path, width, height):
    size = 3 * width * height
    path.write_bytes(b"BM" + struct.pack("<IIIIiiHHIIiiII", 54 + size, 0, 54, 40, width, height, 1, 24, 0, size, 2835, 2835, 0, 0)
                     + b"\xff\x00\xff" * (width * height))

def travel(desktop, journey, album):
    """A desktop that does not come up is no matter of the program: it is started anew, twice at most."""
    for _ in range(3):
        if cells := travel_once(desktop, journey, album): return cells
    return {next(iter(journey.STEPS)): "the desktop did not start"}

def travel_once(desktop, journey, album):
    """A cell for each step, the first miss in words; what comes behind it was not tried. None: there was no desktop."""
    cells = {}
    with tempfile.TemporaryDirectory(prefix="desktops-") as top, contextlib.ExitStack() as life:
        run = pathlib.Path(top)
        desk, server = life.enter_context(screen(run))
        try: person = journey(desktop, desk, server, run, life.enter_context(desktop.session(run, desk)))
        except TimeoutError: return None
        try:
            for step, act in journey.STEPS.items():
                try: cells[step] = act(person) or "yes"
                except (Miss, TimeoutError, subprocess.CalledProcessError) as miss:
                    cells[step] = f"NO: expected {miss}"
                    if album: save(desk, album / f"{desktop.name.split()[0].strip(',')}-{step.replace(' ', '-')}.ppm")
                    break
        finally:
            for name in ("program", "other"):
                if process := getattr(person, name, None): process.kill(), process.wait()
    return cells

def save(desk, path):
    with contextlib.suppress(OSError, struct.error):
        rows = desk.rows()
        body = b"".join(bytes(value for at in range(0, len(row), 3) for value in row[at:at + 3][::-1]) for row in rows)
        path.write_bytes(f"P6 {len(rows[0]) // 3} {len(rows)} 255\n".encode() + body)

def table(desktops, journey, names):
    """A row for each desktop, or for those alone that are called so."""
    chosen = [each for each in desktops if not names or any(each.name.startswith(name) for name in names)]
    album = pathlib.Path(os.environ["DESKTOPS_ALBUM"]) if "DESKTOPS_ALBUM" in os.environ else None
    failed, columns = 0, list(journey.STEPS)
    if chosen: print(f"{'':26}", *(f"{step:17}" for step in columns), flush=True)
    for desktop in chosen:
        if why := desktop.obstacle():
            print(f"{desktop.name:26} skipped, {why}", flush=True)
            continue
        cells = travel(desktop, journey, album)
        print(f"{desktop.name:26}", *(f"{cells.get(step, '-'):17}" for step in columns), flush=True)
        failed += any(cell.startswith("NO") or "did not" in cell for cell in cells.values())
    return failed
