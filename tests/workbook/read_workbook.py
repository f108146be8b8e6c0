"""Prints a workbook, read by a library of another making, as the tests expect it: names, sizes, cells and looks."""

import sys


def color(book, number):
    rgb = book.colour_map.get(number)
    return "-" if rgb is None else "%02x%02x%02x" % rgb


def escaped(text):
    return text.replace("\\", "\\\\").replace("\n", "\\n").replace("\r", "\\r").replace("\t", "\\t")


def shown(book, cell):
    import xlrd

    if cell.ctype == xlrd.XL_CELL_NUMBER:
        form = book.format_map[book.xf_list[cell.xf_index].format_key].format_str
        return "%r (%s)" % (cell.value, form)
    if cell.ctype == xlrd.XL_CELL_TEXT:
        return "'%s'" % escaped(cell.value)
    return {xlrd.XL_CELL_BLANK: "blank", xlrd.XL_CELL_EMPTY: "empty"}.get(cell.ctype, "type %d" % cell.ctype)


def look(book, cell):
    xf = book.xf_list[cell.xf_index]
    font = book.font_list[xf.font_index]
    fill = color(book, xf.background.pattern_colour_index) if xf.background.fill_pattern == 1 else "-"
    parts = [
        "glcr"[(0, 1, 2, 3).index(xf.alignment.hor_align)],
        "tmb"[xf.alignment.vert_align],
        "w" if xf.alignment.text_wrapped else ".",
        "b" if font.weight >= 700 else ".",
        fill,
        color(book, font.colour_index),
    ]
    return " ".join(parts)


def rows(sheet, draw):
    for row in range(sheet.nrows):
        yield " | ".join(draw(sheet.cell(row, column)) for column in range(sheet.ncols))


def main(what, name):
    import xlrd

    book = xlrd.open_workbook(name, formatting_info=True)
    sheet = book.sheet_by_index(0)
    if what == "cells":
        print("\n".join(rows(sheet, lambda cell: shown(book, cell))))
    elif what == "looks":
        print("\n".join(rows(sheet, lambda cell: look(book, cell))))
    elif what == "texts":
        sys.stdout.write("\x1e".join("\x1f".join(str(v) for v in sheet.row_values(row)) for row in range(sheet.nrows)))
    elif what == "book":
        print("sheets %s, code page %d, fonts %s, style formats %d" % (
            book.sheet_names(), book.codepage, [font.font_index for font in book.font_list],
            sum(xf.is_style for xf in book.xf_list)))
    elif what == "sizes":
        print("widths %s" % [sheet.colinfo_map[c].width for c in range(sheet.ncols)])
        print("heights %s" % [sheet.rowinfo_map[r].height for r in range(sheet.nrows)])
    elif what == "panes":
        print("frozen %d, without split %d, columns %d, rows %d" % (
            sheet.panes_are_frozen, sheet.remove_splits_if_pane_freeze_is_removed, sheet.vert_split_pos, sheet.horz_split_pos))


sys.stdout.reconfigure(encoding="utf-8", newline="")
main(*sys.argv[1:])
