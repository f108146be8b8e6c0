"""Prints the cells of an exported schedule, headers included, one row a line: what kind each is, and its text."""

import csv
import html.parser
import sys


def of_xls(name):
    import xlrd

    kinds = {xlrd.XL_CELL_TEXT: "text", xlrd.XL_CELL_NUMBER: "number"}
    sheet = xlrd.open_workbook(name).sheet_by_index(0)
    for row in range(sheet.nrows):
        yield [(kinds.get(cell.ctype, "other"), cell.value) for cell in sheet.row(row)]


def of_xlsx(name):
    import openpyxl
    from openpyxl.utils.escape import unescape

    kinds = {"s": "text", "n": "number", "f": "formula"}
    for row in openpyxl.load_workbook(name).worksheets[0].iter_rows():
        yield [(kinds.get(cell.data_type, "other"), unescape(str(cell.value))) for cell in row]


def of_csv(name):
    with open(name, encoding="utf-8", newline="") as file:
        for row in csv.reader(file):
            yield [("text", text) for text in row]


class Cells(html.parser.HTMLParser):
    def __init__(self):
        super().__init__()
        self.tables, self.inside = [], False

    def handle_starttag(self, tag, attributes):
        if tag == "table":
            self.tables.append([])
        if tag == "tr":
            self.tables[-1].append([])
        if tag in ("td", "th"):
            self.tables[-1][-1].append("")
        self.inside = tag in ("td", "th")

    def handle_endtag(self, tag):
        self.inside = False

    def handle_data(self, data):
        if self.inside:
            self.tables[-1][-1][-1] += data


def of_html(name):
    cells = Cells()
    with open(name, encoding="utf-8", newline="") as file:
        cells.feed(file.read())
    for row in cells.tables[0]:  # the others are the same in parts, for paper
        yield [("text", text) for text in row]


def escaped(text):
    return str(text).replace("\\", "\\\\").replace("\t", "\\t").replace("\r", "\\r").replace("\n", "\\n")


sys.stdout.reconfigure(encoding="utf-8", newline="")
read = {"xls": of_xls, "xlsx": of_xlsx, "csv": of_csv, "html": of_html}[sys.argv[1].rsplit(".", 1)[1]]
for row in read(sys.argv[1]):
    print(" | ".join("%s %s" % (kind, escaped(text)) for kind, text in row))
