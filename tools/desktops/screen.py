"""A virtual screen for scripts/desktops: its pixels, and a person's keys and pointer."""
import contextlib, os, re, struct, subprocess, time

from displays import started, sweep, wait_for

PATIENCE = 20  # seconds for what must come
STILL = 0.8    # seconds without a change, after which what came has come
MAGENTA, WHITE = b"\xff\x00\xff", b"\xff\xff\xff"  # no theme has either


class Screen:
    def __init__(self, number, pixels):
        self.number, self.pixels = number, pixels

    def rows(self):
        """Three bytes a pixel."""
        data = self.pixels.read_bytes()
        header = struct.unpack(">25I", data[:100])
        begin, (width, height, line) = header[0] + 12 * header[19], (header[4], header[5], header[12])
        return [three_of_four(data[begin + row * line:begin + row * line + 4 * width]) for row in range(height)]

    def hand(self, *orders):
        subprocess.run(["xdotool", *map(str, orders)], check=True, env=os.environ | {"DISPLAY": self.number})

    def give_keys_to_its_window(self):
        """Nobody manages the windows of this screen, and a desktop in one may wait for the keys and the pointer to come to it."""
        tree = subprocess.run(["xwininfo", "-display", self.number, "-root", "-children"], capture_output=True, text=True).stdout
        for window in re.findall(r"^ +(0x\w+) .*? (?:1280x1000|1280x1024)\+", tree, re.M): self.hand("windowfocus", window)
        self.point(600, 500), self.point(640, 900)

    def type(self, text): self.hand("type", "--delay", 12, "--", text)
    def press(self, *keys): self.hand("key", "--delay", 30, *keys)
    def point(self, x, y): self.hand("mousemove", x, y)

    def stands_still(self, but=40):
        """When no more rows change than a blinking caret has."""
        last, since = self.rows(), time.monotonic()
        until = since + PATIENCE
        while time.monotonic() < min(since + STILL, until):
            time.sleep(0.05)
            now = self.rows()
            if changed(last, now) > but: last, since = now, time.monotonic()

    def await_change(self, what, act, more_than=90):
        """A window that comes or goes changes many rows."""
        before = self.rows()
        act()
        try: wait_for(lambda: changed(before, self.rows()) > more_than, PATIENCE)
        except TimeoutError: raise Miss(what) from None
        self.stands_still()

    def box_of(self, color, least=40):
        """Left, top, right and bottom of what is so coloured in a run of so many pixels."""
        found = [(top, row.find(color * least) // 3, row.rfind(color) // 3) for top, row in enumerate(self.rows()) if color * least in row]
        if not found: return None
        return min(left for _, left, _ in found), found[0][0], max(right for *_, right in found) + 1, found[-1][0] + 1

    def at(self, x, y): return self.rows()[y][3 * x:3 * x + 3]

    def white_spot(self, size=30):
        """Paper that nothing covers and nothing is written on: the lowest there is."""
        run, rows = WHITE * size, self.rows()
        for top in range(len(rows) - size, 0, -8):
            for left in range(0, len(rows[top]) // 3 - size, 8):
                if all(row.startswith(run, 3 * left) for row in rows[top:top + size]): return left + size // 2, top + size // 2
        raise Miss("white paper to click on")

def three_of_four(row):
    short = bytearray(len(row) // 4 * 3)
    for part in range(3): short[part::3] = row[part::4]
    return bytes(short)

def changed(before, now): return sum(one != other for one, other in zip(before, now))

class Miss(Exception):
    """What did not come."""

@contextlib.contextmanager
def screen(run):
    """It lives on without clients: each that asks whether a desktop is there would else begin it anew, and the desktop would not come."""
    number, end = os.pipe()
    with open(number) as answer, started("Xvfb", "-displayfd", str(end), "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset",
                                         "-fbdir", str(run), pass_fds=[end]) as server:
        os.close(end)
        name = answer.readline().strip()
        try: yield Screen(f":{name}", run / "Xvfb_screen0"), server
        finally: sweep(name, server)
