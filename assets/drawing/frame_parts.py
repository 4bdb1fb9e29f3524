"""The common parts of the frames: the plane they are drawn on, sides with mitred corners, and what runs around them.

A frame is stretched over a photograph of any shape, and the photograph fills all of the rectangle beneath it. So a
frame is opaque up to the border wherever the photograph must not show, and only its window is left open.
"""

import math
import random

from palette import INK, LIGHT, LINE, PAPER, hue

WIDTH, HEIGHT = 600, 450
BORDER = 45


def mixed(first, second, share):
    """The colour that lies at share (0..1) of the way from the first to the second."""
    pairs = ((int(first[i:i + 2], 16), int(second[i:i + 2], 16)) for i in (1, 3, 5))
    return "#" + "".join(f"{round(a + (b - a) * share):02x}" for a, b in pairs)


def on_ramp(ramp, place):
    """The colour at place (0..1, held to it) of an even ramp of colours."""
    at = min(max(place, 0), 1) * (len(ramp) - 1)
    step = min(int(at), len(ramp) - 2)
    return mixed(ramp[step], ramp[step + 1], at - step)


def element(name, inside="", **attributes):
    """An SVG element; underscores in attribute names stand for hyphens, numbers are cut to two places."""
    told = "".join(f' {key.rstrip("_").replace("_", "-")}="{number(value)}"' for key, value in attributes.items())
    return f"<{name}{told}>{inside}</{name}>" if inside else f"<{name}{told}/>"


def number(value):
    return f"{value:.2f}".rstrip("0").rstrip(".") if isinstance(value, float) else value


def group(*parts, **attributes):
    return element("g", "\n".join(parts), **attributes)


def path(d, **attributes):
    return element("path", d=d, **{"fill": "none", **attributes})


def gradient_stops(*stops):
    """The stops of a gradient, as (share of the way, colour)."""
    return "".join(element("stop", offset=share, stop_color=colour) for share, colour in stops)


def line_through(points):
    return "M" + "L".join(f"{x:.1f} {y:.1f}" for x, y in points)


def rectangle_line(inset, radius=0):
    """The outline of the rectangle that lies inset pixels within the border."""
    right, bottom = WIDTH - inset, HEIGHT - inset
    if not radius:
        return f"M{inset} {inset}H{right}V{bottom}H{inset}Z"
    corner = f"a{radius} {radius} 0 0 1 "
    return (f"M{inset + radius} {inset}H{right - radius}{corner}{radius} {radius}V{bottom - radius}"
            f"{corner}{-radius} {radius}H{inset + radius}{corner}{-radius} {-radius}V{inset + radius}"
            f"{corner}{radius} {-radius}Z")


def ring(outer, inner, fill, radius=0):
    """A flat rectangular ring between two insets."""
    return path(rectangle_line(outer) + rectangle_line(inner, radius), fill=fill, fill_rule="evenodd")


def hairline(inset, colour, width=1.5, **attributes):
    """A line whose outer edge lies at the inset."""
    line = rectangle_line(inset + width / 2)
    return path(line, stroke=colour, stroke_width=width, stroke_linejoin="miter", **attributes)


def edges(inset, upper_left, lower_right, width=2):
    """A line around the rectangle at the inset whose upper and left sides have another colour than the other two."""
    at, right, bottom = inset + width / 2, WIDTH - inset - width / 2, HEIGHT - inset - width / 2
    return (path(f"M{at} {bottom}V{at}H{right}", stroke=upper_left, stroke_width=width, stroke_linecap="square")
            + path(f"M{at} {bottom}H{right}V{at}", stroke=lower_right, stroke_width=width, stroke_linecap="butt"))


def clipped(name, outline, *parts):
    """The parts, cut to an outline by the even-odd rule."""
    shape = path(outline, clip_rule="evenodd")
    return element("clipPath", shape, id=name) + group(*parts, clip_path=f"url(#{name})")


def four_sides(border, draw):
    """Draws each side of a frame as its upper side lies: x along it, y inwards from the border, cut to a mitre.

    draw takes the length of the side, whether it faces the light, and a name of its own; it returns the side's parts.
    """
    sides = (
        ("top", WIDTH, True, "matrix(1 0 0 1 0 0)"),
        ("bottom", WIDTH, False, f"matrix(-1 0 0 -1 {WIDTH} {HEIGHT})"),
        ("left", HEIGHT, True, "matrix(0 1 1 0 0 0)"),
        ("right", HEIGHT, False, f"matrix(0 1 -1 0 {WIDTH} 0)"),
    )
    drawn = []
    for name, length, lit, place in sides:
        mitre = f"M-1 -1H{length + 1}L{length - border} {border}H{border}Z"
        drawn.append(group(clipped(f"{name}-side", mitre, *draw(length, lit, name)), transform=place))
    return "\n".join(drawn)


def moulding(border, profile, ramp, grain=None):
    """A moulded frame. profile lists (share of the border, slope): slope 1 faces outwards, -1 faces the window.

    What faces up or left is lit, the rest lies in shade. grain draws upon a side, as four_sides() tells.
    """
    def side(length, lit, name):
        sign = 0.5 if lit else -0.5
        stops = gradient_stops(*((share, on_ramp(ramp, 0.5 + sign * slope)) for share, slope in profile))
        slopes = element("linearGradient", stops, id=f"{name}-slopes", gradientUnits="userSpaceOnUse",
                         x1=0, y1=0, x2=0, y2=border)
        body = element("rect", x=-1, y=-1, width=length + 2, height=border + 1, fill=f"url(#{name}-slopes)")
        return [slopes, body] + (grain(length, lit, name) if grain else [])

    return four_sides(border, side)


def around(inset, spacing):
    """Evenly spaced places (x, y, degrees) on the rectangle at the inset, clockwise; each corner is one of them.

    Turned by the degrees, downwards points to the window.
    """
    right, bottom = WIDTH - inset, HEIGHT - inset
    corners = ((inset, inset), (right, inset), (right, bottom), (inset, bottom), (inset, inset))
    for side, ((x, y), (next_x, next_y)) in enumerate(zip(corners, corners[1:])):
        count = round(math.hypot(next_x - x, next_y - y) / spacing)
        for i in range(count):
            yield x + (next_x - x) * i / count, y + (next_y - y) * i / count, side * 90 - (0 if i else 45)


def along_rounded(inset, radius, spacing):
    """As around(), on a rectangle with rounded corners: evenly spaced steps, starting above the left end of the top."""
    straights = (WIDTH - 2 * (inset + radius), HEIGHT - 2 * (inset + radius))
    arc = radius * math.pi / 2
    total = 2 * sum(straights) + 4 * arc
    count = round(total / spacing)
    near, right, bottom = inset + radius, WIDTH - inset - radius, HEIGHT - inset - radius
    sides = ((near, near, straights[0]), (right, near, straights[1]), (right, bottom, straights[0]),
             (near, bottom, straights[1]))
    for i in range(count):
        side, far = 0, total * i / count
        while far >= sides[side][2] + arc:
            far -= sides[side][2] + arc
            side += 1
        x, y, straight = sides[side]
        ahead, turned = min(far, straight), max(far - straight, 0) / radius
        along = math.radians(side * 90)
        x, y = x + math.cos(along) * ahead, y + math.sin(along) * ahead
        if turned:
            x, y = sides[(side + 1) % 4][:2]
        yield x + math.sin(along + turned) * radius, y - math.cos(along + turned) * radius, math.degrees(along + turned)


def moved_in(place, depth):
    """The place, moved towards the window."""
    x, y, degrees = place
    turn = math.radians(degrees)
    return x - math.sin(turn) * depth, y + math.cos(turn) * depth


def four_corners(*parts):
    """Parts that are drawn for the upper left corner, mirrored into each of the four."""
    drawn = "\n".join(parts)
    places = ("1 0 0 1 0 0", f"-1 0 0 1 {WIDTH} 0", f"1 0 0 -1 0 {HEIGHT}", f"-1 0 0 -1 {WIDTH} {HEIGHT}")
    return "\n".join(group(drawn, transform=f"matrix({place})") for place in places)


def in_corners(inset, part):
    """A part around the origin, set upright into each corner, so that its light stays where it is."""
    return "".join(placed(part, x, y) for x in (inset, WIDTH - inset) for y in (inset, HEIGHT - inset))


def placed(part, x, y, degrees=0, size=1):
    return group(part, transform=f"translate({x:.1f} {y:.1f}) rotate({degrees:.1f}) scale({size:.2f})")


def dots(places, radius, **look):
    return "".join(
        element("circle", cx=place[0], cy=place[1], r=radius, **{"fill": "none", **look}) for place in places)


def ball(name, light, fill, shade):
    """A gradient that rounds a small shape towards the light."""
    stops = gradient_stops((0, light), (0.55, fill), (1, shade))
    return element("radialGradient", stops, id=name, cx=0.35, cy=0.3, r=0.75)


def fibres(seed, count, colours, area=(0, 0, WIDTH, HEIGHT), length=9):
    """Short curved hairs strewn over an area, as in handmade paper."""
    chance = random.Random(seed)
    left, top, width, height = area
    hairs = {colour: [] for colour in colours}
    for _ in range(count):
        x, y, turn = left + chance.random() * width, top + chance.random() * height, chance.random() * math.tau
        across, along = chance.uniform(-3, 3), chance.uniform(0.4, 1) * length
        dx, dy = math.cos(turn) * along, math.sin(turn) * along
        bend = f"q{dx / 2 - dy / along * across:.1f} {dy / 2 + dx / along * across:.1f} {dx:.1f} {dy:.1f}"
        hairs[chance.choice(colours)].append(f"M{x:.1f} {y:.1f}{bend}")
    return "\n".join(path("".join(d), stroke=colour, stroke_width=0.9) for colour, d in hairs.items() if d)


def paper_shade(share, tone=INK):
    """Paper that is darkened a little, for the edge of what is white."""
    return mixed(PAPER, tone, share)


def leaf(length, breadth, name, step=LIGHT):
    """A leaf that grows along x from the origin; its upper half is lit."""
    outline = hue(name, LINE)
    half = f"M0 0C{length * .25} {-breadth} {length * .7} {-breadth} {length} 0"
    other = f"M0 0C{length * .25} {breadth} {length * .7} {breadth} {length} 0"
    return (path(half + "Z", fill=hue(name, step)) + path(other + "Z", fill=hue(name, step + 1))
            + path(half + other, stroke=outline, stroke_width=1.5)
            + path(f"M-3 0H{length * .8}", stroke=outline, stroke_width=1.1))
