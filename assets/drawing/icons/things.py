"""What else a journal can be about. A thing that is an emoticon too is the same drawing at the larger size."""

from emoticons.animals import ANIMALS
from emoticons.feasts import FEASTS
from emoticons.food import FOOD
from emoticons.love import LOVE
from emoticons.travel import TRAVEL, compass
from emoticons.weather import WEATHER
from emoticons.work import WORK
from shapes import (around, body, both, box, disc, flat, heart, leaf, moved, resized, scaled, slab, spot, spots, star,
                    stroke, turned)

LINE = 1.5
ENLARGED = 28 / 22


def grown(parts):
    """An emoticon, which fills 22 of 24 pixels, as an icon, which fills 28 of 32."""
    return [scaled("".join(parts), ENLARGED, 16 - 12 * ENLARGED, 16 - 12 * ENLARGED, LINE)]


def same(chapter, *names):
    return {name: grown(chapter[name]) for name in names}


def sized(part, size):
    return resized(part, size, line=LINE, middle=16)


def locket():
    chain = "M14.6 8.6C6.6 7 6 2.9 16 2.9S25.4 7 17.4 8.6"
    return [
        stroke(chain, "gilt--", 1.8), stroke("M14 9A2 2 0 1 0 18 9A2 2 0 1 0 14 9Z", "gilt--", 1.6),
        heart(16, 20.2, 20, "gilt"), heart(16, 20, 11, "rose"), stroke("M8.6 17.6Q8.6 14.8 11 14.4", "gilt+", 1.4),
    ]


def tulip():
    return [
        stroke("M16 16V29", "leaf--", 3.4), stroke("M16 16V28.6", "leaf", 1.1),
        body("M15.6 29.25C9.6 28.4 6.4 24 6 17C10.6 18.6 14.6 22.6 15.6 29.25Z", "leaf"),
        body("M16.4 29.25C22.4 28.4 25.6 24 26 17C21.4 18.6 17.4 22.6 16.4 29.25Z", "leaf"),
        body("M8.2 4.4C8 12.6 10.4 18 16 18S24 12.6 23.8 4.4L19.8 8.2L16 2.75L12.2 8.2Z", "terracotta"),
        stroke("M12.2 8.4Q12.2 14 16 17.2Q19.8 14 19.8 8.4", "terracotta--", 1.1),
        stroke("M10 8.6Q10 11.6 11 13.6", "terracotta+", 1.3),
    ]


def daisy():
    petal = disc(16, 7.2, 2.9, "paper", 4.4)
    return [around(petal, 10, 16, 16), disc(16, 16, 5, "straw"), stroke("M13.6 15Q14 13.4 15.6 13", "paper", 1.2)]


def sunflower():
    petal = body("M16 10C12.6 8 12.8 4.6 16 2.75C19.2 4.6 19.4 8 16 10Z", "straw")
    return [
        around(petal, 12, 16, 16, 15), around(petal, 12, 16, 16), disc(16, 16, 6.6, "walnut"),
        spots([(13.4, 14), (16.4, 13), (18.8, 15.2), (14.4, 17.2), (17.4, 18), (16, 15.6)], 0.8, "amber"),
    ]


def clover():
    lobe = heart(16, 9.6, 12.4, "leaf")
    return [stroke("M16.4 17Q18 23.4 21.4 28.6", "leaf--", 2.4), around(moved(lobe, 0, -0.9), 4, 16, 15, 45),
            around(stroke("M16 13.4V9.4", "leaf+", 1.1), 4, 16, 15, 45)]


def potted_plant():
    return [
        leaf(16, 18.6, 13.6, -48), leaf(16, 18.6, 13.6, 48), leaf(16, 18.6, 15.8, 0),
        disc(16, 19.6, 9, "terracotta", 2.6), spot(16, 19.6, 7, "walnut--", 1.4),
        body("M7.2 20.2Q16 24.4 24.8 20.2L22.4 28Q16 30.4 9.6 28Z", "terracotta"),
        stroke("M10.4 23.4L11.4 26.6", "terracotta+", 1.3),
    ]


def violet():
    return [
        disc(11.6, 9.4, 6.4, "plum", 6.2), disc(20.4, 9.4, 6.4, "plum", 6.2), disc(8.8, 18, 6, "lilac", 5.6),
        disc(23.2, 18, 6, "lilac", 5.6),
        body(
            "M16 15.4C22.6 15.4 24.6 20.4 23.6 24.4C22.6 28 19.4 29.25 16 29.25S9.4 28 8.4 24.4"
            "C7.4 20.4 9.4 15.4 16 15.4Z",
            "straw"
        ),
        stroke("M16 19V24.6M13.2 19.6L11.4 24M18.8 19.6L20.6 24", "plum--", 1.2), spot(16, 16.6, 1.8, "amber-"),
    ]


def notes():
    stems = "M11.6 24.6V6.8L26.4 3.6V21.4"
    return [
        stroke(stems, "ink--", 3), body("M10.4 6.4L27.6 2.75V8L10.4 11.6Z", "ink_blue"),
        turned(disc(8.2, 24.8, 4.6, "ink_blue", 3.7), -18, 8.2, 24.8),
        turned(disc(23, 21.6, 4.6, "ink_blue", 3.7), -18, 23, 21.6), stroke("M12.6 8.2L25.6 5.4", "ink_blue+", 1.1),
    ]


def guitar():
    return [
        sized(
            turned(
                "".join((
                    body("M14.4 14V1H17.6V14Z", "walnut"), box(13.2, -3.4, 5.6, 5, "walnut", 1.2),
                    body(
                        "M16 12.4C19.4 12.4 21.6 13.8 21.6 16.4C21.6 18.4 20.4 18.8 20.8 20.2"
                        "C21.4 21.4 24 22.6 24 26C24 30.4 20.6 33 16 33S8 30.4 8 26C8 22.6 10.6 21.4 11.2 20.2"
                        "C11.6 18.8 10.4 18.4 10.4 16.4C10.4 13.8 12.6 12.4 16 12.4Z",
                        "amber"
                    ),
                    disc(16, 20.8, 2.6, "ink"), slab(12.6, 27, 6.8, 1.8, "walnut--"),
                    stroke("M15.2 .4V27.4M16.8 .4V27.4", "straw+", 0.6),
                )),
                42, 16, 16
            ),
            0.9
        ),
    ]


def piano():
    keys = "".join(box(x, 15, 5, 12, "paper", 0.8) for x in (3.9, 8.75, 13.6, 18.45, 23.3))
    black = "".join(slab(x, 15, 2.9, 6.8, "ink--") for x in (7.2, 12.1, 21.9))
    return [
        body("M2.75 13.4L7 5.4H25L29.25 13.4Z", "walnut"), stroke("M8.2 7.6H23.8", "walnut+", 1.2),
        body("M2.75 13.4H29.25V28.4H2.75Z", "walnut"), keys, black, stroke("M3.4 13.6H28.6", "walnut--", 1.2),
    ]


def drum():
    return [
        body("M3.75 12V22.4C3.75 26 9.4 28.4 16 28.4S28.25 26 28.25 22.4V12Z", "terracotta"),
        stroke("M4.4 14.6L9.4 26L15 17.8L20.6 26.4L27.6 14.6", "straw+", 1.3),
        stroke("M3.75 22.6C3.75 26 9.4 28.4 16 28.4S28.25 26 28.25 22.6", "gilt", 1.8), disc(16, 12, 12.25, "paper", 5),
        stroke("M19 12.4L29 4.4M13 12.4L3 4.4", "walnut--", 3), stroke("M19 12.4L29 4.4M13 12.4L3 4.4", "walnut+", 1.1),
        disc(18.4, 12.8, 1.7, "walnut"), disc(13.6, 12.8, 1.7, "walnut"),
    ]


def violin():
    return [
        sized(
            (
                turned(
                    "".join((
                        body("M15 13V2H17V13Z", "ink"), stroke("M13.4 1.4H18.6M13.8 3.6H18.2", "walnut--", 1.4),
                        disc(16, -.6, 1.9, "walnut"),
                        body(
                            "M16 11C19.6 11 22 12.6 22 15.6C22 17.4 19.6 17.8 19.6 20S23 22.4 23 26"
                            "C23 29.8 20 31.4 16 31.4S9 29.8 9 26C9 22.4 12.4 22.2 12.4 20S10 17.4 10 15.6"
                            "C10 12.6 12.4 11 16 11Z",
                            "terracotta"
                        ),
                        flat("M14.8 11.6H17.2L17.6 20.4H14.4Z", "ink--"),
                        both(stroke("M12.6 21.4Q13.6 22.6 12.6 24.6", "terracotta--", 1.1), 16),
                        slab(13.6, 24, 4.8, 1.5, "straw"), flat("M14.8 27H17.2L16.8 30.6H15.2Z", "ink--"),
                    )),
                    -38, 16, 16
                ) +
                stroke("M28.4 3.4L11 29", "walnut--", 2.4) + stroke("M28.4 3.4L11 29", "walnut+", 0.8)
            ),
            0.93
        ),
    ]


def globe():
    return [
        stroke("M16 24.4V27", "walnut--", 3), disc(16, 27.6, 7.4, "walnut", 1.7),
        stroke("M22.4 4.2C30.6 10 28.4 24 17 25.2", "gilt--", 2.8),
        stroke("M22.4 4.2C30.6 10 28.4 24 17 25.2", "gilt", 1), disc(14.2, 13.2, 10.4, "sky"),
        flat("M8 5.6C10.4 4.4 13 4.2 14.6 5.4L12.6 8.4L9.6 9.4L9.2 12L5.2 11.4C5.2 9 6.4 7 8 5.6Z", "leaf"),
        flat("M16.2 9.4C18.4 8 21.4 8.8 23 10.6C23.8 13.6 23 16.6 21.4 18.8L18.6 17L18.8 14L15.6 12.6Z", "leaf"),
        flat("M7.6 15L11.4 15.6L13 18.6L11.4 22.2C8.8 21.2 7.2 18.6 7.6 15Z", "leaf"),
    ]


def inkwell():
    return [
        body(
            "M14 17.4C13.6 11.4 17.4 5.4 28.6 2.75C28 8.4 25.6 11.8 22.4 14L20 14.2L20.8 15.6"
            "C18.8 17 16.6 18.2 14.4 18.6Z",
            "sky"
        ),
        stroke("M12.6 22.4L15 17.4Q18.4 10.8 24.6 6.6", "sky--", 1.3),
        body(
            "M4.6 29.25Q2.75 29.25 2.75 27.4C2.75 23 6.6 22.4 7.4 20H17.8C18.6 22.4 22.4 23 22.4 27.4"
            "Q22.4 29.25 20.6 29.25Z",
            "ink_blue"
        ),
        stroke("M5 27Q5.2 24.6 8 23.6", "ink_blue+", 1.4), disc(12.6, 19.2, 6, "gilt", 2.2),
        spot(12.6, 19.2, 3.8, "ink--", 1.1), stroke("M12.8 19.2L14.4 16.8", "sky--", 1.4),
    ]


def hourglass():
    glass = body(
        "M8 6V9.4C8 13 13.8 13.6 13.8 16S8 19 8 22.6V26H24V22.6C24 19 18.2 18.4 18.2 16S24 13 24 9.4V6Z", "paper"
    )
    return [
        glass, flat("M9.4 10.4H22.6C21.8 12.8 17 13.6 16 15.6C15 13.6 10.2 12.8 9.4 10.4Z", "amber"),
        flat("M9 25.4C9.4 22.4 14.4 22.4 16 19.8C17.6 22.4 22.6 22.4 23 25.4Z", "amber"),
        stroke("M16 15.4V21", "amber", 1.1), box(5.75, 2.75, 20.5, 4.2, "walnut", 1.4),
        box(5.75, 25, 20.5, 4.2, "walnut", 1.4), stroke("M8 4.2H22", "walnut+", 1.1),
    ]


def blossom():
    def flower(x, y, size):
        ring = around(disc(x, y - 3.1 * size, 2.5 * size, "rose"), 5, x, y)
        return ring + spot(x, y, 2 * size, "rose+") + spot(x, y, 1 * size, "amber")
    twig = "M2.9 28.6C10 25.4 12 20 17.6 14.4S26.4 8 28.6 3.4M12.4 21.4Q19 24.4 24.4 22.6"
    return [stroke(twig, "walnut--", 3), stroke(twig, "walnut", 0.9), leaf(20, 13, 9, 96), leaf(9.8, 25, 8, 118),
            flower(10.4, 12, 1.25), flower(23.4, 21.6, 1.05), disc(25.6, 6.6, 2.8, "rose")]


def autumn_leaf():
    half = (
        "M16 2.75L19.4 8.6L23.4 6.6L22.8 13.2L29.25 12.2L26.4 17L28.6 19.2L20.6 22.4L21.4 24.6L16.8 24.2H15.2"
        "L10.6 24.6L11.4 22.4L3.4 19.2L5.6 17L2.75 12.2L9.2 13.2L8.6 6.6L12.6 8.6Z"
    )
    return [
        stroke("M16 22L17 29.2", "terracotta--", 2), body(half, "amber"),
        stroke("M16 24V8M16 20.6L9 16M16 20.6L23 16M16 14.6L12.4 11.6M16 14.6L19.6 11.6", "terracotta", 1.2),
    ]


def acorn():
    return [
        leaf(18.6, 8.6, 11, 76, "moss"), stroke("M15 7L16.4 2.9", "walnut--", 2.4),
        body("M5.6 13.6C5.6 21.4 10.4 26.4 14.4 29.25C18.6 26.4 23.4 21.4 23.4 13.6Z", "amber"),
        stroke("M8.8 16.6Q9.4 20.4 12 23.4", "straw+", 1.5),
        body("M3.75 13.6C3.75 9.4 8.4 6.6 14.5 6.6S25.25 9.4 25.25 13.6Q14.5 17.2 3.75 13.6Z", "walnut"),
        stroke(
            "M8 9.8L11 14.6M13 7.8L16 15M18.4 8.2L20.6 14.2M20.4 9.4L17 14.8M15.4 7.8L11 15M10.4 8.6L7 13.8",
            "walnut--", 0.8
        ),
    ]


HEARTS = same(LOVE, "heart", "two hearts") | {"locket": locket()} | same(LOVE, "love letter")
STARS = {
    "star": [star(16, 17.4, 14.2, "straw"), stroke("M9 14H13L14.2 10.6", "paper", 1.4)],
} | same(WEATHER, "shooting star", "moon", "sun")
FLOWERS = same(LOVE, "rose") | {
    "tulip": tulip(),
    "daisy": daisy(),
    "sunflower": sunflower(),
    "violet": violet(),
    "clover": clover(),
    "potted plant": potted_plant(),
}
CREATURES = same(ANIMALS, "cat", "dog", "rabbit", "fox", "owl", "fish", "butterfly", "bee")
MUSIC = {"notes": notes(), "guitar": guitar(), "piano": piano(), "violin": violin(), "drum": drum()}
JOURNEYS = same(TRAVEL, "sailing boat", "aeroplane", "train", "balloon ride", "mountains", "suitcase") | {
    "compass": grown([compass()]),
    "globe": globe(),
}
DESK = ({"quill and ink": inkwell()} | same(WORK, "pencil", "briefcase") | {"hourglass": hourglass()} |
        same(WORK, "light bulb", "key"))
SEASONS = ({"blossom": blossom()} | same(FOOD, "strawberry") | {"autumn leaf": autumn_leaf(), "acorn": acorn()} |
           same(WEATHER, "snowman") | {"fir tree": grown(FEASTS["Christmas tree"])})
