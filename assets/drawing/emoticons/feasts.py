"""Feasts of the year."""

from shapes import around, at, body, both, box, disc, drop, flat, mirrored, slab, spot, spots, star, stroke, turned


def present():
    return (
        box(3.4, 11, 17.2, 11, "teal", 1.4) + box(1.9, 7.2, 20.2, 4.6, "teal", 1.2) +
        slab(10.4, 7.8, 3.2, 13.6, "straw") + both(body("M12 7C9.6 1.8 6 .6 5 2.8C4 5.2 7.4 7 12 7Z", "straw")) +
        disc(12, 6.4, 1.5, "straw")
    )


def birthday_cake():
    candles = ((7, "sky"), (12, "rose"), (17, "leaf"))
    return (
        "".join(drop(x, 3.6, 4.2, "straw") + box(x - 0.9, 6, 1.8, 4.6, stuff, 0.4) for x, stuff in candles) +
        body("M3 11.4Q3 10 4.4 10H19.6Q21 10 21 11.4V20.8H3Z", "rose") +
        body(
            "M3 11.4Q3 10 4.4 10H19.6Q21 10 21 11.4V13.6Q19.2 16.4 17.4 13.8Q15.6 17 13.8 14Q12 17.4 10.2 14"
            "Q8.4 17 6.6 13.8Q4.8 16.4 3 13.6Z",
            "paper"
        ) +
        stroke("M1.8 21.6H22.2", "paper--", 1.8)
    )


def balloons():
    def balloon(x, y, stuff):
        string = stroke(f"M{x} {y + 5}Q{x} 17 12 22.4", "walnut--", 1)
        return string + flat(f"M{x - 1.4} {y + 6.6}H{x + 1.4}L{x} {y + 4}Z", stuff + "--") + disc(x, y, 4.4, stuff, 5.2)
    return balloon(6.4, 9, "sky") + balloon(17.6, 9, "leaf") + balloon(12, 7, "terracotta")


def champagne():
    one = (
        stroke("M8 11.4V20.6M5.4 21.4H10.6", "ink_blue", 1.6) +
        body("M5.6 2.6C4.8 8.4 5.4 12.2 8 12.2S11.2 8.4 10.4 2.6Z", "paper") +
        flat("M6 5.4H10C10.2 8.8 9.8 11.4 8 11.4S5.8 8.8 6 5.4Z", "amber")
    )
    sparks = stroke("M12 1.6V3.2M9.8 1.2L10.4 2.4M14.2 1.2L13.6 2.4", "amber-", 1.1)
    return turned(one, 14, 8, 12) + mirrored(turned(one, 14, 8, 12)) + sparks


def fir():
    tiers = ("M12 11.4L20.6 19.4H3.4Z", "M12 6.6L18.8 14H5.2Z", "M12 2.8L16.8 8.8H7.2Z")
    balls = (
        spot(8.4, 17.4, 1.2, "terracotta") + spot(14.8, 16.6, 1.2, "straw") + spot(10.4, 12, 1.1, "straw+") +
        spot(14.2, 11, 1.1, "rose")
    )
    return (
        box(10.2, 19, 3.6, 3.4, "walnut", 0.6) + "".join(body(tier, "leaf") for tier in tiers) + balls +
        star(12, 4.3, 3.1, "straw")
    )


def bauble():
    return (
        stroke("M12 4.2C12 1.4 14.6 1.4 14.4 3", "gilt--", 1.2) + disc(12, 13.8, 8.5, "rose") +
        flat("M4.6 12Q8.4 15.4 12 12.4T19.4 12L19.8 15Q15.8 18.4 12 15.6T4.2 15Z", "paper") +
        box(9.6, 3.8, 4.8, 2.8, "gilt", 0.8)
    )


def candle():
    return (
        disc(12, 20, 8.4, "gilt", 2.6) + box(8.6, 9.2, 6.8, 11, "paper", 1.2) + stroke("M12 9V7", "ink", 1.3) +
        drop(12, 4.6, 6.2, "amber") + stroke("M10.8 11.4V15", "paper", 1.2) +
        flat("M13.2 9.4H14.8V13.6Q14 14.6 13.2 13.6Z", "paper-")
    )


def pumpkin():
    return (
        body("M11 6.6C11 4.6 11.6 3 13.4 1.8L15 3Q13.4 4.4 13.6 6.6Z", "leaf") + disc(6.6, 14, 4.9, "amber", 7) +
        disc(17.4, 14, 4.9, "amber", 7) + disc(12, 14, 5.4, "amber", 7.8) +
        both(flat("M5.6 13.2L7.8 9.8L10 13.2Z", "ink--")) +
        flat("M5.6 15.8Q12 18.6 18.4 15.8Q16.8 20.2 12 20.2T5.6 15.8Z", "ink--") + slab(9.8, 16, 1.8, 1.7, "amber") +
        slab(13, 18.4, 1.8, 1.8, "amber")
    )


def ghost():
    return (
        body(
            "M12 1.7C7 1.7 4 5.4 4 10.4V22.2L6.8 20L9.4 22.2L12 20L14.6 22.2L17.2 20L20 22.2V10.4"
            "C20 5.4 17 1.7 12 1.7Z",
            "paper"
        ) +
        both(spot(8.8, 9.6, 1.5, "ink--", 2)) + spot(12, 14.6, 1.6, "ink--", 2.1) +
        both(spot(6.4, 13, 1.3, "rose", 0.9))
    )


def easter_egg():
    return (
        body(
            "M12 1.7C7.6 1.7 3.8 8.6 3.8 13.8C3.8 19 7.4 22.3 12 22.3S20.2 19 20.2 13.8C20.2 8.6 16.4 1.7 12 1.7Z",
            "sky"
        ) +
        flat(
            "M4.4 10.6L7 8.4L9.4 11L12 8.4L14.6 11L17 8.4L19.6 10.6L19.9 12.4L17 10.8L14.6 13.4L12 10.8L9.4 13.4"
            "L7 10.8L4.1 12.4Z",
            "straw+"
        ) +
        "".join(spot(x, 16.4, 1.2, "rose") for x in (7.2, 12, 16.8))
    )


def firework():
    rays = "".join(stroke(at("M0 -3.6L0 -9.4", 12, 12, 1, angle), colour, 2) for angle, colour in
                   zip(range(0, 360, 45), ("rose-", "amber-", "teal-", "plum") * 2))
    dots = around(spots([(16.1, 2.2), (7.9, 2.2)], 1.1, "amber-"), 4)
    return rays + dots + disc(12, 12, 1.5, "straw")


FEASTS = {
    "present": [present()],
    "birthday cake": [birthday_cake()],
    "balloons": [balloons()],
    "toast": [champagne()],
    "firework": [firework()],
    "Christmas tree": [fir()],
    "bauble": [bauble()],
    "candle": [candle()],
    "Easter egg": [easter_egg()],
    "pumpkin": [pumpkin()],
    "ghost": [ghost()],
}
