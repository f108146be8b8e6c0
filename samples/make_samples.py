#!/usr/bin/env python3
"""Makes the sample schedules from the tables in tables/.

A schedule has two tables: NAME.items.csv lists its data items (key, group, label, unit, type, and the flags editable,
userdefined, hidden and color), NAME.tags.csv has a line for every tag and a column for every item. A selection has
NAME.tags.csv alone. Of the items, make_templates.py makes templates, and has columns of its own for that.

In a schedule the lines of the table are the rows of the grid. What colours a whole row then stands on the header cell of
the same number, and what colours a whole column on the row of that number; so header cells may go on, empty, beyond the
last column.
"""

import csv
from pathlib import Path
from xml.sax.saxutils import escape, quoteattr

HERE = Path(__file__).resolve().parent

GROUP_COLOR = 0xF5E6D2  # blue, green, red: a light blue
COLORS = {"note": 0xD2FAFF, "safety": 0xE1E4FC, "head": GROUP_COLOR}


def read(name):
    with open(HERE / "tables" / name, encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file))


def cell(element, text="", **attributes):
    written = "".join(f" {name}={quoteattr(str(value))}" for name, value in attributes.items() if value is not None)
    return f"<{element}{written}>{escape(text)}</{element}>" if text else f"<{element}{written}/>"


def flag(value):
    return "-1" if value else None


def label(item):
    return f"{item['label']} ({item['unit']})" if item["unit"] else item["label"]


def value_cell(item, tag):
    text = tag[item["key"]]
    check_box = item["type"] == "CHECKBOX"
    return cell(
        "TD",
        text,
        dataType=item["type"] or None,
        visible="-1" if check_box and text else "0" if check_box else None,
        AllowEdit=flag(item["editable"]),
        UserDefined=flag(item["userdefined"]),
    )


def in_groups(records, key):
    """The records with a heading, as text, before each group of them."""
    last = None
    for record in records:
        if record[key] and record[key] != last:
            last = record[key]
            yield last
        yield record


class Table:
    """Rows of cells, and what is said about a whole row or column of the grid."""

    def __init__(self, corner):
        self.rows = [[(corner, {})]]
        self.row_colors = {}
        self.column_colors = {}

    def add(self, header, cells, **attributes):
        self.rows.append([(header, attributes)] + cells)

    def text(self):
        lines = ["<TABLE>", self.header_row()]
        for number, ((header, attributes), *cells) in enumerate(self.rows[1:], 1):
            color = self.column_colors.get(number)
            lines.append("  <TR>" + cell("TH", header, bgColor=color, **attributes) + "".join(cells) + "</TR>")
        return '<?xml version="1.0" encoding="UTF-8"?>\n' + "\n".join(lines) + "\n</TABLE>\n"

    def header_row(self):
        headers = self.rows[0]
        count = max(len(headers), max(self.row_colors, default=0) + 1)
        padded = headers + [("", {})] * (count - len(headers))
        cells = (cell("TH", text, bgColor=self.row_colors.get(number), **attributes)
                 for number, (text, attributes) in enumerate(padded))
        return "  <TR>" + "".join(cells) + "</TR>"


def items_down(name, corner):
    """A schedule with an item in each row and a tag in each column."""
    items, tags = read(f"{name}.items.csv"), read(f"{name}.tags.csv")
    table = Table(corner)
    table.rows[0] += [(tag["tag"], {}) for tag in tags]
    for entry in in_groups(items, "group"):
        if isinstance(entry, str):
            table.row_colors[len(table.rows)] = GROUP_COLOR
            table.add(entry, [cell("TD") for _ in tags])
            continue
        if entry["color"]:
            table.row_colors[len(table.rows)] = COLORS[entry["color"]]
        table.add(label(entry), [value_cell(entry, tag) for tag in tags], hidden=flag(entry["hidden"]))
    return table.text()


def tags_down(name, corner):
    """A schedule with a tag in each row and an item in each column."""
    items, tags = read(f"{name}.items.csv"), read(f"{name}.tags.csv")
    table = Table(corner)
    table.rows[0] += [(label(item), {}) for item in items]
    table.column_colors = {number: COLORS[item["color"]] for number, item in enumerate(items, 1) if item["color"]}
    for entry in in_groups(tags, "section"):
        if isinstance(entry, str):
            table.row_colors[len(table.rows)] = GROUP_COLOR
            table.add(entry, [cell("TD") for _ in items], fontBold="-1")
        else:
            table.add(entry["tag"], [value_cell(item, entry) for item in items], hidden=flag(entry["hidden"]))
    return table.text()


def selection(name):
    """The table that a user picks tags from: a tag in each column, its check box in the second row."""
    tags = read(f"{name}.tags.csv")
    table = Table("No.")
    table.rows[0] += [(str(number), {}) for number in range(1, len(tags) + 1)]
    table.add("Tag", [cell("TD", tag["tag"]) for tag in tags])
    table.add("Select", [cell("TD", "0", dataType="CHECKBOX", visible="-1") for _ in tags])
    for field in list(tags[0])[1:]:
        table.add(field, [cell("TD", tag[field]) for tag in tags])
    table.column_colors = {1: GROUP_COLOR}
    return table.text()


def main():
    samples = {
        "pumps": items_down("pumps", "Pump"),
        "air-handling": items_down("air-handling", "Air handler"),
        "valves": tags_down("valves", "Valve"),
        "selection": selection("selection"),
    }
    for name, text in samples.items():
        (HERE / f"{name}.xml").write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
