"""On the road and on holiday."""

from shapes import at, body, both, box, disc, flat, resized, slab, spot, stroke, turned


def wheel(x, y, r=2.6):
    return disc(x, y, r, "ink") + spot(x, y, r * 0.4, "paper-")


def car():
    return (
        body("M5.8 10.8L8 5.6Q8.4 4.6 9.6 4.6H15Q16 4.6 16.6 5.4L19.4 10.8Z", "terracotta") +
        flat("M8 10L9.6 6.2H12V10Z", "sky+") + flat("M13.4 6.2H15.2L17.4 10H13.4Z", "sky+") +
        body("M1.8 17.4V13.4Q1.8 10.8 4.4 10.8H19Q22.2 10.8 22.2 13.8V17.4Z", "terracotta") +
        slab(2.4, 13, 1.8, 1.6, "straw+") + slab(19.8, 13, 1.8, 1.6, "straw+") +
        stroke("M9 13.2H15", "terracotta+", 1.2) + wheel(6.6, 17.8, 2.9) + wheel(17.4, 17.8, 2.9)
    )


def train():
    return (
        stroke("M4.6 22.2L7 19.6M19.4 22.2L17 19.6M5.4 21.4H18.6", "walnut--", 1.6) +
        body("M4.4 18.4V6.4Q4.4 1.8 12 1.8T19.6 6.4V18.4Q19.6 20 18 20H6Q4.4 20 4.4 18.4Z", "teal") +
        box(6.6, 6, 10.8, 6.2, "sky", 1) + stroke("M12 6V12.2", "sky--", 1.2) + stroke("M9.4 3.9H14.6", "straw+", 1.4) +
        both(disc(7.8, 16, 1.5, "straw")) + stroke("M11 16H13", "teal--", 1.3)
    )


def aeroplane():
    return turned(
        (
            body(
                "M12 -.6C13.8 1 14.5 3 14.5 5V8L23 14.4V17.4L14.5 15V19L18 21.8V23.8L12 22.4L6 23.8V21.8L9.5 19V15"
                "L1 17.4V14.4L9.5 8V5C9.5 3 10.2 1 12 -.6Z",
                "sky"
            ) +
            stroke("M11.2 4H12.8", "ink_blue--", 1.5) + stroke("M12 8V20", "sky+", 1.3)
        ),
        45, 12, 12
    )


def sailing_boat():
    return (
        stroke("M11.6 16.6V2", "walnut--", 1.6) + body("M13.4 3C18 6 20.6 10.4 21.2 14.6H13.4Z", "paper") +
        body("M10 5L3.4 14.6H10Z", "rose") +
        body("M1.8 16.8H22.2C21.2 20 19.2 21.8 16.4 21.8H7.6C4.8 21.8 2.8 20 1.8 16.8Z", "walnut") +
        stroke("M4.4 18.6H16", "walnut+", 1.1)
    )


def bicycle():
    tyres = (
        "M1.9 15.6A4.1 4.1 0 1 0 10.1 15.6A4.1 4.1 0 1 0 1.9 15.6Z"
        "M13.9 15.6A4.1 4.1 0 1 0 22.1 15.6A4.1 4.1 0 1 0 13.9 15.6Z"
    )
    frame = "M6 15.6L9.4 8.4H15.6L18 15.6M9.4 8.4L12 15.4L15.6 8.4L14.6 5.2H17.2M12 15.4H6M9.4 8.4L8.8 6.4"
    return (
        stroke(tyres, "ink", 1.7) + stroke(frame, "teal-", 1.6) + stroke("M7 6H10.4", "walnut--", 2) +
        spot(12, 15.4, 1.3, "gilt-")
    )


def hot_air_balloon():
    return (
        stroke("M7.4 13.8L9.8 19M16.6 13.8L14.2 19", "walnut--", 1.1) +
        body(
            "M12 1.6C17 1.6 20.4 5 20.4 9.2C20.4 13 16.8 15.6 14.8 17H9.2C7.2 15.6 3.6 13 3.6 9.2C3.6 5 7 1.6 12 1.6Z",
            "rose"
        ) +
        flat("M12 2.2C15.4 4.6 15.6 12 13.2 16.4H10.8C8.4 12 8.6 4.6 12 2.2Z", "straw") +
        stroke("M12 2C8 4.6 8.4 12 10.6 16.6M12 2C16 4.6 15.6 12 13.4 16.6", "rose--", 0.9) +
        box(9.2, 18.6, 5.6, 3.8, "walnut", 1)
    )


def tent():
    return (
        body("M12 4.2L22.4 20.6H1.6Z", "moss") + flat("M12 9L16.6 20H7.4Z", "moss--") +
        flat("M12 9L13 20H7.4Z", "straw") + stroke("M12 4.2L10.4 1.8M12 4.2L13.6 1.8", "walnut--", 1.4) +
        stroke("M1.4 21.2H22.6", "moss--", 1.4)
    )


def mountain():
    return (
        body("M1.4 20.8L9.2 5.2Q10 3.8 10.8 5.2L14 11.4L15.8 8.8Q16.6 7.6 17.4 8.8L22.6 20.8Z", "ink_blue") +
        flat("M10 4.6L13 10.6L11.4 9.8L10 11.8L8.6 9.8L6.8 10.8Z", "paper") +
        flat("M16.6 8.4L18.6 12.6L16.8 11.6L15.4 12.6L14.4 12Z", "paper") +
        body("M1.6 21.4Q6.4 15.8 12 18.4T22.4 21.4Z", "leaf")
    )


def palm():
    right, left = "M0 0C2 -4 6.6 -4.6 9.6 -.6C6 -1.6 3 -1 0 1.4Z", "M0 0C-2 -4 -6.6 -4.6 -9.6 -.6C-6 -1.6 -3 -1 0 1.4Z"
    fronds = ((right, -68), (right, -8), (right, 40), (left, 24), (left, -34))
    return (
        body("M3.4 21.8C5 18.6 8.6 17.6 12 17.6S19 18.6 20.6 21.8Z", "straw") +
        body("M11.6 8.6C12.6 12 12.4 15.6 11 18.8H13.8C15 15.4 14.8 11.6 13.4 8.4Z", "walnut") +
        "".join(body(at(frond, 12.5, 8, 0.98, angle), "leaf") for frond, angle in fronds)
    )


def suitcase():
    return (
        stroke("M8.4 7V4.4Q8.4 3 9.8 3H14.2Q15.6 3 15.6 4.4V7", "walnut--", 2) + box(1.8, 7, 20.4, 14, "walnut", 2) +
        slab(5, 7.6, 2.2, 12.8, "walnut--") + slab(16.8, 7.6, 2.2, 12.8, "walnut--") + slab(5, 12, 2.2, 2.4, "gilt") +
        slab(16.8, 12, 2.2, 2.4, "gilt") +
        turned(slab(9.4, 11.4, 5, 4.4, "paper") + slab(10.4, 12.6, 3, 1.2, "terracotta"), -12, 12, 13.6)
    )


def camera():
    return (
        body("M7.6 7L9 4.4H15L16.4 7Z", "ink_blue") + box(1.7, 6.8, 20.6, 13, "ink_blue", 2) +
        slab(2.4, 10, 19.2, 3, "ink_blue--") + disc(12, 13.2, 5, "paper") + disc(12, 13.2, 3, "ink") +
        spot(11, 12.2, 0.9, "sky+") + spot(19, 8.8, 0.9, "straw+")
    )


def compass():
    return (disc(12, 12, 10.2, "gilt") + disc(12, 12, 7.4, "paper") + flat("M17 7L13.4 13.4L10.6 10.6Z", "terracotta") +
            flat("M7 17L10.6 10.6L13.4 13.4Z", "ink_blue") + spot(12, 12, 1, "gilt--"))


TRAVEL = {
    "car": [car()],
    "train": [train()],
    "aeroplane": [resized(aeroplane(), 0.95, 1.8, -1.8)],
    "sailing boat": [sailing_boat()],
    "bicycle": [bicycle()],
    "balloon ride": [hot_air_balloon()],
    "tent": [tent()],
    "mountains": [mountain()],
    "palm": [resized(palm(), 0.9, -0.2, 0.7)],
    "suitcase": [suitcase()],
    "camera": [camera()],
}
