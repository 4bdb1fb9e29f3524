"""Draws the pictures of the toolbar's buttons: one object each, in ink with one colour. The second picture, shown under
the mouse, is the same object with its colour lit. A line is one pixel wide and runs through the middle of its pixels,
which is why most places end in .5. The program draws them at the screen's own scaling; they are listed for it in
editor/toolbar.qrc."""

from palette import svg
from render import ASSETS, write_source
from shapes import flat, mirrored, slab, spot, stroke, tone

INK, PAPER = tone("ink--"), tone("paper+")


def coloured(path):
    return f'<path d="{path}" fill="url(#colour)" stroke="{INK}"/>'


def white(path):
    return f'<path d="{path}" fill="{PAPER}" stroke="{INK}"/>'


def line(path, width=1):
    return stroke(path, "ink--", width)


def disc(x, y, r, paint):
    return f'<circle cx="{x}" cy="{y}" r="{r}" fill="{paint}" stroke="{INK}"/>'


def arrow(tail, tip):
    """To the right."""
    head = tip - 6
    shine = stroke(f"M{tail + 1} 7.5H{head + 0.6}", "paper+", 1)
    return coloured(f"M{tail} 6.5H{head}V2.5L{tip} 8L{head} 13.5V9.5H{tail}Z") + shine


NEW_PAGE = (
    white("M2.5 1.5H8.5L11.5 4.5V14.5H2.5Z") + line("M8.5 1.5V4.5H11.5") + line("M4.5 6.5H7.5", 1) +
    coloured("M9.5 7.5H12.5V9.5H14.5V12.5H12.5V14.5H9.5V12.5H7.5V9.5H9.5Z")
)
TITLE_PAGE = (
    coloured("M4.5 1.5H12.5Q13.5 1.5 13.5 2.5V14.5H4.5Q2.5 14.5 2.5 12.5V3.5Q2.5 1.5 4.5 1.5Z") + line("M5.5 2V12") +
    white("M3.6 12.5H13.5V14.5H4.5Q2.5 14.5 2.5 13.5Q2.5 12.5 3.6 12.5Z") + white("M7.5 4.5H11.5V7.5H7.5Z")
)
PRINTER = (
    white("M4.5 1.5H11.5V6.5H4.5Z") + coloured("M3.5 5.5H12.5Q14.5 5.5 14.5 7.5V11.5H1.5V7.5Q1.5 5.5 3.5 5.5Z") +
    white("M4.5 9.5H11.5V14.5H4.5Z") + line("M6.5 12H9.5") + slab(12, 7, 1.2, 1.2, "paper+")
)
INDEX = (
    line("M4.5 4.5V12.5H8.5M4.5 8.5H8.5") + coloured("M1.5 1.5H7.5V4.5H1.5Z") + white("M8.5 6.5H14.5V9.5H8.5Z") +
    white("M8.5 11.5H14.5V14.5H8.5Z")
)
CALENDAR = (
    white("M1.5 3.5H14.5V14.5H1.5Z") + coloured("M1.5 3.5H14.5V6.5H1.5Z") + line("M4.5 1.5V4.5M11.5 1.5V4.5", 1.2) +
    "".join(slab(x, y, 2, 1.4, "ink") for y in (8.4, 11.4) for x in (4, 7, 10))
)
SMILE = (
    disc(8, 8, 6.5, "url(#colour)") + spot(5.8, 6.4, 0.9, "ink--", 1.2) + spot(10.2, 6.4, 0.9, "ink--", 1.2) +
    line("M4.8 9.6Q8 13.4 11.2 9.6", 1.1)
)
PHOTOGRAPH = (
    white("M1.5 2.5H14.5V13.5H1.5Z") + f'<path d="M3 12L6.4 6.6L8.8 10L10.2 8.4L13 12Z" fill="url(#colour)"/>' +
    line("M3.2 12L6.4 6.8L8.8 10.2L10.2 8.6L12.8 12", 0.9) + f'<circle cx="11" cy="5.8" r="1.3" fill="url(#colour)"/>'
)
LETTER = (
    coloured("M6.5 1.5H9.5L13.1 12.5H14.5V14.5H9.5V12.5H10.4L9.9 10.5H6.1L5.6 12.5H6.5V14.5H1.5V12.5H2.9Z") +
    flat("M8 4.6L9.2 8.5H6.8Z", "ink--")
)
SLIDERS = line("M1.5 2.5H14.5M1.5 7.5H14.5M1.5 12.5H14.5") + "".join(
    coloured(f"M{x} {y}H{x + 3}V{y + 4}H{x}Z") for x, y in ((9.5, 0.5), (3.5, 5.5), (7.5, 10.5)))
LABEL = (
    coloured("M1.5 8.5L7.5 2.5H13.5V8.5L7.5 14.5Z") + slab(10, 4, 2, 2, "paper+") + line("M11.5 4.5L14.5 1.5") +
    stroke("M3.6 8.6L8.2 4", "paper+", 0.9)
)
QUESTION = (
    disc(8, 8, 6.5, "url(#colour)") + line("M5.8 6.4C5.8 3.4 10.3 3.4 10.3 6.2C10.3 8 8 7.9 8 9.6", 1.5) +
    spot(8, 11.9, 0.95, "ink--")
)

PICTURES = {
    "new-page": ("leaf", NEW_PAGE),
    "title-page": ("terracotta", TITLE_PAGE),
    "back": ("sky", mirrored(arrow(2.5, 14.5), 8)),
    "next": ("sky", arrow(2.5, 14.5)),
    "last-page": ("sky", arrow(0.5, 11.5) + coloured("M12.5 2.5H14.5V13.5H12.5Z")),
    "print": ("sky", PRINTER),
    "index": ("leaf", INDEX),
    "calendar": ("terracotta", CALENDAR),
    "emoticon": ("straw", SMILE),
    "picture": ("leaf", PHOTOGRAPH),
    "font": ("sky", LETTER),
    "options": ("teal", SLIDERS),
    "journal-properties": ("straw", LABEL),
    "help": ("teal", QUESTION),
}


def light(colour, steps):
    stops = "".join(f'<stop offset="{offset}" stop-color="{tone(colour + step)}"/>' for offset, step in steps)
    return f'<linearGradient id="colour" x1="0.1" y1="0" x2="0.9" y2="1">{stops}</linearGradient>'


def list_for_the_program():
    files = sorted(path.name for path in (ASSETS / "toolbar").glob("*.svg"))
    rows = "".join(f'    <file alias="{name}">../assets/toolbar/{name}</file>\n' for name in files)
    text = f'<RCC>\n  <qresource prefix="/toolbar">\n{rows}  </qresource>\n</RCC>\n'
    (ASSETS.parent / "editor" / "toolbar.qrc").write_text(text, encoding="utf-8")


def main():
    for path in (ASSETS / "toolbar").glob("*"):
        path.unlink()  # some may be from a drawing that had another name
    for name, (colour, drawing) in PICTURES.items():
        for state, steps in (("", ((0, ""), (0.6, "-"))), ("-lit", ((0, "+"), (0.6, "")))):
            strokes = f'<g fill="none" stroke-width="1">{drawing}</g>'
            write_source(f"toolbar/{name}{state}", svg(16, 16, strokes, defs=light(colour, steps)))
    list_for_the_program()


main()
