"""Times the Python package against the same formulas as NumPy expressions, and against what others do alike.

    python_ratios.py [ELEMENTS]      ratios in one run, one thread; levels v2, v3 and v4 as far as supported

At each level, in a process of its own, both use what processors of that level have, and no more. That the
expressions say the same as the package is checked.
"""

import os
import subprocess
import sys
import timeit

os.environ.setdefault("OMP_NUM_THREADS", "1")

import numpy as np
import quorvel
from quorvel import climate, fabric, psychro

HERE = os.path.dirname(os.path.abspath(__file__))
COUNT = int(sys.argv[1]) if len(sys.argv) > 1 else 1_000_000
random = np.random.default_rng(1)


def numbers(low, high):
    return random.uniform(low, high, COUNT).astype(np.float32)


F = np.float32
t, rh = numbers(-20, 40), numbers(10, 90)
altitude, azimuth, tilt, facing = numbers(0.05, 1.5), numbers(0, 6.28), numbers(0, 3.1), numbers(0, 6.28)
latitude, day, hour = numbers(-1.1, 1.1), numbers(1, 366).astype(np.int32), numbers(0, 24)
direct, diffuse, incidence = numbers(0, 900), numbers(10, 400), numbers(0, 1.5)
low = numbers(-10, 10)


def saturation_pressure(t):
    T = t + F(273.15)
    water = F(33.59051) - F(3142.31) / T - F(8.2) * np.log10(T) + F(0.0024804) * T
    return F(10) ** np.where(t >= 0, water, F(12.538099) - F(2663.91) / T)


def vapour_pressure(t, rh):
    return np.clip(rh, 0, 100) / F(100) * saturation_pressure(t)


def sun(latitude, day, hour):
    d = F(0.01721) * day.astype(np.float32)
    sin_declination = F(0.398) * np.sin(d - F(1.4096) + F(0.03347) * np.sin(d))
    declination = np.arcsin(sin_declination)
    cos_declination = np.cos(declination)
    sin_latitude, cos_latitude = np.sin(latitude), np.cos(latitude)
    H = F(0.2617994) * (F(12) - hour)
    cos_H = np.cos(H)
    altitude = np.arcsin(sin_declination * sin_latitude + cos_declination * cos_latitude * cos_H)
    north = sin_declination * cos_latitude - cos_declination * sin_latitude * cos_H
    azimuth = np.arctan2(cos_declination * np.sin(H), north) % F(2 * np.pi)
    p = np.tan(latitude) * np.tan(declination)
    sunrise = np.where(p <= -1, F(25), np.arccos(np.clip(p, -1, 1)) * F(12 / np.pi))
    sunset = np.where(p <= -1, F(0), np.where(p >= 1, F(25), F(24) - sunrise))
    dark = altitude < 0
    return declination, np.where(dark, F(0), altitude), np.where(dark, F(0), azimuth), sunrise, sunset


def angles(altitude, azimuth, facing, tilt):
    east, north, up = np.cos(altitude) * np.sin(azimuth), np.cos(altitude) * np.cos(azimuth), np.sin(altitude)
    sin_facing, cos_facing, sin_tilt, cos_tilt = np.sin(facing), np.cos(facing), np.sin(tilt), np.cos(tilt)
    right = cos_facing * east - sin_facing * north
    level = sin_facing * east + cos_facing * north
    slope = sin_tilt * up - cos_tilt * level
    normal = sin_tilt * level + cos_tilt * up
    return np.arccos(np.clip(normal, -1, 1)), np.arctan2(slope, normal), np.arctan2(right, normal)


def irradiance(altitude, azimuth, facing, tilt, direct, diffuse):
    c = np.cos(altitude) * np.sin(tilt) * np.cos(azimuth - facing) + np.sin(altitude) * np.cos(tilt)
    beam = direct * np.maximum(c, 0)
    sky = diffuse * (1 + np.cos(tilt)) / 2 * (1 - F(0.1) * np.sin(tilt) * (1 + np.cos(facing)))
    return beam, sky, F(0.2) * (1 - np.cos(tilt)) / 2 * (diffuse + direct * np.sin(altitude))


def surface_resistance(tilt):
    return 1 / (F(9.53) - F(2.6) * tilt / F(np.pi))


def daily_temperature(hour, high, low):
    mean, swing = (high + low) / 2, (high - low) / 2
    after = np.where(hour < 4, hour + 24 - 15, hour - 15)
    falls = mean + swing * np.cos(F(np.pi) * after / 13)
    return np.where((hour >= 4) & (hour < 15), mean - swing * np.cos(F(np.pi) * (hour - 4) / 11), falls)


def u_value(thickness, conductivity):
    return 1 / (F(0.17) + (thickness / conductivity).sum(axis=-1))


layers, conductivities = numbers(0.05, 0.3).reshape(-1, 4), numbers(0.03, 1).reshape(-1, 4)

PAIRS = {
    "saturation pressure": (lambda: psychro.saturation_pressure(t), lambda: saturation_pressure(t)),
    "vapour pressure": (lambda: psychro.vapour_pressure(t, rh), lambda: vapour_pressure(t, rh)),
    "sun position": (lambda: climate.solar_geometry(latitude, day, hour), lambda: sun(latitude, day, hour)),
    "surface angles": (lambda: climate.surface_angles(altitude, azimuth, facing, tilt),
                       lambda: angles(altitude, azimuth, facing, tilt)),
    "surface irradiance": (lambda: climate.surface_irradiance(altitude, azimuth, facing, tilt, direct, diffuse, 0.2, 1, 1),
                           lambda: irradiance(altitude, azimuth, facing, tilt, direct, diffuse)),
    "daily temperature": (lambda: climate.daily_temperature(hour, t, low, 15, 4), lambda: daily_temperature(hour, t, low)),
    "surface resistance": (lambda: fabric.surface_resistance("inside", tilt, 2), lambda: surface_resistance(tilt)),
    "U-value, 4 layers": (lambda: fabric.u_value(layers, conductivities, 0.13, 0.04), lambda: u_value(layers, conductivities)),
}


def seconds(function):
    function()
    return min(timeit.repeat(function, number=1, repeat=7))


def check(ours, theirs):
    """That all but a few, next to where a formula branches or rounding is magnified, are the same."""
    for each, other in zip(np.atleast_2d(ours()), np.atleast_2d(theirs()), strict=True):
        assert np.mean(np.isclose(each, other, rtol=1e-3, atol=1e-3)) > 0.999


def rows():
    for name, (ours, theirs) in PAIRS.items():
        check(ours, theirs)
        yield name, seconds(ours), seconds(theirs)


def others():
    """What other packages do alike: in their own forms and double precision."""
    try:
        import numba

        compiled = numba.vectorize(["f4(f4)"], fastmath=False)(
            lambda t: 10 ** ((33.59051 - 3142.31 / (t + 273.15) - 8.2 * np.log10(t + 273.15) + 0.0024804 * (t + 273.15))
                             if t >= 0 else 12.538099 - 2663.91 / (t + 273.15)))
        yield "saturation pressure, numba", seconds(PAIRS["saturation pressure"][0]), seconds(lambda: compiled(t))
    except ImportError:
        pass
    try:
        from pvlib import irradiance as pv

        degrees = [np.degrees(each).astype(float) for each in (tilt, facing, np.pi / 2 - altitude, azimuth)]
        yield ("angle of incidence, pvlib", seconds(PAIRS["surface angles"][0]), seconds(lambda: pv.aoi(*degrees)))
        normal = np.full(COUNT, 1367.0)
        mass = 1 / np.sin(altitude).astype(float)
        ours = lambda: climate.perez_diffuse(altitude, tilt, direct, diffuse, incidence, 1367)  # noqa: E731
        yield "Perez sky, pvlib", seconds(ours), seconds(lambda: pv.perez(
            degrees[0], degrees[1], diffuse.astype(float), direct.astype(float), normal, degrees[2], degrees[3], mass))
    except ImportError:
        pass
    try:
        import psychrolib

        psychrolib.SetUnitSystem(psychrolib.SI)
        few = t[: min(COUNT, 20000)]
        theirs = seconds(lambda: [psychrolib.GetSatVapPres(each) for each in few.tolist()]) * COUNT / len(few)
        yield "saturation pressure, PsychroLib", seconds(PAIRS["saturation pressure"][0]), theirs
    except ImportError:
        pass


def one_element():
    for name, call in {"vapour_pressure(20, 50)": lambda: psychro.vapour_pressure(20, 50),
                       "solar_geometry(0.9, 172, 12)": lambda: climate.solar_geometry(0.9, 172, 12),
                       "np.hypot(20.0, 50.0)": lambda: np.hypot(20.0, 50.0)}.items():
        print(f"{name:34} {min(timeit.repeat(call, number=20000, repeat=5)) / 20000 * 1e9:8.0f} ns a call")


def beyond(level):
    """What NumPy would use of this processor that one of the level has not."""
    found = np.show_config(mode="dicts")["SIMD Extensions"].get("found", ())
    v3 = ("X86_V3", "AVX", "AVX2", "F16C", "FMA3", "FMA4", "XOP")
    return " ".join(each for each in found if each.startswith(("AVX512", "X86_V4")) and level < "v4" or each in v3 and level < "v3")


def report(level, best):
    def line(name, ours, theirs):
        print(f"{level}  {name:32} {ours / COUNT * 1e9:8.2f} {theirs / COUNT * 1e9:9.2f}   {theirs / ours:6.1f} times")

    for row in rows():
        line(*row)
    if level == best:
        for row in others():
            line(*row)
        one_element()


def main():
    print(f"NumPy {np.__version__}, {COUNT} elements, ns an element", flush=True)
    for level in ("v2", "v3", "v4"):
        if level <= quorvel.level():
            settings = {"QUORVEL_LEVEL": level, "NPY_DISABLE_CPU_FEATURES": beyond(level)}
            program = f"import python_ratios; python_ratios.report({level!r}, {quorvel.level()!r})"
            subprocess.run([sys.executable, "-W", "ignore", "-c", program, str(COUNT)], check=True,
                           env={**os.environ, **settings, "PYTHONPATH": os.pathsep.join((HERE, *sys.path))})


if __name__ == "__main__":
    main()
