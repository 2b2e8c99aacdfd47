"""Input for quorvel window: plain cases to vary, and what its answer says."""

import json

import host

SITE = {"name": "Somewhere", "latitude": 50, "longitude": 0, "height": 50, "class": 5}
DAY = {"month": "June", "room": 20, "outdoor_min": 10, "outdoor_max": 20}
CLEAR = {"transmittance": 0.8}
COATED = {"transmittance": 0.4, "reflectance": 0.3}
WINDOW = {"name": "South", "orientation": 180, "area": 2, "panes": [CLEAR, CLEAR], "gap": 16}
SHADED = {"name": "South", "width": 2, "height": 1.5, "orientation": 180}
SCREEN = {"name": "Screen", "distance": 5, "width": 4, "top": 6}


def given(keys):
    return {key: value for key, value in keys.items() if value is not None}


def job(*windows, site=None, day=None):
    return (host.table("[site]", given(SITE | (site or {}))) + host.table("[day]", given(DAY | (day or {}))) +
            "".join(host.table("[[window]]", given(WINDOW | keys)) for keys in windows or [{}]))


def shaded(*obstructions, site=None, day=None, window=None, **fixed):
    """As for sunlight and shade alone: a single window without glazing; `fixed` are left_fin, right_fin, overhang."""
    return (host.table("[site]", {"name": "Somewhere", "latitude": 50} | (site or {})) +
            host.table("[day]", day or {"month": "June"}) + host.table("[window]", SHADED | (window or {})) +
            "".join(host.table(f"[{name}]", keys) for name, keys in fixed.items()) +
            "".join(host.table("[[obstruction]]", SCREEN | keys) for keys in obstructions))


def answer(text, *arguments, files=None):
    process = host.run("window", "--json", *arguments, "job.toml", files={"job.toml": text} | (files or {}))
    assert process.returncode == 0, process.stderr.decode()
    return json.loads(process.stdout)


def figure(part, key):
    return part["figures"][key]["value"]


def rows(part, table="hours"):
    return part["tables"][table]["rows"]
