"""Draws the bar by which a picture on a page is gripped. The program stretches it to the picture's width, so that only
the grips at its ends carry detail, and these lie square to the bar."""

from frame_parts import element, gradient_stops, mixed, path
from palette import GILT, LIGHT, LINE, PAPER, SHADE, hue, svg
from render import draw_png

WIDTH, HEIGHT, GRIP = 200, 20, 30


def gradient(name, *stops):
    return element("linearGradient", gradient_stops(*stops), id=name, x1=0, y1=0, x2=0, y2=1)


def wood():
    grain = path(f"M{GRIP} 6.5q50 -1.5 90 0t60 .5M{GRIP} 10.5q40 1.5 80 .3t62 -.6M{GRIP} 14.2q60 -1 90 .2t50 -.4",
                 stroke=hue("walnut", LINE), stroke_width=.8, stroke_opacity=.45)
    return (element("rect", x=.75, y=.75, width=WIDTH - 1.5, height=HEIGHT - 1.5, rx=3, fill="url(#walnut)",
                    stroke=hue("walnut", LINE), stroke_width=1.5)
            + path(f"M{GRIP} 2.3H{WIDTH - GRIP}", stroke=hue("walnut", LIGHT), stroke_width=1.2) + grain)


def grip(x):
    """A brass sleeve with four ridges, its left edge at x."""
    dark, light = hue("straw", LINE), mixed(hue("straw", LIGHT), PAPER, .5)
    sleeve = element("rect", x=x + .75, y=.75, width=GRIP - 1.5, height=HEIGHT - 1.5, rx=3, fill="url(#brass)",
                     stroke=hue("amber", LINE), stroke_width=1.5)
    ridges = (x + 7.2, x + 11.9, x + 16.6, x + 21.3)
    return (sleeve + path(f"M{x + 3} 2.4H{x + GRIP - 3}", stroke=light, stroke_width=1.2)
            + path("".join(f"M{at:.1f} 5V15" for at in ridges), stroke=dark, stroke_width=1.6)
            + path("".join(f"M{at + 1.6:.1f} 5V15" for at in ridges), stroke=light, stroke_width=1.3))


def handle():
    return svg(WIDTH, HEIGHT,
               gradient("walnut", (0, hue("walnut", LIGHT)), (.3, hue("walnut")), (1, hue("walnut", SHADE))),
               gradient("brass", (0, hue("straw", LIGHT)), (.35, hue("straw")), (.7, GILT), (1, hue("amber", SHADE))),
               wood(), grip(0), grip(WIDTH - GRIP))


draw_png("handle", handle(), "handle")
draw_png("handle", handle(), "handle@2x", scale=2)
