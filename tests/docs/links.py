"""Whether the links of the pages lead somewhere.

    python3 tests/docs/links.py                     # of the Markdown files in the tree
    python3 tests/docs/links.py --site build/docs/html

In the tree a link names a file, from the folder of its page; one to a section is refused, since
Doxygen and the viewers of repositories name sections differently. On the site all pages are
tried with their anchors and pictures, and each page of docs/ must be in the contents.
Addresses elsewhere are not asked for. Prints the faults, one a line; the status is 1 if there are
any.
"""

import html.parser
import re
import sys
import urllib.parse
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def pages():
    """The Markdown files that readers are meant to open."""
    return sorted(ROOT.glob("*.md")) + sorted((ROOT / "docs").rglob("*.md"))


def without_code(text):
    text = re.sub(r"^```.*?^```", "", text, flags=re.M | re.S)
    return re.sub(r"`[^`\n]*`", "", text)


def tree_faults():
    for page in pages():
        for text in re.findall(r"\[([^\]]*\n[^\]]*)\]\(", without_code(page.read_text("utf-8"))):
            yield f"{page.relative_to(ROOT)}: Doxygen wants a link in one line: {text!r}"
        for link in re.findall(r"\]\(([^)\s]+)\)", without_code(page.read_text("utf-8"))):
            if re.match(r"[a-z]+:", link):
                continue
            if "#" in link:
                yield f"{page.relative_to(ROOT)}: link to a section: {link}"
            elif not (page.parent / link).is_file():
                yield f"{page.relative_to(ROOT)}: no such file: {link}"


class Page(html.parser.HTMLParser):
    """What a page of the site links to, and what can be linked to in it."""

    def __init__(self, path):
        super().__init__()
        self.links = set()
        self.anchors = set()
        self.feed(path.read_text("utf-8"))

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in ("href", "src", "data") and value:
                self.links.add(value)
            elif name in ("id", "name") and value:
                self.anchors.add(value)


def site_faults(site):
    built = {path.name: Page(path) for path in site.glob("*.html")}
    if "index.html" not in built:
        yield f"{site}: no pages"
        return
    for name, page in sorted(built.items()):
        for link in sorted(page.links):
            if re.match(r"[a-z]+:", link):
                continue
            target, _, anchor = urllib.parse.unquote(link).partition("#")
            target = target or name
            if not (site / target).is_file():
                yield f"{name}: no such file: {link}"
            elif anchor and target in built and anchor not in built[target].anchors:
                yield f"{name}: no such section: {link}"
            elif target.endswith(".md"):
                yield f"{name}: a page that is not on the site: {link}"
    for page in sorted((ROOT / "docs").glob("*.md")):
        if f"md_docs_{page.stem.replace('-', '_')}.html" not in built["index.html"].links:
            yield f"docs/site/header.html: the contents lack docs/{page.name}"


def main(arguments):
    if arguments[:1] == ["--site"] and len(arguments) == 2:
        faults = list(site_faults(Path(arguments[1])))
    elif not arguments:
        faults = list(tree_faults())
    else:
        sys.exit(__doc__)
    print("\n".join(faults) if faults else "All links lead somewhere.")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
