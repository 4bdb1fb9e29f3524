"""Draws the frames. A file's name, less its ending, is what stands in the list of frames."""

import frames_adorned as adorned
import frames_moulded as moulded
import frames_paper as paper
from render import draw_gif

FRAMES = {
    "Gilt": moulded.gilt,
    "Silver": moulded.silver,
    "Wood": moulded.wood,
    "Film strip": paper.film_strip,
    "Instant photo": paper.instant_photo,
    "Oval mount": paper.oval_mount,
    "Photo corners": paper.photo_corners,
    "Postage stamp": paper.postage_stamp,
    "Torn paper": paper.torn_paper,
    "Hearts": adorned.hearts,
    "Lace": adorned.lace,
    "Leaves": adorned.leaves,
    "Linen": adorned.linen,
    "Rope": adorned.rope,
}

for name, drawing in FRAMES.items():
    draw_gif(f"frames/{name}", drawing(), f"frames/{name}")
