"""Animals: some look out at us, some are seen from the side."""

from shapes import at, body, both, disc, flat, spot, star_path, stroke, turned

EYES = both(spot(8.4, 11.4, 1.3, "ink--", 1.6))
NOSE = flat("M10.4 14.4Q12 13.6 13.6 14.4Q13 16.2 12 16.2T10.4 14.4Z", "ink--")
SNOUT = stroke("M12 16V17.2M9.4 17.4Q10.8 18.8 12 17.4Q13.2 18.8 14.6 17.4", "ink--", 1.1)
WHISKERS = both(stroke("M6 15.4L1.6 14.6M6 17L2 18.2", "ink", 0.9))


def head(stuff, y=13.4, rx=9.4, ry=8.6):
    return disc(12, y, rx, stuff, ry)


def bug_eye(x, y, r=2.4):
    return disc(x, y, r, "paper") + spot(x, y + 0.2, r * 0.5, "ink--")


def cat():
    ears = both(body("M3.4 10.4L3.2 1.8L10 5.4Z", "amber") + flat("M5.2 7L5 4.4L7.6 5.8Z", "rose"))
    stripes = stroke("M12 5.4V8.2M9.2 5.8L9.6 7.8M14.8 5.8L14.4 7.8", "amber--", 1.2)
    return ears + head("amber") + stripes + EYES + NOSE + SNOUT + WHISKERS


def dog():
    ears = both(body("M6.6 5.2C3 4 1 8 1.8 13.6C2 16.4 5 16.6 5.8 13.8Z", "walnut"))
    return (
        head("paper", 12.4, 8, 9.2) + ears +
        flat("M12.4 6.4C15 4.8 18.8 8 18 12.2C16.8 14 13 13 12.4 6.4Z", "walnut+") + EYES +
        spot(12, 14.6, 2, "ink--", 1.5) + body("M10.4 17.4H13.6V19.4A1.6 1.6 0 0 1 10.4 19.4Z", "rose") +
        stroke("M8.6 17Q10.4 18.4 12 16.8Q13.6 18.4 15.4 17", "ink--", 1.1)
    )


def rabbit():
    ears = both(turned(disc(8.4, 6.4, 2.7, "paper", 5.2) + spot(8.4, 6.6, 1.1, "rose", 3.4), -8, 8.4, 10))
    return (
        ears + head("paper", 15.2, 7.8, 7) + both(spot(8.8, 14, 1.2, "ink--", 1.5)) +
        flat("M10.8 15.8H13.2L12 17.2Z", "rose-") +
        stroke("M12 17V18M10 18.2Q11 19.2 12 18.2Q13 19.2 14 18.2", "paper--", 1) + both(spot(7, 17, 1.3, "rose+", 1))
    )


def bear(stuff="walnut", face_of="walnut+"):
    ears = both(disc(5.2, 6, 3.4, stuff) + spot(5.4, 6.2, 1.6, face_of))
    return (
        ears + head(stuff) + both(spot(8.2, 11, 1.3, "ink--", 1.6)) + spot(12, 16.8, 4.4, face_of, 3.6) + NOSE + SNOUT
    )


def panda():
    ears = both(disc(4.8, 5.8, 3.2, "ink"))
    patches = both(turned(spot(7.6, 12, 2.5, "ink-", 3.2), 24, 7.6, 12) + spot(8.2, 11.6, 1.1, "paper"))
    return ears + head("paper") + patches + NOSE + SNOUT


def pig():
    ears = both(body("M3.2 9.2L3.4 2.4L9.6 4.8Z", "rose"))
    return (
        ears + head("rose") + both(spot(7.4, 10.8, 1.2, "ink--", 1.5)) + disc(12, 15.6, 4, "rose", 3) +
        both(spot(10.6, 15.6, 0.8, "rose--", 1.2))
    )


def fox():
    ears = both(body("M2.6 10.4L2.4 1.8L9.6 6Z", "terracotta") + flat("M4.4 7L4.2 4.4L6.8 6Z", "ink-"))
    face = body(
        "M12 22.2C8.6 22.2 1.7 16.4 1.7 11.4C3 7.4 7 5.2 12 5.2S21 7.4 22.3 11.4C22.3 16.4 15.4 22.2 12 22.2Z",
        "terracotta"
    )
    cheeks = both(flat("M2.6 12.6C6 12 10 14.6 12 20.8Q11 21.4 9.6 20.8C6 19 3 15.8 2.6 12.6Z", "paper"))
    return ears + face + cheeks + both(spot(8, 11.6, 1.2, "ink--", 1.5)) + spot(12, 20.4, 1.8, "ink--", 1.4)


def mouse():
    ears = both(disc(5.4, 7, 4.3, "lilac") + spot(5.6, 7.2, 2.3, "rose+"))
    return (
        ears + disc(12, 14.2, 7.4, "lilac", 7.6) + both(spot(9, 12.6, 1.2, "ink--", 1.5)) +
        spot(12, 16.6, 1.6, "rose-", 1.3) + stroke("M10.4 19.2Q12 20.2 13.6 19.2", "lilac--", 1.1) +
        both(stroke("M7.6 16.6L2.4 15.6M7.8 18L3 19.4", "lilac--", 0.9))
    )


def frog():
    bumps = both(disc(6.4, 6.6, 4, "leaf") + bug_eye(6.6, 6.6, 2.5))
    return (
        disc(12, 14.2, 10.2, "leaf", 7.8) + bumps + stroke("M4.6 14.8Q12 21.4 19.4 14.8", "leaf--", 1.5) +
        both(spot(10.8, 12, 0.7, "leaf--")) + both(spot(5, 17.2, 1.5, "rose", 1))
    )


def chick():
    return (
        stroke("M9.6 20.4V22.6M14.4 20.4V22.6", "amber--", 1.6) + disc(12, 12.2, 9, "straw") +
        stroke("M12 3.2Q10.6 2 11 1M12 3.2Q13.4 2.4 14 1.4", "straw--", 1.5) +
        both(spot(8.2, 10.4, 1.3, "ink--", 1.6)) + body("M9.4 13.6L12 11.6L14.6 13.6L12 16Z", "amber") +
        both(stroke("M3.6 14.2Q5 17 7.4 16.4", "straw--", 1.3)) + both(spot(6, 13.6, 1.4, "rose", 1))
    )


def owl():
    return (
        body(
            "M4 4.2L2.8 1.6C6 2.4 8 3 12 3S18 2.4 21.2 1.6L20 4.2C21.6 8 21.8 13.6 20 17.4"
            "C18.4 20.8 15.6 22.3 12 22.3S5.6 20.8 4 17.4C2.2 13.6 2.4 8 4 4.2Z",
            "walnut"
        ) +
        spot(12, 17.4, 5, "walnut+", 4) +
        stroke("M9.6 16.4Q10.8 17.6 12 16.4Q13.2 17.6 14.4 16.4M10.8 19Q12 20.2 13.2 19", "walnut--", 1) +
        both(disc(7.8, 9.2, 4, "straw") + spot(8.2, 9.2, 1.8, "ink--")) + body("M10.8 11.4H13.2L12 14.4Z", "amber")
    )


def penguin():
    return (
        both(body("M5.6 9C2.8 11 1.8 14.4 2.4 17.4C4.4 17.2 5.6 15.6 6.4 13.6Z", "ink")) +
        both(disc(8.8, 21.2, 2.7, "amber", 1.3)) +
        body(
            "M12 1.7C7.6 1.7 5.4 5 5.4 9.4V15C5.4 19 8 21.4 12 21.4S18.6 19 18.6 15V9.4C18.6 5 16.4 1.7 12 1.7Z", "ink"
        ) +
        flat(
            "M12 7C10.6 4.4 6.8 5.2 6.9 9C6.9 10.4 7.6 11 7.4 13V15.4C7.4 18.2 9.2 20 12 20S16.6 18.2 16.6 15.4V13"
            "C16.4 11 17.1 10.4 17.1 9C17.2 5.2 13.4 4.4 12 7Z",
            "paper"
        ) +
        both(spot(9.4, 8.2, 1.1, "ink--", 1.3)) + body("M10 10.2H14L12 12.8Z", "amber")
    )


def fish():
    return (
        body("M16 12L22.2 6.6C21.4 10.4 21.4 13.6 22.2 17.4Z", "amber") +
        body("M8 6.6Q11.4 2.6 15 4.6L14.4 8Z", "amber") +
        body(
            "M1.7 12.4C3.4 7.8 7 5.8 10.6 5.8C14 5.8 17 8.6 18.4 12C17 15.4 14 18.6 10.6 18.6"
            "C7 18.6 3.4 16.8 1.7 12.4Z",
            "amber"
        ) +
        flat("M11.4 6.6Q14 12.2 11.4 17.8Q15 16.8 17 12Q15 7.4 11.4 6.6Z", "terracotta") + bug_eye(6.4, 10.6, 2) +
        stroke("M9.4 9Q11.2 12.2 9.4 15.4", "amber--", 1.1)
    )


def whale():
    return (
        stroke("M9.4 6.4Q9.4 3 6 2.6M9.4 6.4Q9.4 3 12.8 2.6", "ink_blue", 1.6) +
        body(
            "M1.7 14C1.7 9 5.6 6.6 9.8 6.6C14.2 6.6 16 9.4 17.4 11.6C18.8 10.6 18.6 8 18.2 5.8L20.4 7.4L22.6 6.2"
            "C22.6 14.6 18 20.8 9.6 20.8C4.4 20.8 1.7 18 1.7 14Z",
            "sky"
        ) +
        flat("M2.6 15.4Q8 18.4 15 16.4Q12.6 20 9.6 20C5.4 20 3 18.2 2.6 15.4Z", "paper") +
        spot(6.2, 12.4, 1.1, "ink--", 1.4) + stroke("M4.4 15.2Q6 16.2 7.6 15.8", "sky--", 1)
    )


def butterfly():
    wings = both(
        body(
            "M12 11C9.4 5 4.4 2 2.2 4C1 6.2 2 11.6 5.4 12.8C2.6 14.4 3.4 20 6.6 20.6C9.4 20.8 11.2 16.6 12 13.4Z",
            "lilac"
        ) +
        spot(5.8, 7.6, 1.8, "straw") + spot(7, 16.8, 1.3, "rose")
    )
    return (
        wings + stroke("M12 8Q11 4.4 8.8 2.6M12 8Q13 4.4 15.2 2.6", "ink", 1.1) + stroke("M12 8.4V18", "ink--", 2.6) +
        stroke("M12 9V16", "ink+", 0.8)
    )


def bee():
    wings = disc(9.4, 6.6, 3.4, "sky", 4.6) + disc(15, 7, 3, "sky", 4.4)
    return (
        turned(wings, -8) + body("M19.6 14.6L22.8 15.6L19.8 17Z", "ink") + disc(12.2, 15.2, 8, "straw", 5.8) +
        flat("M10.6 9.8Q9 15.2 10.6 20.6L13.2 20.8Q11.6 15.2 13.2 9.6Z", "ink-") +
        flat("M15.6 10.2Q14.4 15.2 15.6 20.2L18 18.9Q17.2 15.2 18 11.4Z", "ink-") + spot(7.2, 14, 1.1, "ink--", 1.4) +
        stroke("M5.6 17Q6.8 18.2 8 17.6", "ink--", 1) + stroke("M6 11Q4.8 8.8 3 8.6", "ink--", 1.2)
    )


def ladybird():
    return (
        both(
            stroke("M9.6 4.4Q8.4 2.4 6.8 2", "ink", 1.2) +
            stroke("M4.6 10.6L2 9M3.8 14.4H1.6M5 18.4L2.8 20.2", "ink", 1.5)
        ) +
        disc(12, 6.8, 4.4, "ink", 3.8) +
        body("M12 6.6C16.6 6.6 20 10 20 14.2C20 18.6 16.4 22 12 22S4 18.6 4 14.2C4 10 7.4 6.6 12 6.6Z", "terracotta") +
        stroke("M12 7V21.6", "terracotta--", 1.3) + both(spot(7.8, 12, 1.5, "ink--") + spot(8.8, 17.4, 1.5, "ink--")) +
        both(spot(10, 4.8, 0.8, "paper"))
    )


def snail():
    return (
        stroke("M18.6 12.6L17.6 8.6M20.6 12.6L21.6 9", "amber--", 1.3) + spot(17.5, 8.2, 1.1, "amber--") +
        spot(21.6, 8.4, 1.1, "amber--") +
        body(
            "M1.8 20.8C4 17.8 8 18 12 17.6C15.8 17.2 16.6 15.6 16.6 13.8C16.6 11.2 22.3 11 22.3 14.4"
            "C22.3 18.6 19.6 20.8 15.6 20.8Z",
            "straw"
        ) +
        disc(9.6, 11.8, 7, "terracotta") +
        stroke(
            "M9.6 12C10.2 10.6 12.4 11.6 12 13.4C11.4 15.8 7.4 15.6 6.8 12.8C6.2 9.4 9.4 7.4 12.2 8.4", "terracotta--",
            1.3
        )
    )


def turtle():
    return (
        disc(20, 11.4, 2.7, "leaf") + both(body("M4.6 16H9L8.4 20.6H5.2Z", "leaf")) +
        body("M4 16.4L1.6 17.8L4.4 18Z", "leaf") +
        body("M3 17C3 10.4 6.6 5.6 11.4 5.6S19.6 10.4 19.6 17Q11.4 18.6 3 17Z", "moss") +
        stroke(
            "M8 9.4L11.4 7.8L14.8 9.4L15.6 13.4L11.4 15.2L7.2 13.4ZM7.2 13.4L4.4 15.2M15.6 13.4L18.4 15.2", "moss--", 1
        ) +
        spot(20.8, 10.9, 0.8, "ink--")
    )


def hedgehog():
    spines = at(star_path(16, 1, 0.8), 10.6, 13, 9.2)
    return (
        body(spines, "walnut") +
        body("M13.4 10.6C18 10 20 14 22.4 16.4C22 18.4 20 20 15.4 20C11.6 20 10.4 12 13.4 10.6Z", "straw") +
        spot(17, 14, 1, "ink--", 1.2) + spot(21.8, 16.6, 1.4, "ink--") +
        stroke("M6 11L7 12M9.4 8.6L10 10M6.4 16L7.8 16", "walnut+", 1) + stroke("M8 21.6H16", "walnut--", 1.4)
    )


ANIMALS = {
    "cat": [cat()],
    "dog": [dog()],
    "rabbit": [rabbit()],
    "mouse": [mouse()],
    "bear": [bear()],
    "panda": [panda()],
    "fox": [fox()],
    "pig": [pig()],
    "frog": [frog()],
    "owl": [owl()],
    "penguin": [penguin()],
    "chick": [chick()],
    "fish": [fish()],
    "whale": [whale()],
    "turtle": [turtle()],
    "snail": [snail()],
    "butterfly": [butterfly()],
    "bee": [bee()],
    "ladybird": [ladybird()],
    "hedgehog": [hedgehog()],
}
