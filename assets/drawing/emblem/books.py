"""The closed book of the emblem and the clasped one of the lock screen. Both stand a little below the eye; their
corners lie on odd places, so that an outline of two pixels fills whole ones at full and at half size."""

from emblem.quill import stamped_quill
from shapes import body, box, disc, flat, spot, stroke


def leaves(path):
    return stroke(path, "paper--", 0.6)


def emblem_book():
    """On a grid of 64."""
    back = body("M14 11H51Q53 11 53 13V51L43 61H6Q4 61 4 59V20Z", "ink_blue")
    pages = flat("M9 20L17 13H50L43 20Z", "paper") + flat("M44 21L51.6 13.6V49.6L44 57.4Z", "paper-")
    cover = box(5, 21, 38, 40, "ink_blue", 3)
    spine = flat("M8 22H12V60H8Q6 60 6 58V24Q6 22 8 22Z", "ink_blue-")
    hinge = stroke("M13 22V60", "ink_blue--", 1.6) + stroke("M7.4 25V57", "ink_blue", 1)
    bands = "".join(stroke(f"M6.4 {y}H11.4", "gilt+", 1.8) for y in (29, 33, 49, 53))
    frame = stroke("M19 27H37V55H19Z", "gilt+", 1.6)
    return [back, pages, leaves("M46.6 19V54M49.4 16.4V51.4M13 17.4H44.6M16 15H47"), cover, spine, hinge, bands, frame]


def clasp():
    """From the back cover over the leaves onto the front, with a keyhole."""
    strap = body("M47 43H59L73 31V40L59 53H47Z", "gilt")
    plate = disc(47, 48, 8, "gilt") + stroke("M42 45Q44 42.4 47 42.2", "gilt+", 1.4)
    keyhole = spot(47, 46.8, 2, "gilt--") + flat("M46.2 47H47.8L48.6 52H45.4Z", "gilt--")
    return strap + stroke("M58.6 44V52", "gilt--", 1) + stroke("M60 43.4L71.6 33.4", "gilt+", 1) + plate + keyhole


def clasped_book():
    """On a grid of 80."""
    back = body("M19 7H70Q73 7 73 10V60L59 73H9Q7 73 7 71V19Z", "plum")
    pages = flat("M12 18L22 9.4H69L59 18Z", "paper") + flat("M60 20L71.2 10V58L60 68.4Z", "paper-")
    edges = leaves("M63 17.6V65M66 15V62.4M69 12.4V59.6M16.6 15.6H61.4M19.6 12.8H64.6")
    cover = box(7, 19, 52, 54, "plum", 3)
    spine = flat("M10 20H16V72H10Q8 72 8 70V22Q8 20 10 20Z", "plum-")
    hinge = stroke("M17 20V72", "plum--", 1.8) + stroke("M9.8 24V68", "plum", 1.2)
    bands = "".join(stroke(f"M8.6 {y}H15.4", "gilt+", 1.8) for y in (28, 33, 59, 64))
    corners = (
        flat("M51 20H56.6Q58 20 58 21.4V27Z", "gilt") + flat("M51 72H56.6Q58 72 58 70.6V65Z", "gilt") +
        stroke("M51 20L58 27M51 72L58 65", "gilt--", 1.2)
    )
    frame = stroke("M22 25H49L54 30V62L49 67H22Z", "gilt", 1.4)
    return [back, pages, edges, cover, spine, hinge, bands, corners, frame, stamped_quill(26, 63, 40, 28), clasp()]
