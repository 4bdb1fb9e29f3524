"""Draws the theme pictures: a material for the background of windows and the same material for the face of buttons.

They are computed and have no vector source. The edges of each picture meet, the mean colour is the theme's tint, and
the range of lightness is so narrow that text is easy to read anywhere on them.
"""

import numpy as np
from PIL import Image

from render import ASSETS

FINE = 2  # samples a pixel of the picture in each direction
OVER = FINE  # samples a pixel of the window, which has several of a picture that is drawn for a sharper screen
# By the scaling:
QUALITY = {1: 95, 2: 88}  # fine threads keep their shape, and no blocks show
REACH = {1: 2.5, 2: 2.3}  # lightness above and below the tint; compression adds a little
WOVEN_REACH = {1: 2.0, 2: 2.0}  # and more where thread meets thread
MOST_LIGHTNESS = 6.0  # of a hundred, from the darkest pixel to the lightest
LEAST_CONTRAST = 7.0  # of black text


# Fields: arrays of samples whose edges meet.


def blurred(field, across, down):
    """The widths are in pixels."""
    fy = np.fft.fftfreq(field.shape[0])[:, None] * down * OVER
    fx = np.fft.rfftfreq(field.shape[1])[None, :] * across * OVER
    return np.fft.irfft2(np.fft.rfft2(field) * np.exp(-2 * np.pi**2 * (fx**2 + fy**2)), s=field.shape)


def noise(rng, shape, across, down=None):
    """Mean 0, deviation 1; as soft as the widths tell."""
    soft = blurred(rng.standard_normal(shape), across, across if down is None else down)
    return (soft - soft.mean()) / soft.std()


def lit(height):
    """How light from the top left falls on a relief: slopes that face it are above 0."""
    step = OVER // FINE
    return height - np.roll(height, (step, step), axis=(0, 1))


def grid(shape):
    """Each sample's place, in pixels: columns, rows."""
    down, across = np.indices(shape)
    return (across + 0.5) / OVER, (down + 0.5) / OVER


def even(number):
    return 2 * round(number / 2)


# Materials: a source of chance and a shape in samples give two fields, a tone of about -1 to 1 and a turn of the hue
# from -1 to 1.

PITCH = 6.0  # pixels from thread to thread


def threads(place, length, wobble):
    """Across them: the place in threads, 1 or -1 by turns from thread to thread, the height of the round section."""
    position = place * (even(length / PITCH) / length) + wobble
    section = 2 * (position % 1) - 1
    return position, np.where(np.floor(position) % 2 == 0, 1.0, -1.0), np.sqrt(np.clip(1 - section**2, 0, 1))


def linen(rng, shape):
    """A plain weave: each thread goes over one and under the next, is a little uneven and has its own tone."""
    x, y = grid(shape)
    across, odd_across, round_across = threads(x, shape[1] / OVER, 0.13 * noise(rng, shape, 6, 40))
    down, odd_down, round_down = threads(y, shape[0] / OVER, 0.13 * noise(rng, shape, 40, 6))
    warp = odd_across * np.sin(np.pi * down) + 1.1 * round_across
    weft = -odd_down * np.sin(np.pi * across) + 1.1 * round_down
    tone = np.where(warp > weft, noise(rng, shape, 1.1, 60), noise(rng, shape, 60, 1.1))
    height = blurred(np.maximum(warp, weft), 0.4, 0.4)
    return 2.2 * lit(height) + 0.55 * (height - height.mean()) + 0.25 * tone, tone * 0.2


def fibre(rng, shape):
    """The samples that a hair of the pulp lies on."""
    along = np.linspace(0, 1, int(OVER * rng.uniform(30, 110)))
    wave = rng.normal(0, 0.35) * np.sin(2 * np.pi * (rng.uniform(0.5, 1.5) * along + rng.uniform(0, 1)))
    heading = rng.uniform(0, 2 * np.pi) + rng.normal(0, 0.9) * along + wave
    x = rng.uniform(0, shape[1]) + np.cumsum(np.cos(heading)) * 0.7
    y = rng.uniform(0, shape[0]) + np.cumsum(np.sin(heading)) * 0.7
    return y.astype(int) % shape[0], x.astype(int) % shape[1]


def pulp(rng, shape, pixels_each):
    """Fibres strewn over the sheet, one for so many pixels: 0 beside them, 1 on them."""
    field = np.zeros(shape)
    for _ in range(max(2, round(shape[0] * shape[1] / OVER**2 / pixels_each))):
        field[fibre(rng, shape)] = 1
    return np.clip(blurred(field, 0.5, 0.5) * 1.4 * OVER, 0, 1)


def paper(rng, shape):
    """A sheet made by hand: pressed felt, uneven pulp, a few fibres."""
    dark, pale = pulp(rng, shape, 8000), pulp(rng, shape, 5000)
    felt = noise(rng, shape, 1.3) + 1.6 * noise(rng, shape, 3) + 2.5 * noise(rng, shape, 9)
    height = felt + 1.5 * blurred(dark + pale, 0.6, 0.6)
    cloud = 0.10 * noise(rng, shape, 14) + 0.12 * noise(rng, shape, 45)
    return 0.34 * lit(height) + cloud - 0.9 * dark + 0.7 * pale, dark


def bands(rng, length):
    """Colours as they were dropped on the bath, a value each: bands of uneven width with a pale vein between."""
    tone, turn = np.zeros(length), np.zeros(length)
    at = 0
    while at < length:
        width = int(OVER * rng.uniform(5, 22))
        tone[at : at + width], turn[at : at + width] = rng.uniform(-1, 0.5), rng.uniform(-1, 1)
        tone[at : at + 2 * OVER] = 1
        at += width
    return tone, turn


def marble(rng, shape):
    """Bands of colour drawn through by a comb, whose teeth leave a row of soft arches."""
    x, y = grid(shape)
    gaps = round(shape[1] / OVER / 50)
    tooth = (x / (shape[1] / OVER) * gaps + 0.13 * noise(rng, shape, 30, 60)) % 1
    pull = 46 * np.exp(-7 * np.minimum(tooth, 1 - tooth)) + 9 * noise(rng, shape, 40) + 1.2 * noise(rng, shape, 6)
    at = np.floor((y + pull) * OVER).astype(int) % shape[0]
    tone, turn = (blurred(band[at], 1.2, 1.2) for band in bands(rng, shape[0]))
    return tone - tone.mean() + 0.05 * noise(rng, shape, 1), turn


# Colour.


def linear(rgb):
    value = np.asarray(rgb, dtype=float) / 255
    return np.where(value <= 0.04045, value / 12.92, ((value + 0.055) / 1.055) ** 2.4)


def luminance(rgb):
    return linear(rgb) @ np.array([0.2126, 0.7152, 0.0722])


def lightness(rgb):
    return 116 * np.cbrt(luminance(rgb)) - 16


def reduced(field):
    """From samples to pixels."""
    rows, columns = (side // FINE for side in field.shape)
    return field.reshape(rows, FINE, columns, FINE).mean(axis=(1, 3))


def coloured(tone, turn, tint, turned, reach):
    """The tint, lighter and darker by the tone. A channel that is full already has no room above and moves less."""
    tint = np.asarray(tint, dtype=float)
    step = np.where(tint == 255, 0.3, 1.0)
    step *= reach / (lightness(tint) - lightness(tint - step))
    tone = np.tanh(tone)[..., None]  # the few that stand out come nearer
    wanted = tint + tone * step + turn[..., None] * np.asarray(turned, dtype=float)
    for _ in range(3):  # what a full channel lost above, it cannot win back; the others keep their mean
        wanted += (tint - np.clip(wanted, 0, 255).mean(axis=(0, 1))) * (tint < 255)
    return Image.fromarray(np.clip(np.rint(wanted), 0, 255).astype(np.uint8), "RGB")


def save(picture, path, quality):
    path.parent.mkdir(parents=True, exist_ok=True)
    picture.save(path, "JPEG", quality=quality, subsampling=0, optimize=True)


def check(path):
    """Measures the picture as the program will show it."""
    pixels = np.asarray(Image.open(path).convert("RGB"))
    light = lightness(pixels)
    contrast = (luminance(pixels).min() + 0.05) / 0.05
    if light.max() - light.min() > MOST_LIGHTNESS or contrast < LEAST_CONTRAST:
        raise SystemExit(f"{path.name}: lightness {light.min():.2f} to {light.max():.2f}, contrast {contrast:.2f}")


def draw(material, name, size, seed, tint, turned, reach=None):
    """Once for screens of one pixel to a point, and once for those of two."""
    global OVER
    for scale, suffix in ((1, ""), (2, "@2x")):
        OVER = FINE * scale
        tone, turn = material(np.random.default_rng(seed), (size[1] * OVER, size[0] * OVER))
        path = ASSETS / "themes" / f"{name}{suffix}.jpg"
        save(coloured(reduced(tone), reduced(turn), tint, turned, (reach or REACH)[scale]), path, QUALITY[scale])
        check(path)


LARGE = (800, 600)
BLUE = ((0xC0, 0xC0, 0xFF), (-1.5, 1.5, 0))
PINK = ((0xFF, 0xC0, 0xC0), (0, 3, -6))
PURPLE = ((0xFF, 0xC0, 0xFF), (-6, 2.5, 0))

draw(linen, "blue-large", LARGE, 11, *BLUE, WOVEN_REACH)
draw(linen, "blue-button", (199, 107), 12, *BLUE, WOVEN_REACH)
draw(paper, "pink-large", LARGE, 21, *PINK)
draw(paper, "pink-button", (205, 120), 22, *PINK)
draw(marble, "purple-large", LARGE, 31, *PURPLE)
draw(marble, "purple-button", (207, 112), 32, *PURPLE)
