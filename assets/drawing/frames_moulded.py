"""Frames as a carver makes them: wood, gilt, silver."""

import random

from frame_parts import (BORDER, HEIGHT, WIDTH, around, ball, dots, edges, element, four_corners, hairline, in_corners,
                         moulding, paper_shade, path, placed)
from palette import GILT, HUES, LIGHT, LINE, PAPER, SHADE, hue, svg

WALNUT = HUES["walnut"][::-1]
BRIGHT = (hue("walnut", LINE), hue("amber", LINE), hue("straw", LINE), GILT, hue("straw"), hue("straw", LIGHT), PAPER)
STEEL = (paper_shade(.75), paper_shade(.62, hue("ink_blue", LINE)), paper_shade(.45), paper_shade(.29), paper_shade(.2),
         paper_shade(.08), PAPER)


def grain(border):
    """Long wavering lines along the wood, another stick on each side."""
    def draw(length, lit, name):
        chance = random.Random(f"grain {name}")
        lines = {colour: [] for colour in (hue("walnut", LINE), hue("walnut", LIGHT), hue("walnut", SHADE))}
        for _ in range(70):
            x, y = chance.uniform(-80, length), chance.uniform(1, border)
            d = f"M{x:.1f} {y:.1f}"
            for _ in range(chance.randint(2, 5)):
                d += f"q{chance.uniform(15, 30):.1f} {chance.uniform(-1.6, 1.6):.1f} 60 {chance.uniform(-1.2, 1.2):.1f}"
            lines[chance.choice(list(lines))].append(d)
        return [path("".join(d), stroke=colour, stroke_width=1.1, stroke_opacity=.38) for colour, d in lines.items()]
    return draw


def wood():
    profile = ((0, .9), (.1, .55), (.22, .1), (.62, -.12), (.7, -.5), (.74, -.95), (.76, .8), (.82, .3), (.88, -.3),
               (1, -.9))
    ramp = (WALNUT[0], WALNUT[1], WALNUT[2], WALNUT[2], WALNUT[3])
    slip = moulding_slip(BORDER - 6)
    return svg(WIDTH, HEIGHT, moulding(BORDER, profile, ramp, grain(BORDER)), slip,
               hairline(0, hue("walnut", LINE)), hairline(BORDER - 1.5, hue("walnut", LINE)))


def moulding_slip(inset):
    """The thin gilt slip between a wooden frame and its picture."""
    return hairline(inset - 1, hue("walnut", LINE), 1.5) + edges(inset, GILT, hue("straw"), 4)


def acanthus(outline):
    """A carved spray in a corner: five tongues that open from a boss."""
    tongue = (path("M0 0C10 -9 26 -9 38 0C26 9 10 9 0 0Z", fill="url(#tongue)", stroke=outline, stroke_width=1.3)
              + path("M6 0H29", stroke=outline, stroke_width=1))
    spray = "".join(placed(tongue, 19, 19, angle, size)
                    for angle, size in ((-6, 1.25), (96, 1.25), (16, 1), (74, 1), (45, 1)))
    return four_corners(spray) + in_corners(
        18, element("circle", r=9, fill="url(#bead)", stroke=outline, stroke_width=1.3))


def gilt():
    border = 50
    profile = ((0, .9), (.08, .7), (.14, -.4), (.18, -.9), (.2, .1), (.32, -.15), (.5, -.35), (.6, -.1), (.68, .5),
               (.7, -.8), (.72, .2), (.9, .2), (.92, .9), (.96, .2), (1, -.9))
    outline = hue("amber", LINE)
    return svg(WIDTH, HEIGHT,
               ball("bead", PAPER, hue("straw"), hue("straw", LINE)),
               ball("tongue", hue("straw", LIGHT), GILT, hue("straw", LINE)),
               moulding(border, profile, BRIGHT),
               dots(around(40.5, 12), 4.4, fill="url(#bead)", stroke=outline, stroke_width=1),
               acanthus(outline), hairline(0, outline), hairline(border - 1.5, outline))


def ribbon(outline):
    """Two crossing bands that tie the reeds together; drawn across the upper side."""
    return "".join(
        path(f"M{-slant - 4} 2L{slant - 4} 38H{slant + 4}L{-slant + 4} 2Z", fill="url(#band)", stroke=outline,
             stroke_width=1.2) for slant in (12, -12))


def ties(ribbon):
    """Ribbons at even distances: three on a long side, two on a short one."""
    across = (placed(ribbon, WIDTH * i / 4, y, turn) for i in (1, 2, 3) for y, turn in ((0, 0), (HEIGHT, 180)))
    down = (placed(ribbon, x, HEIGHT * i / 3, turn) for i in (1, 2) for x, turn in ((0, -90), (WIDTH, 90)))
    return "".join((*across, *down))


def boss(outline):
    """The square block in a corner, around its middle."""
    return (element("rect", x=-21, y=-21, width=42, height=42, rx=2, fill="url(#plate)", stroke=outline,
                    stroke_width=1.3)
            + path("M-19 19V-19H19", stroke=PAPER, stroke_width=1.5)
            + path("M-19 19H19V-19", stroke=STEEL[2], stroke_width=1.5)
            + element("circle", r=13, fill=STEEL[3], stroke=outline, stroke_width=1.2)
            + element("circle", r=9, fill="url(#band)", stroke=STEEL[1], stroke_width=1))


def silver():
    border = 40
    reed = ((.02, .9), (.1, .5), (.16, .1), (.22, -.4), (.29, -.95))
    profile = [(0, -.6)] + [(start + share, slope) for start in (0.03, .34, .65) for share, slope in reed] + [(1, -.8)]
    outline = STEEL[0]
    return svg(WIDTH, HEIGHT, ball("band", PAPER, STEEL[3], STEEL[2]), ball("plate", STEEL[5], STEEL[4], STEEL[2]),
               moulding(border, profile, STEEL), ties(ribbon(outline)), hairline(0, outline, 1.3),
               hairline(border - 1.5, outline), in_corners(21.5, boss(outline)))
