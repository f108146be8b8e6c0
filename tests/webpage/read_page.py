"""Prints the table of a web page as an HTML parser sees it, one row a line: element, scope, classes and text."""

import html.parser
import sys


class Reader(html.parser.HTMLParser):
    def __init__(self):
        super().__init__()
        self.lines, self.cells, self.inside, self.part = [], [], False, ""

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag in ("thead", "tbody"):
            self.part = tag
        if tag in ("td", "th"):
            kind = "" if tag == "td" else {"col": "^", "row": "<"}[attributes["scope"]]
            classes = attributes.get("class")
            self.cells.append(kind + ("[%s]" % classes if classes else ""))
            self.inside = True
        if tag == "span" and self.inside:
            self.cells[-1] += "(%s %s)" % (attributes["role"], attributes["aria-label"])

    def handle_endtag(self, tag):
        if tag in ("td", "th"):
            self.inside = False
        if tag == "tr":
            self.lines.append(self.part[:2] + ": " + " | ".join(self.cells))
            self.cells = []

    def handle_data(self, data):
        if self.inside:
            self.cells[-1] += data


reader = Reader()
reader.feed(open(sys.argv[1], encoding="utf-8", newline="").read())
sys.stdout.reconfigure(encoding="utf-8")
print("\n".join(reader.lines))
