"""Draws the journal's binding, assets/binding.gif: a spine seen from the front, over whatever colour the paper has.

The source is drawn on grey cloth. A GIF knows transparent or not and nothing between, so what is darker or lighter than
the grey becomes dark and light pixels in an ordered dither, and the grey itself is left out; gilt and thread stay. The
height is a whole number of bands and of dither cells, so that the picture can be repeated downwards without a seam."""

import numpy as np
from PIL import Image

from palette import svg
from render import ASSETS, rendered, write_gif, write_png, write_source
from shapes import tone

WIDTH, HEIGHT = 63, 1000
SPINE = 51  # its width; the hinge groove lies beyond
STEP, BAND = 125, 15  # from band to band, and the height of one
CELL = 8
GREY = "#808080"
SHADES = tone("paper--"), tone("walnut--")  # of half strength and of full
PALE = tone("paper+")


def fall(name, stops, down=False):
    """Black or white over the grey: an offset with the strength of a shade below zero, of a light above."""
    parts = "".join(
        f'<stop offset="{offset}" stop-color="{"#fff" if light > 0 else "#000"}" stop-opacity="{abs(light)}"/>'
        for offset, light in stops
    )
    direction = 'x1="0" y1="0" x2="0" y2="1"' if down else 'x1="0" y1="0" x2="1" y2="0"'
    return f'<linearGradient id="{name}" {direction}>{parts}</linearGradient>'


def gilded(name, steps):
    stops = "".join(f'<stop offset="{offset}" stop-color="{tone("gilt" + step)}"/>' for offset, step in steps)
    direction = f'gradientUnits="userSpaceOnUse" x1="0" y1="0" x2="{SPINE}" y2="0"'
    return f'<linearGradient id="{name}" {direction}>{stops}</linearGradient>'


LIGHTS = (
    fall("spine", ((0, -0.34), (0.1, -0.18), (0.2, -0.04), (0.22, 0), (0.22, 0.001), (0.35, 0.24), (0.48, 0.001),
                   (0.48, 0), (0.7, -0.16), (0.9, -0.34), (1, -0.5))) +
    fall("groove", ((0, -0.95), (0.12, -0.8), (0.28, -0.42), (0.45, -0.12), (0.6, 0), (1, 0))) +
    fall("band", ((0, -0.06), (0.18, 0.12), (0.34, 0.14), (0.5, 0), (0.72, -0.2), (1, -0.46)), down=True) +
    fall("under", ((0, -0.4), (1, 0)), down=True) +
    gilded("gilt", ((0, "--"), (0.18, "-"), (0.36, "+"), (0.6, ""), (0.85, "-"), (1, "--")))
)


def area(x, y, width, height, paint):
    return f'<rect x="{x}" y="{y}" width="{width}" height="{height}" fill="{paint}"/>'


def gilt_line(y):
    return area(0, y, SPINE, 1, "url(#gilt)") + area(0, y + 1, SPINE, 1, tone("gilt--"))


def band(top):
    bottom = top + BAND
    return (
        area(0, top, SPINE, BAND, "url(#band)") + area(0, bottom, SPINE, 4, "url(#under)") +
        gilt_line(top - 6) + gilt_line(bottom + 6)
    )


def stitches(top, bottom):
    return "".join(
        area(58, y, 1, 7, tone("paper-")) + area(59, y + 1, 1, 7, tone("walnut-")) for y in range(top, bottom - 7, 11)
    )


def binding():
    parts = [area(0, 0, WIDTH, HEIGHT, GREY), area(0, 0, SPINE, HEIGHT, "url(#spine)"),
             area(SPINE, 0, WIDTH - SPINE, HEIGHT, "url(#groove)")]
    for top in range((STEP - BAND) // 2, HEIGHT, STEP):
        parts += [band(top), stitches(top + BAND + 12, top + STEP - 8)]
    return svg(WIDTH, HEIGHT, *parts, defs=LIGHTS)


def thresholds(height, width):
    """The ordered cell, each of its places with a share between 0 and 1."""
    cell = np.zeros((1, 1))
    while len(cell) < CELL:
        cell = np.block([[4 * cell, 4 * cell + 2], [4 * cell + 3, 4 * cell + 1]])
    return np.tile((cell + 0.5) / cell.size, (height // CELL + 1, width // CELL + 1))[:height, :width]


def rgb(colour):
    return np.array([int(colour[i:i + 2], 16) for i in (1, 3, 5)])


def dithered(drawing):
    """RGB with an alpha channel that is full or empty."""
    pixels = np.asarray(drawing.convert("RGB")).astype(int)
    light = (pixels.mean(axis=2) - 128) / 127
    coloured = np.ptp(pixels, axis=2) > 3
    limit = thresholds(drawing.height, drawing.width)
    result = np.zeros((*light.shape, 4), np.uint8)
    layers = (
        (-2 * light > limit, rgb(SHADES[0])), (-2 * light - 1 > limit, rgb(SHADES[1])), (light > limit, rgb(PALE)),
        (coloured, pixels[coloured]),
    )
    for chosen, colour in layers:
        result[chosen, :3] = colour
        result[chosen, 3] = 255
    return Image.fromarray(result, "RGBA")


def main():
    source = write_source("binding", binding())
    write_gif(dithered(rendered(source)), ASSETS / "binding.gif")
    write_png(dithered(rendered(source, 2)), ASSETS / "binding@2x.png")  # decoded faster, for sharper screens


main()
