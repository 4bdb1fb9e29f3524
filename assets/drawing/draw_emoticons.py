"""Draws the emoticons: assets/emoticons/NNN-name.gif, each beside its source, and in the folder 48 below them the same in
twice as many pixels, for sharper screens, with a list of the files that those are of. Their numbers keep them in the order in which they are offered, sixty to a
screen."""

import hashlib

from emoticons.animals import ANIMALS
from emoticons.faces import FACES
from emoticons.feasts import FEASTS
from emoticons.food import FOOD
from emoticons.love import LOVE
from emoticons.travel import TRAVEL
from emoticons.weather import WEATHER
from emoticons.work import WORK
from render import ASSETS, rendered, write_gif, write_source
from shapes import picture

CHAPTERS = (FACES, WEATHER, FOOD, ANIMALS, LOVE, TRAVEL, FEASTS, WORK)
FOLDER = ASSETS / "emoticons"
SHARP = FOLDER / "48"


def main():
    drawn = set()
    for chapter in CHAPTERS:
        for thing, parts in chapter.items():
            name = f"{len(drawn) + 1:03}-{thing.lower().replace(' ', '-')}"
            source = write_source(f"emoticons/{name}", picture(24, 1.25, parts))
            for scale, folder in ((1, FOLDER), (2, SHARP)):
                write_gif(rendered(source, scale), folder / f"{name}.gif")
            drawn.add(name)
    sums = (f"{hashlib.md5((FOLDER / f'{name}.gif').read_bytes()).hexdigest()}  {name}.gif\n" for name in sorted(drawn))
    (SHARP / "md5sums").write_text("".join(sums))
    for path in (*FOLDER.iterdir(), *SHARP.iterdir()):
        if path.is_file() and path.stem not in {*drawn, "md5sums"}:
            path.unlink()  # from a drawing that had another name or place


main()
