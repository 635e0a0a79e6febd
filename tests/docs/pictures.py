"""Whether the pictures of the pages are those that are drawn now.

    pictures.py DRAWN KEPT

Each picture in the folder DRAWN must be the same as that of its name in KEPT. What is kept besides
must be shown on a page, too.
"""

import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def faults(drawn, kept):
    names = {picture.name for picture in drawn.glob("*.svg")}
    if not names:
        yield f"{drawn}: nothing was drawn"
    for name in sorted(names):
        if not (kept / name).is_file():
            yield f"{name}: not among the kept pictures"
        elif (kept / name).read_text("utf-8") != (drawn / name).read_text("utf-8"):
            yield f"{name}: drawn otherwise now; see both, then build the target update-pictures"
    pages = "".join(page.read_text("utf-8")
                    for page in [ROOT / "README.md", *(ROOT / "docs").glob("*.md")])
    for picture in sorted(kept.iterdir()):
        if f"images/{picture.name})" not in pages:
            yield f"{picture.name}: on no page"


if __name__ == "__main__":
    found = list(faults(Path(sys.argv[1]), Path(sys.argv[2])))
    print("\n".join(found) if found else "The pictures are those that are drawn now.")
    sys.exit(1 if found else 0)
