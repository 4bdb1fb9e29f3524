"""Love and friendship."""

from shapes import body, box, disc, flat, heart, leaf, resized, spot, stroke, turned

SHINE = stroke("M5.6 9.6Q5.6 6.8 8.2 6.4", "rose+", 1.5)


def rose():
    """A flower of overlapping petals about a rolled heart."""
    return (
        stroke("M12 13Q12.6 18 11.4 22", "leaf--", 2) + leaf(12.2, 19.6, 8.6, 62) + leaf(11.8, 21, 8.6, -62) +
        flat("M7 12.6L6 15.8L9.4 14.6L12 16.6L14.6 14.6L18 15.8L17 12.6Z", "leaf--") +
        body(
            "M12 1.8C14.4 1.4 16.4 2.6 17 4.4C19 4.8 19.8 6.6 19 8.6C18.4 12.2 15.6 15.2 12 15.2S5.6 12.2 5 8.6"
            "C4.2 6.6 5 4.8 7 4.4C7.6 2.6 9.6 1.4 12 1.8Z",
            "rose"
        ) +
        stroke("M5.2 7.4C7 7 8.2 7.8 9 9C9.8 11.4 11 12.6 12.6 14.8M18.8 7.4C17 8 15.2 9.8 13.6 12.4", "rose--", 1.1) +
        stroke("M12.6 6.6C12.2 5.4 10.4 6 10.6 7.4C11 9.6 15.4 9 15 6C14.6 4 10.6 3.4 9 5.4", "rose--", 1.1)
    )


def love_letter():
    return (box(1.7, 5.2, 20.6, 14.6, "paper", 1.6) + stroke("M2.4 19L9.4 12.4M21.6 19L14.6 12.4", "paper--", 1) +
            stroke("M2.2 6.2L10.6 13.4Q12 14.4 13.4 13.4L21.8 6.2", "paper--", 1.25) + heart(12, 13, 8.4, "terracotta"))


def ring():
    return (disc(12, 15.2, 6.6, "gilt") + f'{disc(12, 15.2, 3.9, "paper")}').replace(
        'fill="url(#paper-round)"', 'fill="none"'
    )


def rings():
    def band(x, y, stuff):
        circle = f"M{x - 5} {y}A5 5 0 1 0 {x + 5} {y}A5 5 0 1 0 {x - 5} {y}Z"
        return stroke(circle, stuff + "--", 3.7) + stroke(circle, stuff, 1.4)
    gem = (
        body("M5 2.2H11.4L13 4.8L8.2 9L3.4 4.8Z", "sky") + stroke("M3.8 4.8H12.6M6.8 4.8L8.2 8.2L9.8 4.8", "sky--", 0.8)
    )
    return band(15.4, 15.2, "gilt") + band(8.2, 14.6, "straw") + gem


def posy(x, y, stuff):
    return disc(x, y, 4.4, stuff) + spot(x, y, 1.6, "straw")


def bouquet():
    return (
        leaf(8, 15.4, 7.6, -70) + leaf(16, 15.4, 7.6, 70) + body("M6.6 13H17.4L14 22.2H10Z", "lilac") +
        stroke("M8.6 18H15.4", "gilt", 1.6) + posy(6.4, 9.4, "paper") + posy(17.6, 9.4, "sky") + posy(12, 6.4, "rose")
    )


def broken_heart():
    left = (
        "M11.4 7.4L8.6 11L12.6 13.6L9.6 16.8L11.4 21.2C7.6 18 1.8 14.4 1.8 8.9C1.8 5.2 4.2 3 6.8 3"
        "C9 3 10.6 4.4 11.4 7.4Z"
    )
    right = (
        "M13 7.4L10.2 11L14.2 13.6L11.2 16.8L13 21.2C16.8 18 22.2 14.4 22.2 8.9C22.2 5.2 19.8 3 17.2 3"
        "C15 3 13.6 4.4 13 7.4Z"
    )
    return [resized(turned(body(left, "rose"), -5, 11, 21) + turned(body(right, "rose"), 6, 13, 21) + SHINE, 0.91)]


LOVE = {
    "heart": [heart(12, 12.4, 20.4), SHINE],
    "two hearts": [heart(15.4, 8.6, 12.6, "plum", 12), heart(9, 14, 14.6, "rose", -10)],
    "broken heart": broken_heart(),
    "struck heart": [
        stroke("M15 9L19.4 5", "walnut--", 1.8), body("M22.4 1.6L21.4 6.8L17.4 3Z", "ink_blue"), heart(11.6, 12.6, 18),
        stroke("M6.4 16.6L2.4 20.4", "walnut--", 1.8), stroke("M1.6 18.4L4.6 18.4M5.6 22.4V19.4", "ink_blue-", 1.7),
        stroke("M6.4 10Q6.4 7.6 8.6 7.4", "rose+", 1.4),
    ],
    "love letter": [love_letter()],
    "rose": [rose()],
    "bouquet": [bouquet()],
    "rings": [rings()],
}
