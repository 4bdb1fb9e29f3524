"""Draws the photographs of the diary that the README shows: a lake at evening, and a tree in a meadow.

They are computed and have no vector source.
"""

import numpy as np
from PIL import Image

from render import ASSETS

WIDTH, HEIGHT = 640, 480
QUALITY = 85

down, across = np.indices((HEIGHT, WIDTH)) / HEIGHT  # both in heights of the picture


def noise(rng, shape, *widths):
    """Mean 0, deviation 1; as soft as the widths tell, in samples, the last one along the last axis."""
    field = np.fft.fftn(rng.standard_normal(shape))
    for axis, width in enumerate(widths, len(shape) - len(widths)):
        falloff = np.exp(-2 * (np.pi * width * np.fft.fftfreq(shape[axis])) ** 2)
        field *= falloff.reshape([-1 if axis == other else 1 for other in range(len(shape))])
    soft = np.fft.ifftn(field).real
    return (soft - soft.mean()) / soft.std()


def blend(place, *stops):
    """The colour at each place of a run of colours; stops are (place, "rrggbb")."""
    colours = np.array([[int(colour[i : i + 2], 16) for i in (0, 2, 4)] for _, colour in stops], dtype=float)
    places = [at for at, _ in stops]
    return np.stack([np.interp(place, places, colours[:, i]) for i in range(3)], axis=-1)


def paint(picture, coverage, colour):
    """Lays a colour over the picture, as thick as the coverage tells, 0 to 1."""
    picture += np.clip(coverage, 0, 1)[..., None] * (np.asarray(colour) - picture)


def below(line, softness=0.003):
    """How far each place lies below a line across the picture, as a coverage."""
    return (down - line[None, :]) / softness + 0.5


def glow(x, y, radius):
    return np.exp(-((across - x) ** 2 + (down - y) ** 2) / radius**2)


def ridge(rng, height, *waves):
    """A mountain's line; waves are (width in pixels, height)."""
    return height + sum(noise(rng, (WIDTH,), width) * swing for width, swing in waves)


def firs(rng, shore, count, tallest):
    """A line of firs along a shore: how high each place across stands above it."""
    line = shore.copy()
    x = across[0]
    for trunk, size in zip(rng.uniform(0, WIDTH / HEIGHT, count), rng.uniform(0.4, 1, count) * tallest):
        slope = np.abs(x - trunk) * rng.uniform(4, 6)
        branches = 0.006 * np.sin(np.abs(x - trunk) * 900)
        line = np.minimum(line, shore - np.clip(size - slope + branches * (slope > 0.01), 0, None))
    return line


def developed(picture, rng, name):
    """A little grain, and darker corners."""
    picture *= 1 - 0.22 * np.clip(((across - 0.667) / 0.667) ** 2 + ((down - 0.5) / 0.5) ** 2 - 0.5, 0, 2)[..., None]
    picture += noise(rng, (HEIGHT, WIDTH), 0.7, 0.7)[..., None] * 2.2
    path = ASSETS / "year" / f"{name}.jpg"
    path.parent.mkdir(parents=True, exist_ok=True)
    Image.fromarray(np.clip(picture, 0, 255).astype(np.uint8)).save(path, quality=QUALITY)


def lake():
    rng = np.random.default_rng(7)
    horizon, sun = 0.60, (0.86, 0.47)
    picture = blend(down, (0, "3d5f94"), (0.25, "8a8fb8"), (0.42, "eab08f"), (0.56, "ffdf9e"), (1, "ffe3ae"))
    clouds = noise(rng, (HEIGHT, WIDTH), 5, 60) + 0.6 * noise(rng, (HEIGHT, WIDTH), 2, 22)
    paint(picture, 0.5 * np.clip(clouds - 0.4, 0, 1) * (down < 0.5), (255, 196, 160))
    paint(picture, 0.9 * glow(*sun, 0.20), (255, 236, 180))
    paint(picture, glow(*sun, 0.045) * 2.5 - 0.5, (255, 252, 228))
    for height, waves, colour in (
        (0.44, ((40, 0.045), (9, 0.012)), "b98f9d"),
        (0.50, ((50, 0.035), (8, 0.009)), "8c7791"),
        (0.555, ((70, 0.020), (6, 0.005)), "5b5c7c"),
    ):
        line = ridge(rng, height, *waves)
        haze = blend(np.clip((down - line) / 0.16, 0, 1), (0, colour), (1, "e9b596"))
        coverage = np.clip(below(line), 0, 1)[..., None]
        picture += coverage * (haze - picture)
    wood = firs(rng, np.full(WIDTH, horizon), 130, 0.05)
    paint(picture, below(wood) * (across[0] < 0.62 + 0.05 * np.sin(9 * across[0])), (52, 62, 74))
    # The water shows what stands above it, drawn out into ripples.
    ripple = noise(rng, (HEIGHT, WIDTH), 1.4, 26) * (0.002 + 0.03 * np.clip(down - horizon, 0, 1))
    mirrored = np.clip((2 * horizon - down + ripple) * HEIGHT, 0, horizon * HEIGHT - 1).astype(int)
    water = picture[mirrored, np.arange(WIDTH)[None, :]] * 0.86 + np.array([4, 10, 22])
    track = np.exp(-(((across - sun[0]) / (0.02 + 0.12 * np.clip(down - horizon, 0, 1))) ** 2))
    sparkle = track * np.clip(noise(rng, (HEIGHT, WIDTH), 1.2, 9) - 0.2, 0, 1)
    paint(water, sparkle * 0.9, (255, 240, 200))
    picture = np.where((down > horizon)[..., None], water, picture)
    shore = 0.94 - 0.10 * np.exp(-across[0] / 0.35) + 0.005 * noise(rng, (WIDTH,), 7)
    paint(picture, below(shore), (40, 42, 48))
    reeds = shore - np.clip(noise(rng, (WIDTH,), 0.8) - 0.2, 0, 1) * 0.07 * np.clip(noise(rng, (WIDTH,), 30), 0, 1)
    paint(picture, below(reeds), (40, 42, 48))
    for trunk, top in ((0.10, 0.13), (0.235, 0.30), (0.02, 0.24)):
        x = np.abs(across - trunk)
        rise = np.clip((down - top) / (0.92 - top), 0, 1)
        tier = 0.75 + 0.25 * np.abs(np.sin(rise * 34 + trunk * 50))
        ragged = 0.012 * noise(rng, (HEIGHT, WIDTH), 2, 2)
        paint(picture, (rise * 0.135 * tier + ragged * rise - x) / 0.004 * (down > top) * (down < 0.9), (36, 42, 50))
    developed(picture, rng, "lake")


def meadow():
    rng = np.random.default_rng(11)
    picture = blend(down, (0, "4f8fce"), (0.5, "bfdcec"), (0.62, "eef3e6"), (1, "eef3e6"))
    clouds = noise(rng, (HEIGHT, WIDTH), 22, 48) + 0.5 * noise(rng, (HEIGHT, WIDTH), 7, 13)
    paint(picture, 0.85 * np.clip(clouds - 0.35, 0, 1) * np.clip(1.5 - 2.2 * down, 0, 1), (255, 253, 248))
    for height, waves, colour in (
        (0.545, ((60, 0.018), (12, 0.003)), "9fb9b8"),
        (0.585, ((80, 0.020), (4, 0.003)), "7fa182"),
    ):
        paint(picture, below(ridge(rng, height, *waves)), blend(np.zeros(()), (0, colour)))
    hill = 0.66 - 0.06 * np.exp(-(((across[0] - 0.9) / 0.45) ** 2))
    grass = blend((down - hill) / 0.36, (0, "9dbb5c"), (0.4, "7ea445"), (1, "4f7a2e"))
    blades = noise(rng, (HEIGHT, WIDTH), 6, 0.8) * (6 + 26 * np.clip(down - 0.62, 0, 1))
    coverage = np.clip(below(hill), 0, 1)[..., None]
    picture += coverage * (grass + blades[..., None] - picture)
    # The tree: a trunk, a shadow to the right, and a crown of leaves, lit from the left.
    x, foot = 0.86, 0.64
    paint(picture, 0.5 * np.exp(-(((across - x - 0.13) / 0.2) ** 2) - ((down - foot - 0.02) / 0.018) ** 2), (44, 66, 30))
    trunk = 0.014 + 0.02 * np.clip((down - foot + 0.04) / 0.05, 0, 1) ** 2
    paint(picture, (trunk - np.abs(across - x)) / 0.003 * (down > 0.42) * (down < foot + 0.01), (84, 66, 50))
    leaves = noise(rng, (HEIGHT, WIDTH), 9, 9) * 0.17 + noise(rng, (HEIGHT, WIDTH), 2, 2) * 0.09
    crown = 1 - ((across - x) / 0.24) ** 2 - ((down - 0.36) / 0.20) ** 2 + leaves
    light = np.clip(0.5 - (across - x) * 1.3 - (down - 0.36) * 1.9 + leaves * 1.3, 0, 1)
    shades = blend(light, (0, "2c4a24"), (0.5, "4d7a33"), (1, "93b552"))
    picture += np.clip(crown / 0.06, 0, 1)[..., None] * (shades - picture)
    # Poppies and daisies, larger and rarer the nearer they stand.
    for count, colours in ((900, ((206, 52, 40), (222, 74, 50))), (420, ((250, 246, 232), (246, 240, 214)))):
        for nearness, place in zip(rng.uniform(0.02, 1, count) ** 1.4, rng.uniform(0, WIDTH / HEIGHT, count)):
            y = 0.66 + 0.36 * nearness - 0.05 * np.exp(-(((place - 0.9) / 0.45) ** 2)) * (1 - nearness)
            size = 0.0016 + 0.0085 * nearness
            far = ((across - place) / size) ** 2 + ((down - y) / (size * 0.8)) ** 2
            paint(picture, 1.6 - far, colours[rng.integers(2)])
    developed(picture, rng, "meadow")


lake()
meadow()
