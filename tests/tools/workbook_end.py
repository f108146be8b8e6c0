"""Prints the size of a workbook's sheet, its header row counted, and what its last cell holds."""

import sys


def end_of_xls(name):
    import xlrd

    sheet = xlrd.open_workbook(name).sheet_by_index(0)
    return sheet.nrows, sheet.ncols, sheet.cell_value(sheet.nrows - 1, sheet.ncols - 1)


def end_of_xlsx(name):
    import openpyxl

    rows, last = 0, ()
    for last in openpyxl.load_workbook(name, read_only=True).worksheets[0].iter_rows(values_only=True):
        rows += 1
    return rows, len(last), last[-1]


read = end_of_xlsx if sys.argv[1].endswith("x") else end_of_xls
print("%d rows, %d columns, last: %s" % read(sys.argv[1]))
