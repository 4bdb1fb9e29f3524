"""The faces: one disc, and features that are put together in the table at the end."""

from shapes import body, both, box, disc, drop, flat, heart, moved, slab, spot, star, stroke

FEATURE = "walnut--"


def face(*features, stuff="face", hat=""):
    """A face with its features; under a hat it sits a little lower."""
    shine = stroke("M4.9 9.6Q5.8 6.4 8.6 5", "paper" if stuff == "face" else stuff + "+", 1.3)
    head = "".join((disc(12, 12, 9.4, stuff), shine, *features))
    return [moved(head, 0, 1.4), hat] if hat else [head]


def line(path, width=1.4, colour=FEATURE):
    return stroke(path, colour, width)


# Eyes, the left one at 8.4, 10.

def wide(dx=0, dy=0, size=2.6, pupil=1.2):
    def eye(x):
        return disc(x, 9.8, size, "paper", size * 1.1) + spot(x + dx, 9.8 + dy, pupil, FEATURE, pupil * 1.15)
    return eye(8) + eye(16)


DOTS = both(spot(8.4, 10, 1.35, FEATURE, 1.95))
HAPPY = both(line("M6.3 10.8Q8.3 7.4 10.3 10.8"))
CLOSED = both(line("M6.3 9.6Q8.3 12.2 10.3 9.6"))
SQUINT = both(line("M6.7 8L10.2 10L6.7 12"))
DASHES = both(line("M6 10.5H10.4"))
CROSSES = both(line("M6.6 8.2L10 11.6M10 8.2L6.6 11.6"))
WINK = spot(8.4, 10, 1.35, FEATURE, 1.95) + line("M13.6 10.6Q15.7 7.8 17.8 10.6")
HEARTS = heart(7.7, 9.8, 6.4) + heart(16.3, 9.8, 6.4)
STARS = star(7.7, 9.8, 3.5, "terracotta") + star(16.3, 9.8, 3.5, "terracotta")


# Brows.

CROSS_BROWS = both(line("M5.6 6.6L10.2 8.6"))
SAD_BROWS = both(line("M5.8 8L9.6 6", 1.2))
HIGH_BROWS = both(line("M6 6.4Q8 4.8 10 6", 1.2))

# Mouths.

SMILE = line("M7.2 14.2Q12 19 16.8 14.2")
SMALL_SMILE = line("M9 15.2Q12 17.8 15 15.2")
FROWN = line("M7.8 17.4Q12 13.2 16.2 17.4")
FLAT = line("M8.5 15.5H15.5")
SMIRK = line("M9 16.4Q13.4 17 16 13.8")
WAVE = line("M7 16.4Q8.6 14.4 10.3 16T13.6 16T17 15.8")
SLANT = line("M8.8 16.8L15.2 15")
KISS = line("M11.4 13.6C14 13.6 14 15.8 11.8 15.8C14 15.8 14 18.2 11.4 18.2", 1.3)
HALF_MOON = "M6.4 13.4H17.6C17.6 17.3 15.2 19.6 12 19.6S6.4 17.3 6.4 13.4Z"
OPEN = flat(HALF_MOON, FEATURE) + flat("M8.3 17.8Q12 14.9 15.7 17.8Q14.2 19.4 12 19.4T8.3 17.8Z", "rose")
TEETH = flat("M7.3 13.4H16.7V14.9Q12 15.7 7.3 14.9Z", "paper")
LAUGH = OPEN + TEETH
GRIN = (flat("M6 13H18C18 16.9 15.3 19 12 19S6 16.9 6 13Z", FEATURE) +
        flat("M7.2 14.1H16.8C16.4 16.7 14.5 17.9 12 17.9S7.6 16.7 7.2 14.1Z", "paper"))
GRIMACE = (flat("M6 13.2H18V15.6Q18 18.8 15 18.8H9Q6 18.8 6 15.6Z", FEATURE) +
           "".join(slab(x, y, 2, 1.9, "paper") for x in (7, 9.5, 12.5, 15) for y in (13.9, 16.3)))
HOWL = flat("M8 18.6C8 15.8 9.6 14 12 14S16 15.8 16 18.6Q12 16.6 8 18.6Z", FEATURE)
TONGUE_OUT = (line("M7.2 14.2Q12 17 16.8 14.2") +
              body("M10 15.6V18A2.2 2.2 0 0 0 14.4 18V15.6Q12.2 16.2 10 15.6Z", "rose"))

TONGUE_ASIDE = body("M12.6 15.6L13.6 18.4A2.2 2.2 0 0 0 17.8 17L16.6 14.2Q14.6 15.4 12.6 15.6Z", "rose")


def gape(rx, ry, y=16):
    return spot(12, y, rx, FEATURE, ry)


# What a face wears and sheds.

BLUSH = both(spot(6, 14, 1.9, "rose", 1.3))
ROSY_CHEEKS = both(spot(5.8, 13.8, 2.5, "rose", 1.8))
TEAR = drop(6.2, 14.6, 5)
RING = "M12 2.2C15.8 2.2 18 3 18 4.1S15.8 6 12 6S6 5.2 6 4.1S8.2 2.2 12 2.2Z"
HALO = stroke(RING, "gilt--", 3) + stroke(RING, "straw", 1.3)
HORNS = both(body("M4.6 8C2.4 6.2 1.8 3.6 2.4 1.4C4.4 3 7 3.6 8.4 3.9Z", "plum"))
SHADES = (both(flat("M3.4 8.4H11.6C11.8 11.8 10.6 13.4 8.4 13.4C6 13.4 4.6 11.8 4.2 9.8Z", "ink--")) +
          line("M2.8 8.6H21.2", 1.6, "ink--") + both(line("M6.4 9.8L7.4 9.8", 1.2, "ink+")))
GLASSES = (both(disc(7.6, 10, 3.6, "paper")) + both(spot(7.8, 10.3, 1.4, FEATURE, 1.7)) +
           line("M11.2 9.5H12.8M4 9L2.8 8.4M20 9L21.2 8.4", 1.2))
PARTY_HAT = (
    body("M5.4 8.2L12 1L18.6 8.2Q12 5 5.4 8.2Z", "lilac") + spot(10.4, 5.6, 0.8, "straw+") +
    spot(13.8, 6, 0.8, "straw+") + disc(12, 2.4, 1.4, "rose")
)
WHISTLE = (
    line("M14.4 17.4L21.6 18.6", 3.4, "teal--") + line("M14.4 17.4L21.6 18.6", 1.4, "teal+") +
    spot(13.4, 17.2, 1.2, FEATURE)
)
SANTA_HAT = (
    body("M4 8C4.6 3.4 9 1 13.4 1.2C18.4 1.4 21.4 5.4 21.4 11C19.4 8.4 18 7.4 16.4 7L17.4 8.4Z", "terracotta") +
    box(2.8, 6.6, 16.6, 3.2, "paper", 1.5) + disc(21.2, 12, 1.7, "paper")
)
BEARD = (
    body(
        "M3 14.4C5 14.6 6.4 13.6 7.4 13C9 13.6 10.6 13.6 12 12.8C13.4 13.6 15 13.6 16.6 13C17.6 13.6 19 14.6 21 14.4"
        "C20.6 18.8 17 21.4 12 21.4S3.4 18.8 3 14.4Z",
        "paper"
    ) +
    line("M9.6 15.8Q12 18 14.4 15.8", 1.4, "terracotta-")
)
CROWN = (
    body("M4.6 8.4L3.6 2L8 4.6L12 1L16 4.6L20.4 2L19.4 8.4Q12 6.4 4.6 8.4Z", "gilt") + both(spot(8, 6, 1, "rose")) +
    spot(12, 5.2, 1.1, "sky+")
)
TOP_HAT = (body("M7 6.6L6.2 .9H17.8L17 6.6Z", "ink_blue") + line("M7 5.2H17", 1.5, "terracotta") +
           body("M3 6.6Q12 5.2 21 6.6V8Q12 6.8 3 8Z", "ink_blue"))
COWBOY_HAT = (body("M7 6.6C7 3.4 8.2 1 9.6 1.1C10.6 1.1 11 2 12 2S13.4 1.1 14.4 1.1C15.8 1 17 3.4 17 6.6Z", "walnut") +
              body("M1 4.8C3.6 6.8 7.4 6 12 6S20.4 6.8 23 4.8C22 8.4 17 9 12 9S2 8.4 1 4.8Z", "walnut") +
              line("M7.4 5.4H16.6", 1, "walnut--"))
COOK_HAT = (
    body(
        "M6.4 8.4V5.8C4 5.4 3.8 2.4 6.4 2C7.4 1 9.4 .8 10.4 1.6C11.4 .8 13 .8 14 1.6C15 .8 16.8 1 17.6 2"
        "C20.2 2.4 20 5.4 17.6 5.8V8.4Q12 7 6.4 8.4Z",
        "paper"
    ) +
    line("M9.6 5V6.4M12 4.6V6M14.4 5V6.4", 0.9, "paper-")
)
GRADUATE_HAT = (
    body("M6 4.6V8.2Q12 6.2 18 8.2V4.6Z", "ink_blue") + body("M12 .9L22.6 4.2L12 7.5L1.4 4.2Z", "ink_blue") +
    line("M12 4.2L20 5.6V9", 1, "gilt") + spot(20, 10, 1.3, "gilt")
)
BOBBLE_HAT = (body("M3.8 8.6C4 4.4 7.6 2.8 12 2.8S20 4.4 20.2 8.6Z", "teal") + disc(12, 3, 1.8, "paper") +
              box(2.8, 7, 18.4, 2.8, "paper", 1.2))
HELMET = (body("M3 9C3 4 6.6 1.4 12 1.4S21 4 21 9Z", "amber") + body("M9.8 7.4V1.4Q12 .8 14.2 1.4V7.4Z", "straw") +
          box(1.6, 7.6, 20.8, 2.2, "amber", 1))
BANDANA = (body("M20.4 7.4L23 5.4L22.6 8.6L23 11.4L20.4 9Z", "terracotta") +
           body("M3.2 8.6C4.4 4.2 7.8 2.2 12 2.2S19.6 4.2 20.8 8.6Q12 5.6 3.2 8.6Z", "terracotta") +
           spot(9, 5, 0.8, "paper") + spot(13.6, 4.4, 0.8, "paper") + spot(17.4, 6, 0.8, "paper"))
PATCH = (
    line("M4 7.4L20 11", 1, "ink--") + flat("M12.8 8.2L19 9.4C19 12.4 17.8 13.6 15.8 13.2S12.6 11 12.8 8.2Z", "ink--")
)
BAND = "M3.4 12.4C2.6 5.6 7 2 12 2S21.4 5.6 20.6 12.4"
HEADPHONES = line(BAND, 2.8, "ink_blue--") + line(BAND, 1, "ink_blue") + both(box(1.6, 9.8, 3.6, 6, "ink_blue", 1.6))
MASK = (
    body("M4.4 13Q12 10.8 19.6 13C20 17.6 16.6 20.4 12 20.6C7.4 20.4 4 17.6 4.4 13Z", "sky") +
    line("M8 14.8Q12 14 16 14.8M8 17.2Q12 16.6 16 17.2", 0.9, "sky-") + both(line("M4.4 13L2.8 10.8", 1, "sky--"))
)
THERMOMETER = (
    line("M14 16.6L20.4 13.2", 3.6, "paper--") + line("M14 16.6L20.4 13.2", 1.6, "paper") +
    line("M14 16.6L18 14.5", 0.9, "terracotta") + spot(13.4, 16.9, 1.5, "terracotta")
)
ICE_BAG = (
    body("M6 7.6C5.6 4 8.6 3.4 10.6 3L10 1.2H14L13.4 3C15.4 3.4 18.4 4 18 7.6Q12 9 6 7.6Z", "sky") +
    line("M10.4 3.2H13.6", 1.2, "sky--")
)
BANDAGE = (
    body("M3.6 7.6C5 4.4 7 3 9.4 2.6L20.8 8.2C21.4 9.6 21.6 11 21.4 12.4Z", "paper") +
    line("M7.4 5.6L20.6 11.4", 0.8, "paper-")
)
BLACK_EYE = spot(8.4, 12, 2.6, "plum") + spot(8.4, 12, 1.2, FEATURE, 1.5) + spot(15.8, 12.4, 1.35, FEATURE, 1.8)
MOUSTACHE = flat(
    "M12 13.6C9.8 12.2 7.6 13 6.6 15C5.8 15.2 5 14.6 4.6 13.8C4.6 16.8 7 18 9 17.4C10.6 17 11.6 16 12 15"
    "C12.4 16 13.4 17 15 17.4C17 18 19.4 16.8 19.4 13.8C19 14.6 18.2 15.2 17.4 15C16.4 13 14.2 12.2 12 13.6Z",
    FEATURE
)
MONOCLE = (
    disc(16, 10, 3, "paper") + spot(15.8, 10.2, 1.2, FEATURE, 1.5) + line("M18.8 11.4Q20.4 14 19.4 17", 0.9, "gilt--")
)
NOSE = disc(12, 12.6, 2.1, "terracotta")
CLOWN_HAIR = both(disc(3.4, 8.4, 2.4, "terracotta") + disc(4.8, 5, 2.4, "terracotta"))
HAND = body(
    "M6.6 23.2C4.8 22.2 4.4 20 5.4 18.6L5.8 15.2C5.9 13.8 7.9 13.8 7.9 15.2V17L11.6 16.6C13 16.6 13 18.2 12 18.4"
    "L14.2 18.6C15.4 18.8 15.2 20.4 14 20.4C13.8 21.8 12.6 23.2 10.8 23.2Z",
    "amber"
)
FINGER = (
    body(
        "M10.8 13.4C10.8 11.6 13.2 11.6 13.2 13.4V17C16.2 17 17.2 18.4 17 20.2C16.8 22.2 15 23.3 12.6 23.3"
        "C10 23.3 8.4 22 8.4 19.8C8.4 18.4 9.4 17.4 10.8 17.2Z",
        "amber"
    ) +
    line("M13.4 19.2H15.6M13.4 21H15.4", 0.9, "amber--")
)
ARMS = both(body(
    "M1.2 17.4C1.4 15.2 3.6 14.6 5 15.8L8 17.8C9.4 18.8 8.4 20.6 7 20.2L6.6 21.4C4 22.6 1 20.6 1.2 17.4Z", "amber"
))
SLEEP = (stroke("M14.6 2H18.6L14.6 6.6H18.6", "ink_blue--", 3.2) + stroke("M14.6 2H18.6L14.6 6.6H18.6", "sky+", 1.2) +
         stroke("M20 8.5H22.4L20 11.5H22.4", "ink_blue", 1.3))
STREAMS = both(
    flat("M6.6 11.4H9.8L10.2 20.4Q8 20.6 5.8 18.4Z", "sky") + line("M6.6 11.6L5.9 18.2M9.8 11.6L10.2 20", 0.8, "sky--")
)
PALLOR = flat("M3.2 11.4C2.8 6.4 7 3.3 12 3.3S21.2 6.4 20.8 11.4Q12 7.6 3.2 11.4Z", "sky")

FLOWERS = "".join(
    disc(x, y, 2.4, stuff) + spot(x, y, 0.9, "straw")
    for x, y, stuff in ((3.6, 8.8, "lilac"), (20.4, 8.8, "lilac"), (7, 5, "paper"), (17, 5, "paper"), (12, 3.4, "rose"))
)
SWEAT = drop(18.6, 7.4, 6.4)
STEAM = both(disc(3, 7, 1.9, "paper") + disc(2.6, 4, 1.6, "paper"))
ZIP = (
    line("M6.6 15.5H17.4", 3, "ink--") + line("M6.6 15.5H17", 1, "paper-") +
    line("M8 14.4V16.6M10.3 14.4V16.6M12.6 14.4V16.6", 0.8, "ink--") + box(15.6, 14.4, 2.2, 4, "gilt", 0.8)
)
HOOK = "M16.6 3.4C16.6 .8 21.6 .8 21.4 3.8C21.2 5.6 19 5.6 19 7.6M19 10.2V10.3"
QUESTION = line(HOOK, 3.2, "ink_blue--") + line(HOOK, 1.1, "paper")
LICK = body("M13.6 15.9L17.2 14.4C18.8 16 18 18.4 16.2 18.6C14.6 18.6 13.8 17.4 13.6 15.9Z", "rose")
PANT = body("M10 15.4V19.4A2.2 2.2 0 0 0 14.4 19.4V15.4Z", "rose") + line("M12.2 16.4V18.6", .8, "rose--")
BUCK_TEETH = (
    slab(10, 16.4, 4, 2.6, "paper--") + slab(10.4, 16.4, 1.4, 2.1, "paper") + slab(12.2, 16.4, 1.4, 2.1, "paper")
)

ROSY_LIPS = flat(
    "M7.6 14.4C9.4 14.6 10.6 13.6 12 14.6C13.4 13.6 14.6 14.6 16.4 14.4C15.4 17.4 14 18.6 12 18.6S8.6 17.4 7.6 14.4Z",
    "terracotta-"
)
LASHES = both(line("M6.8 8.2L5.4 6.8M8.4 7.6V5.8", 1))

FACES = {
    "smile": face(DOTS, SMILE),
    "pleased": face(HAPPY, SMALL_SMILE, ROSY_CHEEKS),
    "grin": face(DOTS, GRIN),
    "laugh": face(HAPPY, LAUGH),
    "hearty laugh": face(SQUINT, LAUGH),
    "tears of joy": face(HAPPY, LAUGH, drop(3.4, 13, 6.4), drop(20.6, 13, 6.4)),
    "wink": face(WINK, SMILE),
    "tongue": face(DOTS, TONGUE_OUT),
    "cheeky": face(WINK, line("M7.2 13.8Q12 16.6 17.4 13"), TONGUE_ASIDE),
    "tasty": face(HAPPY, SMILE, LICK),
    "cool": face(SHADES, SMIRK),
    "shy": face(CLOSED, SMALL_SMILE, BLUSH),
    "in love": face(HEARTS, LAUGH),
    "kiss": face(WINK, KISS, heart(19.4, 16.4, 6.6)),
    "hug": face(HAPPY, SMILE, ARMS),
    "delighted": face(STARS, LAUGH),
    "angel": face(HAPPY, SMILE, hat=HALO),
    "devil": face(HORNS, CROSS_BROWS, DOTS, SMILE, stuff="plum"),
    "smirk": face(wide(1, .3, 2.3), SMIRK),
    "thinking": face(wide(.6, -1, 2.2), line("M13.6 6Q15.8 4.4 18 6", 1.2), SLANT, moved(HAND, 0, -0.6)),
    "neutral": face(DOTS, FLAT),
    "unmoved": face(DASHES, FLAT),
    "rolling eyes": face(wide(.2, -1.5), FLAT),
    "doubtful": face(DOTS, line("M13.4 6.6Q15.6 4.2 17.8 6", 1.3), line("M6.2 7.6H10.2", 1.3), SLANT),
    "puzzled": face(DOTS, WAVE, moved(QUESTION, -0.4, 0.9)),
    "sworn to silence": face(DOTS, ZIP),
    "hush": face(DOTS, line("M7.4 15.2H16.6"), moved(FINGER, 0, -0.7)),
    "surprised": face(both(spot(8.4, 9.6, 1.35, FEATURE, 1.95)), HIGH_BROWS, gape(2.2, 2.8)),
    "astonished": face(wide(0, 0, 2.9, .9), gape(2.8, 3.4, 16.6)),
    "embarrassed": face(wide(0, .6, 2.5), BLUSH, FLAT),
    "worried": face(wide(0, .2, 2.3, 1), both(line("M5 6.8L9.4 4.6", 1.2)), WAVE),
    "relieved": face(CLOSED, SMALL_SMILE, SWEAT),
    "sad": face(moved(DOTS, 0, 1), moved(SAD_BROWS, 0, .6), moved(FROWN, 0, .8)),
    "tear": face(DOTS, SAD_BROWS, FROWN, TEAR),
    "weeping": face(CLOSED, SAD_BROWS, STREAMS, HOWL),
    "cross": face(DOTS, CROSS_BROWS, FROWN),
    "furious": face(DOTS, CROSS_BROWS, GRIMACE, STEAM, stuff="terracotta"),
    "afraid": face(PALLOR, wide(0, 0, 2.4, .9), HOWL),
    "cold": face(both(spot(8.4, 9.6, 1.35, FEATURE, 1.95)), GRIMACE, stuff="sky", hat=BOBBLE_HAT),
    "hot": face(
        HAPPY, flat("M8 14.6H16C16 16.8 14.4 18 12 18S8 16.8 8 14.6Z", FEATURE), PANT, SWEAT, stuff="terracotta"
    ),
    "asleep": face(CLOSED, gape(1.7, 2, 16.2), SLEEP),
    "tired": face(
        both(line("M6 10.2H10.6") + spot(8.3, 11, 1.3, FEATURE, 1)), gape(2.8, 3, 16.2), drop(19.8, 13.4, 5.4)
    ),
    "ill": face(
        both(spot(8.4, 10, 1.35, FEATURE, 1.95)), SAD_BROWS, line("M8 17.4Q10.4 15.4 13 16.6"), THERMOMETER, hat=ICE_BAG
    ),
    "queasy": face(SQUINT, WAVE, stuff="leaf"),
    "in a mask": face(DOTS, MASK),
    "hurt": face(BLACK_EYE, line("M9 18L15 16.8"), BANDAGE),
    "knocked out": face(CROSSES, gape(2.4, 1.9)),
    "clever": face(GLASSES, BUCK_TEETH, line("M8 15.6Q12 17 16 15.6")),
    "listening": face(HAPPY, SMILE, HEADPHONES),
    "party": face(HAPPY, WHISTLE, hat=PARTY_HAT),
    "graduate": face(DOTS, SMILE, hat=GRADUATE_HAT),
    "crowned": face(DOTS, SMILE, hat=CROWN),
    "cook": face(DOTS, SMILE, hat=COOK_HAT),
    "builder": face(DOTS, SMILE, hat=HELMET),
    "cowboy": face(DOTS, SMIRK, hat=COWBOY_HAT),
    "pirate": face(spot(8.4, 10.4, 1.35, FEATURE, 1.9), PATCH, SMIRK, hat=BANDANA),
    "gentleman": face(spot(8.4, 10.4, 1.35, FEATURE, 1.8), MONOCLE, MOUSTACHE, hat=TOP_HAT),
    "clown": face(CLOWN_HAIR, DOTS, SMILE, NOSE),
    "flower wreath": face(LASHES, DOTS, ROSY_LIPS, hat=FLOWERS),
    "Father Christmas": face(HAPPY, BEARD, hat=SANTA_HAT),
}
