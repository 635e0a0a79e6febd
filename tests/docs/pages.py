"""Whether the links of the pages lead somewhere, and all of a page is on the site as it was written.

    python3 tests/docs/pages.py                     # the Markdown files in the tree
    python3 tests/docs/pages.py --site build/docs/html

In the tree a link names a file, from the folder of its page; one to a section is refused, since
Doxygen and the viewers of repositories name sections differently. On the site all pages are
tried with their anchors and pictures; each page of docs/ must be in the contents, and all words and
code of a page in what Doxygen made of it, which reads some Markdown in its own way. Addresses
elsewhere are not asked for. Prints the faults, one a line; the status is 1 if there are any.
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


SPAN = re.compile(r"(`+)(.*?)(?<!`)\1(?!`)", re.S)


def split(text):
    """(the text without its blocks of code, fenced or indented, the lines of those)."""
    lines = []
    for block in (r"^```.*?\n(.*?)^```", r"(?<=\n\n)((?:    .*\n|\n(?=    ))+)"):
        found = re.compile(block, re.M | re.S if "`" in block else re.M)
        lines += [line for code in found.findall(text) for line in code.splitlines()]
        text = found.sub("", text)
    return text, lines


def without_code(text):
    return SPAN.sub("", split(text)[0])


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
    """What a page of the site links to, what can be linked to in it, its text and its code."""

    def __init__(self, path):
        super().__init__()
        self.links = set()
        self.anchors = set()
        self.text = ""
        self.code = {""}
        self.inside = None  # of the tag whose text is code, and the text so far
        self.feed(path.read_text("utf-8"))

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in ("href", "src", "data") and value:
                self.links.add(value)
            elif name in ("id", "name") and value:
                self.anchors.add(value)
        if tag in ("code", "pre") or (tag == "div" and ("class", "line") in attributes):
            self.inside = [tag, ""]

    def handle_data(self, data):
        self.text += data
        if self.inside:
            self.inside[1] += data

    def handle_endtag(self, tag):
        if self.inside and tag == self.inside[0]:
            texts = self.inside[1].splitlines() if tag == "pre" else [self.inside[1]]
            self.code.update(plain(text) for text in texts)
            self.inside = None


def plain(code):
    """Code without what may differ on the site: blanks at its ends, and lines for blanks."""
    return " ".join(code.replace("\xa0", " ").replace("\u200b", "").split())


def written_faults(path, page):
    text, lines = split(path.read_text("utf-8"))
    words = re.sub(r"\]\([^)\s]*\)|<!--.*?-->", " ", SPAN.sub(" ", text), flags=re.S)
    for word in re.sub(r"[][*|]|^ *(#+|-|\d+\.) |!\[|---+", " ", words, flags=re.M).split():
        if word not in page.text:
            yield f"{path.relative_to(ROOT)}: not on the site as written: {word}"
    for code in [code for _, code in SPAN.findall(text)] + lines:
        # In tables, a bar is written with a backslash.
        if plain(code) not in page.code and plain(code.replace("\\|", "|")) not in page.code:
            yield f"{path.relative_to(ROOT)}: not on the site as written: {code}"


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
    for page in pages():
        name = "_".join(page.relative_to(ROOT).with_suffix("").parts).replace("-", "_")
        name = "index.html" if name == "README" else f"md_{name}.html"
        if name not in built["index.html"].links:
            yield f"docs/site/header.html: the contents lack {page.relative_to(ROOT)}"
        elif name in built:
            yield from written_faults(page, built[name])


def main(arguments):
    if arguments[:1] == ["--site"] and len(arguments) == 2:
        faults = list(site_faults(Path(arguments[1])))
    elif not arguments:
        faults = list(tree_faults())
    else:
        sys.exit(__doc__)
    print("\n".join(faults) if faults else "The pages are whole.")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
