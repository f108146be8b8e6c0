"""Control valves: every sixth of the table of the valve schedule, and from it what a data sheet has in addition."""

from math import sqrt

from .engineering import between, flag, next_size, picked, price, rounded

TRAVELS = (15, 20, 30, 40, 60, 80, 100)
HOT = 220  # °C, from which packing and bonnet are others
SOFT_SEATS = {False: "PTFE, reinforced", True: "Carbon-graphite"}
EVERY = 6


def trim(row, notes):
    hot, hard = int(row["t"]) >= HOT, "hard-faced" in row["trim"]
    metal = row["trim"].split(" / ")[0]
    soft = row["trim"] == "Soft seat"
    bore = sqrt(float(row["kvs"]) / 0.0165) if row["type"] in ("Globe", "Angle") else 0.8 * float(row["dn"])
    values = {
        "Trim/SeatMaterial": SOFT_SEATS[hot] if soft else metal,
        "Trim/PlugMaterial": "316 steel" if soft else metal,
        "Trim/StemMaterial": "17-4 PH" if hot else "316 steel",
        "Trim/Hardfacing": flag(hard),
        "Trim/SeatDiameter": rounded(bore, 1),
        "Trim/Bonnet": "Extended" if hot else "Standard",
        "Trim/Packing": "Graphite" if hot else "PTFE V-rings",
        "Trim/LowEmission": flag(row["fluid"] in ("Naphtha", "Fuel gas", "Sour water", "MDEA 45 %")),
        "Trim/TrimNote": picked(notes["valve trim"], row["tag"]),
    }
    if row["type"] in ("Globe", "Angle"):
        values["Trim/Travel"] = str(next_size(TRAVELS, 0.4 * bore))
    return values


def actuator(row):
    diaphragm = row["act"] == "Diaphragm"
    values = {"Actuator/StrokeTime": rounded(2 + int(row["dn"]) / (50 if diaphragm else 25), 1)}
    if row["air"]:
        values["Actuator/BenchSet"] = "0.8 / 2.4" if diaphragm else "2.5 / 4.5"
    return values


def accessories(row):
    on_off = row["char"] == "On-off"
    return {
        "Accessories/Solenoid": flag(on_off and row["air"]),
        "Accessories/Booster": flag(not on_off and int(row["dn"]) >= 150),
        "Accessories/AirSet": flag(row["air"]),
        "Accessories/Handwheel": flag(row["act"] == "Handwheel" or row["tag"].startswith("FV")),
        "Accessories/Lockup": flag(row["fail"] == "Locked"),
    }


def purchase(row):
    size = int(row["dn"])
    alloy = 1.0 if row["body"].startswith("Cast") else 1.9
    initials = "".join(word[0] for word in row["vendor"].split())[:2].upper()
    return {
        "Vendor/Model": f"{initials} {row['type'][:1]}{size}-{row['pn'].split()[-1]}",
        "Vendor/SerialNumber": f"{between(400000, 499999, row['tag']):.0f}",
        "Vendor/PurchaseOrder": f"45-{between(70000, 79999, row['vendor']):.0f}",
        "Vendor/Price": price(alloy * (1400 + 24 * size + 0.06 * size**2)),
    }


def tags(tables):
    rows = [row for row in tables.read("valves.tags.csv") if not row["hidden"]]
    for row in rows[::EVERY]:
        row["line"] = row["line"].replace("M4%", "AM")
        own = tables.own_values("valves", row)
        own["Vendor/LastStrokeTest"] = own["Vendor/LastStrokeTest"] or picked(tables.notes["valve test"], row["tag"])
        own["Vendor/Remarks"] = own["Vendor/Remarks"] or picked(tables.notes["valve remarks"], row["tag"])
        yield row["tag"], own | trim(row, tables.notes) | actuator(row) | accessories(row) | purchase(row)
