"""Input for the wall program: a plain case to vary, and what its --csv output says."""

import host

WALL = {"name": "Somewhere"}
PLASTER = {"name": "Plaster", "thickness": 13, "conductivity": 0.57, "density": 1300, "specific_heat": 1000,
           "vapour_resistivity": 50}
BRICK = {"name": "Brick", "thickness": 220, "conductivity": 0.75, "density": 1750, "specific_heat": 800,
         "vapour_resistivity": 45}
WOOL = {"name": "Wool", "thickness": 80, "conductivity": 0.04, "density": 30, "specific_heat": 1030,
        "vapour_resistivity": 6}
CAVITY = {"name": "Cavity", "thickness": 50, "resistance": 0.18}
SHEET = {"name": "Sheet", "vapour_resistance": 250}
CLIMATE = {"inside_temperature": 20, "inside_humidity": 50, "outside_temperature": 0, "outside_humidity": 85}


def job(*layers, wall=None, climate=None):
    return (host.table("[wall]", WALL | (wall or {})) +
            "".join(host.table("[[layer]]", layer) for layer in layers or [PLASTER, BRICK]) +
            host.table("[climate]", CLIMATE | (climate or {})))


def interfaces(*layers, wall=None, climate=None):
    """The interfaces from the inside outwards; with monthly input those of January come first."""
    return read(job(*layers, wall=wall, climate=climate))


def read(text):
    process = host.run("--csv", "job.toml", files={"job.toml": text})
    assert process.returncode == 0, process.stderr.decode()
    return host.rows(process.stdout.decode())
