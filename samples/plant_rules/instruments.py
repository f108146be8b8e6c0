"""Instruments: their ranges from the operating values, their safety figures from how the loops vote."""

from .engineering import between, flag, hashed, next_size, picked, rounded

RANGES = (0.1, 0.16, 0.25, 0.4, 0.6, 1, 1.6, 2.5, 4, 6, 10, 16, 25, 40, 60, 100, 160)  # bar
TEMPERATURES = (60, 100, 150, 200, 250, 300, 400, 500, 600)  # °C
VARIABLES = {"P": "Pressure", "PD": "Differential pressure", "F": "Flow, by orifice", "L": "Level, hydrostatic",
             "T": "Temperature"}
FUNCTIONS = {"pressure": "Indication, control", "difference": "Indication, alarm", "flow": "Control",
             "level": "Control, alarm", "temperature": "Indication, alarm"}
MOUNTINGS = {"F": "Pipe stand, impulse lines", "L": "Pipe stand, impulse lines", "T": "Thermowell"}
FAILURES = {1: 1.2e-6, 2: 4e-6, 3: 1e-6}  # dangerous and undetected, per hour, of a channel with its valve
COMMON = 0.1  # part of the failures that all channels share
PROOF_TESTS = {1: 24, 2: 12, 3: 12}  # months
HOURS = 730  # in a month


def failure_on_demand(voting, rate, months):
    """The average probability of a function that is tested so often."""
    span = rate * months * HOURS
    shared = COMMON * span / 2
    return {"1oo1": span / 2, "1oo2": span**2 / 3 + shared, "2oo3": span**2 + shared}[voting]


def measured(row):
    """The letters of what is measured, such as "PD" of "PDZT-1001"."""
    return row["tag"].split("-")[0].removesuffix("T").removesuffix("Z")


def loop(row):
    letters, number = row["tag"].split("-")
    unit = number[:2]
    tripping = bool(row["sil"])
    return {
        "Loop/Tag": row["tag"],
        "Loop/LoopNumber": f"{letters[0]}-{number.rstrip('ABC')}",
        "Loop/Function": "Trip" if tripping else FUNCTIONS[row["kind"]],
        "Loop/Service": row["service"],
        "Loop/PID": f"{unit}-PID-{between(1, 8, number[:4]):03.0f}",
        "Loop/Line": row["line"],
        "Loop/FormerTag": f"{unit}{letters}{number[2:]}",
    }


def location(row, notes):
    number = row["tag"].split("-")[1]
    zone = {"1": "Zone 2", "2": "Zone 1", "4": "Zone 1", "5": "Zone 2"}.get(number[0], "Safe area")
    return {
        "Location/Area": f"Unit {number[:2]}",
        "Location/Elevation": rounded(between(0.8, 14, row["service"], 1), 2),
        "Location/Mounting": MOUNTINGS.get(measured(row), "Direct"),
        "Location/HookUp": f"HU-{measured(row)}{between(1, 6, row['line']):02.0f}",
        "Location/Zone": zone,
        "Location/Access": picked(notes["instrument access"], row["service"]),
    }


def span(row):
    """The upper range value: the next standard one that leaves a third above the operating value."""
    operating = float(row["operating"])
    if row["kind"] == "temperature":
        return next_size(TEMPERATURES, 1.25 * operating)
    return next_size(RANGES, 1.35 * operating)


def ranges(row):
    upper, operating = span(row), float(row["operating"])
    values = {
        "Range/Variable": VARIABLES[measured(row)],
        "Range/Accuracy": "0.250" if row["kind"] == "temperature" else "0.075",
        "Range/Damping": rounded({"L": 4, "F": 1, "T": 2}.get(measured(row), 0.5), 1),
        "Range/Transfer": "Square root" if row["kind"] == "flow" else "Linear",
    }
    if row["kind"] == "temperature":
        return values | {"Range/Transfer": f"Pt100, 0 to {upper} °C, operating {operating:.0f} °C"}
    sensor = next_size(RANGES, 1.5 * upper)
    return values | {
        "Range/LowerRange": "0",
        "Range/UpperRange": f"{upper:g}",
        "Range/Operating": f"{operating:g}",
        "Range/LowerLimit": f"{-min(sensor, 1):g}",
        "Range/UpperLimit": f"{sensor:g}",
    }


def limits(row):
    """Alarms and trips, none of which the operating value reaches; a transmitter that trips has those of its side."""
    upper, operating = span(row), float(row["operating"])
    steps = {"LowLow": 0.55 * operating, "Low": 0.75 * operating,
             "High": operating + 0.45 * (upper - operating), "HighHigh": operating + 0.75 * (upper - operating)}
    side = row["kind"].removeprefix("trip ").capitalize() if row["sil"] else ""
    digits = 3 if upper < 1 else 2
    return {f"Alarms/{name}": f"{round(value, digits):g}" for name, value in steps.items() if side in name}


def alarms(row, notes):
    values = {} if row["kind"] == "temperature" else limits(row)
    return values | {
        "Alarms/Deadband": "0.5",
        "Alarms/Priority": "1" if row["sil"] else picked("23", row["tag"]),
        "Alarms/OperatorNote": picked(notes["instrument operator"], row["service"]),
    }


def wiring(row):
    number = row["tag"].split("-")[1]
    system = "SIS" if row["sil"] else "AI"
    return {
        "SignalWiring/Signal": "4 to 20 mA, HART",
        "SignalWiring/Supply": "24",
        "SignalWiring/Protection": "Ex ia IIC T4" if number[0] in "1245" else "IP66",
        "SignalWiring/JunctionBox": f"JB-{number[:2]}-{'S' if row['sil'] else 'P'}{between(1, 9, number):.0f}",
        "SignalWiring/Cable": "2 x 2 x 1.5 mm², screened" if row["sil"] else "1 x 2 x 1.5 mm², screened",
        "SignalWiring/Card": f"{system}-{number[:2]}-{hashed(row['tag']) % 8 + 1}/{hashed(number) % 16 + 1}",
        "SignalWiring/HartAddress": "0",
    }


def safety(row, notes):
    if not row["sil"]:
        return {}
    level, months = int(row["sil"]), PROOF_TESTS[int(row["sil"])]
    number = row["tag"].split("-")[1]
    return {
        "Safety/SIF": f"UZ-{number[:4]}",
        "Safety/SIL": row["sil"],
        "Safety/Voting": row["voting"],
        "Safety/PFD": f"{failure_on_demand(row['voting'], FAILURES[level], months):.2e}".upper(),
        "Safety/ProofTest": str(months),
        "Safety/ResponseTime": rounded(between(1.5, 4, number[:4], 1), 1),
        "Safety/SafeAction": row["action"],
        "Safety/Bypass": flag(row["voting"] != "1oo1"),
        "Safety/ReviewNote": picked(notes["instrument review"], number[:4]),
    }


def upkeep(row, notes):
    tag = row["tag"]
    months = PROOF_TESTS[int(row["sil"])] if row["sil"] else 24
    return {
        "Calibration/Procedure": f"CAL-{measured(row)}-{'02' if row['sil'] else '01'}",
        "Calibration/Interval": str(months),
        "Calibration/LastCalibration": f"2024-{between(1, 9, tag):02.0f}-{between(1, 28, tag + 'd'):02.0f}",
        "Calibration/AsFound": rounded(between(-0.12, 0.14, tag, 2), 2),
        "Calibration/Workshop": picked(notes["instrument workshop"], tag),
        "Status/Ordered": "1",
        "Status/Installed": "1",
        "Status/LoopChecked": flag(hashed(tag) % 12),
        "Status/Remarks": picked(notes["instrument remarks"], tag + "remark"),
    }


def tags(tables):
    notes = tables.notes
    for row in tables.read("plant.instruments.csv"):
        values = loop(row) | location(row, notes) | ranges(row) | alarms(row, notes) | wiring(row)
        yield row["tag"], values | safety(row, notes) | upkeep(row, notes)
