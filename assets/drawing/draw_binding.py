"""Draws what is hard-edged on the journal's binding, assets/binding.gif: a spine seen from the front, over whatever colour
the paper has.

A GIF knows transparent or not and nothing between, so it holds gilt, the edges of the raised bands, the crease of the hinge
and the thread in it, and no light or shade: the program paints these under it, editor/BindingShade.cpp, where the measures of
the spine stand once more. The height is a whole number of bands, so that the picture can be repeated downwards without a
seam."""

from palette import svg
from render import ASSETS, rendered, write_gif, write_png, write_source
from shapes import tone

WIDTH, HEIGHT = 63, 1000
SPINE = 51  # its width; the hinge groove lies beyond
STEP, BAND = 125, 15  # from band to band, and the height of one
GILT_FROM_BAND = 6
STITCH = 14  # the height of a station of thread


def gilded(name, steps):
    stops = "".join(f'<stop offset="{offset}" stop-color="{tone("gilt" + step)}"/>' for offset, step in steps)
    direction = f'gradientUnits="userSpaceOnUse" x1="0" y1="0" x2="{SPINE}" y2="0"'
    return f'<linearGradient id="{name}" {direction}>{stops}</linearGradient>'


GILT = gilded("gilt", ((0, "--"), (0.18, "-"), (0.36, "+"), (0.6, ""), (0.85, "-"), (1, "--")))


def area(x, y, width, height, paint):
    return f'<rect x="{x}" y="{y}" width="{width}" height="{height}" fill="{paint}"/>'


def gilt_line(y):
    return area(0, y, SPINE, 1, "url(#gilt)") + area(0, y + 1, SPINE, 1, tone("gilt--"))


def band(top):
    bottom = top + BAND
    edges = area(0, top, SPINE, 1, tone("walnut")) + area(0, bottom - 1, SPINE, 1, tone("walnut--"))
    return edges + gilt_line(top - GILT_FROM_BAND - 1) + gilt_line(bottom + GILT_FROM_BAND - 1)


def station(middle):
    """A length of thread between the two holes that it comes out of and goes back into."""
    top = middle - STITCH // 2
    holes = area(56, top - 2, 3, 2, tone("walnut--")) + area(56, top + STITCH, 3, 2, tone("walnut--"))
    thread = ((56, "straw-"), (57, "straw+"), (58, "walnut-"))
    return holes + "".join(area(x, top, 1, STITCH, tone(colour)) for x, colour in thread)


def binding():
    parts = [area(SPINE, 0, 1, HEIGHT, tone("walnut--")), area(SPINE + 1, 0, 1, HEIGHT, tone("walnut-"))]
    for top in range((STEP - BAND) // 2, HEIGHT, STEP):
        panel = (top + BAND, STEP - BAND)
        parts += [band(top), *(station((panel[0] + panel[1] * third // 3) % HEIGHT) for third in (1, 2))]
    return svg(WIDTH, HEIGHT, *parts, defs=GILT)


def main():
    source = write_source("binding", binding())
    write_gif(rendered(source), ASSETS / "binding.gif")
    write_png(rendered(source, 2), ASSETS / "binding@2x.png")  # decoded faster, for sharper screens


main()
