"""What stands on the writer's desk: the inkwell, and the hourglass of the wait window."""

from emblem.quill import quill
from shapes import body, box, disc, flat, moved, spot, stroke, tone


def shadow(x, y, rx, ry):
    """A short one, towards the lower right, on whatever lies below."""
    return f'<ellipse cx="{x}" cy="{y}" rx="{rx}" ry="{ry}" fill="{tone("walnut--")}" fill-opacity="0.2"/>'


def bottle():
    """42 wide and 34 high, its foot at 0 0."""
    glass = body(
        "M-18 0Q-21 0 -21 -3C-21 -13 -11.4 -13.6 -10 -23H10C11.4 -13.6 21 -13 21 -3Q21 0 18 0Z", "ink_blue"
    )
    ink = flat("M-18.4 -1.4Q-19.6 -1.4 -19.6 -3C-19.4 -6.4 -18 -8.6 -16 -10.4Q0 -6.6 16 -10.4C18 -8.6 19.4 -6.4 19.6 -3"
               "Q19.6 -1.4 18.4 -1.4Z", "ink_blue--")
    shine = stroke("M-16.4 -5.4Q-15.6 -10.4 -10.6 -13.6M-7.4 -16.4L-6.8 -19", "ink_blue+", 2)
    return glass + ink + shine


def collar():
    """The bottle's mouth, behind and before what stands in it."""
    behind = disc(0, -25, 12.4, "gilt", 4) + spot(0, -25.4, 8.6, "ink--", 2.3)
    before = body(
        "M-12.4 -25C-12.4 -19.6 12.4 -19.6 12.4 -25C11 -21.8 7.6 -22.7 0 -22.7C-7.6 -22.7 -11 -21.8 -12.4 -25Z", "gilt"
    )
    return behind, before


def quill_and_inkwell():
    """80 by 70."""
    behind, before = collar()
    return [
        shadow(35, 64.6, 27, 3.8), moved(bottle() + behind, 29, 65),
        quill(29, 41.6, 57, 46, line=1.75), moved(before, 29, 65),
    ]


def hourglass():
    """30 wide and 54 high, its foot at 0 0."""
    glass = body(
        "M-11 -48V-42C-11 -34 -2.6 -32.6 -2.6 -27S-11 -20 -11 -12V-6H11V-12C11 -20 2.6 -21.4 2.6 -27S11 -34 11 -42V-48Z",
        "paper"
    )
    sand = (
        flat("M-9 -40.6H9C7.8 -34.6 1.6 -33 0 -28.6C-1.6 -33 -7.8 -34.6 -9 -40.6Z", "amber") +
        flat("M-9.6 -6V-8C-8 -13.4 -3 -12.8 0 -16C3 -12.8 8 -13.4 9.6 -8V-6Z", "amber") +
        stroke("M0 -29V-15", "amber", 1.4) + stroke("M-8 -45V-42C-8 -39.6 -7 -37.6 -5.6 -36.2", "paper+", 1.6)
    )
    posts = "".join(box(x, -48, 3, 42, "walnut", 1) for x in (-15, 12))
    caps = box(-17, -6, 34, 6, "walnut", 2) + box(-17, -54, 34, 6, "walnut", 2)
    lights = stroke("M-14.6 -52.2H11M-14.6 -4.2H11", "walnut+", 1.2)
    return glass + sand + posts + caps + lights


def hourglass_and_inkwell():
    """64 by 64."""
    behind, before = collar()
    small = f'<g transform="translate(20 60) scale(0.8)" stroke-width="2.2">{bottle()}{behind}{before}</g>'
    return [shadow(35, 60, 27, 3.2), moved(hourglass(), 44, 59), small]
