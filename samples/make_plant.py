#!/usr/bin/env python3
"""Makes the sample plant from the tables in tables/: its categories, its data items, and for each category its tags
with their values.

The items are those of the templates. Pumps, air handlers and valves come from the tables of the sample schedules, all
other equipment from the tables plant.*.csv, which say what somebody would have to decide: services, fluids,
temperatures, flows. What follows from that, a rule in plant_rules/ computes. So whoever changes a table need not look
for the values that depend on it.
"""

import csv
import sys
from pathlib import Path

sys.dont_write_bytecode = True

from make_templates import items_of, read  # noqa: E402
from plant_rules import air, exchangers, general, instruments, pumps, valves  # noqa: E402

PLANT = Path(__file__).resolve().parent / "plant"
RULES = {
    "general": general,
    "pumps": pumps,
    "air-handling": air,
    "exchangers": exchangers,
    "valves": valves,
    "instruments": instruments,
}


def grouped(rows, key, value):
    """What there is of each kind, in order."""
    found = {}
    for row in rows:
        found.setdefault(row[key], []).append(row[value])
    return found


class Tables:
    """What the rules read."""

    def __init__(self):
        self.read = read
        self.notes = grouped(read("plant.notes.csv"), "list", "text")
        self.vendors = grouped(read("plant.vendors.csv"), "kind", "vendor")
        self.fluids = {row["fluid"]: row for row in read("plant.fluids.csv")}
        self.groups = {(row["items"], row["name"].upper()): row for row in read("groups.csv")}

    def own_values(self, kind, row):
        """The values that the table of a sample schedule has, by group and name of the item."""
        return {self.place(kind, item): row[item["key"]] for item in read(f"{kind}.items.csv")}

    def place(self, kind, item):
        return f"{self.groups[kind, item['group']]['name']}/{item['name']}"


def items(kind, category, tables):
    """The data items of a category: a line for each."""
    for item in items_of({"items": kind}):
        yield {
            "location": f"{category}/{tables.place(kind, item)}",
            "name": item["label"],
            "group": tables.groups[kind, item["group"]]["label"],
            "datatype": item["type"] or "TEXT",
            "unit": item["unit"],
            "editable": "1" if item["editable"] else "0",
            "userdefined": "1" if item["userdefined"] else "0",
        }


def tag_rows(kind, category, locations, tables):
    """A line for each tag; a value for an item that there is not is a mistake in a rule."""
    for tag, values in RULES[kind].tags(tables):
        placed = {f"{category}/{place}": value for place, value in values.items()}
        unknown = placed.keys() - set(locations)
        if unknown:
            raise SystemExit(f"make_plant.py: {tag}: there is no item {min(unknown)}")
        yield {"tag": tag, "category": category} | placed


def write(name, columns, rows):
    with open(PLANT / name, "w", encoding="utf-8", newline="") as file:
        writer = csv.DictWriter(file, columns, restval="", lineterminator="\n")
        writer.writeheader()
        writer.writerows(rows)


def main():
    tables = Tables()
    categories = {template["items"]: template["category"] for template in read("templates.csv")}
    PLANT.mkdir(exist_ok=True)
    write("categories.csv", ["name", "displayname", "pdsg"], read("categories.csv"))
    all_items = []
    for kind, category in categories.items():
        own = list(items(kind, category, tables))
        locations = [item["location"] for item in own]
        write(f"{category.lower()}.csv", ["tag", "category", *locations], tag_rows(kind, category, locations, tables))
        all_items += own
    write("items.csv", list(all_items[0]), all_items)


if __name__ == "__main__":
    main()
