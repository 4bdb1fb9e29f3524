"""The quill with the single thorn: along its own axis, the nib at 0 0 and the feather upwards, 64 long."""

from shapes import at, body, flat, number, stroke

NIB = "M0 0L-1.9 -4.6L-1.3 -8.4L1.3 -8.4L1.9 -4.6Z"
SHAFT = "M-1.4 -7.6C-1.5 -16 -1.1 -24 -.6 -32L1.5 -32C1.5 -24 1.5 -16 1.4 -7.6Z"
NARROW_VANE = "M.2 -22C-3 -23 -6.8 -27 -7.2 -33C-7.6 -41 -4 -54 5.4 -64C2.6 -50 .8 -36 .6 -22Z"
WIDE_VANE = ("M.4 -21C4.4 -21 8 -22.6 10.4 -26L7.2 -29L12 -30.4C12.9 -32.4 13.4 -34.4 13.7 -36.6L10.4 -38.6L13.9 -41"
             "C13.9 -50 10.4 -58.4 5.4 -64C2.6 -50 .6 -36 .4 -21Z")
RACHIS = "M.1 -21C.6 -34 2 -48 4.6 -59"
BARBS = "M1.2 -27.4L5.6 -30.4M1.6 -34.4L7 -38.2M2.2 -41.4L8.4 -46M3 -48.4L8.4 -52.6"
NARROW_BARBS = "M.2 -32L-3.4 -34.4M.8 -39.6L-2.8 -42.4M1.8 -47L-.8 -49.2"
THORN = "M0 -9.6Q-4.2 -11 -10 -9.8Q-5.8 -17.2 0 -20.6Z"


def quill(x, y, length, angle=0, thorn="terracotta", line=2, fine=True):
    """The quill with its nib at x, y, its feather turned by the angle from upright; without the finest strokes for
    small pictures."""
    def put(path):
        return at(path, x, y, length / 64, angle)

    barbs = (stroke(put(BARBS), "paper-", line * 0.6) + stroke(put(NARROW_BARBS), "paper-", line * 0.6)) if fine else ""
    return (
        f'<g stroke-width="{number(line)}">' + body(put(THORN), thorn) + body(put(SHAFT), "gilt") +
        flat(put(NIB), "ink--") + stroke(put(NIB), "ink--", line * 0.5) +
        body(put(WIDE_VANE), "paper") + body(put(NARROW_VANE), "paper") + barbs +
        stroke(put(RACHIS), "gilt--", line * 0.75) + "</g>"
    )


def stamped_quill(x, y, length, angle, line=1.4):
    """The same quill as a gilt stamp in leather."""
    def put(path):
        return at(path, x, y, length / 64, angle)

    outline = "".join(stroke(put(path), "gilt+", line) for path in (NARROW_VANE, WIDE_VANE, "M0 -1L.3 -21" + THORN))
    return outline
