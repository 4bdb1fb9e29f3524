"""The weather, and what stands in the sky."""

from shapes import around, at, body, box, disc, drop, flat, moved, scaled, spot, star, stroke

CLOUD = (
    "M6 17.6C3.2 17.6 1.7 15.8 1.7 13.8C1.7 11.6 3.4 10 5.6 10.1C6.2 7.2 8.6 5.6 11.2 5.6C14 5.6 16.2 7.2 17 9.7"
    "C20.2 9.5 22.3 11.2 22.3 13.7C22.3 16 20.6 17.6 18 17.6Z"
)


def cloud(stuff="paper", y=0.0):
    return moved(body(CLOUD, stuff) + stroke("M8.4 9.2Q9.6 7.6 11.6 7.6", stuff + "+", 1.2), 0, y)


def sun(x=12.0, y=12.0, size=1.0):
    rays = around(body(at("M-2.2 -6.6L0 -10.6L2.2 -6.6Z", x, y, size), "amber"), 8, x, y)
    return rays + disc(x, y, 6 * size, "straw")


MOON = (
    "M14.6 2C8.4 2.2 3.6 6.6 3.6 12.2C3.6 17.8 8.2 22 13.6 22C16.8 22 19.4 20.6 20.8 18.4"
    "C15.8 19.4 11.4 15.8 11.2 10.8C11.1 7 12.4 4 14.6 2Z"
)


def rainbow():
    arch = "M{0} 18V14A{1} {1} 0 0 1 {2} 14V18"
    rings = [(10.3, "terracotta--"), (9, "terracotta"), (7.2, "straw"), (5.4, "leaf"), (3.6, "ink_blue")]
    drawn = ""
    for radius, colour in rings:
        width = 2 if colour.endswith("--") else 2.2
        drawn += stroke(arch.format(12 - radius, radius, 12 + radius), colour, width)
    return drawn


def rain(*places):
    return "".join(drop(x, y, 6) for x, y in places)


def snowflake():
    arm = "M12 12V2.4M12 6.4L9.2 3.8M12 6.4L14.8 3.8"
    return around(stroke(arm, "ink_blue", 3.2), 6) + around(stroke(arm, "sky+", 1.1), 6)


def umbrella():
    dome = (
        "M1.7 13C2 6.8 6.4 2.8 12 2.8S22 6.8 22.3 13Q19.8 10.8 17.2 13Q14.6 10.8 12 13Q9.4 10.8 6.8 13"
        "Q4.2 10.8 1.7 13Z"
    )
    handle = "M12 11V19.4C12 22 16 22 16 19.4"
    return (stroke("M12 3V1.6", "rose--", 1.6) + stroke(handle, "walnut--", 3) + stroke(handle, "walnut+", 1) +
            body(dome, "rose") + stroke("M12 3.2Q7.4 6.4 6.8 12.4M12 3.2Q16.6 6.4 17.2 12.4", "rose--", 0.9))


def thermometer():
    return (
        box(8.9, 1.6, 6.2, 15, "paper", 3) + disc(12, 18, 4.4, "terracotta") + stroke("M12 17V7", "terracotta", 2.2) +
        stroke("M13.4 5H15M13.4 8H15M13.4 11H15", "paper--", 0.9) + spot(10.6, 16.8, 1, "terracotta+")
    )


def snowman():
    return (
        disc(12, 16.4, 5.9, "paper") + disc(12, 8.8, 4.2, "paper") + body("M8.8 5.4V1.7H15.2V5.4Z", "ink_blue") +
        stroke("M6.8 5.6H17.2", "ink_blue--", 1.5) + stroke("M8.4 11.9Q12 13.8 15.6 11.9L16.6 15", "terracotta-", 1.8) +
        spot(10.5, 8.3, 0.75, "ink--") + spot(13.5, 8.3, 0.75, "ink--") +
        flat("M11.6 9.3L15.6 10.4L11.6 10.8Z", "amber-") + spot(12, 15.4, 0.8, "ink--") + spot(12, 18.4, 0.8, "ink--")
    )


WEATHER = {
    "sun": [sun()],
    "sun behind a cloud": [sun(14.8, 9.2, 0.74), scaled(cloud(), 0.86, 0.6, 5.6)],
    "cloud": [cloud()],
    "rain": [rain((6.8, 19.4), (12.2, 20), (17.6, 19.4)), cloud("ink_blue", -2.8)],
    "thunder": [body("M13.6 11L7 18.2H11L8.8 22.8L17 15.6H12.8L15.8 11Z", "straw"), cloud("plum", -3.4)],
    "snowflake": [snowflake()],
    "snowman": [snowman()],
    "rainbow": [rainbow(), scaled(cloud(), 0.38, 0.4, 13.8), scaled(cloud(), 0.38, 14.5, 13.8)],
    "umbrella": [umbrella()],
    "moon": [body(MOON, "straw"), star(18.2, 6.6, 3.6, "amber")],
    "shooting star": [stroke("M2 21.6L9 14M2.4 15.6L7.6 10.6M8.2 21.8L13 17", "lilac--", 2.8),
                      stroke("M2 21.6L9 14M2.4 15.6L7.6 10.6M8.2 21.8L13 17", "lilac+", 1),
                      star(14.6, 9.6, 8, "straw", 12)],
    "thermometer": [thermometer()],
}
