"""Frames of needlework and ornament: lace, hearts, leaves, linen, rope."""

import math
import random

from frame_parts import (BORDER, HEIGHT, WIDTH, along_rounded, around, ball, clipped, dots, edges, element, fibres,
                         four_corners, four_sides, group, hairline, leaf, line_through, mixed, moved_in, paper_shade, path, placed,
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
    """A white trimming laid over the photograph, which shows through the holes of its scallops; the eyelets of its band are
    lined."""
    thread, line = paper_shade(.04, hue("walnut")), hue("walnut")
    scallops = list(around(25, 37.5))
    eyelets = [(x, y) for x, y, _ in around(8.5, 18.75)]
    fans = [placed(fan(), *place) for place in scallops]
    holes = "".join(placed(fan_holes("#000"), *place) for place in scallops)
    cloth = [*(placed(picots(line, 3.4), *place) for place in scallops), dots(scallops, 20.4, fill=line),
             dots(scallops, 19, fill=thread), *(placed(picots(thread, 2.1), *place) for place in scallops),
             ring(0, 25, thread), *fans, hairline(17, line, 1, stroke_dasharray="4 3"), hairline(0, line)]
    mask = element("mask", element("rect", width=WIDTH, height=HEIGHT, fill="#fff") + holes, id="holes")
    return svg(WIDTH, HEIGHT, mask, group(*cloth, mask="url(#holes)"),
               dots(eyelets, 2.8, fill=hue("walnut", LIGHT), stroke=line, stroke_width=1),
               *(placed(fan_holes("none", line), *place) for place in scallops))


HEART = "M0 9C-12 1 -9 -8 -4 -8C-1.5 -8 0 -6 0 -4.5C0 -6 1.5 -8 4 -8C9 -8 12 1 0 9Z"


def hearts():
    """Rose paper with a scalloped edge and a heart cut out of each scallop, through which the photograph shows."""
    paper, line = mixed(hue("rose", LIGHT), PAPER, .3), hue("rose", LINE)
    rim, under = mixed(hue("rose", LIGHT), PAPER, .75), hue("rose")
    scallops = list(around(27, 37.5))
    holes = "".join(placed(path(HEART, fill="#000"), x, y + 1, 0, 1.15) for x, y, _ in scallops)
    rims = "".join(placed(path(HEART, stroke=line, stroke_width=1.2), x, y + 1, 0, 1.15)
                   + placed(path(HEART, stroke=rim, stroke_width=1.4), x, y + 1, 0, 1.32) for x, y, _ in scallops)
    sheet = [dots(scallops, 21.5, fill=line), dots(scallops, 20, fill=under), dots(scallops, 18.2, fill=paper),
             ring(0, 27, paper)]
    mask = element("mask", element("rect", width=WIDTH, height=HEIGHT, fill="#fff") + holes, id="holes")
    return svg(WIDTH, HEIGHT, mask, group(*sheet, mask="url(#holes)"), rims,
               hairline(7, under, 1.5, stroke_dasharray="0.1 5.87", stroke_linecap="round"), edges(0, rim, under, 3),
               hairline(0, line))


def leaves():
    """Leaves cut from paper in two greens, one layer over the other, that reach into the photograph from a rim."""
    line, rim = hue("moss", LINE), mixed(hue("moss", LIGHT), PAPER, .35)
    sprigs = list(around(14, 50))
    behind = "".join(placed(leaf(30, 10, "moss"), x, y, degrees + 90 + turn)
                     for x, y, degrees in sprigs for turn in (-48, 48))
    before = "".join(placed(leaf(27, 10, "leaf"), x, y, degrees + 90) for x, y, degrees in sprigs)
    return svg(WIDTH, HEIGHT, behind, before, ring(0, 17, rim), hairline(0, line), hairline(15.5, line),
               edges(1.5, mixed(rim, PAPER, .7), hue("moss"), 2.5), hairline(7.5, hue("moss"), 1.4))


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


def plank(length, name, board, tones):
    """Wood whose grain runs along the side."""
    chance = random.Random(name)
    grain = [element("rect", x=-1, y=-1, width=length + 2, height=44, fill=board)]
    for _ in range(46):
        x, y, run = chance.uniform(-60, length), chance.uniform(1, 41), chance.uniform(60, 220)
        bend = chance.uniform(-2.5, 2.5)
        grain.append(path(f"M{x:.1f} {y:.1f}q{run / 2:.1f} {bend:.1f} {run:.1f} 0", stroke=chance.choice(tones),
                          stroke_width=chance.uniform(.8, 1.6)))
    return grain


def rope():
    """A laid rope on a board of walnut, its ends bound with thread below."""
    board, line = hue("walnut"), hue("walnut", LINE)
    tones = (mixed(board, hue("walnut", SHADE), .7), mixed(board, hue("walnut", LIGHT), .35))
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
    return svg(WIDTH, HEIGHT, four_sides(42, lambda length, lit, name: plank(length, name, board, tones)),
               edges(0, hue("walnut", LIGHT), line, 3), edges(40, line, hue("walnut", LIGHT), 2),
               hairline(0, line), hairline(41, line),
               path(rectangle_line(22, 34), stroke=line, stroke_width=28, transform="translate(1.5 2)"),
               *strands, placed(whipping, WIDTH / 2, HEIGHT - 22))
