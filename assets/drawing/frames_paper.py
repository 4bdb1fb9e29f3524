"""Frames of paper and card: the instant photo, photo corners, film strip, postage stamp, torn paper, oval mount."""

import random

from frame_parts import (HEIGHT, WIDTH, along_rounded, around, clipped, dots, edges, element, fibres, four_corners,
                         gradient_stops, hairline, line_through, mixed, moved_in, paper_shade, path, rectangle_line,
                         ring)
from palette import GILT, INK, LIGHT, LINE, PAPER, SHADE, hue, svg

EDGE = mixed(PAPER, hue("walnut"), .6)  # the outline of what is white


def instant_photo():
    """The print of a camera that develops its own picture: the paper is broad below."""
    window = f"M34 34H{WIDTH - 34}V{HEIGHT - 88}H34Z"
    sheet = rectangle_line(0) + window
    warm = paper_shade(.05, hue("walnut"))
    return svg(WIDTH, HEIGHT,
               path(sheet, fill=PAPER, fill_rule="evenodd"),
               clipped("sheet", sheet, fibres("instant", 500, (warm, paper_shade(.03))),
                       path(f"M0 {HEIGHT - 3}H{WIDTH - 3}V0", stroke=paper_shade(.14, hue("walnut")), stroke_width=5,
                            stroke_linejoin="miter")),
               hairline(0, EDGE),
               path(f"M33 {HEIGHT - 87}V33H{WIDTH - 33}", stroke=hue("walnut"), stroke_width=2,
                    stroke_linejoin="miter"),
               path(f"M33 {HEIGHT - 87}H{WIDTH - 33}V33", stroke=paper_shade(.2, hue("walnut")), stroke_width=2,
                    stroke_linejoin="miter"))


def photo_corners():
    """A print with a white rim, held by four corners of dark paper."""
    dark, line = hue("walnut", LINE), mixed(hue("walnut", LINE), INK, .6)
    corner = (path("M0 0H92L0 92Z", fill=dark, stroke=line, stroke_width=2)
              + path("M82 7H7V82", stroke=hue("walnut"), stroke_width=1.5)
              + path("M76 11L11 76", stroke=hue("walnut", SHADE), stroke_width=1.5)
              + path("M58 22L22 58M48 24L24 48M38 26L26 38", stroke=GILT, stroke_width=1.5)
              + path("M91 3L3 91", stroke=hue("walnut"), stroke_width=2))
    return svg(WIDTH, HEIGHT, ring(0, 15, PAPER), hairline(0, EDGE), edges(14, hue("walnut"), EDGE, 1.5),
               four_corners(corner))


def film_strip():
    """A frame of film; its holes are filled with the white of the light box."""
    film, line = mixed(INK, hue("walnut", LINE), .45), INK
    height, band = 30, 54
    holes = "".join(
        element("rect", x=x, y=y, width=20, height=height, rx=4, fill=PAPER, stroke=line, stroke_width=1.5)
        for x in range(10, WIDTH, 40) for y in (12, HEIGHT - 12 - height))
    window = f"M24 {band}H{WIDTH - 24}V{HEIGHT - band}H24Z"
    return svg(WIDTH, HEIGHT, path(rectangle_line(0) + window, fill=film, fill_rule="evenodd"),
               path(f"M0 2H{WIDTH}", stroke=hue("walnut"), stroke_width=1.5), holes,
               path(window, stroke=line, stroke_width=2, stroke_linejoin="miter"))


def postage_stamp():
    """A stamp on the dark card of a stock book; the card covers what lies outside the perforation."""
    card, inset = mixed(INK, hue("ink_blue", LINE), .5), 13
    ink = hue("teal", SHADE)
    return svg(WIDTH, HEIGHT, ring(0, inset + 1, card), hairline(0, INK, 1.5),
               ring(inset, 46, PAPER), hairline(inset, paper_shade(.25, hue("walnut")), 1.2),
               dots(around(inset, 23), 6, fill=card), hairline(34, ink, 2), hairline(38, ink, 6), hairline(44, ink, 1),
               hairline(46, hue("teal", LINE), 1.5))


def drifting(chance, step):
    """Endless numbers from -1 to 1 that wander by small steps."""
    drift = 0.0
    while True:
        drift = max(-1, min(1, drift * .95 + chance.uniform(-step, step)))
        yield drift


def torn_lines():
    """Two ragged outlines around the window: where the skin of the paper ends, and where its core does."""
    chance = random.Random("tear")
    skin, core = [], []
    places = list(along_rounded(32, 26, 5))
    for i, (place, drift, breadth) in enumerate(zip(places, drifting(chance, .3), drifting(chance, .4))):
        near_join = min(1, (len(places) - i) / 20)  # the end of the line comes back to its beginning
        depth = drift * 6 * near_join + chance.uniform(-1.2, 1.2)
        skin.append(moved_in(place, depth))
        core.append(moved_in(place, depth + 11 + breadth * 6.5 * near_join + chance.uniform(-1, 1)))
    return line_through(skin) + "Z", line_through(core) + "Z"


def torn_paper():
    """Kraft paper with a hole torn into it: the core of the paper shows white along the tear."""
    kraft, line = mixed(hue("walnut", LIGHT), hue("straw", LIGHT), .35), hue("walnut")
    skin, core = torn_lines()
    sheet = rectangle_line(0) + core
    hairs = fibres("kraft", 900, (mixed(kraft, hue("walnut"), .28), mixed(kraft, PAPER, .3)))
    return svg(WIDTH, HEIGHT, path(sheet, fill=PAPER, fill_rule="evenodd"),
               clipped("sheet", sheet, fibres("pulp", 700, (paper_shade(.1, hue("walnut")), PAPER), length=5)),
               path(rectangle_line(0) + skin, fill=kraft, fill_rule="evenodd"),
               clipped("skin", rectangle_line(0) + skin, hairs),
               path(skin, stroke=mixed(kraft, hue("walnut"), .6), stroke_width=1.3),
               path(core, stroke=line, stroke_width=1.5), hairline(0, line))


def oval(inset):
    """The oval at the inset, as an outline that a rectangle can be added to."""
    across, down = WIDTH / 2 - inset, HEIGHT / 2 - inset
    return f"M{inset} {HEIGHT / 2}a{across} {down} 0 1 1 {2 * across} 0a{across} {down} 0 1 1 {-2 * across} 0Z"


def oval_mount():
    """A mount of coloured card with a bevelled oval window and two gilt lines."""
    card, line = mixed(hue("moss"), hue("moss", SHADE), .4), hue("moss", LINE)
    sheet = rectangle_line(0) + oval(28)
    bevel = gradient_stops((0, paper_shade(.55, hue("walnut"))), (.5, paper_shade(.14, hue("walnut"))), (1, PAPER))
    hairs = fibres("mount", 1100, (mixed(card, line, .3), mixed(card, hue("moss", LIGHT), .35)))
    flourish = (path("M14 88V14H88M14 58C26 56 34 50 38 38C50 34 56 26 58 14M38 38L24 24", stroke=GILT, stroke_width=2)
                + element("circle", cx=23, cy=23, r=4.5, fill=GILT))
    return svg(WIDTH, HEIGHT, element("linearGradient", bevel, id="bevel", x1=0, y1=0, x2=1, y2=1),
               path(sheet, fill=card, fill_rule="evenodd"),
               clipped("sheet", sheet, hairs),
               path(oval(14), stroke=GILT, stroke_width=2.5), path(oval(19.5), stroke=GILT, stroke_width=1),
               four_corners(flourish),
               path(oval(28), stroke="url(#bevel)", stroke_width=7),
               path(oval(24.5), stroke=line, stroke_width=1.2), path(oval(31.5), stroke=line, stroke_width=1.5),
               edges(0, hue("moss", LIGHT), line, 3), hairline(0, line))
