"""Frames of needlework and ornament: lace, hearts, leaves, linen, rope."""

import math
import random

from frame_parts import (BORDER, HEIGHT, WIDTH, along_rounded, around, ball, clipped, dots, edges, element, fibres,
                         four_corners, group, hairline, leaf, line_through, mixed, moved_in, paper_shade, path, placed,
                         rectangle_line, ring)
from palette import GILT, LIGHT, LINE, PAPER, SHADE, hue, svg


def picots(colour, radius):
    """The little loops on the rim of a scallop."""
    turns = (math.radians(degrees) for degrees in range(0, 181, 20))
    return dots([(math.cos(turn) * 20.5, math.sin(turn) * 20.5) for turn in turns], radius, fill=colour)


def fan():
    """The threads that spread over a scallop."""
    return path("M-14 0A14 14 0 0 0 14 0", stroke=mixed(PAPER, hue("walnut"), .3), stroke_width=1)


def fan_holes(fill, line="none"):
    drop = path("M0 6.5C3 9.5 2.6 14.5 0 14.5C-2.6 14.5 -3 9.5 0 6.5Z", fill=fill, stroke=line, stroke_width=1)
    return "".join(placed(drop, 0, 0, degrees) for degrees in (-72, -36, 0, 36, 72))


def lace():
    """A white trimming laid over the photograph, which shows through its holes."""
    thread, line = paper_shade(.04, hue("walnut")), hue("walnut")
    scallops = list(around(25, 37.5))
    eyelets = [(x, y) for x, y, _ in around(8.5, 18.75)]
    fans = [placed(fan(), *place) for place in scallops]
    holes = "".join(placed(fan_holes("#000"), *place) for place in scallops) + dots(eyelets, 2.8, fill="#000")
    cloth = [*(placed(picots(line, 3.4), *place) for place in scallops), dots(scallops, 20.4, fill=line),
             dots(scallops, 19, fill=thread), *(placed(picots(thread, 2.1), *place) for place in scallops),
             ring(0, 25, thread), *fans, hairline(17, line, 1, stroke_dasharray="4 3"), hairline(0, line)]
    mask = element("mask", element("rect", width=WIDTH, height=HEIGHT, fill="#fff") + holes, id="holes")
    return svg(WIDTH, HEIGHT, mask, group(*cloth, mask="url(#holes)"), dots(eyelets, 2.8, stroke=line, stroke_width=1),
               *(placed(fan_holes("none", line), *place) for place in scallops))


HEART = "M0 9C-12 1 -9 -8 -4 -8C-1.5 -8 0 -6 0 -4.5C0 -6 1.5 -8 4 -8C9 -8 12 1 0 9Z"


def hearts():
    """Hearts, large and small by turns, on a rim of rose paper."""
    paper, line = mixed(hue("rose", LIGHT), PAPER, .45), hue("rose", LINE)
    large = (path(HEART, fill="url(#rose)", stroke=line, stroke_width=1)
             + path("M-5 -4.5q.6 -1 1.6 -1", stroke=PAPER, stroke_width=1.2))
    small = path(HEART, fill="url(#blush)", stroke=line, stroke_width=1.5)
    strewn = "".join(placed(large, x, y, 0, 1.75) if i % 2 == 0 else placed(small, x, y, 0, .95)
                     for i, (x, y, _) in enumerate(around(22, 34.3)))
    return svg(WIDTH, HEIGHT, ball("rose", hue("rose", LIGHT), hue("rose"), hue("rose", SHADE)),
               ball("blush", PAPER, hue("rose", LIGHT), hue("rose")), ring(0, 30, paper),
               hairline(0, line), hairline(28.5, hue("rose", SHADE)), strewn)


def leaves():
    """A vine with red berries that winds along a narrow rim of cream paper."""
    paper, line = mixed(PAPER, hue("straw", LIGHT), .4), hue("moss", LINE)
    chance = random.Random("vine")
    stem, sprays = [], []
    for i, place in enumerate(along_rounded(22, 24, 8)):
        x, y = moved_in(place, 4.5 * math.sin(i * math.pi / 4))
        stem.append((x, y))
        side = 1 if i // 2 % 2 else -1
        if i % 2 == 0:
            kind, turn = chance.choice((("leaf", 46), ("moss", 54), ("leaf", 62)))
            sprays.append(placed(leaf(23, 9.5, kind), x, y, place[2] + side * turn, chance.uniform(.85, 1.1)))
        elif i % 9 == 4:
            berry = element("circle", r=5, fill="url(#berry)", stroke=hue("terracotta", LINE), stroke_width=1.3)
            sprays.append(placed(berry, *moved_in(place, -side * 10)))
    return svg(WIDTH, HEIGHT, ball("berry", hue("terracotta", LIGHT), hue("terracotta"), hue("terracotta", SHADE)),
               ring(0, 26, paper), hairline(0, line), hairline(24.5, line),
               path(line_through(stem) + "Z", stroke=line, stroke_width=3.2),
               path(line_through(stem) + "Z", stroke=hue("moss"), stroke_width=1.2), *sprays)


def linen():
    """Book cloth with a stitched edge and corners of leather, as on a half bound book."""
    cloth, line, leather = hue("plum", SHADE), hue("plum", LINE), hue("walnut", SHADE)
    threads = (element("rect", width=6, height=6, fill=cloth)
               + path("M0 1.5H3M3 4.5H6", stroke=mixed(cloth, hue("plum"), .7), stroke_width=1.6, stroke_linecap="butt")
               + path("M4.5 0V3M1.5 3V6", stroke=mixed(cloth, line, .3), stroke_width=1.6, stroke_linecap="butt"))
    sheet = rectangle_line(0) + rectangle_line(BORDER)
    stitches = dict(stroke_dasharray="8 6.03", stroke_linecap="round")
    right, below = WIDTH - 100, HEIGHT - 100
    corners = f"M0 0H100L0 100ZM{WIDTH} 0H{right}l100 100ZM0 {HEIGHT}H100L0 {below}ZM{WIDTH} {HEIGHT}H{right}l100 -100Z"
    tones = (mixed(leather, hue("walnut", LINE), .4), mixed(leather, hue("walnut"), .5))
    hide = [fibres("leather", 240, tones, (x, y, 100, 100), 4) for x in (0, right) for y in (0, below)]
    gilding = (path("M100 0L0 100", stroke=hue("walnut", LINE), stroke_width=2)
               + path("M94 0L0 94", stroke=GILT, stroke_width=2) + path("M88 0L0 88", stroke=GILT, stroke_width=1))
    return svg(WIDTH, HEIGHT,
               element("pattern", threads, id="weave", width=6, height=6, patternUnits="userSpaceOnUse"),
               path(sheet, fill="url(#weave)", fill_rule="evenodd"),
               hairline(36, line, 2.2, transform="translate(.6 .8)", **stitches),
               hairline(36, mixed(PAPER, hue("plum", LIGHT), .3), 2, **stitches),
               clipped("sheet", sheet, path(corners, fill=leather), clipped("corners", corners, *hide),
                       four_corners(gilding)),
               edges(0, hue("plum", LIGHT), line, 3), hairline(0, line), hairline(BORDER - 1.5, line, 2))


def rope():
    """A laid rope on a painted board, its ends bound with thread below."""
    board, line = hue("teal", SHADE), hue("teal", LINE)
    hemp, dark = mixed(hue("straw", LIGHT), hue("walnut", LIGHT), .5), hue("walnut", LINE)
    strand = (element("ellipse", rx=15, ry=6.6, fill=hemp, stroke=dark, stroke_width=1.4)
              + path("M-11 -2Q-3 -4.5 9 -2.5", stroke=mixed(hemp, PAPER, .75), stroke_width=1.8)
              + path("M-9 2.5Q2 4.5 11 2", stroke=hue("walnut"), stroke_width=1.2))
    places = list(along_rounded(22, 34, 10.5))
    join = min(range(len(places)), key=lambda i: math.dist(places[i][:2], (WIDTH / 2, HEIGHT - 22)))
    strands = [placed(strand, x, y, degrees - 52) for x, y, degrees in places[join:] + places[:join]]
    whipping = (element("rect", x=-17, y=-14.5, width=34, height=29, rx=4, fill=hue("terracotta"),
                        stroke=hue("terracotta", LINE), stroke_width=1.5)
                + path("M-11 -13V13M-5.5 -13V13M0 -13V13M5.5 -13V13M11 -13V13", stroke=hue("terracotta", SHADE),
                       stroke_width=1.5)
                + path("M-13 -10H13", stroke=hue("terracotta", LIGHT), stroke_width=2))
    return svg(WIDTH, HEIGHT, ring(0, 42, board), edges(0, hue("teal"), line, 3), edges(40, line, hue("teal"), 2),
               hairline(0, line), hairline(41, line),
               path(rectangle_line(22, 34), stroke=line, stroke_width=28, transform="translate(1.5 2)"),
               *strands, placed(whipping, WIDTH / 2, HEIGHT - 22))
