"""Prints the texts of an Office Open XML workbook, codes such as _x0041_ decoded as the format says."""

import re
import sys
import xml.etree.ElementTree as tree
import zipfile

NAMES = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"


def decoded(text):
    return re.sub("_x([0-9A-Fa-f]{4})_", lambda code: chr(int(code.group(1), 16)), text)


sys.stdout.reconfigure(encoding="utf-8")
with zipfile.ZipFile(sys.argv[1]) as book:
    parts = [name for name in book.namelist() if name.startswith("xl/worksheets/sheet") or name == "xl/sharedStrings.xml"]
    for name in parts:
        for text in tree.fromstring(book.read(name)).iter(NAMES + "t"):
            print(ascii(decoded(text.text or "")))
