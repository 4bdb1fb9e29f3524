"""The one palette and the common parts of every drawing.

Twelve hues in four steps each: LIGHT for the highlight on an upper left edge, FILL for the body, SHADE for the lower
right, LINE for the outline. Nothing is pure black and nothing is saturated to the end of the scale.
"""

LIGHT, FILL, SHADE, LINE = range(4)

HUES = {
    "ink_blue":   ("#8fa0cc", "#5f74ab", "#465a8f", "#2c3a63"),
    "sky":        ("#cfe6f3", "#9ccbe4", "#71a9cb", "#3f7398"),
    "teal":       ("#a8d8d2", "#66b3aa", "#45918a", "#27605c"),
    "leaf":       ("#c3e0a4", "#8fbf68", "#6b9c48", "#426b2a"),
    "moss":       ("#c2c894", "#929a5c", "#717843", "#484d27"),
    "straw":      ("#fbeeb4", "#f2d675", "#d9b64e", "#8f6f26"),
    "amber":      ("#fbd9a0", "#f0b354", "#d18f35", "#8a5719"),
    "terracotta": ("#efb9a0", "#d98863", "#b86646", "#7a3d27"),
    "rose":       ("#f6c7cd", "#e58d9a", "#c66777", "#873c4b"),
    "plum":       ("#cfa9c8", "#a06f99", "#7e5078", "#50304c"),
    "lilac":      ("#dcd0ee", "#b6a2d8", "#9480bb", "#5d4c82"),
    "walnut":     ("#c9a583", "#96714f", "#745539", "#483321"),
}

PAPER = "#fffdf6"
INK = "#2b2430"
GILT = "#c9a24b"


def hue(name, step=FILL):
    return HUES[name][step]


def svg(width, height, *parts, defs=""):
    """A whole drawing. The parts are SVG elements; round joins and caps are the rule."""
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}" '
        f'stroke-linejoin="round" stroke-linecap="round">\n'
        + (f"<defs>{defs}</defs>\n" if defs else "")
        + "\n".join(parts)
        + "\n</svg>\n"
    )
