"""Draws the signs of the message boxes: one that stops and one that asks."""

from render import draw_scaled
from shapes import body, disc, picture, spot, stroke


def sign_of_stop():
    """A wax seal with a cross."""
    seal = body(
        "M16 2.2C18.4 2.2 19.6 3.4 21.4 3.6C23.4 3.8 25.6 4 26.8 5.8C28 7.5 27.3 9.2 28 11C28.8 13 30 14 29.8 16.4"
        "C29.6 18.8 28.2 19.6 27.6 21.4C27 23.4 27 25.4 25.2 26.6C23.4 27.8 21.8 27.2 20 28C18.2 28.8 17.2 29.9 15.2 29.7"
        "C13 29.5 12.2 28.3 10.4 27.8C8.4 27.2 6.4 27 5.2 25.2C4 23.4 4.6 21.8 3.8 20C3 18.2 2 17.2 2.2 15"
        "C2.4 12.8 3.7 12 4.2 10.2C4.8 8.2 4.9 6.2 6.8 5C8.6 3.8 10.2 4.4 12 3.6C13.4 3 14.4 2.2 16 2.2Z",
        "terracotta",
    )
    hollow = disc(16, 16, 9.5, "terracotta")
    cross = stroke("M12.2 12.2L19.8 19.8M19.8 12.2L12.2 19.8", "terracotta--", 4.6)
    return [seal, hollow, cross, stroke("M12.2 12.2L19.8 19.8M19.8 12.2L12.2 19.8", "paper", 3)]


def sign_of_question():
    """A disc of ink with a question mark."""
    mark = "M12.2 12.4C12.2 10 13.8 8.6 16.1 8.6C18.4 8.6 20 10 20 12.1C20 15 16.2 15.2 16.2 18.4"
    dot = spot(16.2, 22.6, 2.6, "ink_blue--") + spot(16.2, 22.6, 1.8, "paper")
    return [disc(16, 16, 13.25, "ink_blue"), stroke(mark, "ink_blue--", 4.4), dot, stroke(mark, "paper", 2.8)]


draw_scaled("messages/stop", picture(32, 1.5, sign_of_stop()))
draw_scaled("messages/question", picture(32, 1.5, sign_of_question()))
