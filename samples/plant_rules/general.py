"""General equipment: weights from the plates and contents of vessels and the sizes of machines, prices from weights."""

from math import pi

from .engineering import between, flag, hashed, picked, price, rounded

STEEL, WATER = 7850, 1000  # kg/m³
FITTINGS = 1.35  # nozzles, heads, supports and internals, over the bare shell
BULK = {"machines": 130, "handling": 95, "electrical": 280, "heaters": 70, "structures": 18}  # kg/m³ of the whole box
EUR_PER_KG = {"vessels": 6.2, "machines": 24, "handling": 11, "electrical": 14, "heaters": 7, "structures": 5}
SWITCHGEAR = {"400": "LV", "6000": "HV"}
FLAT = ("Cone-roof tank", "Floating-roof tank")


def volume(row):
    """m³ within a vessel: a cylinder that lies or stands."""
    length, width, height = (float(row[key]) / 1000 for key in ("length", "width", "height"))
    along = length if row["type"] == "Horizontal drum" else height
    return pi / 4 * width**2 * along


def vessel_weights(row):
    length, width, height = (float(row[key]) / 1000 for key in ("length", "width", "height"))
    along = length if row["type"] == "Horizontal drum" else height
    ends = 2 * pi / 4 * width**2
    empty = FITTINGS * STEEL * float(row["wall"]) / 1000 * (pi * width * along + ends)
    content = volume(row) * float(row["fill"]) / 100 * float(row["contents"])
    return empty, empty + content, empty + volume(row) * WATER


def machine_weights(row):
    box = float(row["length"]) * float(row["width"]) * float(row["height"]) / 1e9
    empty = max(BULK[row["kind"]] * box, 14 * float(row["power"] or 0))
    return empty, 1.04 * empty, None


def size(row):
    empty, operating, test = vessel_weights(row) if row["wall"] else machine_weights(row)
    values = {f"Size/{key.capitalize()}": row[key] for key in ("length", "width", "height")}
    values |= {
        "Size/EmptyWeight": rounded(empty, -2 if empty > 10000 else -1),
        "Size/OperatingWeight": rounded(operating, -2 if operating > 10000 else -1),
        "Size/Insulation": row["insulation"],
    }
    return values | ({"Size/TestWeight": rounded(test, -2)} if test else {})


def power(row, notes):
    """What has no motor has none to be switched, and counts with 0 kW in the total."""
    if not row["power"]:
        return {"Power/InstalledPower": "0.0", "Power/AbsorbedPower": "0.0", "Power/Emergency": "0"}
    installed = float(row["power"])
    return {
        "Power/InstalledPower": rounded(installed, 1),
        "Power/AbsorbedPower": rounded(installed * between(0.72, 0.88, row["tag"][:-1], 2), 1),
        "Power/Supply": row["volt"],
        "Power/Switchgear": f"{SWITCHGEAR[row['volt']]}-{row['unit'][5:7]}/{hashed(row['tag']) % 24 + 1}",
        "Power/Emergency": row["emergency"],
        "Power/CableNote": picked(notes["equipment cable"], row["tag"]),
    }


def identification(row):
    number = row["tag"].split("-")[1]
    unit = row["unit"][5:7]
    pair = number[-1] in "AB"
    return {
        "Identification/Tag": row["tag"],
        "Identification/Service": row["service"],
        "Identification/Type": row["type"],
        "Identification/Unit": row["unit"],
        "Identification/PID": f"{unit}-PID-{between(1, 9, number):03.0f}",
        "Identification/Train": number[-1] if pair else "Common",
        "Identification/Quantity": "1 + 1" if pair else "1 + 0",
        "Identification/FormerTag": f"{unit}{row['tag'].replace('-', '')}",
    }


def location(row):
    unit = int(row["unit"][5:7])
    return {
        "Location/Area": f"Area {unit // 10}",
        "Location/Elevation": rounded(float(row["elevation"]), 2),
        "Location/Easting": rounded(1000 + 12 * unit + between(0, 90, row["tag"] + "e", 1), 2),
        "Location/Northing": rounded(2400 + 9 * unit + between(0, 70, row["tag"] + "n", 1), 2),
        "Location/Zone": row["zone"] or "Safe area",
    }


def purchasing(row, weight, tables):
    supplier = picked(tables.vendors[row["kind"]], row["tag"].rstrip("AB"))
    site_built = row["type"] in FLAT
    return {
        "Purchasing/Requisition": f"MR-{row['unit'][5:7]}{hashed(row['kind'] + row['unit']) % 90 + 10}",
        "Purchasing/PurchaseOrder": f"45-{between(20000, 29999, supplier + row['unit']):.0f}",
        "Purchasing/Supplier": supplier,
        "Purchasing/Price": price(EUR_PER_KG[row["kind"]] * weight * (0.6 if site_built else 1)),
        "Purchasing/Delivery": rounded(between(22, 34, row["tag"]) + min(20, weight / 5000), 0),
        "Purchasing/Budget": f"C-{row['unit'][5:7]}-{row['kind'][0].upper()}",
    }


def status(row, notes):
    return {
        "Status/Revision": picked("0123", row["tag"]),
        "Status/Issued": "1",
        "Status/Installed": flag(row["tag"] not in ("CV-603", "M-504")),
        "Status/Commissioned": flag(row["unit"] != "Unit 60"),
        "Status/Remarks": picked(notes["equipment remarks"], row["tag"]),
        "Status/Handover": picked(notes["equipment handover"], row["tag"]),
    }


def tags(tables):
    for row in tables.read("plant.equipment.csv"):
        sizes = size(row)
        bought = purchasing(row, float(sizes["Size/EmptyWeight"]), tables)
        values = identification(row) | location(row) | sizes | power(row, tables.notes)
        yield row["tag"], values | bought | status(row, tables.notes)
