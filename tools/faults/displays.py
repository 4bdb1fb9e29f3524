"""scripts/faults displays: takes the display away, and asks the program to end, with an unstored page on the screen."""
import collections, contextlib, dataclasses, os, pathlib, random, re, select, shutil, signal, socket, struct, subprocess, sys, tempfile
import threading, time

from diary import BEGIN, DATA, HOME, LIBRARY, PROGRAM, contents, furnish, opened, play, read_all, run_all, typed


# The displays. Each gets a folder of its own, and ends with its round.

@dataclasses.dataclass
class Display:
    variables: dict
    server: subprocess.Popen
    proxy: "Proxy" = None
    session: subprocess.Popen = None

def wait_for(what, seconds=60):
    """The first answer that is not empty."""
    until = time.monotonic() + seconds
    while time.monotonic() < until:
        if answer := what(): return answer
        time.sleep(0.005)
    raise TimeoutError("waited in vain")

@contextlib.contextmanager
def started(*command, pass_fds=(), **variables):
    others = {name: value for name, value in os.environ.items() if not name.endswith("DISPLAY")}
    server = subprocess.Popen(command, env=others | variables, pass_fds=pass_fds, start_new_session=True,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try: yield server
    finally: server.kill(), server.wait()

def listens(path):
    """A compositor makes its socket a moment before it takes anybody."""
    with socket.socket(socket.AF_UNIX) as trial: return path.is_socket() and trial.connect_ex(str(path)) == 0

@contextlib.contextmanager
def sway(run):
    (run / "config").write_text("xwayland disable\n")
    settings = {"WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman"}
    with started("sway", "--config", run / "config", XDG_RUNTIME_DIR=run, SWAYSOCK=run / "orders", **settings) as server:
        name = wait_for(lambda: [path.name for path in run.glob("wayland-*") if listens(path)])[0]
        yield Display({"QT_QPA_PLATFORM": "wayland", "XDG_RUNTIME_DIR": run, "WAYLAND_DISPLAY": name}, server)

@contextlib.contextmanager
def sway_behind_proxy(run):
    with sway(run) as display, contextlib.closing(Proxy(run / "proxy", run / display.variables["WAYLAND_DISPLAY"])) as proxy:
        yield Display(display.variables | {"WAYLAND_DISPLAY": "proxy"}, display.server, proxy)

@contextlib.contextmanager
def xvfb(_):
    number, end = os.pipe()
    with open(number) as answer, started("Xvfb", "-displayfd", str(end), "-nolisten", "tcp", pass_fds=[end]) as server:
        os.close(end)
        name = answer.readline().strip()
        try: yield Display({"QT_QPA_PLATFORM": "xcb", "DISPLAY": f":{name}"}, server)
        finally: sweep(name, server)

@contextlib.contextmanager
def xvfb_in_session(run):
    command = [sys.executable, pathlib.Path(__file__).with_name("session.py")]
    with xvfb(run) as display, subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) as session:
        try: yield Display(display.variables | {"SESSION_MANAGER": session.stdout.readline().strip()}, display.server, session=session)
        finally: session.kill()

def sweep(name, server):
    """Ends it, with its socket, which one that was killed leaves. It has no lock: what is called so is another server's."""
    server.terminate()
    try: server.wait(GONE_WITHIN)
    except subprocess.TimeoutExpired: server.kill(), server.wait()
    socket_file = pathlib.Path(f"/tmp/.X11-unix/X{name}")
    with contextlib.suppress(OSError):
        if not listens(socket_file): socket_file.unlink()  # another one may have taken the number


class Proxy:
    """Stands between the program and the compositor."""
    def __init__(self, path, behind):
        self.behind, self.ends, self.door = str(behind), [], socket.socket(socket.AF_UNIX)
        self.door.bind(str(path))
        self.door.listen()
        threading.Thread(target=self.serve, daemon=True).start()

    def serve(self):
        with contextlib.suppress(OSError):  # closed
            while True:
                program, compositor = self.door.accept()[0], socket.socket(socket.AF_UNIX)
                compositor.connect(self.behind)
                self.ends += [program, compositor]
                for pair in ((program, compositor), (compositor, program)):
                    threading.Thread(target=self.pass_on, args=pair, daemon=True).start()

    def pass_on(self, source, target):
        with contextlib.suppress(OSError):
            while True:
                data, files, _, _ = socket.recv_fds(source, 65536, 28)
                if not data: break
                socket.send_fds(target, [data], files)
                for file in files: os.close(file)
        self.cut()

    def cut(self):
        for end in self.ends:
            with contextlib.suppress(OSError): end.shutdown(socket.SHUT_RDWR)

    def ask_nonsense(self):
        """A request that the display, object 1, does not know; the compositor answers with an error and hangs up."""
        for compositor in self.ends[1::2]: compositor.sendall(struct.pack("<II", 1, 8 << 16 | 99))

    def close(self):
        self.door.shutdown(socket.SHUT_RDWR), self.door.close()
        self.cut()
        for end in self.ends: end.close()


# The ends: what is done to the display and the program.

def server_gets(number): return lambda display, _: display.server.send_signal(number)
def program_gets(number): return lambda _, program: program.send_signal(number)
def both_get(number): return lambda display, program: (program.send_signal(number), display.server.send_signal(number))

def log_out(display, _):
    subprocess.run(["swaymsg", "--socket", display.variables["XDG_RUNTIME_DIR"] / "orders", "exit"], capture_output=True)

def order(display, words):
    """The session manager's answer."""
    print(words, file=display.session.stdin, flush=True)
    if not select.select([display.session.stdout], [], [], GONE_WITHIN)[0]: raise TimeoutError
    return display.session.stdout.readline().strip()

def end_session(display, _): wait_for(lambda: order(display, "end") == "ended")

def checkpoint(display, program):
    wait_for(lambda: order(display, "save") == "saved")
    program.kill()  # what is on the disk now is all there is

def kill_client(display, _):
    where = ["-display", display.variables["DISPLAY"]]
    windows = subprocess.run(["xwininfo", *where, "-root", "-tree"], capture_output=True, text=True).stdout
    window = re.search(r'(0x\w+) .*\("thornquill"', windows)[1]
    subprocess.run(["xkill", *where, "-id", window], capture_output=True, check=True)

WAYLAND, X11 = ["sway", "swaymsg"], ["Xvfb", "xkill", "xwininfo"]
Kind = collections.namedtuple("Kind", "name display end tools codes", defaults=[(0, 1)])
KINDS = [
    Kind("Wayland: logout", sway, log_out, WAYLAND),
    Kind("Wayland: compositor ended", sway, server_gets(signal.SIGTERM), WAYLAND),
    Kind("Wayland: compositor killed", sway, server_gets(signal.SIGKILL), WAYLAND),
    Kind("Wayland: protocol error", sway_behind_proxy, lambda display, _: display.proxy.ask_nonsense(), WAYLAND),
    Kind("Wayland: connection cut", sway_behind_proxy, lambda display, _: display.proxy.cut(), WAYLAND),
    Kind("Wayland: SIGTERM to both", sway, both_get(signal.SIGTERM), WAYLAND),
    Kind("X11: server ended", xvfb, server_gets(signal.SIGTERM), X11),
    Kind("X11: server killed", xvfb, server_gets(signal.SIGKILL), X11),
    Kind("X11: client killed", xvfb, kill_client, X11),
    Kind("X11: SIGTERM to both", xvfb, both_get(signal.SIGTERM), X11),
    Kind("X11: end of the session", xvfb_in_session, end_session, X11),
    Kind("X11: checkpoint, then SIGKILL", xvfb_in_session, checkpoint, X11, (-signal.SIGKILL,)),
    *(Kind(f"{number.name} to the program", xvfb, program_gets(number), X11)
      for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP)),
]


# The rounds.

SLOW = 0.3  # seconds that a slow disk takes for each file
GONE_WITHIN = 30  # seconds
WRITTEN = BEGIN + opened(0) + typed("w1") + ["click btnNewPage"] + typed("w2") + ["see txtM"]
EXPECTED = {"j00000.tqf": [[], ["w1"], ["w2"]], "journal.tqt": ("Rosebud7", [("Home", "j00000.tqf")])}
# The script, whether the disk is slow, and the lines of the log behind which the end comes.
MOMENTS = {"slow disk": (WRITTEN, True, r"see w2"),
           "in a save": (WRITTEN + ["click btnFirstPage"], True, r"see w2(.*\n)+call fsync"),
           "at rest": (WRITTEN, False, r"see w2")}

def lose(kind, moment):
    """The kind, the moment, how many seconds it took the program to go, and what was wrong."""
    script, slow, mark = MOMENTS[moment]
    begun = None

    def end(program, log):
        nonlocal begun
        wait_for(lambda: program.poll() is not None or re.search(mark, log.read_text()))
        time.sleep(random.uniform(0, SLOW))
        begun = time.monotonic()
        if program.poll() is None: kind.end(display, program)

    with tempfile.TemporaryDirectory(prefix="faults-") as top:
        folder, run = pathlib.Path(top, "diary"), pathlib.Path(top, "run")
        folder.mkdir(), run.mkdir(0o700)
        furnish(folder, {})
        try:
            with kind.display(run) as display:
                before = ["env", *(f"{name}={value}" for name, value in display.variables.items())]
                code, _ = play(folder, script, GONE_WITHIN, before, end, SLOW=int(slow * SLOW * 1000))
                seconds = time.monotonic() - begun
        except TimeoutError: return kind.name, moment, 0, ["the display or the page never came"]
        return kind.name, moment, seconds, wrong_in(folder, code, kind.codes)

def wrong_in(folder, code, codes):
    files = contents(folder)
    alien = [name for name in files if not DATA.fullmatch(name)]
    wrong = [f"{alien} are left"] * (alien != [])
    wrong += [f"not gone after {GONE_WITHIN} s" if code == -9 else f"ended with {code}"] * (code not in codes)
    try: found = read_all(files)
    except Exception as problem: return wrong + [f"not whole: {problem}"]
    return wrong + [f"{found.get(name)} is in {name}, not {rows}" for name, rows in EXPECTED.items() if found.get(name) != rows]

def become_ordinary():
    """Starts anew as a user whom sway serves, if this one is root and the other may read the program; or returns."""
    another = ["setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups"]
    reads = ["test", "-x", PROGRAM, "-a", "-r", LIBRARY, "-a", "-r", sys.argv[0]]
    if os.getuid() or subprocess.run([*another, *reads]).returncode: return
    for sockets in ("/tmp/.X11-unix", "/tmp/.ICE-unix"): os.makedirs(sockets, exist_ok=True), os.chmod(sockets, 0o1777)
    HOME.cleanup()
    os.execvp(another[0], [*another, sys.executable, *sys.argv])

def obstacle(kind):
    missing = [tool for tool in kind.tools if not shutil.which(tool)]
    plugin = list(pathlib.Path("/usr/lib").glob("*/qt6/plugins/platforms/libqwayland-generic.so")) or kind.tools is X11
    return (f"{missing[0]} is missing" if missing else "the toolkit's plugin for Wayland is missing" if not plugin
            else "sway does not serve root" if kind.tools is WAYLAND and not os.getuid() else None)

def displays(rounds=20, name=""):
    become_ordinary()
    kinds = [kind for kind in KINDS if name in kind.name]
    possible = [kind for kind in kinds if not obstacle(kind)]
    plans = [(kind, list(MOMENTS)[(turn + shift) % 3]) for turn in range(rounds) for shift, kind in enumerate(possible)]
    answers, findings = run_all(lose, plans, 2 * os.cpu_count())  # they wait more than they work
    columns, kept = (*MOMENTS, "all"), collections.defaultdict(list)
    for name, moment, _, wrong in answers:
        for column in (moment, "all"): kept[name, column].append(not wrong)
    print(f"{'kept of rounds':28}", *(f"{column:>10}" for column in columns))
    for kind in kinds:
        cells = [f"{sum(kept[kind.name, column])} of {len(kept[kind.name, column])}" for column in columns]
        print(f"{kind.name:28}", *([f"skipped, {obstacle(kind)}"] if obstacle(kind) else (f"{cell:>10}" for cell in cells)))
    longest, skipped = max((seconds for _, _, seconds, _ in answers), default=0), len(kinds) - len(possible)
    print(f"{len(answers)} rounds, {skipped} of {len(kinds)} kinds skipped, gone after {longest:.1f} s at most; {findings} findings")
    return findings
