"""Input for the designday program: a plain case to vary, and what its --csv output says."""

import host

SITE = {"name": "Somewhere", "latitude": 50, "longitude": 0, "height": 50, "class": 5}
DAY = {"month": "June", "room": 20, "outdoor_min": 10, "outdoor_max": 20}
CLEAR = {"transmittance": 0.8}
COATED = {"transmittance": 0.4, "reflectance": 0.3}
WINDOW = {"name": "South", "orientation": 180, "area": 2, "panes": [CLEAR, CLEAR]}


def window(name, orientation, **keys):
    if "shading" in keys:
        keys["panes"] = None
    return given(WINDOW | {"name": name, "orientation": orientation} | keys)


def given(keys):
    return {key: value for key, value in keys.items() if value is not None}


def job(*windows, site=None, day=None):
    return (host.table("[site]", SITE | (site or {})) + host.table("[day]", given(DAY | (day or {}))) +
            "".join(host.table("[[window]]", keys) for keys in windows or [WINDOW]))


def hours(*windows, site=None, day=None, files=None):
    """By window name, the rows of the 24 hours; [11] is noon."""
    process = host.run("--csv", "job.toml", files={"job.toml": job(*windows, site=site, day=day)} | (files or {}))
    assert process.returncode == 0, process.stderr.decode()
    by_name = {}
    for row in host.rows(process.stdout.decode()):
        by_name.setdefault(row["window"], []).append(row)
    return by_name
