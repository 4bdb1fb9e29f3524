"""Draws the emblem, as the desktop's icon in every size it asks for, and the pictures that share its parts: the quill
and inkwell of the bookcase window, the clasped book of the lock screen, and of the wait window the hourglass beside the
inkwell."""

from emblem.books import clasped_book, emblem_book
from emblem.desk import hourglass_and_inkwell, quill_and_inkwell
from emblem.quill import quill
from render import ASSETS, draw_scaled, rendered, write_png, write_source
from shapes import body, box, flat, picture, scaled, stroke

HICOLOR = ASSETS.parent / "packaging" / "icons" / "hicolor"
SMALL, LARGE = (16, 22), (32, 48, 64, 128, 256)


def emblem():
    return picture(64, 2, [*emblem_book(), quill(14, 57, 66, 41.5)])


def emblem_small():
    """For 16 and 22 pixels: cover, leaves, feather, thorn."""
    back = body("M4 2.5H13.5V12L11 14.5H1.5V5Z", "ink_blue")
    pages = flat("M3 4.5L4.6 3H13L11 4.5Z", "paper") + flat("M11 5L13 3.4V11.8L11 13.8Z", "paper-")
    cover = box(1.5, 4.5, 9.5, 10, "ink_blue", 0.8) + stroke("M3.5 5V14", "ink_blue--", 0.8)
    vane = body(
        "M6.4 10C5.6 7 8.6 2.6 15.3 .8C15.6 4.6 13.6 7.6 11.6 8.4L10.4 8.3L10.8 9.2C9.4 10 7.6 10.4 6.4 10Z", "paper"
    )
    feather = f'<g stroke-width="0.7">{vane}</g>'
    shaft = stroke("M3.8 13.2L11.6 4.8", "gilt--", 1) + stroke("M3.6 13.4L4.4 12.5", "ink--", 1.5)
    thorn = flat("M6 10.8L3.2 9.4L4.8 12.2Z", "terracotta+")
    return picture(16, 1, [back, pages, cover, thorn, feather, shaft])


def write_icons(source, native, sizes):
    for size in sizes:
        write_png(rendered(source, size / native), HICOLOR / f"{size}x{size}" / "apps" / "thornquill.png")


def main():
    source = write_source("emblem", emblem())
    write_icons(source, 64, LARGE)
    write_icons(write_source("emblem-small", emblem_small()), 16, SMALL)
    scalable = HICOLOR / "scalable" / "apps" / "thornquill.svg"
    scalable.parent.mkdir(parents=True, exist_ok=True)
    scalable.write_text(emblem(), encoding="utf-8")
    draw_scaled("emblem/clasped-book", picture(120, 3, [scaled("".join(clasped_book()), 1.5, line=3)]))
    draw_scaled("emblem/quill-and-inkwell", picture(80, 1.75, quill_and_inkwell(), height=70))
    draw_scaled("emblem/hourglass-and-inkwell", picture(64, 1.75, hourglass_and_inkwell()))


main()
