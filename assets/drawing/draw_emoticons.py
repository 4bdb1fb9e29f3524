"""Draws the emoticons: assets/emoticons/NNN-name.gif, each beside its source. Their numbers keep them in the order in
which they are offered, sixty to a screen."""

from emoticons.animals import ANIMALS
from emoticons.faces import FACES
from emoticons.feasts import FEASTS
from emoticons.food import FOOD
from emoticons.love import LOVE
from emoticons.travel import TRAVEL
from emoticons.weather import WEATHER
from emoticons.work import WORK
from render import ASSETS, draw_gif
from shapes import picture

CHAPTERS = (FACES, WEATHER, FOOD, ANIMALS, LOVE, TRAVEL, FEASTS, WORK)
FOLDER = "emoticons"


def file_name(number, thing):
    return f"{FOLDER}/{number:03}-{thing.lower().replace(' ', '-')}"


def main():
    drawn = set()
    for chapter in CHAPTERS:
        for thing, parts in chapter.items():
            name = file_name(len(drawn) + 1, thing)
            draw_gif(name, picture(24, 1.25, parts), name)
            drawn.add(ASSETS / name)
    for path in (ASSETS / FOLDER).iterdir():
        if path.with_suffix("") not in drawn:
            path.unlink()  # from a drawing that had another name or place


main()
