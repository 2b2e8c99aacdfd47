"""Parametric studies: the model's own invariants, the same bits from every engine, and what survives a fault."""

import os
import signal
import subprocess
import sys
import time
from pathlib import Path

import numpy as np
import pytest

pytest.importorskip("zarr", minversion="3.1.6")
xarray = pytest.importorskip("xarray")

from quorvel import climate, glazing, study  # noqa: E402
from quorvel.study import model, sun, weather  # noqa: E402
from quorvel.study.__main__ import main  # noqa: E402
from quorvel.study.chunks import chunks  # noqa: E402
from quorvel.study.store import Result  # noqa: E402

EXAMPLE = Path(__file__).parents[2] / "bindings" / "python" / "examples" / "facade.toml"
TEXT = """
[output]
keep = ["hourly", "monthly", "annual", "peak"]
chunk_elements = 35040

[orientations]
azimuths = 8
tilts = [30, 90]

[[glazings]]
name = "clear"
panes = [{ transmittance = 0.82 }]

[[glazings]]
name = "coated"
panes = [{ transmittance = 0.82 }, { transmittance = 0.60, reflectance = 0.28 }]

[[blinds]]
name = "none"
kind = "none"

[[blinds]]
name = "slats"
kind = "slatted"
spacing = 70
width = 80
angle = 45
absorptance = 0.3

[[stations]]
name = "Tromsø"
latitude = 69.65
longitude = 18.96
time_zone = 1

[[stations]]
name = "Quito"
latitude = -0.2
longitude = -78.5
time_zone = -5
height = 2850
"""
EPW = '[[stations]]\nepw = "{}"\n'


def written(folder, text=TEXT):
    path = folder / "facade.toml"
    path.write_text(text, encoding="utf-8")
    return path


def epw(path, direct, diffuse, hours=8760):
    """A weather file with the same irradiance from 10:00 to 14:00 of all days: the sun is 9° high or more."""
    lines = ["LOCATION,Here,-,-,-,0,51.5,0,0,20"] + ["-"] * 6 + ["DATA PERIODS"]
    for hour in range(hours):
        month = int(np.searchsorted(sun.MONTHS, hour, "right"))
        day, hour = divmod(hour - sun.MONTHS[month - 1], 24)
        fields = ["0"] * 20
        if 10 <= hour < 14:
            fields[8:10] = str(direct), str(diffuse)
        lines.append(",".join(map(str, [1999, month, day + 1, hour + 1, 60, "?", *fields])))
    path.write_text("\n".join(lines) + "\n")
    return path


@pytest.fixture(scope="module")
def cube(tmp_path_factory):
    """A finished study, by one thread, with all variables in memory."""
    folder = tmp_path_factory.mktemp("study")
    assert main([str(written(folder)), "--threads", "1"]) == 0
    return xarray.open_zarr(folder / "facade.zarr").load()


def same_bits(cube, path):
    other = xarray.open_zarr(path)
    return all(cube[name].values.tobytes() == other[name].values.tobytes() for name in cube.data_vars)


def test_cube_is_labelled_and_consistent(cube):
    hourly = cube.transmitted_hourly
    assert hourly.dims == ("station", "tilt", "azimuth", "glazing", "blind", "time")
    assert (hourly.units, cube.transmitted_annual.units) == ("W/m2", "kWh/m2")
    assert list(cube.station.values) == ["Tromsø", "Quito"]
    assert cube.time.values[0] == np.datetime64("2005-01-01T00:30")
    months = hourly.astype("f8").groupby("time.month").sum() / 1000
    np.testing.assert_allclose(cube.transmitted_monthly, months.transpose(..., "month"), rtol=1e-6, atol=1e-6)
    np.testing.assert_allclose(cube.transmitted_annual, months.sum("month"), rtol=1e-6)
    np.testing.assert_array_equal(cube.transmitted_peak, hourly.max("time"))
    assert float(hourly.sel(station="Tromsø", time="2005-12-21").max()) == 0  # polar night
    to_the_north = hourly.sel(station="Tromsø", azimuth=0, tilt=90, glazing="clear", blind="none")
    assert float(to_the_north.sel(time="2005-06-21T00:30")) > 0  # midnight sun
    assert (hourly.sel(blind="slats") <= hourly.sel(blind="none")).all()


@pytest.mark.parametrize("longitude, zone", [(0, 0), (135, 9), (-150, 14), (-75, -5)])
def test_morning_of_an_east_wall_is_the_afternoon_of_a_west_wall(longitude, zone):
    """On a day without equation of time, at the meridian of the zone, also beyond the date line."""
    station = {"latitude": 40.0, "longitude": float(longitude), "time_zone": float(zone), "height": 0.0}
    hours = model.hours_of(weather.weather_of(station))
    of_day = (hours.number // 24) == 163  # 13 June
    whole = [np.zeros(24) for _ in range(2)]
    for azimuth, values in zip((90, 270), whole):
        facade = model.facade(hours, azimuth, 90, 0.2)
        arriving = facade.sky + facade.ground
        arriving[facade.lit] += facade.beam
        values[hours.number[of_day] % 24] = arriving[of_day]
    np.testing.assert_allclose(whole[0][6:18], whole[1][17:5:-1], rtol=0.02)  # at sunrise seconds count
    assert whole[0][:12].sum() > 3 * whole[0][12:].sum()


def test_overcast_rooflight_passes_diffuse_transmittance(tmp_path):
    """A level pane under a sky without sun: the sky's model must give back the diffuse irradiance."""
    station = {"epw": str(epw(tmp_path / "overcast.epw", 0, 100))}
    hours = model.hours_of(weather.weather_of(station))
    unit = model.panes_together([{"transmittance": 0.83, "reflectance": 0.0}])
    blinds = model.slats_and_rollers([{"kind": "roller", "transmittance": 1.0, "reflectance": 0.0}])
    q, = model.transmitted(model.facade(hours, 0, 0, 0.2), [unit], blinds)
    expected = 100 * 4 * 365 / 1000 * float(glazing.glass_diffuse(0.83, 0).transmittance)
    np.testing.assert_allclose(model.reduced(q, hours.number, ["annual"])["annual"], expected, rtol=1e-4)


def test_blind_and_glazing_reflect_to_and_fro():
    """The series in closed form is what the tracing of two layers tends to."""
    panes = [{"transmittance": 0.82, "reflectance": 0.0}, {"transmittance": 0.6, "reflectance": 0.28}]
    unit = model.panes_together(panes)
    screen = {"kind": "roller", "transmittance": 0.2, "reflectance": 0.7}
    only_sky = model.Facade(np.array([], int), *np.zeros((1, 0), "f4"), np.full(1, 1000, "f4"), np.zeros(1, "f4"),
                            *np.zeros((2, 0), "f4"))
    q, = model.transmitted(only_sky, [unit], model.slats_and_rollers([screen]))
    layers = np.array([[0.2, 0.1, 0.7], [unit.diffuse_transmittance, 0.2, unit.inner_reflectance]], "f4").T
    assert q[0, 0] == pytest.approx(1000 * float(glazing.traced_layers(*layers).transmittance), rel=1e-5)


def test_chunks_of_any_size_have_the_same_bits(cube, tmp_path):
    path = written(tmp_path, TEXT.replace("chunk_elements = 35040", "chunk_elements = 500000"))
    assert main([str(path), "--threads", "3"]) == 0
    assert same_bits(cube, tmp_path / "facade.zarr")


def test_result_in_an_object_store(cube, tmp_path, capsys):
    """On a real file system of fsspec; what is known of chunks is only that their objects are there."""
    files, url = pytest.importorskip("fsspec").filesystem("memory"), f"memory://{tmp_path.name}/facade.zarr"
    path = written(tmp_path)
    assert main([str(path), "--threads", "2", "--result", url]) == 0
    assert same_bits(cube, url)
    lost = [name for name in files.ls(url + "/transmitted_peak", detail=False) if "/c." in name][3:6]
    files.rm(lost)
    assert len(study.run(study.open_result(study.read_study(path), url))) == len(lost) and same_bits(cube, url)
    other = written(tmp_path, TEXT.replace("azimuths = 8", "azimuths = 9"))
    assert main([str(other), "--result", url]) == 2
    assert "another study, with different azimuths" in capsys.readouterr().err
    path = written(tmp_path)
    files.pipe(f"{url}/zarr.json", b'{"zarr_format": 3, "node_type": "group", "attributes": {}}')  # not finished
    assert main([str(path), "--result", url]) == 2 and "not the result of a study" in capsys.readouterr().err
    assert main([str(path), "--result", f"file://{tmp_path}/facade%20two.zarr"]) == 0
    assert same_bits(cube, tmp_path / "facade two.zarr")


@pytest.mark.parametrize("place, complaint", [
    (["--result", "https://a/b.zarr"], "https://a/b.zarr: a result is a folder, or in one of the stores s3://"),
    (["--result", "memory://b.zarr", "--scheduler", "tcp://127.0.0.1:1"], "memory://b.zarr is in the memory of this process"),
])
def test_stores_that_do_not_serve_are_refused(tmp_path, capsys, place, complaint):
    assert main([str(written(tmp_path)), *place]) == 2
    assert complaint in capsys.readouterr().err


class Counted(Result):
    """Writes down each chunk that it has written; a child process finds it by its name."""

    def write(self, place, arrays):
        super().write(place, arrays)
        with open(self.path + ".written", "a") as log:
            log.write(f"{place}\n")
        time.sleep(0.02)

    def __reduce__(self):
        return Counted, (self.path,)


def test_killed_worker_loses_nothing_and_repeats_nothing(cube, tmp_path):
    distributed = pytest.importorskip("distributed")
    facade = study.read_study(written(tmp_path))
    result = Counted(study.open_result(facade, tmp_path / "facade.zarr").path)
    finished = []

    def kill_one(done):
        finished.append(done)
        if len(finished) == 5:
            os.kill(int(done.worker.split(":")[1]), signal.SIGKILL)

    with distributed.LocalCluster(2, threads_per_worker=1, processes=True, dashboard_address=None) as cluster, \
            distributed.Client(cluster) as client:
        study.run(result, client.get_executor(), 2, kill_one)
    assert sorted(done.place for done in finished) == chunks(facade)
    assert len({done.worker for done in finished}) > 1
    log = Path(result.path + ".written").read_text().splitlines()
    assert len(log) == len(set(log)) >= len(chunks(facade)) - 1  # the killed one may not have come to writing it down
    assert same_bits(cube, result.path)


@pytest.mark.skipif(os.name == "nt", reason="signals of POSIX")
@pytest.mark.parametrize("signal_sent, code", [(signal.SIGINT, 130), (signal.SIGKILL, -signal.SIGKILL)])
def test_stopped_run_goes_on_with_what_is_missing(tmp_path, signal_sent, code):
    short = TEXT.replace('"hourly", "monthly", "annual", ', "")
    path = written(tmp_path, short.replace("azimuths = 8", "azimuths = 60"))
    command = [sys.executable, "-m", "quorvel.study", str(path), "--threads", "1"]
    process = subprocess.Popen(command, stderr=subprocess.DEVNULL)
    chunk_files = tmp_path / "facade.zarr" / "transmitted_peak"
    while len(list(chunk_files.glob("c.*"))) < 5:
        assert process.poll() is None
        time.sleep(0.01)
    process.send_signal(signal_sent)
    assert process.wait(20) == code
    facade = study.read_study(path)
    result = study.open_result(facade, tmp_path / "facade.zarr")
    there, everything = result.done(), chunks(facade)
    assert 5 <= len(there) < len(everything)
    assert {done.place for done in study.run(result)} == set(everything) - set(there)
    assert not np.isnan(xarray.open_zarr(result.path).transmitted_peak).any()
    assert study.run(result) == []


def test_result_of_another_study_is_refused(tmp_path, capsys):
    assert main([str(written(tmp_path)), "--threads", "1"]) == 0
    path = written(tmp_path, TEXT.replace("azimuths = 8", "azimuths = 9"))
    assert main([str(path)]) == 2
    assert "another study, with different azimuths" in capsys.readouterr().err
    (tmp_path / "else").mkdir()
    assert main([str(path), "--result", str(tmp_path / "else")]) == 2
    assert "not the result of a study" in capsys.readouterr().err


def test_plan_computes_nothing(tmp_path, capsys):
    assert main([str(written(tmp_path)), "--plan"]) == 0
    assert "1.121e+06 = 2 x 2 x 8 x 2 x 2 x 8760 hours" in capsys.readouterr().out
    assert not (tmp_path / "facade.zarr").exists()


@pytest.mark.parametrize("old, new, complaint", [
    ("[output]", "[output", "facade.toml: "),
    ("[output]", "[outputs]", "outputs is not known here; known are output, orientations"),
    ('"peak"]', '"mean"]', "output.keep = ['hourly', 'monthly', 'annual', 'mean'] must be a list of hourly"),
    ("chunk_elements = 35040", "chunk_elements = 10", "output.chunk_elements = 10 must be a whole number from 8760"),
    ("azimuths = 8", "", "orientations.azimuths is missing"),
    ("azimuths = 8", "azimuths = true", "orientations.azimuths = True must be a whole number from 1"),
    ("azimuths = 8", "azimuths = [0, 361]", "orientations.azimuths = 361 must be a number from 0 to 360 °"),
    ("azimuths = 8", "azimuths = []", "orientations.azimuths must not be empty"),
    ("tilts = [30, 90]", "tilts = [90, 90]", "orientations.tilts has a number twice"),
    ("tilts = [30, 90]", "tilts = nan", "orientations.tilts = nan must be a number from 0 to 180"),
    ("transmittance = 0.60", "transmittance = 0.93", "glazings[2].panes[2].transmittance = 0.93 must be"),
    ("reflectance = 0.28", "reflectance = 0.005", "panes[2].reflectance = 0.005 must be 0, which says uncoated"),
    ("reflectance = 0.28", "reflectance = 0.5", "panes[2].reflectance = 0.5 must be at most 0.4"),
    ("panes = [{ transmittance = 0.82 }]", "panes = []", "glazings[1].panes must be a list of tables"),
    ('name = "coated"', 'name = "clear"', "glazings has the name 'clear' twice"),
    ('kind = "slatted"', 'kind = "curtain"', "blinds[2].kind = 'curtain' must be one of slatted, roller, none"),
    ("angle = 45", "angle = 100", "blinds[2].angle = 100 must be a number from -90 to 90 °"),
    ("absorptance = 0.3", "", "blinds[2].absorptance is missing"),
    ("latitude = -0.2", "latitude = 95", "stations[2].latitude = 95 must be a number from -90 to 90"),
    ("height = 2850", "heigth = 2850", "stations[2].heigth is not known here"),
    ('name = "Tromsø"', 'epw = "none.epw"\nname = "Tromsø"', "stations[1].latitude is not known here; known are name"),
    ("height = 2850", 'height = 2850\n[[stations]]\nepw = "none*.epw"', "stations[3].epw = 'none*.epw' is no file"),
])
def test_bad_studies_are_named(tmp_path, capsys, old, new, complaint):
    assert TEXT.count(old) == 1
    assert main([str(written(tmp_path, TEXT.replace(old, new)))]) == 2
    said = capsys.readouterr().err
    assert "facade.toml: " in said and complaint in said
    assert os.listdir(tmp_path) == ["facade.toml"]


@pytest.mark.parametrize("values, complaint", [
    (dict(direct=9999, diffuse=100), "direct_normal is missing or below 0 W/m² in 1460 hours"),
    (dict(direct=0, diffuse=-5), "diffuse_horizontal is missing or below 0 W/m² in 1460 hours"),
    (dict(direct=0, diffuse=100, hours=8000), "it must hold the 8760 hours of a year from 1 January"),
])
def test_bad_weather_files_are_named(tmp_path, capsys, values, complaint):
    epw(tmp_path / "here.epw", **values)
    path = written(tmp_path, TEXT + EPW.format("*.epw"))
    assert main([str(path), "--plan"]) == 2
    assert f"here.epw: {complaint}" in capsys.readouterr().err


def test_example_is_a_study():
    assert study.read_study(EXAMPLE).shape == (3, 1, 8, 3, 3)


def test_missing_libraries_are_named(tmp_path, monkeypatch, capsys):
    monkeypatch.setitem(sys.modules, "distributed", None)
    assert main([str(written(tmp_path)), "--scheduler", "tcp://127.0.0.1:1"]) == 2
    assert "studies need distributed, which the extra study of quorvel brings" in capsys.readouterr().err
