"""Draws the journal icons, assets/icons/NN-name.svg, and lists them for the program in bookcase/icons.qrc. A journal
keeps the number of its icon: new ones may only follow the last."""

from icons.books import BOOKS
from icons.things import CREATURES, DESK, FLOWERS, HEARTS, JOURNEYS, MUSIC, SEASONS, STARS
from render import ASSETS, write_source
from shapes import picture

CHAPTERS = (BOOKS, HEARTS, STARS, FLOWERS, CREATURES, MUSIC, JOURNEYS, DESK, SEASONS)
FOLDER = ASSETS / "icons"
LIST = ASSETS.parent / "bookcase" / "icons.qrc"


def main():
    drawn = []
    for chapter in CHAPTERS:
        for thing, parts in chapter.items():
            name = f"{len(drawn) + 1:02}-{thing.replace(' ', '-')}"
            drawn.append(write_source(f"icons/{name}", picture(32, 1.5, parts)))
    for path in set(FOLDER.iterdir()) - set(drawn):
        path.unlink()  # from a drawing that had another name or place
    rows = "".join(f'    <file alias="{path.name}">../assets/icons/{path.name}</file>\n' for path in drawn)
    LIST.write_text(f'<RCC>\n  <qresource prefix="/icons">\n{rows}  </qresource>\n</RCC>\n', encoding="utf-8")


main()
