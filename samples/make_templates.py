#!/usr/bin/env python3
"""Makes the sample templates, and the lists in which a host names them, from the tables in tables/.

templates.csv has a line for every template: how the list knows it, what its root says, which table of items it takes and
which groups of that, in order. An "uncategorised" one has no category on its root and is thereby the default template.
ITEMS.items.csv lists the data items of the sample schedules and ITEMS.template.csv further ones, in the groups of
groups.csv. The columns us and uslabel replace unit and label in US units; labels.LANGUAGE.csv translates.
"""

import csv
from itertools import chain
from pathlib import Path
from xml.etree import ElementTree
from xml.sax.saxutils import escape, quoteattr

HERE = Path(__file__).resolve().parent
TABLES = HERE / "tables"

FORMATS = {"DOUBLE": "0.0", "INTEGER": "0", "CURRENCY": "#,##0.00"}
FLAGS = {"readonly", "defaultforcategory", "AllowEdit", "ShowThisGroup", "ShowGroupName", "FontBold", "ShowThisItem",
         "ShowUnitLabel", "UserDefined"}


def read(name):
    with open(TABLES / name, encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file))


def flag(value):
    return "-1" if value else "0"


def tag(element, /, **attributes):
    """The inside of a start tag; an attribute that is None is left out."""
    return element + "".join(f" {key}={quoteattr(value)}" for key, value in attributes.items() if value is not None)


class Labels:
    """The display names of a template: in its units, in its language."""

    def __init__(self, template):
        self.us = template["system"] == "US"
        language = template["language"]
        self.translations = language and {row["label"]: row["translation"] for row in read(f"labels.{language}.csv")}

    def name(self, record):
        label = self.us and record.get("uslabel") or record["label"]
        return self.translations[label] if self.translations else label

    def unit(self, item):
        return self.us and item["us"] or item["unit"]


def items_of(template):
    """All items that there are for a kind of equipment."""
    tables = (f"{template['items']}.{kind}.csv" for kind in ("items", "template"))
    return list(chain.from_iterable(read(name) for name in tables if (TABLES / name).exists()))


def item_lines(item, location, labels):
    unit = labels.unit(item)
    start = tag(
        "Item",
        Name=item["name"],
        DisplayName=labels.name(item),
        ShowThisItem=flag(not item["hidden"]),
        ShowUnitLabel=flag(unit),
        UnitID=unit,
        DataType=item["type"] or "TEXT",
        DataFormat=item.get("format") or FORMATS.get(item["type"], ""),
        UserDefined=flag(item["userdefined"]),
    )
    return [f"    <{start}>", f"      <Location>{escape(location)}</Location>", "    </Item>"]


def group_lines(template, group, items, labels):
    start = tag(
        "Group",
        Name=group["name"],
        DisplayName=labels.name(group),
        ShowThisGroup=flag(group["name"] not in template["hiddengroups"].split(";")),
        ShowGroupName=flag(group["heading"]),
        FontBold=flag(True) if group["bold"] else None,
    )
    own = [item for item in items if item["group"] == group["name"].upper()]
    locations = (f"{template['category']}/{group['name']}/{item['name']}" for item in own)
    lines = (item_lines(item, location, labels) for item, location in zip(own, locations))
    return [f"  <{start}>", *chain.from_iterable(lines), "  </Group>"]


def template_text(template):
    labels = Labels(template)
    groups = {group["name"]: group for group in read("groups.csv") if group["items"] == template["items"]}
    items = items_of(template)
    start = tag(
        "Template",
        Name=template["name"],
        DisplayName=template["displayname"],
        Category=None if template["uncategorised"] else template["category"],
        Version=template["version"],
        SchedOrientation=template["orientation"],
        UnitOfMeasure=template["system"],
        AllowEdit=flag(template["edit"]),
    )
    lines = (group_lines(template, groups[name], items, labels) for name in template["groups"].split(";"))
    content = [f"<{start}>", *chain.from_iterable(lines), "</Template>"]
    return '<?xml version="1.0" encoding="UTF-8"?>\n' + "\n".join(content) + "\n"


def template_list(templates):
    """The list as a host answers with it: without a declaration."""
    entries = (
        tag(
            "Template",
            name=template["name"],
            filename=file_name(template),
            pdsg=template["pdsg"],
            readonly=flag(template["readonly"]),
            category=template["category"],
            defaultforcategory=flag(template["default"]),
        )
        for template in templates
    )
    return list_text("Templates", entries)


def category_list(categories):
    return list_text("Categories", (tag("Category", **category) for category in categories))


def list_text(root, entries):
    return f"<{root}>\n" + "".join(f"  <{entry}/>\n" for entry in entries) + f"</{root}>\n"


def file_name(template):
    return template["name"] + ".xml"


def check(right, what):
    if not right:
        raise SystemExit(f"make_templates.py: {what}")


def check_names(elements, attribute, where):
    names = [element.get(attribute).casefold() for element in elements]
    check(all(names), f"{where}: an empty {attribute}")
    check(len(set(names)) == len(names), f"{where}: two have the same {attribute}")


def check_attributes(root, where):
    for element in root.iter():
        for name, value in element.attrib.items():
            check(value == value.strip(), f"{where}: blanks at an end of {name} '{value}'")
            check(name not in FLAGS or value in ("-1", "0"), f"{where}: {name} is '{value}'")


def check_template(text, where):
    root = ElementTree.fromstring(text.encode())
    check_attributes(root, where)
    check(2 <= len(root) <= 8, f"{where}: {len(root)} groups")
    check_names(root, "Name", where)
    for group in root:
        place = f"{where}, {group.get('Name')}"
        check(group.get("DisplayName"), f"{place}: no display name")
        check(4 <= len(group) <= 14, f"{place}: {len(group)} items")
        check_names(group, "Name", place)
        check_names(group, "DisplayName", place)


def check_templates(text, categories):
    root = ElementTree.fromstring(text)
    check_attributes(root, "template list")
    check_names(root, "name", "template list")
    check_names(root, "filename", "template list")
    names = [category["name"] for category in categories]
    defaults = [entry.get("category") for entry in root if entry.get("defaultforcategory") == "-1"]
    check(sorted(defaults) == sorted(names), "template list: not one default in each category")
    check({entry.get("category") for entry in root} <= set(names), "template list: an unknown category")


def check_categories(text):
    root = ElementTree.fromstring(text)
    check_attributes(root, "category list")
    check_names(root, "name", "category list")
    shown = [f"{entry.get('name')} ({entry.get('displayname')})" for entry in root]
    check(sum("GEN" in text for text in shown) == 1, "category list: not one category with GEN")
    for entry in root:
        check(" " not in entry.get("name"), "category list: a name with a blank")
        check(sum(entry.get("name") in text.upper() for text in shown) == 1, "category list: a name within another")


def main():
    categories, templates = read("categories.csv"), read("templates.csv")
    lists = {"template-list.xml": template_list(templates), "category-list.xml": category_list(categories)}
    texts = {file_name(template): template_text(template) for template in templates}

    check_categories(lists["category-list.xml"])
    check_templates(lists["template-list.xml"], categories)
    for name, text in texts.items():
        check_template(text, name)

    for folder, files in {"lists": lists, "templates": texts}.items():
        (HERE / folder).mkdir(exist_ok=True)
        for name, text in files.items():
            (HERE / folder / name).write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
