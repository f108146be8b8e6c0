"""Prints an Office Open XML workbook as the tests expect it: its sheet, cells, looks and sizes."""

import sys

import openpyxl


def shown(cell):
    if cell.value is None:
        value = "blank"
    elif cell.data_type == "n":
        value = "%r (%s)" % (cell.value, cell.number_format)
    else:
        value = "%s '%s'" % (cell.data_type, cell.value)
    fill = cell.fill.fgColor.rgb[2:] if cell.fill.fill_type == "solid" else "-"
    parts = [value, cell.alignment.horizontal[0], cell.alignment.vertical[0], "b" if cell.font.b else ".", fill]
    return " ".join(parts)


sys.stdout.reconfigure(encoding="utf-8")
sheet = openpyxl.load_workbook(sys.argv[1]).worksheets[0]
print(sheet.title, sheet.freeze_panes, "right to left" if sheet.sheet_view.rightToLeft else "left to right")
print(sheet.column_dimensions["A"].width, sheet.row_dimensions[1].height)
for row in sheet.iter_rows():
    print(" | ".join(shown(cell) for cell in row))
