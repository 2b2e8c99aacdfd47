use quorvel::polygon::{area, clip, total_area, Point};
use quorvel::{climate, fabric, geometry, psychro, unchecked};
use quorvel::{BandSet, ClimateFile, Error, Psychrometer};
use std::thread;

const MANY: [f32; 21] = [0.0; 21]; // layers
const SQUARE: [Point; 4] = [[0.0, 0.0], [0.0, 2.0], [2.0, 2.0], [2.0, 0.0]];

fn assert_says<T: std::fmt::Debug>(result: Result<T, Error>, text: &str) {
    assert_eq!(result.unwrap_err().to_string(), text);
}

#[test]
fn refused() {
    assert_says(
        psychro::vapour_pressure(20.0, 150.0),
        "psychro::vapour_pressure: relative_humidity = 150 is not valid: 0 to 100 %",
    );
    assert_says(
        psychro::dew_point(f32::NAN),
        "psychro::dew_point: vapour_pressure = NaN is not valid: from 0 Pa",
    );
    assert_says(
        fabric::u_value(&[0.1, f32::NAN], &[1.0, 1.0], 0.13, 0.04),
        "fabric::u_value: thickness[1] = NaN is not valid: any number",
    );
    assert_says(
        fabric::u_value(&[0.1, 0.1], &[1.0; 3], 0.13, 0.04),
        "fabric::u_value: conductivity has 3 elements; valid are as many as of thickness, 2",
    );
    assert_says(
        fabric::u_value(&MANY, &MANY, 0.13, 0.04),
        "fabric::u_value: thickness has 21 elements; valid are 0 to 20",
    );
    assert_says(
        geometry::inside(&[0.0; 3], &[[0.0; 3], [0.0; 3], [0.0, f32::NAN, 0.0], [0.0; 3]]),
        "geometry::inside: polygon[2][1] = NaN is not valid: any number",
    );
    assert_says(Psychrometer::try_from(3), "Psychrometer::try_from: number = 3 is not valid: 1 (Sling), 2 (Screen)");
    assert!(climate::station_records("a\0b", 1, 1, &[[0.0; 11]; 12]).unwrap_err().to_string().contains("NUL"));
}

#[test]
fn unchecked_is_left_alone() {
    let day = unchecked::climate::solar_geometry(0.9, 400, 12.0); // there is no such day
    assert!(day.sunrise.is_nan() && day.solar_altitude == 0.0);
    assert!(unchecked::fabric::u_value(&MANY, &MANY, 0.13, 0.04).unwrap().is_nan());
    let shares = |panes: i32| unchecked::glazing::unit_direct_shares(0.5, 0.1, 0.0, panes).map(|unit| unit.pane_shares);
    assert!(shares(7).unwrap().iter().all(|share| share.is_nan()));
    assert!(shares(-1).unwrap().is_empty());
    assert!(shares(i32::MAX).is_err());
    assert!(unchecked::fabric::u_value(&[0.0; 2], &[0.0; 3], 0.0, 0.0).is_err());
    let reading = |psychrometer: i32| {
        unchecked::psychro::vapour_pressure_from_psychrometer(25.0, 20.0, 101325.0, psychrometer)
    };
    assert_eq!(reading(9), reading(Psychrometer::Screen.into()));
}

#[test]
fn whole_arrays() {
    let hours: Vec<f32> = (0..24u8).map(f32::from).collect();
    let day = climate::arrays::solar_geometry(0.9, 172, &hours).unwrap();
    assert!(day.iter().all(|hour| hour.solar_altitude <= day[12].solar_altitude));
    assert_eq!(climate::solar_geometry(0.9, 172, 7.0).unwrap().solar_azimuth, day[7].solar_azimuth);
    let bulbs = [Psychrometer::Sling, Psychrometer::Screen];
    let pressures = psychro::arrays::vapour_pressure_from_psychrometer(25.0, 20.0, 101325.0, &bulbs).unwrap();
    assert!(pressures[0] > pressures[1]);
    assert_eq!(geometry::arrays::length(&[[3.0, 4.0, 0.0], [0.0, 0.0, 2.0]]).unwrap(), [5.0, 2.0]);
    assert_eq!(geometry::arrays::coincide(&[0.0, 5.0], 0.0, 0.0, 0.0).unwrap(), [true, false]);
    assert_eq!(psychro::arrays::dew_point(&Vec::new()).unwrap(), []);
    assert_says(
        psychro::arrays::dew_point(&[1000.0, -1.0]),
        "psychro::dew_point: vapour_pressure[1] = -1 is not valid: from 0 Pa",
    );
    assert_says(
        psychro::arrays::vapour_pressure(&[1.0; 3], &[1.0; 2]),
        "psychro::vapour_pressure: relative_humidity has 2 elements; valid are as many as of dry_bulb, 3",
    );
}

#[test]
fn climate_files() {
    let name = "Klimadaten \u{e9}\u{6c17}.climate"; // of two and three bytes in UTF-8
    std::fs::copy("example.climate", name).unwrap();
    let file = ClimateFile::open(name).unwrap();
    assert!((file.station_climate(1, 1, 1, BandSet::First, 0.0).unwrap().q3 - 4.337352).abs() < 2e-5);
    let band = file.locate_band(1, BandSet::First, 0.343052, 1).unwrap();
    assert_eq!((band.lower_band, band.upper_band), (3, 4));
    assert_eq!(file.row(1, 1).unwrap()[..3], [15.0, 14.0, 15.0]);
    assert!((file.interpolate_rows(1, 12, band, 1).unwrap() - 0.532542).abs() < 2e-5);
    assert_eq!(file.row(5000, 1).unwrap_err(), Error::Station { path: name.into(), station: 5000 });
    assert_says(
        file.station_climate(1, 1, 13, BandSet::First, 0.0),
        "climate::station_climate: month = 13 is not valid: 1 to 12",
    );
    let kind = |path| match ClimateFile::open(path) {
        Err(Error::File { kind, .. }) => kind,
        other => panic!("{other:?}"),
    };
    assert_eq!(kind("no.climate"), std::io::ErrorKind::NotFound);
    assert_eq!(kind("corpus"), std::io::ErrorKind::Other);
}

#[test]
fn polygons() {
    let moved = |[dx, dy]: Point| SQUARE.map(|[x, y]| [x + dx, y + dy]);
    let clipped = clip(&SQUARE, &moved([1.0, 1.0])).unwrap();
    assert!((total_area(&clipped.overlap) - 1.0).abs() < 1e-3);
    assert!((total_area(&clipped.overlap) + total_area(&clipped.difference) - area(&SQUARE)).abs() < 1e-12);
    assert!(clip(&SQUARE, &moved([9.0, 0.0])).unwrap().overlap.is_empty());
    let upright = comb();
    let level: Vec<Point> = upright.iter().map(|[x, y]| [y - 0.5, x + 0.5]).collect();
    assert_eq!(clip(&upright, &level).unwrap().overlap.len(), 25); // more crossings than there is room for at first
    let bow = [[0.0, 0.0], [2.0, 2.0], [2.0, 0.0], [0.0, 2.0]];
    assert_says(clip(&bow, &SQUARE), "polygon::clip: a crosses itself");
    assert_eq!(clip(&SQUARE, &[]), Err(Error::Clipping { status: 2 }));
    assert_eq!(clip(&SQUARE, &moved([f64::NAN, 0.0])), Err(Error::Clipping { status: 109 }));
}

/// Five teeth, 1 m wide and 10 m high, on a bar.
fn comb() -> Vec<Point> {
    let teeth = (0..5).map(|k| f64::from(2 * k));
    let tooth = |x: f64| [[x, 0.0], [x, 10.0], [x + 1.0, 10.0], [x + 1.0, 0.0]];
    [[9.0, -1.0], [0.0, -1.0]].into_iter().chain(teeth.flat_map(tooth)).collect()
}

#[test]
fn threads() {
    let rows = || {
        let file = ClimateFile::open("example.climate").unwrap();
        thread::spawn(move || (0..500).map(|k| file.row(1 + k % 90, 1 + k % 160).unwrap()[0]).collect::<Vec<_>>())
    };
    let both: Vec<_> = [rows(), rows()].into_iter().map(|each| each.join().unwrap()).collect();
    assert_eq!(both[0], both[1]);
}
