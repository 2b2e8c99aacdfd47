"""Input for the shade program: a plain case to vary, and what its --csv output says."""

import host

SITE = {"name": "Somewhere", "latitude": 50}
DAY = {"month": "June"}
WINDOW = {"name": "South", "width": 2, "height": 1.5, "orientation": 180}
SCREEN = {"name": "Screen", "distance": 5, "width": 4, "top": 6}


def job(*obstructions, site=None, day=None, window=None, **fixed):
    """`fixed` are left_fin, right_fin and overhang."""
    return (host.table("[site]", SITE | (site or {})) + host.table("[day]", day or DAY) +
            host.table("[window]", WINDOW | (window or {})) +
            "".join(host.table(f"[{name}]", keys) for name, keys in fixed.items()) +
            "".join(host.table("[[obstruction]]", SCREEN | keys) for keys in obstructions))


def read(text):
    process = host.run("--csv", "job.toml", files={"job.toml": text})
    assert process.returncode == 0, process.stderr.decode()
    return host.rows(process.stdout.decode())


def hours(*obstructions, **keys):
    """The rows of the 24 hours; [11] is noon."""
    return read(job(*obstructions, **keys))


def sunny(*obstructions, **keys):
    """The rows of the hours with sun on the window."""
    return [row for row in hours(*obstructions, **keys) if row["sunlit_pct"] is not None]
