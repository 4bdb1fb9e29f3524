"""Books in many bindings. A book stands a little below the eye: its front cover, the pages at its top and fore edge."""

from shapes import at, body, both, box, disc, flat, heart, slab, spot, spots, star_path, stroke, turned

COVER = (2.75, 7.5, 20.75, 21.75)


def book(stuff, *ornaments, spine=None):
    pages = (flat("M5.6 6.9L9.4 4H27.4L23.8 7Z", "paper") + flat("M24.1 8.2L28 4.9V23.8L24.1 27Z", "paper-") +
             stroke("M25.5 8.6V25.2M26.8 7.4V24.2", "paper--", 0.4))
    back = body("M8.6 2.75H27.9Q29.25 2.75 29.25 4.1V24.4L23.5 29.25H2.75V7.5Z", stuff)
    return [back, pages, box(*COVER, stuff, 1.6), back_of(spine or stuff), *ornaments]


def back_of(stuff):
    """The rounded back of a book, at the left of its cover, with the hinge beside it."""
    return (flat("M4.2 8.2H7V28.5H4.2Q3.5 28.5 3.5 27.8V8.9Q3.5 8.2 4.2 8.2Z", stuff + "-") +
            stroke("M7.4 8.2V28.5", stuff + "--", 0.9) + stroke("M4.5 9.6V27", stuff, 0.8))


FRAME = stroke("M10 10.8H20.6V26H10Z", "gilt+", 1.1)
BANDS = "".join(stroke(f"M3.6 {y}H6.8", "gilt+", 1.1) for y in (11.5, 15.5, 21.5, 25.5))
CORNERS = (
    flat("M18.8 8.3H22.7V12.2Z", "gilt") + flat("M18.8 28.5H22.7V24.6Z", "gilt") +
    stroke("M18.8 8.3L22.7 12.2M18.8 28.5L22.7 24.6", "gilt--", 0.8)
)
LABEL = box(9.8, 11.5, 11, 6.5, "paper", 0.8) + stroke("M12 13.8H18.6M13 15.8H17.6", "ink", 0.9)
CLASP = (
    body("M18.4 16.4H23.5L29.25 12.4V15.6L23.5 20.4H18.4Z", "gilt") + disc(18.6, 18.4, 2.4, "gilt") +
    spot(18.6, 18.4, 0.8, "gilt--")
)
STRAP = (
    body("M17.2 7.5H20.6V29.25H17.2Z", "amber") + body("M17.2 7.5L21.6 3.6H24.6L20.6 7.5Z", "amber") +
    box(16.4, 16, 5, 5, "gilt", 0.8) + slab(18, 17.6, 1.8, 1.8, "amber--")
)
LOCK = (
    stroke("M12.6 18V15.6A2.8 2.8 0 0 1 18.2 15.6V18", "gilt--", 3.2) +
    stroke("M12.6 18V15.6A2.8 2.8 0 0 1 18.2 15.6V18", "gilt", 1.1) + box(10.6, 17.4, 9.6, 7.4, "gilt", 1.2) +
    spot(15.4, 20.4, 1.1, "gilt--") + stroke("M15.4 20.6V22.6", "gilt--", 1.2)
)


def marbled():
    veins = (
        "M9 10Q12 13 15 10T22 11", "M9 14Q11.6 17 15 14T22 15.4", "M9 18.4Q12 21.4 15.4 18.2T22 19.6",
        "M9 22.6Q12 25.6 15.4 22.4T22 23.8", "M9.6 26.8Q12.4 28.4 15 26.4T20 27",
    )
    colours = ("rose", "straw", "paper", "rose", "straw")
    combed = "".join(stroke(vein, colour, 1.5) for vein, colour in zip(veins, colours))
    corners = (
        flat("M17.6 8.3H22.7V13.4Z", "walnut") + flat("M17.6 28.5H22.7V23.4Z", "walnut") +
        stroke("M17.6 8.3L22.7 13.4M17.6 28.5L22.7 23.4", "walnut--", 0.9)
    )
    leather = (
        flat("M4.2 8.2H10.4V28.5H4.2Q3.5 28.5 3.5 27.8V8.9Q3.5 8.2 4.2 8.2Z", "walnut") +
        stroke("M10.6 8.2V28.5", "walnut--", 0.9)
    )
    return book("plum", combed, leather, back_of("walnut"), corners)


def spiral_notebook():
    heights = (10.6, 14.6, 18.6, 22.6, 26.4)
    wire = "".join(at("M2.5 1.4Q2.3 -.4 4.2 -.4Q6.1 -.4 6.5 .6", 0, y) for y in heights)
    rings = stroke(wire, "ink--", 2.6) + stroke(wire, "paper-", 1)
    lines = stroke("M11 14.4H20M11 17.4H20M11 20.4H17", "sky--", 1.1)
    front = box(*COVER, "sky", 1.6)
    return [
        *book("sky")[:2], front, lines, spots([(6.2, y + 1) for y in heights], 1, "sky--"),
        rings,
    ]


def stitched():
    """Folded leaves between soft covers, sewn through the side."""
    thread = stroke("M7.6 8.2V28.5M3.5 11.6H7.6M3.5 15.8H7.6M3.5 20.8H7.6M3.5 25.2H7.6", "paper", 1)
    label = box(15.2, 10.4, 5.4, 11.4, "paper", 0.4) + stroke("M17.9 12.4V19.6", "ink", 1.2)
    return [*book("moss")[:2], box(*COVER, "moss", 0.6), thread, label]


def open_book():
    leaf_side = body("M16 9.4C13 6.4 8 5.4 3.8 6.6V23.6C8 22.6 13 23.4 16 26.2Z", "paper")
    left = (
        leaf_side +
        stroke("M6.4 10.6Q10.4 10 13.4 11.8M6.4 14Q10.4 13.4 13.4 15.2M6.4 17.4Q10.4 16.8 13.4 18.6", "paper--", 1)
    )
    cover = body("M2.75 8.4H29.25V26.6H19L16 28.6L13 26.6H2.75Z", "terracotta")
    ribbon = body("M17.4 23.6H20V29.25L18.7 28L17.4 29.25Z", "ink_blue")
    return [cover, both(left, 16), ribbon]


def pile():
    def lying(x, y, width, stuff):
        return (
            body(at(f"M1.6 0L{width} 0L{width} 1.6L2.4 1.6Q1.4 3.2 2.4 4.8L{width} 4.8L{width} 6.4L1.6 6.4"
                    "Q0 6.4 0 3.2Q0 0 1.6 0Z", x, y), stuff) +
            flat(f"M{x + 3} {y + 2.1}H{x + width - 1}V{y + 4.3}H{x + 3}Z", "paper")
        )
    top = body("M8.4 8.4L12.4 3H29.25L26.6 8.4Z", "rose")
    return [
        box(5.5, 24.2, 22, 3.4, "paper", 0.4), lying(2.75, 22.8, 26.5, "teal"), box(7, 17, 19, 3.4, "paper", 0.4),
        lying(4.75, 15.6, 22, "amber"), box(9, 9.6, 18, 3.4, "paper", 0.4), lying(6.75, 8.4, 20.4, "rose"), top,
    ]


def row():
    def upright(x, y, width, stuff):
        return (
            body(f"M{x} {y}L{x + 1.6} {y - 1.9}H{x + width + 1.6}L{x + width} {y}Z", "paper") +
            box(x, y, width, 28.4 - y, stuff, 0.8) +
            stroke(f"M{x + 1.6} {y + 3.4}H{x + width - 1.6}M{x + 1.6} 25H{x + width - 1.6}", "gilt+", 1.2)
        )
    return [upright(2.75, 6.4, 5.6, "ink_blue"), upright(8.6, 9.6, 4.6, "leaf"), upright(13.4, 4.9, 6.2, "terracotta"),
            turned(upright(22, 8.2, 5, "plum"), -9, 24.6, 28.4), stroke("M2.4 29.3H29.6", "walnut--", 1.8)]


def album():
    mount = (
        box(10, 11.6, 11, 9, "paper", 0.4) + flat("M10.8 19.8L14 15.6L16 18L18 16.4L20.2 19.8Z", "leaf") +
        spot(18.2, 14.2, 1.2, "amber")
    )
    return book("walnut", mount, CORNERS, BANDS)


def thorn_quill():
    feather = (
        body(
            "M11.4 23.4C11 16.4 16 8 29.4 2.6C29.6 8.6 27 13 23.4 15.4L21 15.6L22 17C19 19.4 15.4 22.6 11.4 23.4Z",
            "paper"
        ) +
        stroke("M8.6 26.6L13 20.6Q17.4 13.2 25 7.2", "ink", 1.3) + stroke("M14.4 19.2L12.4 18.2", "ink", 1.3)
    )
    return book("ink_blue", FRAME, feather, spine="ink_blue")


BOOKS = {
    "blue book": book("ink_blue", FRAME, BANDS),
    "book with a clasp": book("terracotta", FRAME, CLASP),
    "book with a label": book("leaf", LABEL, stroke("M9.8 24.6H20.8", "leaf--", 1.1), BANDS),
    "book with a strap": book("walnut", STRAP),
    "book with a heart": book(
        "rose", stroke("M9.8 10.6H21V26.4H9.8Z", "rose+", 1), heart(15.4, 18.8, 9.4, "terracotta")
    ),
    "book with a lock": book("plum", LOCK, CORNERS),
    "book with gilt corners": book("teal", CORNERS, body(at(star_path(8, 1, 0.45), 14.8, 18.4, 4.8), "gilt"), BANDS),
    "marbled book": marbled(),
    "photograph album": album(),
    "stitched book": stitched(),
    "spiral notebook": spiral_notebook(),
    "open book": open_book(),
    "pile of books": pile(),
    "row of books": row(),
    "quill on a book": thorn_quill(),
}
