"""Food and drink."""

from shapes import body, both, box, disc, flat, leaf, resized, slab, spot, spots, stroke, turned

STEAM = stroke("M9 5.4C8 4.4 10 3.2 9 1.8M13 5.4C12 4.4 14 3.2 13 1.8", "walnut", 1.4)


def cup(stuff, drink):
    handle = "M17.6 10.6C23.2 9.8 22.6 16.4 16.6 16"
    return (disc(11, 19.6, 9.3, stuff, 2.6) + stroke(handle, stuff + "--", 3.2) + stroke(handle, stuff, 1.1) +
            body("M3.7 9C3.7 15.6 5.6 19 11 19S18.3 15.6 18.3 9Z", stuff) + disc(11, 9, 7.3, stuff, 2.3) +
            spot(11, 9.3, 5.6, drink, 1.3))


def teapot():
    spout = "M6.6 17.4C3.6 16.6 4.6 11.6 1.8 10.4L4 9C6.6 9.8 6 12.6 8 13Z"
    handle = "M17.8 10.8C22.8 9 23 17 17.4 17.4"
    return (
        stroke(handle, "teal--", 3.2) + stroke(handle, "teal", 1.1) + body(spout, "teal") +
        disc(12.2, 14.6, 6.8, "teal", 6) + body("M8.2 8.8Q12.2 5.6 16.2 8.8Q12.2 10.4 8.2 8.8Z", "teal") +
        disc(12.2, 5.6, 1.5, "gilt") + stroke("M8.2 12.4Q9 11 10.4 10.8", "teal+", 1.2) +
        stroke("M8 20.4H16.4", "teal--", 1.5)
    )


def croissant():
    return (body("M2 17.8C1.4 10.4 6.2 5 12 5S22.6 10.4 22 17.8C21.6 20 18.4 19.4 17.6 16.8C16.8 14.6 14.8 13.2 12 13.2"
                 "S7.2 14.6 6.4 16.8C5.6 19.4 2.4 20 2 17.8Z", "amber") +
            both(stroke("M10 5.4L9.2 13.4M5.6 8.2L7.4 14.6M2.8 12.6L5.6 17", "amber--", 1)) +
            stroke("M7 9.2Q8 7.6 9.4 7", "straw+", 1.2))


def bread():
    return (
        body("M4.6 21.4V12.4C1.6 11.2 1.4 7 4.4 5.4C8 3.6 16 3.6 19.6 5.4C22.6 7 22.4 11.2 19.4 12.4V21.4Z", "amber") +
        flat("M6.6 19.6V11.4C4.2 10.4 4 8.2 6 7.2C9 6 15 6 18 7.2C20 8.2 19.8 10.4 17.4 11.4V19.6Z", "straw+")
    )


def cheese():
    return (
        body("M1.8 12.4L15.4 4.4C19.6 5 22.2 8.2 22.2 12.4Z", "straw") + body("M1.8 12.4H22.2V20.4H1.8Z", "straw") +
        spots([(7, 16.4), (17.6, 15)], 1.8, "amber-") + spots([(13.4, 17.8), (14.8, 8.8)], 1.4, "amber-")
    )


def fried_egg():
    return (
        body(
            "M6 4.6C10 .8 13.6 4 17 4.6C21.4 5.4 23.6 9.8 21.6 13.4C20 16.4 20.4 20.8 15.6 21.6"
            "C11.8 22.2 10.4 19.4 7 19.4C2.6 19.4 .6 15.6 2.2 12.2C3.4 9.6 3 7.4 6 4.6Z",
            "paper"
        ) +
        disc(11.8, 12, 4.7, "amber") + stroke("M9 11.4Q9.4 9.6 11.2 9.2", "straw+", 1.3)
    )


def apple():
    return (stroke("M12.2 8C12.2 5.6 12.8 3.8 14.2 2.2", "walnut--", 1.7) + leaf(13, 6, 7.4, 66) +
            body("M12 8C9.4 6 3.2 6.2 3 12.6C2.9 17.4 6 22.3 9.2 22.3C10.4 22.3 11 21.7 12 21.7S13.6 22.3 14.8 22.3"
                 "C18 22.3 21.1 17.4 21 12.6C20.8 6.2 14.6 6 12 8Z", "terracotta") +
            stroke("M5.6 13.4Q5.6 9.8 8.4 9.4", "terracotta+", 1.5))


def pear():
    return (
        stroke("M12.4 4.6C12.4 3.4 13 2.2 14 1.6", "walnut--", 1.7) + leaf(13.2, 5, 6.4, 72) +
        body(
            "M12.2 4.4C9.4 4.4 8.8 7 8.2 9.6C7.4 12.2 4.6 13.4 4.6 17.2C4.6 20.6 7.8 22.3 12.2 22.3"
            "S19.8 20.6 19.8 17.2C19.8 13.4 17 12.2 16.2 9.6C15.6 7 15 4.4 12.2 4.4Z",
            "leaf"
        ) +
        stroke("M7 17Q7 14.8 9 13.4", "leaf+", 1.5) + spot(14.4, 17, 0.6, "leaf--") + spot(16.4, 15, 0.6, "leaf--")
    )


def cherries():
    stems = "M6.8 14C7.4 9 10.4 4.8 16.6 2.8C15 6.4 15.6 10.4 17 13.4"
    return (
        stroke(stems, "leaf--", 1.6) + leaf(16, 3.4, 8, -100) + disc(6.7, 17.2, 4.8, "rose") +
        disc(17.2, 17, 4.8, "rose") + stroke("M4.2 16.4Q4.6 14.8 6 14.4M14.7 16.2Q15.1 14.6 16.5 14.2", "rose+", 1.2)
    )


def strawberry():
    seeds = ((8, 11), (12, 11.6), (16, 11), (10, 14.8), (14, 14.8), (12, 18.2))
    return (
        body("M3.8 9.4C3.8 15 8 22.3 12 22.3S20.2 15 20.2 9.4C20.2 5.6 15 5.4 12 6.8C9 5.4 3.8 5.6 3.8 9.4Z", "rose") +
        "".join(stroke(f"M{x} {y}v.7", "straw+", 1.2) for x, y in seeds) +
        body("M12 4L13 1.6L14 4L19 3.4L16.4 6.4L18 8.6L12 7.4L6 8.6L7.6 6.4L5 3.4Z", "leaf")
    )


def grapes():
    berries = ((6.2, 10.4), (11.8, 9.8), (17.4, 10.4), (9, 14.6), (14.8, 14.6), (11.9, 19))
    return (stroke("M12.4 7V2.2", "walnut--", 1.7) + leaf(12.6, 6, 8.4, 70) +
            "".join(disc(x, y, 3.1, "plum") + spot(x - 1, y - 1, 0.8, "plum+") for x, y in berries))


def lemon():
    return turned(
        (
            body(
                "M1.8 12C3.4 11.4 3.6 10.4 4.6 9C6.2 6.6 9 5 12 5S17.8 6.6 19.4 9C20.4 10.4 20.6 11.4 22.2 12"
                "C20.6 12.6 20.4 13.6 19.4 15C17.8 17.4 15 19 12 19S6.2 17.4 4.6 15C3.6 13.6 3.4 12.6 1.8 12Z",
                "straw"
            ) +
            stroke("M7 9.6Q9 7.4 12 7.4", "straw+", 1.5)
        ),
        -35
    )


def cake_slice():
    return (
        body("M2 12L15.4 5.4C19.4 6.4 22 8.8 22 12Z", "paper") + body("M2 12H22V20.8H2Z", "straw") +
        slab(2.6, 15, 18.8, 2.4, "rose") +
        flat(
            "M2 12H22V13.4Q20.4 15.4 18.6 13.6Q16.8 15.8 15 13.6Q13 15.8 11 13.6Q9 15.6 7 13.6Q4.6 15.4 2 13.4Z",
            "paper"
        ) +
        stroke("M2 12H22V20.8H2Z", "amber--", 1.25) + disc(14.6, 5.4, 2.9, "rose")
    )


def cupcake():
    return (
        body("M5.6 13.6H18.4L16.8 22.2H7.2Z", "teal") +
        stroke("M9 14.6L9.8 21.4M12 14.6V21.4M15 14.6L14.2 21.4", "teal--", 1) +
        body(
            "M4.6 14C2.4 12.6 3.2 9.4 6 9.2C6 6.4 8.4 6 9.2 6C9.8 4.6 10.8 4 12 4S14.2 4.6 14.8 6"
            "C15.6 6 18 6.4 18 9.2C20.8 9.4 21.6 12.6 19.4 14Q12 15.8 4.6 14Z",
            "rose"
        ) +
        stroke("M7.4 11Q12 12.6 16.6 10.2M9.6 8Q12 9 14.4 7.4", "rose+", 1.2) + disc(12, 3.2, 1.9, "terracotta")
    )


def ice_cream():
    return (
        body("M6.4 12.4H17.6L12 22.4Z", "amber") +
        stroke("M9 12.8L13.4 19.6M13 12.8L14.8 16M15 12.8L10.6 19.6M11 12.8L9.2 16", "amber--", 0.8) +
        disc(8.6, 9.4, 4.2, "rose") + disc(15.4, 9.4, 4.2, "paper") + disc(12, 5.6, 4.2, "walnut") +
        stroke("M9.8 5Q10.2 3.6 11.6 3.2", "walnut+", 1.2)
    )


def pizza():
    return (body("M2.4 6.6C8.4 2.6 15.6 2.6 21.6 6.6L12 22.4Z", "straw") +
            body("M1.8 7.2C7.8 1.6 16.2 1.6 22.2 7.2L20.6 9.2C15.2 5.4 8.8 5.4 3.4 9.2Z", "amber") +
            disc(9.2, 10, 2, "terracotta") + disc(14.8, 10.6, 2, "terracotta") + disc(11.8, 15.6, 1.8, "terracotta"))


def glass_of_wine():
    return (
        stroke("M12 14V20.8M7.6 21.4H16.4", "ink_blue", 1.8) +
        body("M6.4 2C5.6 9.4 7 14.6 12 14.6S18.4 9.4 17.6 2Z", "paper") +
        flat("M6.8 7H17.2C17.2 11.4 15.6 13.8 12 13.8S6.8 11.4 6.8 7Z", "plum") + stroke("M8.6 4.2V8.4", "paper", 1.2)
    )


def beer():
    handle = "M16.6 10H19C21.8 10 21.8 17.4 19 17.4H16.6"
    return (
        stroke(handle, "amber--", 3.4) + stroke(handle, "paper-", 1.2) + box(4, 7.4, 12.8, 14.8, "amber", 2) +
        stroke("M7.4 12V19M10.4 12V19M13.4 12V19", "amber+", 1.4) +
        body(
            "M3.4 9.6C1.6 8 2.6 5 5 5.2C5.6 2.6 9 2.2 10.2 3.8C12 2.2 15.6 3 15.8 5.4C18.4 5.4 18.8 8.6 16.8 9.6"
            "Q14.8 11 13 9.8Q11 11.4 9 9.8Q6 11.4 3.4 9.6Z",
            "paper"
        )
    )


FOOD = {
    "coffee": [cup("terracotta", "walnut--"), STEAM],
    "teapot": [teapot()],
    "croissant": [croissant()],
    "bread": [bread()],
    "cheese": [cheese()],
    "fried egg": [fried_egg()],
    "apple": [apple()],
    "pear": [pear()],
    "cherries": [cherries()],
    "strawberry": [strawberry()],
    "grapes": [grapes()],
    "lemon": [resized(lemon(), 1.15)],
    "cake": [cake_slice()],
    "cupcake": [cupcake()],
    "ice cream": [ice_cream()],
    "pizza": [pizza()],
    "wine": [glass_of_wine()],
    "beer": [beer()],
}
