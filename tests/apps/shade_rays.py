"""An independent way to the sunlit part of a window: rays sent from its points to the sun."""

import math
import random

from shade_input import WINDOW


def direction(altitude, azimuth):
    """East, north, up; degrees."""
    h, a = math.radians(altitude), math.radians(azimuth)
    return math.sin(a) * math.cos(h), math.cos(a) * math.cos(h), math.sin(h)


def dot(a, b):
    return sum(x * y for x, y in zip(a, b))


def from_window(vector, orientation, tilt):
    """A vector's parts to the right of one who looks at the window, up its slope, and out of it."""
    facing, slope = math.radians(orientation), math.radians(tilt)
    out = (math.sin(facing), math.cos(facing))
    return (dot(vector, (-out[1], out[0], 0)),
            dot(vector, (-out[0] * math.cos(slope), -out[1] * math.cos(slope), math.sin(slope))),
            dot(vector, (out[0] * math.sin(slope), out[1] * math.sin(slope), math.cos(slope))))


def upright(point, tilt):
    """Right, up and horizontally out, of a point or direction right, up the slope and out of the glass."""
    x, y, z = point
    slope = math.radians(tilt)
    return x, y * math.sin(slope) + z * math.cos(slope), z * math.sin(slope) - y * math.cos(slope)


def meets_fin(fin, x, height, point, ray):
    if ray[0] == 0:
        return False
    t = (x - point[0]) / ray[0]
    y, z = point[1] + t * ray[1], point[2] + t * ray[2]
    return t > 0 and -fin.get("below", 0) <= y <= height + fin.get("above", 0) and z <= fin["depth"]


def meets_overhang(overhang, width, height, point, ray):
    slope = math.radians(overhang.get("slope", 0))
    across, along = (math.cos(slope), math.sin(slope)), (-math.sin(slope), math.cos(slope))
    speed = dot(across, ray[1:])
    if speed == 0:
        return False
    y = point[1] - height - overhang.get("offset", 0)
    t = -dot(across, (y, point[2])) / speed
    x = point[0] + t * ray[0]
    return (t > 0 and -overhang.get("left", 0) <= x <= width + overhang.get("right", 0) and
            0 <= dot(along, (y + t * ray[1], point[2] + t * ray[2])) <= overhang["depth"])


def meets_box(box, window, point, ray):
    """Point and ray are upright; the box is met by its slabs in its own axes."""
    turn = math.radians(box.get("rotation", 0))
    def turned(right, out):
        return right * math.cos(turn) + out * math.sin(turn), out * math.cos(turn) - right * math.sin(turn)
    start = turned(point[0] - window["width"] / 2 - box.get("offset", 0), point[2] - box["distance"])
    speed = turned(ray[0], ray[2])
    sill = window.get("sill", 0)
    slabs = [(start[0], speed[0], -box["width"] / 2, box["width"] / 2), (start[1], speed[1], 0, box.get("depth", 0)),
             (point[1], ray[1], box.get("base", 0) - sill, box["top"] - sill)]
    first, last = 0, math.inf
    for at, v, low, high in slabs:
        if v == 0:
            if not low <= at <= high:
                return False
            continue
        near, far = sorted(((low - at) / v, (high - at) / v))
        first, last = max(first, near), min(last, far)
    return first <= last


def sunlit_fraction(row, obstructions, window, left_fin=None, right_fin=None, overhang=None, cells=48):
    """Of a stratified sample of the window's points, at the sun of a row of the program's output."""
    window = WINDOW | window
    width, height, tilt = window["width"], window["height"], window.get("tilt", 90)
    ray = from_window(direction(row["sun_altitude_deg"], row["sun_azimuth_deg"]), window["orientation"], tilt)
    upright_ray = upright(ray, tilt)
    source = random.Random(1)

    def shaded(point):
        return ((left_fin and meets_fin(left_fin, -left_fin.get("offset", 0), height, point, ray)) or
                (right_fin and meets_fin(right_fin, width + right_fin.get("offset", 0), height, point, ray)) or
                (overhang and meets_overhang(overhang, width, height, point, ray)) or
                any(meets_box(box, window, upright(point, tilt), upright_ray) for box in obstructions))
    points = (((i + source.random()) * width / cells, (j + source.random()) * height / cells, 0)
              for i in range(cells) for j in range(cells))
    return sum(not shaded(point) for point in points) / cells ** 2
