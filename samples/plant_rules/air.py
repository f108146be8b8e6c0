"""Fans and air handlers: air handlers from the table of their schedule, fans from plant.fans.csv."""

from math import pi, sqrt

from .engineering import MOTORS, air_density, between, flag, hashed, next_size, picked, rounded

ALTITUDE = 35  # m
HANDLER_EFFICIENCY = 0.64
DRIVE_LOSS = {"Direct": 1.0, "Coupling": 1.0, "V-belts": 1.06}
EFFICIENCY = {"Axial": 0.68, "Centrifugal, backward-curved": 0.74, "Centrifugal, forward-curved": 0.62,
              "Centrifugal, radial-tipped": 0.70}


def duty(service, flow, static, total, temperature, efficiency, note):
    return {
        "FanDuty/Service": service,
        "FanDuty/Flow": rounded(flow, 0),
        "FanDuty/StaticPressure": rounded(static, 0),
        "FanDuty/TotalPressure": rounded(total, 0),
        "FanDuty/Temperature": rounded(temperature, 0),
        "FanDuty/Density": rounded(air_density(temperature, ALTITUDE), 3),
        "FanDuty/Efficiency": rounded(100 * efficiency, 1),
        "FanDuty/Altitude": str(ALTITUDE),
        "FanDuty/BalanceNote": note,
    }


def drive(kind, shaft, motor, fan_speed, variable, explosion_proof):
    return {
        "FanDrive/Drive": kind,
        "FanDrive/ShaftPower": rounded(shaft, 2),
        "FanDrive/MotorPower": f"{motor:g}",
        "FanDrive/FanSpeed": rounded(fan_speed, 0),
        "FanDrive/MotorSpeed": "1460",
        "FanDrive/VariableSpeed": flag(variable),
        "FanDrive/SparkResistant": "Type B, bronze inlet" if explosion_proof else "Not required",
    }


def controls(tag, smoke, vibration, interlock):
    return {
        "Controls/SmokeMode": flag(smoke),
        "Controls/FlowSwitch": "1",
        "Controls/VibrationSwitch": flag(vibration),
        "Controls/Interlock": interlock,
        "Controls/Panel": f"CP-{tag}",
    }


def remarks(tag, own, notes):
    """What is kept of the notes that there are, and further ones where there is none."""
    kinds = {"Vendor/Access": "air access", "Vendor/Remarks": "air remarks"}
    return {item: own.get(item) or picked(notes[kind], tag + kind) for item, kind in kinds.items()}


def handler(row, tables):
    """An air handler; its fan is the supply fan."""
    tag, notes, flow = row["tag"], tables.notes, float(row["sup"])
    shaft = 0.9 * float(row["sfp"]) * flow / 3600
    total = 1000 * HANDLER_EFFICIENCY * shaft * 3600 / flow
    motor = float(row["fkw"].split(" / ")[0])
    explosion_proof = row["ex"] == "1"
    own = tables.own_values("air-handling", row)
    own |= {"Filters/FinalPressureDrop": "450" if row["f3"] == "H13" else "250"}
    own |= {"Filters/FilterChange": picked(notes["filter change"], tag)}
    note = picked(notes["air balance"], tag)
    own |= duty(row["area"] + ", supply", flow, total - 16, total, 20, HANDLER_EFFICIENCY, note)
    own |= drive("Direct", shaft, motor, between(1380, 1450, tag), row["vfd"] == "1", explosion_proof)
    interlock = "Fire panel" if "EF-" not in row["remarks"] else row["remarks"].split()[-1]
    return own | controls(tag, False, motor >= 11, interlock) | remarks(tag, own, notes)


def fan(row, tables):
    tag, notes = row["tag"], tables.notes
    flow, static, temperature = (float(row[key]) for key in ("flow", "static", "temp"))
    variable, explosion_proof = row["vfd"] == "1", row["ex"] == "1"
    efficiency = EFFICIENCY[row["type"]]
    velocity = 9 if row["type"] == "Axial" else 12
    total = static + air_density(temperature, ALTITUDE) / 2 * velocity**2
    shaft = flow / 3600 * total / 1000 / efficiency * DRIVE_LOSS[row["drive"]]
    motor = next_size(MOTORS, 1.15 * shaft)
    size = 50 * round(20 * sqrt(4 * flow / 3600 / velocity / pi)) or 50
    speed = between(1650, 2100, tag, -1) if row["drive"] == "V-belts" else 1460
    values = {
        "Air/Area": row["serves"],
        "Air/ExternalPressure": rounded(static, 0),
        "Fans/Arrangement": row["type"],
        "Fans/MotorPower": f"{motor:g}",
        "Fans/SpecificFanPower": rounded(1.08 * shaft * 3600 / flow, 2),
        "Fans/VariableSpeed": flag(variable),
        "Fans/ExplosionProof": flag(explosion_proof),
        "Casing/Dimensions": " x ".join(str(int(size * factor) // 10 * 10) for factor in (1.6, 1.4, 1.5)),
        "Casing/Weight": rounded(30 + 0.00022 * size**2 + 7 * motor, -1),
        "Casing/SoundPower": rounded(66 + 6 * motor**0.3, 0),
        "Casing/Outdoor": row["outdoor"],
        "Vendor/Manufacturer": picked(tables.vendors["fans"], tag),
        "Vendor/UnitSize": f"{row['type'][0]}{size}",
        "Vendor/ArticleNumber": f"40{hashed(tag):011d}",
        "Vendor/Commissioned": "1",
    }
    values |= duty(row["service"], flow, static, total, temperature, efficiency, picked(notes["air balance"], tag))
    values |= drive(row["drive"], shaft, motor, speed, variable, explosion_proof)
    values |= controls(tag, row["smoke"] == "1", motor >= 11, row["interlock"])
    return values | remarks(tag, values, notes)


def tags(tables):
    for row in tables.read("air-handling.tags.csv"):
        yield row["tag"], handler(row, tables)
    for row in tables.read("plant.fans.csv"):
        yield row["tag"], fan(row, tables)
