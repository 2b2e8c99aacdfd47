"""Input for quorvel wall: a plain case to vary, and what its answer says."""

import json

import host

WALL = {"name": "Somewhere", "inside_resistance": 0.13, "outside_resistance": 0.04}
PLASTER = {"name": "Plaster", "thickness": 13, "conductivity": 0.57, "density": 1300, "specific_heat": 1000,
           "vapour_resistivity": 50}
BRICK = {"name": "Brick", "thickness": 220, "conductivity": 0.75, "density": 1750, "specific_heat": 800,
         "vapour_resistivity": 45}
WOOL = {"name": "Wool", "thickness": 80, "conductivity": 0.04, "density": 30, "specific_heat": 1030,
        "vapour_resistivity": 6}
CAVITY = {"name": "Cavity", "thickness": 50, "resistance": 0.18}
SHEET = {"name": "Sheet", "vapour_resistance": 250}
CLIMATE = {"inside_temperature": 20, "inside_humidity": 50, "outside_temperature": 0, "outside_humidity": 85}
YEAR = [4, 5, 7, 9, 12, 15, 18, 17, 15, 11, 7, 5]


def given(keys):
    return {key: value for key, value in keys.items() if value is not None}


def job(*layers, wall=None, climate=None, more=""):
    """None takes a key away."""
    return (host.table("[wall]", given(WALL | (wall or {}))) +
            "".join(host.table("[[layer]]", given(layer)) for layer in layers or [PLASTER, BRICK]) +
            host.table("[climate]", given(CLIMATE | (climate or {}))) + more)


def answer(text, *arguments, files=None):
    process = host.run("wall", "--json", *arguments, "job.toml", files={"job.toml": text} | (files or {}))
    assert (process.returncode, process.stderr) == (0, b""), process.stderr.decode()
    return json.loads(process.stdout)


def figure(of, key):
    return of["figures"][key]["value"]


def rows(of, table="profile"):
    return of["tables"][table]["rows"]
