"""The desk, the house and the day's work."""

from shapes import body, both, box, disc, flat, resized, slab, spot, stroke, turned


def pencil():
    return turned(
        (
            body("M9 5H15V17L12 22.4L9 17Z", "straw") + flat("M9.2 17H14.8L12 22Z", "straw+") +
            flat("M11 20L12 22.2L13 20Z", "ink--") + stroke("M12 5.4V16.6", "amber", 1.6) +
            box(9, 1.6, 6, 3.6, "rose", 1) + stroke("M9 5.4H15", "gilt--", 1.4)
        ),
        42
    )


def quill():
    return (
        stroke("M3 21.6L8 16", "ink--", 1.8) +
        body(
            "M6.6 17.4C5.6 11 10.4 3.4 22 1.8C21.6 6 19.8 9.4 17.6 11.6L15 12L16.2 13C13.8 15.4 10 17.8 6.6 17.4Z",
            "ink_blue"
        ) +
        stroke("M7.6 16.4Q12 9.4 18.6 5", "ink_blue+", 1.1)
    )


def open_book():
    half = body("M12 6.4C9.6 4.2 5.4 3.8 2.4 4.8V18.6C5.4 17.6 9.6 18 12 20.2Z", "paper")
    page = stroke("M4.8 8Q7.6 7.4 9.8 8.6M4.8 11Q7.6 10.4 9.8 11.6M4.8 14Q7.6 13.4 9.8 14.6", "paper--", 0.9)
    return body("M1.4 6.6H22.6V20.4H14L12 21.8L10 20.4H1.4Z", "terracotta") + both(half + page)


def alarm_clock():
    return (
        both(stroke("M6.6 19.4L4.8 22", "walnut--", 1.8) + disc(5.8, 4.8, 2.9, "terracotta")) +
        disc(12, 13, 8.9, "terracotta") + disc(12, 13, 6.3, "paper") + stroke("M12 9.2V13L14.8 14.6", "ink--", 1.5)
    )


def light_bulb():
    return (
        body(
            "M8.6 16.6C8.6 13.4 5 12.4 5 8.2C5 4.4 8.2 1.7 12 1.7S19 4.4 19 8.2C19 12.4 15.4 13.4 15.4 16.6Z", "straw"
        ) +
        stroke("M9.8 9.4L11 11.4L12 9.4L13 11.4L14.2 9.4M11 11.4V16M13 11.4V16", "amber-", 1) +
        box(8.8, 16.6, 6.4, 4, "ink", 1) + stroke("M9 18.6H15", "ink+", 1) + stroke("M10.6 22.2H13.4", "ink--", 1.5)
    )


def scissors():
    loops = (
        "M3.4 18.4A3.2 3.2 0 1 0 9.8 18.4A3.2 3.2 0 1 0 3.4 18.4Z"
        "M14.2 18.4A3.2 3.2 0 1 0 20.6 18.4A3.2 3.2 0 1 0 14.2 18.4Z"
    )
    return (
        turned(body("M10.7 14L11.3 1.8Q12.2 1.2 12.6 2.4L13.3 14Z", "paper"), 17, 12, 13) +
        turned(body("M10.7 14L11.4 2.4Q11.8 1.2 12.7 1.8L13.3 14Z", "paper"), -17, 12, 13) +
        stroke("M11 13.6L8.6 16.2M13 13.6L15.4 16.2", "terracotta--", 3) + stroke(loops, "terracotta--", 3.2) +
        stroke(loops, "terracotta", 1.1) + spot(12, 12.6, 1, "ink--")
    )


def telephone():
    return (
        body("M4.6 20.8C4.6 16 7.4 12 10 11H14C16.6 12 19.4 16 19.4 20.8Q12 22.4 4.6 20.8Z", "teal") +
        disc(12, 16.4, 3.4, "paper") + spot(12, 16.4, 1.2, "teal-") +
        body(
            "M1.7 9.8C1.7 5.4 6.6 3 12 3S22.3 5.4 22.3 9.8C22.3 11.6 16.6 11.6 16.4 9.6V8.4Q12 7 7.6 8.4V9.6"
            "C7.4 11.6 1.7 11.6 1.7 9.8Z",
            "teal"
        ) +
        stroke("M4.4 7.6Q7.4 5 12 4.8", "teal+", 1.2)
    )


def computer():
    return (
        body("M9 16H15L16 20.4H8Z", "paper") + box(1.8, 2.6, 20.4, 14, "paper", 1.8) +
        slab(4, 4.8, 16, 9.6, "ink_blue") + flat("M4 4.8H13L6 14.4H4Z", "ink_blue+") +
        stroke("M6 21.4H18", "paper--", 1.8)
    )


def briefcase():
    return (
        stroke("M8.4 7V4.6Q8.4 3.2 9.8 3.2H14.2Q15.6 3.2 15.6 4.6V7", "walnut--", 2) +
        box(1.8, 6.8, 20.4, 14.2, "walnut", 2) + stroke("M2.4 12Q7 14.4 12 14.4T21.6 12", "walnut--", 1.3) +
        box(10.2, 12.6, 3.6, 3.8, "gilt", 0.8)
    )


def key():
    bow = "M3.5 7.4A4.4 4.4 0 1 0 12.3 7.4A4.4 4.4 0 1 0 3.5 7.4Z"
    shaft = "M10.8 10.6L20.4 20.6M17.4 17.6L20 15.2M14.6 14.6L16.6 12.8"
    return (
        stroke(bow + shaft, "gilt--", 4) + stroke(bow + shaft, "gilt", 1.6) +
        stroke("M4.6 5.8Q5.4 4.2 7 3.6", "gilt+", 1)
    )


def tick():
    return body("M2 13L5.4 9.4L9.4 13.4L18.6 3.4L22 6.8L9.6 20.4Z", "leaf")


def house():
    return (
        box(16, 3, 3, 7, "terracotta", 0.6) + box(4.4, 10, 15.2, 12, "straw", 1) +
        body("M12 2L22.6 11.4Q22.6 13 21 12.8H3Q1.4 13 1.4 11.4Z", "terracotta") +
        body("M10 22V16.4Q10 15.2 11 15.2H13Q14 15.2 14 16.4V22Z", "walnut") + slab(5.9, 15.2, 2.8, 2.8, "sky") +
        slab(15.3, 15.2, 2.8, 2.8, "sky")
    )


WORK = {
    "house": [house()],
    "open book": [open_book()],
    "quill": [quill()],
    "pencil": [resized(pencil(), 1.16, -1, 0.9)],
    "scissors": [scissors()],
    "telephone": [telephone()],
    "computer": [computer()],
    "briefcase": [briefcase()],
    "alarm clock": [alarm_clock()],
    "light bulb": [light_bulb()],
    "key": [key()],
    "tick": [tick()],
}
