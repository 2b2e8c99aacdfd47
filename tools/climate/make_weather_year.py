#!/usr/bin/env python3
"""Makes a synthetic year of hourly weather in the EPW format. No place ever had this weather.

    make_weather_year.py maritime|highland OUTPUT.epw

For examples and tests of what reads such files: plausible in its courses and in what goes with what,
the same at every run, and made of nothing but the formulas below. Not for design.

Days. Cloud cover and temperature follow an annual wave, with spells of some days (first-order
autoregression, lag-1 correlation 0.7). Clear days are warmer than dull ones in summer and colder in
winter, and have the larger daily swing; the coldest hour ends at 5:00, the warmest at 15:00. The dew
point is constant over the day, below its lowest temperature, the more so the clearer the day.
Hours. Sun: declination by Cooper (1969), equation of time in its usual three terms, air mass by
Kasten and Young (1989), by pressure. Direct normal irradiance in a clear sky by Meinel and Meinel
(1976), global irradiance 1.1 times its horizontal part; cloud cover N reduces the direct by 1 - N,
the global by 1 - 0.75 N^3.4 (Kasten and Czeplak, 1980); the rest is diffuse. Humidity by the Magnus
formula of Alduchov and Eskridge (1996). Pressure is that of the standard atmosphere at the height.
"""

import random
import sys
from datetime import date, timedelta
from math import asin, cos, degrees, exp, pi, radians, sin, sqrt
from pathlib import Path
from statistics import NormalDist
from typing import NamedTuple

NORMAL = NormalDist()
PERSISTENCE = 0.7
COLDEST_HOUR, WARMEST_HOUR = 5, 15


class Climate(NamedTuple):
    place: str
    latitude: float  # degrees north
    longitude: float  # degrees east
    zone: float  # h ahead of universal time
    height: float  # m
    mean: float  # °C, of the year
    wave: float  # K, amplitude of the annual course, which is coldest on 20 January
    spread: float  # K, standard deviation of the daily mean about it
    swing: float  # K, daily range on a clear day
    dryness: float  # K, of the dew point below the coldest hour on a clear day
    cloud: float  # mean cover of the year, and how much more it is in January
    cloud_wave: float
    seed: int


CLIMATES = {
    "maritime": Climate("Synthetic maritime", 52, 5, 1, 5, 10.5, 7.5, 3.2, 11, 4, 0.62, 0.10, 1),
    "highland": Climate("Synthetic highland", 39, -104, -7, 1600, 10, 12.5, 4, 18, 9, 0.42, -0.04, 2),
}


class Spells:
    """A day's deviation, of unit variance, that lasts."""

    def __init__(self, generator):
        self.generator, self.now = generator, 0.0

    def next(self):
        step = NORMAL.inv_cdf(min(max(self.generator.random(), 1e-9), 1 - 1e-9))
        self.now = PERSISTENCE * self.now + sqrt(1 - PERSISTENCE**2) * step
        return self.now


def sine_of_altitude(climate, day, hour):
    """At a standard time, of a day of the year counted from 1."""
    declination = radians(23.45) * sin(2 * pi * (284 + day) / 365)
    b = 2 * pi * (day - 81) / 364
    equation = (9.87 * sin(2 * b) - 7.53 * cos(b) - 1.5 * sin(b)) / 60
    solar = hour + (climate.longitude - 15 * climate.zone) / 15 + equation
    phi = radians(climate.latitude)
    return sin(phi) * sin(declination) + cos(phi) * cos(declination) * cos(pi * (solar - 12) / 12)


def irradiance(sine, cover, pressure):
    """Direct normal and diffuse horizontal, W/m²."""
    if sine <= 0:
        return 0.0, 0.0
    air_mass = pressure / 101325 / (sine + 0.50572 * (degrees(asin(sine)) + 6.07995) ** -1.6364)
    clear = 1353 * 0.7 ** (air_mass**0.678)
    direct = clear * (1 - cover)
    return direct, 1.1 * clear * sine * (1 - 0.75 * cover**3.4) - direct * sine


def wave_of_day(hour):
    """-1 at the coldest hour, 1 at the warmest: half a cosine up, another one down again."""
    rise = WARMEST_HOUR - COLDEST_HOUR
    since = (hour - COLDEST_HOUR) % 24
    return -cos(pi * (since / rise if since < rise else 1 + (since - rise) / (24 - rise)))


def vapour_pressure(temperature):
    return 610.94 * exp(17.625 * temperature / (temperature + 243.04))


def hourly_lines(climate):
    generator = random.Random(climate.seed)
    cloud_spells, warm_spells = Spells(generator), Spells(generator)
    pressure = 101325 * (1 - 2.25577e-5 * climate.height) ** 5.25588
    for day in range(1, 366):
        season = cos(2 * pi * (day - 20) / 365)  # 1 in January, -1 in July
        mean_cover = climate.cloud + climate.cloud_wave * season
        cover = NORMAL.cdf(NORMAL.inv_cdf(mean_cover) * sqrt(2) + cloud_spells.next())
        clear = mean_cover - cover
        mean = climate.mean - climate.wave * season + climate.spread * (
            0.85 * warm_spells.next() - 1.5 * clear * season)
        swing = climate.swing * (1 - 0.7 * cover)
        dew_point = mean - swing / 2 - 0.5 - climate.dryness * (1 - cover)
        when = date(2001, 1, 1) + timedelta(days=day - 1)
        for hour in range(1, 25):
            cover_now = min(max(cover + 0.2 * (generator.random() - 0.5), 0), 1)
            temperature = mean + swing / 2 * wave_of_day(hour)
            humidity = 100 * vapour_pressure(dew_point) / vapour_pressure(temperature)
            direct, diffuse = irradiance(sine_of_altitude(climate, day, hour - 0.5), cover_now, pressure)
            sun = direct * max(sine_of_altitude(climate, day, hour - 0.5), 0) + diffuse
            yield (f"{when.year},{when.month},{when.day},{hour},60,synthetic,{temperature:.1f},{dew_point:.1f},"
                   f"{humidity:.0f},{pressure:.0f},9999,9999,9999,{sun:.0f},{direct:.0f},{diffuse:.0f},"
                   f"999999,999999,999999,9999,0,3.0,{10 * cover_now:.0f},{10 * cover_now:.0f},9999,99999,9,"
                   "999999999,999,0.999,999,99,0.2,999,99")


def weather_year(name):
    """The whole file as text."""
    climate = CLIMATES[name]
    header = [
        f"LOCATION,{climate.place},-,-,synthetic,999999,{climate.latitude},{climate.longitude},{climate.zone},"
        f"{climate.height}",
        "DESIGN CONDITIONS,0",
        "TYPICAL/EXTREME PERIODS,0",
        "GROUND TEMPERATURES,0",
        "HOLIDAYS/DAYLIGHT SAVINGS,No,0,0,0",
        "COMMENTS 1,Synthetic weather of no place: not for design",
        "COMMENTS 2,Made by make_weather_year.py of Quorvel",
        "DATA PERIODS,1,1,Data,Monday,1/1,12/31",
    ]
    return "\n".join([*header, *hourly_lines(climate)]) + "\n"


if __name__ == "__main__":
    if len(sys.argv) != 3 or sys.argv[1] not in CLIMATES:
        sys.exit(__doc__)
    Path(sys.argv[2]).write_text(weather_year(sys.argv[1]), newline="\n")
