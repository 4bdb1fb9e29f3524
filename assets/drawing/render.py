"""Writes a drawing's vector source and the picture that is rendered from it. The same drawing always gives the same bytes."""

import io
import subprocess
from pathlib import Path

from PIL import Image

ASSETS = Path(__file__).resolve().parent.parent


def write_source(name, drawing):
    """Writes assets/<name>.svg; returns its path."""
    path = ASSETS / f"{name}.svg"
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(drawing, encoding="utf-8")
    return path


def rendered(source, scale=1):
    """The picture of a vector source, with an alpha channel."""
    png = subprocess.run(["rsvg-convert", f"--zoom={scale}", str(source)], check=True, capture_output=True).stdout
    return Image.open(io.BytesIO(png)).convert("RGBA")


def write_gif(picture, path):
    """Cuts the silhouette hard at half coverage, so that no pale halo stands on coloured paper."""
    solid = picture.getchannel("A").point(lambda alpha: 255 if alpha >= 128 else 0)
    # A half covered pixel keeps its own colour and loses what would shine through it.
    colours = picture.convert("RGB").quantize(colors=255, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
    transparent = 255
    colours.paste(transparent, mask=solid.point(lambda alpha: 255 - alpha))
    path.parent.mkdir(parents=True, exist_ok=True)
    colours.save(path, "GIF", transparency=transparent, optimize=False)


def draw_gif(source_name, drawing, gif_name):
    """Writes assets/<source_name>.svg and assets/<gif_name>.gif."""
    write_gif(rendered(write_source(source_name, drawing)), ASSETS / f"{gif_name}.gif")


def write_png(picture, path):
    path.parent.mkdir(parents=True, exist_ok=True)
    picture.save(path, "PNG", optimize=True)


def draw_png(source_name, drawing, png_name, scale=1):
    """Writes assets/<source_name>.svg and assets/<png_name>.png."""
    write_png(rendered(write_source(source_name, drawing), scale), ASSETS / f"{png_name}.png")


def draw_scaled(name, drawing, scales=(1, 2, 3)):
    """Writes assets/<name>.svg and the pictures for screens of these scalings: <name>.png, <name>@2x.png."""
    for scale in scales:
        draw_png(name, drawing, name if scale == 1 else f"{name}@{scale}x", scale)
