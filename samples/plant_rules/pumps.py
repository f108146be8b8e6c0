"""Pumps: from the table of the pump schedule, and from it what a data sheet has in addition."""

from math import ceil, log, pi, sqrt

from .engineering import GRAVITY, between, flag, picked, rounded

HEAD_COEFFICIENT = 0.93  # shut-off head of a stage over half the square of the tip speed
PLANS = {
    "Plan 11": ("Single seal", "Type A", "1"),
    "Plan 23": ("Single seal", "Type B", "1"),
    "Plan 32/62": ("Single seal, quenched", "Type C", "1"),
    "Plan 53B": ("Dual seal, pressurised", "Type A", "3"),
    "Packing": ("Packed gland", "Braided", "0"),
}


def efficiency(flow, head, speed):
    """In per cent, of a good pump of such a size and shape."""
    shape = log(speed * sqrt(flow / 3600) / head**0.75 / 35)
    return min(86.0, 52 + 6.1 * log(flow) - 3.5 * shape**2)


def performance(row, notes):
    if row["type"] == "Metering":
        return {"Performance/CurveNote": "Displacement pump: no curve"}
    flow, head, speed, suction = (float(row[key]) for key in ("flow", "head", "speed", "npsha"))
    stages = ceil(head / 200)
    shut_off = 1.2 * head
    impeller = 60000 / (pi * speed) * sqrt(2 * GRAVITY * shut_off / stages / HEAD_COEFFICIENT)
    eye = flow / 2 if row["type"] in ("BB1", "BB3") else flow
    needed = min(suction - 0.8, (speed * sqrt(4.403 * eye) / 9500) ** (4 / 3) * 0.3048)
    best = flow * between(0.98, 1.12, row["tag"][:-1] + "best", 3)
    return {
        "Performance/Efficiency": rounded(efficiency(flow, head / stages, speed), 1),
        "Performance/BestEfficiencyFlow": rounded(best, 1),
        "Performance/MinimumFlow": rounded(0.3 * best, 1),
        "Performance/ShutoffHead": rounded(shut_off, 1),
        "Performance/NPSHr": rounded(needed, 1),
        "Performance/RatedImpeller": rounded(impeller, 0),
        "Performance/MaximumImpeller": rounded(1.08 * impeller, 0),
        "Performance/SpecificSpeed": rounded(speed * sqrt(4.403 * eye) / (needed / 0.3048) ** 0.75, -1),
        "Performance/CurveNote": picked(notes["pump curve"], row["tag"]),
    }


def seal(row, vendors):
    plan = row["seal"]
    arrangement, kind, number = PLANS[plan]
    suction, shaft = float(row["psuc"]), 10 * round(25 / 10 + sqrt(float(row["power"])) / 4)
    values = {
        "Seal/Arrangement": arrangement,
        "Seal/SealType": kind,
        "Seal/SealCode": f"32{kind[-1]}-{number}-{shaft}" if number != "0" else f"PK-{shaft}",
        "Seal/FlushPlan": plan,
        "Seal/SealMaker": picked(vendors["seals"], row["vendor"]),
    }
    if number != "0":
        values["Seal/FlushFlow"] = rounded(4 + shaft / 10, 1)
    if plan == "Plan 53B":
        values |= {"Seal/BarrierFluid": "Glycol water", "Seal/Reservoir": "28"}
        values["Seal/BarrierPressure"] = rounded(suction + 2.5, 1)
    elif plan == "Plan 32/62":
        values |= {"Seal/BarrierFluid": "Steam quench", "Seal/BarrierPressure": "0.3"}
    return values


def inspection(row, notes):
    pressure = float(row["psuc"]) + 1.2 * float(row["density"]) * GRAVITY * float(row["head"]) / 1e5
    hydrocarbon = row["ex"].startswith("Ex")
    return {
        "Inspection/HydrostaticTest": "1",
        "Inspection/TestPressure": rounded(1.5 * pressure, 1),
        "Inspection/PerformanceTest": flag(row["type"] != "Metering"),
        "Inspection/NPSHTest": flag(float(row["npsha"]) < 6),
        "Inspection/Witnessed": flag(hydrocarbon and float(row["power"]) >= 75),
        "Inspection/Vibration": "3.0" if hydrocarbon else "4.5",
        "Inspection/Noise": rounded(66 + 3.2 * log(float(row["power"])), 0),
        "Inspection/SiteTest": picked(notes["pump site test"], row["tag"]),
    }


def documents(row):
    number, unit = row["tag"][2:5], row["tag"][2]
    return {
        "Documents/PID": f"{unit}0-PID-0{number[1:]}",
        "Documents/DataSheet": f"DS-P-{number}",
        "Documents/Drawing": f"GA-P-{number}-1",
        "Documents/Curve": f"C-{row['model'].replace(' ', '-')}",
        "Documents/Revision": picked("ABC", number),
        "Documents/Archive": f"Box {between(12, 68, number):.0f}",
    }


def tags(tables):
    notes, vendors = tables.notes, tables.vendors
    for row in tables.read("pumps.tags.csv"):
        own = tables.own_values("pumps", row)
        own["Vendor/DutyNote"] = own["Vendor/DutyNote"] or picked(notes["pump duty"], row["tag"])
        own["Vendor/Remarks"] = own["Vendor/Remarks"] or picked(notes["pump remarks"], row["tag"])
        yield row["tag"], own | performance(row, notes) | seal(row, vendors) | inspection(row, notes) | documents(row)
