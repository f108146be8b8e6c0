"""What every kind of equipment needs: physics, standard sizes, and choices that are the same in each run."""

from math import log, pi, sqrt
from zlib import crc32

GRAVITY = 9.81  # m/s²
MOTORS = (0.37, 0.55, 0.75, 1.1, 1.5, 2.2, 3, 4, 5.5, 7.5, 11, 15, 18.5, 22, 30, 37, 45, 55, 75, 90, 110, 132, 160, 200)
NOZZLES = (15, 20, 25, 40, 50, 80, 100, 150, 200, 250, 300, 350, 400, 450, 500, 600, 700, 800, 900)


def hashed(text):
    return crc32(text.encode())


def picked(choices, key):
    """One of several, always the same for a key."""
    return choices[hashed(key) % len(choices)]


def between(low, high, key, digits=0):
    """A number within a span, always the same for a key."""
    return round(low + (high - low) * (hashed(key) % 9973) / 9972, digits)


def next_size(sizes, least):
    """The smallest size that is enough, else the largest."""
    return next((size for size in sizes if size >= least), sizes[-1])


def nozzle(flow, velocity):
    """The nominal diameter in mm for a flow in m³/h and a velocity in m/s."""
    return next_size(NOZZLES, 1000 * sqrt(4 * flow / 3600 / (pi * velocity)))


def up_to(step, value):
    return int(-(-value // step) * step)


def rounded(value, digits):
    """A number as a table has it: with so many decimals, which may be fewer than none."""
    return f"{round(value, digits) + 0.0:.{max(0, digits)}f}"  # the sum has no "-0.0"


def flag(value):
    return "1" if value else "0"


def log_mean(hot_in, hot_out, cold_in, cold_out):
    """The mean temperature difference of a counter-current exchanger."""
    one, other = hot_in - cold_out, hot_out - cold_in
    if min(one, other) <= 0:
        raise ValueError("temperatures cross")
    return one if abs(one - other) < 1e-6 else (one - other) / log(one / other)


def correction(hot_in, hot_out, cold_in, cold_out, shells):
    """By how much so many shells with tube passes in series fall short of counter-current flow; 0 when they cannot."""
    if hot_in == hot_out or cold_in == cold_out:
        return 1.0
    ratio = (hot_in - hot_out) / (cold_out - cold_in) + 1e-9  # the formula has a gap at 1
    effect = (cold_out - cold_in) / (hot_in - cold_in)
    if ratio * effect >= 1:
        return 0.0
    each = ((1 - effect * ratio) / (1 - effect)) ** (1 / shells)
    slope = sqrt(ratio**2 + 1) / (ratio - 1)
    over, under = 1 + each - slope + slope * each, 1 + each + slope - slope * each
    return slope * log(each) / log(over / under) if over / under > 0 else 0.0


def air_density(temperature, altitude=35):
    """kg/m³, of dry air in °C at m above the sea."""
    pressure = 101325 * (1 - 2.25577e-5 * altitude) ** 5.2559
    return pressure / (287.05 * (temperature + 273.15))


def price(text):
    """Rounded as a quotation is."""
    return f"{round(text / 50) * 50:.2f}"
