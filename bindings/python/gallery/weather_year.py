"""A year of hourly weather, and the sun of any such year.

The year is invented: no place on earth had it. Its means are those of a mild maritime climate at 51.5° north, on the
meridian of its clock: 11 °C over the year, near 1000 kWh/m² of sun on the horizontal. Days follow one another with the
persistence of real ones, so that clear and warm spells come about, but nothing that is worked out with them says
anything about a real site. Any EPW file of yours takes its place, by `read_epw`.
"""

import atexit
import functools
import os
import tempfile

import numpy as np

from quorvel.climate import daily_value, design_irradiance, solar_geometry, solar_time_correction

LATITUDE = 51.5
HEADER = [f"LOCATION,Synthetic,-,Nowhere,generated,000000,{LATITUDE},0.0,0.0,20.0", "DESIGN CONDITIONS,0",
          "TYPICAL/EXTREME PERIODS,0", "GROUND TEMPERATURES,0", "HOLIDAYS/DAYLIGHT SAVINGS,No,0,0,0",
          "COMMENTS 1,Synthetic weather: invented, of no real place", "COMMENTS 2,",
          "DATA PERIODS,1,1,Data,Sunday,1/1,12/31"]


def sun(weather):
    """The sun at the middle of each hour of a year of weather, as solar_geometry gives it."""
    longitudes = np.radians([-weather.longitude, -15 * weather.time_zone])  # positive west
    solar_time = weather.hour - 0.5 + solar_time_correction(0, weather.day_of_year, *longitudes)
    return solar_geometry(np.radians(weather.latitude), weather.day_of_year, np.clip(solar_time, 0, 24))


@functools.cache
def synthetic_epw():
    """The invented year as an EPW file, in a folder that goes when the program ends."""
    folder = tempfile.TemporaryDirectory(prefix="quorvel-")
    atexit.register(folder.cleanup)
    name = os.path.join(folder.name, "synthetic.epw")
    with open(name, "w", encoding="utf-8") as file:
        file.write("\n".join([*HEADER, *_records(*_weather())]) + "\n")
    return name


def _spells(random, persistence):
    """A number of standard deviation 1 for each day, of which each takes after the one before."""
    spell = np.zeros(365)
    for day, step in enumerate(random.standard_normal(365)):
        spell[day] = persistence * spell[day - 1] + np.sqrt(1 - persistence**2) * step
    return spell


def _weather():
    """Dry bulb and dew point, direct normal and diffuse horizontal radiation: arrays of 365 days and 24 hours."""
    random = np.random.default_rng(2)
    day, hour = np.arange(1, 366)[:, None], np.arange(24) + 0.5
    season = -np.cos(2 * np.pi * (day - 20) / 365)
    clear = 1 / (1 + np.exp(0.3 - 1.7 * _spells(random, 0.6)[:, None] - 0.45 * season))  # 0 overcast to 1 cloudless
    mean = 11 + 6.6 * season + 2.6 * _spells(random, 0.75)[:, None] + 1.5 * (clear - 0.4) * season
    dry_bulb = daily_value(hour, mean, (1.2 + 5 * clear) * (1 + 0.25 * season), 4.5, 14.5, -1)
    dew_point = np.minimum(0.5 + 0.75 * mean - 2.5 * clear, dry_bulb - 0.2)
    sun = solar_geometry(np.radians(LATITUDE), day, hour + solar_time_correction(0, day, 0, 0))
    sky = design_irradiance(sun.solar_altitude, 20, "clear")
    cloudy = design_irradiance(sun.solar_altitude, 20, "cloudy")
    diffuse = clear**2 * sky.diffuse_horizontal + (1 - clear**2) * 1.1 * cloudy.diffuse_horizontal
    return dry_bulb, dew_point, clear**1.6 * sky.direct_normal, diffuse, sun.solar_altitude


def _records(dry_bulb, dew_point, direct, diffuse, altitude):
    over_water = [np.exp(17.62 * t / (243.12 + t)) for t in (dew_point, dry_bulb)]  # Magnus, by that at 0 °C
    horizontal = direct * np.sin(altitude) + diffuse
    columns = dry_bulb, dew_point, 100 * over_water[0] / over_water[1], horizontal, direct, diffuse
    days = np.datetime64("2005-01-01") + np.arange(365)
    for number, date in enumerate(days.astype(object)):
        for hour, (t, dew, humidity, level, normal, sky) in enumerate(zip(*(each[number] for each in columns)), 1):
            yield (f"{date.year},{date.month},{date.day},{hour},60,synthetic,{t:.1f},{dew:.1f},{humidity:.0f},101325,"
                   f"9999,9999,9999,{level:.1f},{normal:.1f},{sky:.1f},999999,999999,999999,9999,999,3.0,"
                   "99,99,9999,99999")
