"""The strokes that the small pictures are made of: emoticons and journal icons.

A colour is a hue of the palette with a step: "rose" is its fill, "rose+" its highlight, "rose-" its shade, "rose--" its
outline. Bodies are lit from the top left and outlined in their own hue; the width of an outline is the drawing's.
"""

import math
import re

from palette import GILT, HUES, INK, PAPER, svg

# Three materials that the hues lack, in the same four steps.
STUFFS = HUES | {
    "paper": (PAPER, "#f7f0df", "#ddd0b6", "#8a7256"),
    "gilt": ("#efdcae", GILT, "#a8843a", "#6d5222"),
    "ink": ("#75708c", "#514b63", "#3b3549", INK),
    "face": (HUES["straw"][0], HUES["straw"][1], HUES["amber"][1], HUES["amber"][3]),
}
STEPS = {"+": 0, "": 1, "-": 2, "--": 3}


def tone(colour):
    name, step = re.fullmatch(r"(\w+?)(\+|--?)?", colour).groups()
    return STUFFS[name][STEPS[step or ""]]


def number(value):
    return f"{round(value, 2):g}"


def at(path, x=0, y=0, size=1, angle=0):
    """The path moved, scaled and turned about its origin. Only pairs of absolute coordinates may stand in it."""
    cosine, sine = size * math.cos(math.radians(angle)), size * math.sin(math.radians(angle))

    def put(pair):
        u, v = float(pair[1]), float(pair[2])
        return f"{number(x + u * cosine - v * sine)} {number(y + u * sine + v * cosine)}"

    return re.sub(r"(-?[\d.]+)[ ,]+(-?[\d.]+)", put, path)


# Bodies: lit and outlined.

def body(path, stuff):
    return f'<path d="{path}" fill="url(#{stuff})" stroke="{tone(stuff + "--")}"/>'


def disc(x, y, rx, stuff, ry=None):
    size = f'rx="{number(rx)}" ry="{number(ry or rx)}"'
    place = f'cx="{number(x)}" cy="{number(y)}"'
    return f'<ellipse {place} {size} fill="url(#{stuff}-round)" stroke="{tone(stuff + "--")}"/>'


def box(x, y, width, height, stuff, r=1):
    size = f'width="{number(width)}" height="{number(height)}" rx="{number(r)}"'
    return f'<rect x="{number(x)}" y="{number(y)}" {size} fill="url(#{stuff})" stroke="{tone(stuff + "--")}"/>'


# Marks inside a body: one colour, no outline.

def flat(path, colour):
    return f'<path d="{path}" fill="{tone(colour)}"/>'


def spot(x, y, rx, colour, ry=None):
    size = f'rx="{number(rx)}" ry="{number(ry or rx)}"'
    return f'<ellipse cx="{number(x)}" cy="{number(y)}" {size} fill="{tone(colour)}"/>'


def spots(places, r, colour):
    return "".join(spot(x, y, r, colour) for x, y in places)


def slab(x, y, width, height, colour):
    path = f"M{number(x)} {number(y)}h{number(width)}v{number(height)}h{number(-width)}z"
    return flat(path, colour)


def stroke(path, colour, width=None):
    thick = f' stroke-width="{number(width)}"' if width else ""
    return f'<path d="{path}" fill="none" stroke="{tone(colour)}"{thick}/>'


# Placing.

def moved(part, x, y):
    return f'<g transform="translate({number(x)} {number(y)})">{part}</g>'


def turned(part, angle, x=12, y=12):
    return f'<g transform="rotate({number(angle)} {number(x)} {number(y)})">{part}</g>'


def mirrored(part, axis=12):
    return f'<g transform="translate({number(2 * axis)} 0) scale(-1 1)">{part}</g>'


def both(part, axis=12):
    return part + mirrored(part, axis)


def scaled(part, size, x=0, y=0, line=1.25):
    """The part at another size, with outlines of the given width."""
    place = f"translate({number(x)} {number(y)}) scale({number(size)})"
    return f'<g transform="{place}" stroke-width="{number(line / size)}">{part}</g>'


def resized(part, size, dx=0, dy=0, line=1.25, middle=12):
    """The part at another size about the middle of the drawing, then moved."""
    rest = middle * (1 - size)
    return scaled(part, size, rest + dx, rest + dy, line)


def around(part, count, x=12, y=12, first=0):
    return "".join(turned(part, first + turn * 360 / count, x, y) for turn in range(count))


def light(name):
    """The gradient of a body: along the diagonal, or round for a name that ends so."""
    stuff = name.removesuffix("-round")
    steps = ((0, "+"), (0.45, ""), (1, "-"))
    stops = "".join(f'<stop offset="{offset}" stop-color="{tone(stuff + step)}"/>' for offset, step in steps)
    if name == stuff:
        return f'<linearGradient id="{name}" x1="0.1" y1="0" x2="0.9" y2="1">{stops}</linearGradient>'
    return f'<radialGradient id="{name}" cx="0.35" cy="0.28" r="0.8">{stops}</radialGradient>'


def picture(size, line, parts, height=None):
    """A whole drawing of size by size, or by the height, its outlines of the given width."""
    content = "".join(parts)
    lights = "".join(light(name) for name in sorted(set(re.findall(r"url\(#([\w-]+)\)", content))))
    return svg(size, height or size, f'<g fill="none" stroke-width="{line}">', *parts, "</g>", defs=lights)


# Shapes that many pictures share, around their middle.

HEART = ("M0 8.5C-3 6 -9.5 1.8 -9.5 -3.3C-9.5 -6.7 -7.3 -8.8 -4.8 -8.8C-2.7 -8.8 -1 -7.6 0 -5.6"
         "C1 -7.6 2.7 -8.8 4.8 -8.8C7.3 -8.8 9.5 -6.7 9.5 -3.3C9.5 1.8 3 6 0 8.5Z")
LEAF = "M0 0C-4.5 -2.5 -4.5 -8 0 -11C4.5 -8 4.5 -2.5 0 0Z"
DROP = "M0 -5C1.5 -2.5 3.4 -.4 3.4 1.8C3.4 3.8 1.9 5 0 5C-1.9 5 -3.4 3.8 -3.4 1.8C-3.4 -.4 -1.5 -2.5 0 -5Z"


def star_path(points, outer, inner):
    corners = []
    for corner in range(2 * points):
        radius, angle = (inner if corner % 2 else outer), math.pi * corner / points
        corners.append(f"{number(radius * math.sin(angle))} {number(-radius * math.cos(angle))}")
    return "M" + "L".join(corners) + "Z"


def heart(x, y, width, stuff="rose", angle=0):
    return body(at(HEART, x, y, width / 19, angle), stuff)


def star(x, y, radius, stuff="straw", angle=0):
    return body(at(star_path(5, 1, 0.48), x, y, radius, angle), stuff)


def leaf(x, y, length, angle=0, stuff="leaf"):
    vein = stroke(at("M0 0L0 -7", x, y, length / 11, angle), stuff + "--", 0.8)
    return body(at(LEAF, x, y, length / 11, angle), stuff) + vein


def drop(x, y, height, stuff="sky"):
    return body(at(DROP, x, y, height / 10), stuff)
