"""Heat exchangers: a heat balance from the tables of duties and fluids, then the size that it takes."""

from dataclasses import dataclass
from math import ceil, pi, sqrt

from .engineering import MOTORS, between, correction, flag, log_mean, next_size, nozzle, picked, price, rounded, up_to

AIR = {"cp": "1.006", "film": "950", "fouling": "0.1", "latent": "", "density": "1.15"}  # film: with fins
MARGIN = 1.1  # area over what the duty takes
LENGTHS = (2438, 3658, 4877, 6096)  # mm
WALLS = {19.05: 2.11, 25.4: 2.77}  # mm, of tubes by their outside diameter
PITCHES = {19.05: 25.4, 25.4: 31.75}  # mm
LARGEST_SHELL = 460  # m²
FASTEST = 2.3  # m/s, of a liquid in tubes
VAPOUR = 20  # kg/m³, below which a fluid is one
PLATE_FACTOR = 1.75  # how much better plates transfer than tubes
FAN_DIAMETERS = (1.83, 2.44, 3.05, 3.66, 4.27)


@dataclass
class Side:
    """A fluid that gives or takes the duty; flow in kg/h."""

    name: str
    fluid: dict
    flow: float
    inlet: float
    outlet: float

    def number(self, key):
        return float(self.fluid[key])


def heat(fluid, flow, difference):
    """kW, of a fluid that changes its temperature, or its phase when it keeps that."""
    return flow / 3600 * (float(fluid["cp"]) * difference if fluid["cp"] else float(fluid["latent"]))


class Balance:
    """The two sides of an exchanger: what the table leaves out of the cold one follows from the hot one."""

    def __init__(self, row, fluids):
        inlet, outlet, flow = float(row["hotin"]), float(row["hotout"]), float(row["hotflow"])
        self.hot = Side(row["hot"], fluids[row["hot"]], flow, inlet, outlet)
        self.duty = heat(self.hot.fluid, flow, inlet - outlet)
        self.cold = self._cold_side(row, fluids[row["cold"]])
        self.mean = log_mean(inlet, outlet, self.cold.inlet, self.cold.outlet)

    def _cold_side(self, row, fluid):
        inlet = float(row["coldin"])
        if row["coldflow"]:
            flow = float(row["coldflow"])
            return Side(row["cold"], fluid, flow, inlet, inlet + self.duty / heat(fluid, flow, 1))
        outlet = float(row["coldout"])
        return Side(row["cold"], fluid, self.duty / heat(fluid, 1, outlet - inlet), inlet, outlet)

    def shells_in_series(self):
        temperatures = (self.hot.inlet, self.hot.outlet, self.cold.inlet, self.cold.outlet)
        for shells in range(1, 7):
            factor = correction(*temperatures, shells)
            if factor >= 0.8:
                return shells, factor
        raise ValueError("too close an approach for tube passes")


def coefficients(one, other, ratio=1.0, better=1.0):
    """W/(m²·K), clean and in service; the second fluid is inside tubes whose outside is so much larger."""
    clean = better / (1 / one.number("film") + ratio / other.number("film") + 0.00006)
    return clean, 1 / (1 / clean + (one.number("fouling") + ratio * other.number("fouling")) / 1000 / better)


def thermal(row, balance, factor, area, clean, service, note):
    spare = 100 * (area * service * factor * balance.mean / 1000 / balance.duty - 1)
    return {
        "Duty/Service": row["service"],
        "Duty/Duty": rounded(balance.duty, 1),
        "Duty/LMTD": rounded(balance.mean, 1),
        "Duty/CorrectionFactor": rounded(factor, 3),
        "Duty/Area": rounded(area, 1),
        "Duty/CleanCoefficient": rounded(clean, 1),
        "Duty/ServiceCoefficient": rounded(service, 1),
        "Duty/Overdesign": rounded(spare, 1),
        "Duty/CleaningNote": note,
    }


def side(name, fluid, pressure, drop):
    hottest = max(fluid.inlet, fluid.outlet)
    return {
        f"{name}Side/{name}{item}": value
        for item, value in {
            "Fluid": fluid.name,
            "Flow": rounded(fluid.flow, 0),
            "Inlet": rounded(fluid.inlet, 1),
            "Outlet": rounded(fluid.outlet, 1),
            "Pressure": rounded(pressure, 1),
            "PressureDrop": rounded(drop, 1),
            "Fouling": rounded(fluid.number("fouling"), 4),
            "DesignPressure": rounded(max(3.5, up_to(0.5, 1.15 * pressure + 1)), 1),
            "DesignTemperature": str(up_to(10, hottest + 25)),
        }.items()
    }


class Bundle:
    """Tubes that have an area in m², in shells of which no one is too large, with passes that keep the fluid moving."""

    def __init__(self, area, series, diameter, fluid, vapour_passes=2):
        self.series, self.diameter, self.fluid = series, diameter, fluid
        self.vapour = fluid.number("density") < VAPOUR
        self.parallel = ceil(area / series / LARGEST_SHELL)
        each = area / series / self.parallel
        self.bore = diameter - 2 * WALLS[diameter]
        self.length = self._length(each)
        per_tube = self._outside(self.length)
        self.passes = vapour_passes if self.vapour else self._passes(each / per_tube)
        self.tubes = up_to(self.passes, each / per_tube)
        self.area = self.tubes * per_tube * series * self.parallel
        self.shell = up_to(25, PITCHES[diameter] * sqrt(self.tubes / 0.7065) + 40)

    def _outside(self, length):
        return pi * self.diameter * length / 1e6

    def _length(self, area):
        """Long tubes cost less, unless so few of them would be too narrow for the flow."""
        wanted = next_size(LENGTHS, 420 * sqrt(area) + 1500)
        wide = (length for length in LENGTHS if self._speed(area / self._outside(length), 2) <= FASTEST)
        return wanted if self.vapour else min(wanted, max(wide, default=LENGTHS[0]))

    def _passes(self, tubes):
        slowest = 1.1 if self.series == 1 else 0.8
        return next((passes for passes in (2, 4, 6) if self._speed(tubes, passes) >= slowest), 8)

    def _speed(self, tubes, passes):
        flow = self.fluid.flow / 3600 / self.fluid.number("density") / self.parallel
        return flow / (tubes / passes * pi / 4 * (self.bore / 1000) ** 2)

    @property
    def velocity(self):
        """m/s; of a vapour that condenses, half of what it is at the inlet."""
        full = self._speed(self.tubes, self.passes)
        return full / 2 if self.vapour else full

    @property
    def drop(self):
        """kPa in the tubes."""
        path = self.passes * self.series * (0.028 * self.length / self.bore + 2.5)
        return path * self.fluid.number("density") * self.velocity**2 / 2000

    def shell_drop(self, fluid):
        """kPa around the tubes, between baffles that are 0.4 of the diameter apart."""
        if fluid.number("density") < VAPOUR:
            return 6.0 if fluid.number("density") > 0.5 else 1.2
        spacing, across = 0.4 * self.shell, self.shell / PITCHES[self.diameter]
        free = spacing * self.shell * (1 - self.diameter / PITCHES[self.diameter]) / 1e6
        speed = fluid.flow / 3600 / fluid.number("density") / self.parallel / free
        return self.series * self.length / spacing * across * 0.22 * fluid.number("density") * speed**2 / 2000

    def weight(self):
        metal = pi * self.diameter * WALLS[self.diameter] * self.length / 1e9 * 7850
        return 1.18 * self.tubes * metal


def vendor(tag, kind, cost, tables):
    maker = picked(tables.vendors[kind], tag)
    return {
        "Vendor/Manufacturer": maker,
        "Vendor/SerialNumber": f"{between(21000, 24999, tag):.0f}-{tag.split('-')[1]}",
        "Vendor/PurchaseOrder": f"45-{between(50000, 59999, maker):.0f}",
        "Vendor/Price": price(cost),
        "Vendor/Commissioned": flag(tag not in ("E-304", "EA-301")),
        "Vendor/InspectionNote": picked(tables.notes["exchanger inspection"], tag),
        "Vendor/Remarks": picked(tables.notes["exchanger remarks"], tag),
    }


def construction(row, bundle):
    u_tubes = row["tema"].endswith(("U", "T"))
    return {
        "Construction/TemaType": row["tema"],
        "Construction/TemaClass": "R",
        "Construction/Shells": f"{bundle.parallel} x {bundle.series}",
        "Construction/ShellDiameter": str(bundle.shell),
        "Construction/TubeCount": str(bundle.tubes),
        "Construction/TubeDiameter": f"{bundle.diameter:g}",
        "Construction/TubeLength": str(bundle.length),
        "Construction/TubePitch": f"{PITCHES[bundle.diameter]:g}",
        "Construction/Passes": str(bundle.passes),
        "Construction/BaffleCut": "45" if row["tema"][1] in "JX" else "25",
        "Construction/ShellMaterial": row["shell"],
        "Construction/TubeMaterial": row["tubes"],
        "Construction/BundleWeight": rounded(bundle.weight(), -1),
        "Construction/StressRelieved": flag(u_tubes and "MDEA" in row["cold"]),
    }


def shell_and_tube(row, tables):
    balance = Balance(row, tables.fluids)
    series, factor = balance.shells_in_series()
    shell, tube = (balance.hot, balance.cold) if row["hotside"] == "shell" else (balance.cold, balance.hot)
    pressures = {id(balance.hot): float(row["hotbar"]), id(balance.cold): float(row["coldbar"])}
    diameter = float(row["od"])
    clean, service = coefficients(shell, tube, diameter / (diameter - 2 * WALLS[diameter]))
    bundle = Bundle(MARGIN * 1000 * balance.duty / (service * factor * balance.mean), series, diameter, tube)
    alloy = 1.0 if "arbon" in row["tubes"] else 2.1 if row["tubes"] == "Titanium" else 1.5
    note = picked(tables.notes["exchanger cleaning"], row["tag"])
    values = thermal(row, balance, factor, bundle.area, clean, service, note)
    values |= side("Shell", shell, pressures[id(shell)], bundle.shell_drop(shell))
    values |= side("Tube", tube, pressures[id(tube)], bundle.drop)
    values["TubeSide/TubeVelocity"] = rounded(bundle.velocity, 2)
    values |= construction(row, bundle)
    return values | vendor(row["tag"], "exchangers", alloy * (9000 + 310 * bundle.area), tables)


def plates(row, tables):
    balance = Balance(row, tables.fluids)
    clean, service = coefficients(balance.hot, balance.cold, better=PLATE_FACTOR)
    each = float(row["platearea"])
    count = up_to(2, MARGIN * 1000 * balance.duty / (service * balance.mean) / each) + 1
    area = (count - 2) * each  # the two at the ends transfer nothing
    port = nozzle(max(balance.hot.flow, balance.cold.flow) / 1000, 4)
    note = picked(tables.notes["exchanger cleaning"], row["tag"])
    values = thermal(row, balance, 1, area, clean, service, note)
    values |= {
        "Plates/PlateType": row["plate"],
        "Plates/PlateCount": str(count),
        "Plates/PlateMaterial": row["material"],
        "Plates/PlateThickness": row["thickness"],
        "Plates/Gasket": row["gasket"],
        "Plates/Spare": str(5 * round(between(4, 8, row["tag"]))),
        "Plates/HotInlet": rounded(balance.hot.inlet, 1),
        "Plates/HotOutlet": rounded(balance.hot.outlet, 1),
        "Plates/ColdInlet": rounded(balance.cold.inlet, 1),
        "Plates/ColdOutlet": rounded(balance.cold.outlet, 1),
        "Plates/PressureDrop": rounded(between(38, 62, row["tag"]) - port / 50, 1),
        "Plates/Opened": picked(tables.notes["plates opened"], row["tag"]),
    }
    alloy = 2.2 if row["material"] == "Titanium" else 1
    return values | vendor(row["tag"], "plates", 2500 + 190 * area * alloy, tables)


def air_side(row, balance, bays):
    """The fans move the air against what a bundle of six rows and the louvres take."""
    fans = 2
    volume = balance.cold.flow / 3600 / balance.cold.number("density") / (bays * fans)
    diameter = next_size(FAN_DIAMETERS, sqrt(4 * volume / (pi * 8)))
    return {
        "AirSide/AirFlow": rounded(balance.cold.flow, -2),
        "AirSide/AirInlet": rounded(balance.cold.inlet, 1),
        "AirSide/AirOutlet": rounded(balance.cold.outlet, 1),
        "AirSide/Bays": str(bays),
        "AirSide/Bundles": "1" if bays == 1 else "2",
        "AirSide/FanCount": str(fans),
        "AirSide/FanDiameter": f"{diameter:g}",
        "AirSide/FanPower": f"{next_size(MOTORS, 1.15 * volume * 0.17 / 0.68):g}",
        "AirSide/Draught": row["draught"],
        "AirSide/Louvres": row["louvres"],
    }


def air_cooler(row, tables):
    row = row | {"cold": "Air", "coldflow": "", "coldin": row["airin"], "coldout": row["airout"]}
    balance = Balance(row, tables.fluids | {"Air": AIR})
    factor = 0.96
    clean, service = coefficients(balance.cold, balance.hot, 25.4 / (25.4 - 2 * WALLS[25.4]))
    area = MARGIN * 1000 * balance.duty / (service * factor * balance.mean)
    bundle = Bundle(area, 1, 25.4, balance.hot, vapour_passes=1)
    bays = max(1, ceil(balance.cold.flow / 260000))
    tag = row["tag"]
    note = picked(tables.notes["exchanger cleaning"], tag)
    values = thermal(row, balance, factor, bundle.area, clean, service, note)
    values |= side("Tube", balance.hot, float(row["hotbar"]), bundle.drop)
    values["TubeSide/TubeVelocity"] = rounded(bundle.velocity, 2)
    values |= air_side(row, balance, bays)
    values["AirSide/WinterNote"] = picked(tables.notes["exchanger winter"], tag)
    return values | vendor(tag, "aircoolers", 22000 * bays + 260 * bundle.area, tables)


def tags(tables):
    kinds = {"exchangers": shell_and_tube, "plates": plates, "aircoolers": air_cooler}
    for name, rule in kinds.items():
        for row in tables.read(f"plant.{name}.csv"):
            try:
                yield row["tag"], rule(row, tables)
            except ValueError as error:
                raise SystemExit(f"plant.{name}.csv: {row['tag']}: {error}") from error
