use crate::climate::{self, LocateStationBand, StationClimate};
use crate::{check, sys, BandSet, Error};
use std::io;
use std::path::{Path, PathBuf};
use std::ptr::NonNull;

/// An open climate data file: band climate of many stations, monthly.
///
/// Objects have nothing in common, those of one file either. One thread at a time may use an object.
///
/// ```no_run
/// use quorvel::{BandSet, ClimateFile};
///
/// let file = ClimateFile::open("stations.climate")?;
/// println!("{}", file.station_climate(12, 0, 7, BandSet::First, 97.5)?.q3);
/// # Ok::<(), quorvel::Error>(())
/// ```
#[derive(Debug)]
pub struct ClimateFile {
    path: PathBuf,
    file: NonNull<sys::quorvel_climate_file>,
}

// No thread owns what the library keeps of a file.
unsafe impl Send for ClimateFile {}

impl ClimateFile {
    /// Opens a regular file.
    ///
    /// # Errors
    /// [`Error::File`] where there is none, or it may not be read.
    pub fn open(path: impl AsRef<Path>) -> Result<ClimateFile, Error> {
        let path = path.as_ref().to_owned();
        let name = check::text("ClimateFile::open", "path", &path)?;
        let mut status = sys::QUORVEL_OK;
        match NonNull::new(unsafe { sys::quorvel_climate_file_open(name.as_ptr(), &mut status) }) {
            Some(file) => Ok(ClimateFile { path, file }),
            None => Err(Error::File { kind: kind(&path, status), path }),
        }
    }

    /// As it was given.
    pub fn path(&self) -> &Path {
        &self.path
    }

    /// Climate of a month, 1 to 12: of a band from 1 to 10 or, for band 0, at a cumulative percentage of days.
    ///
    /// # Errors
    /// Where an argument is not valid, or the file has no such station.
    pub fn station_climate(
        &self, station: i32, band: i32, month: i32, band_set: BandSet, percentage: f32,
    ) -> Result<StationClimate, Error> {
        climate::check_station_climate(station, band, month, percentage)?;
        let (mut q, mut times) = ([0.0; 7], [0.0; 2]);
        self.found(station, unsafe {
            sys::quorvel_climate_file_station_climate(
                self.file.as_ptr(), station, band, month, band_set.into(), percentage, q.as_mut_ptr(),
                times.as_mut_ptr(),
            )
        })?;
        let ([q1, q2, q3, q4, q5, q6, q7], [time_a, time_b]) = (q, times);
        Ok(StationClimate { q1, q2, q3, q4, q5, q6, q7, time_a, time_b })
    }

    /// Where a cumulative fraction of days, 0 to 1, lies among the ten bands of a month.
    ///
    /// # Errors
    /// Where an argument is not valid, or the file has no such station.
    pub fn locate_band(
        &self, station: i32, band_set: BandSet, fraction: f32, month: i32,
    ) -> Result<LocateStationBand, Error> {
        check_station(station)?;
        climate::check_locate_station_band(fraction, month)?;
        let mut band = LocateStationBand { lower_band: 0, upper_band: 0, band_weight: f32::NAN };
        self.found(station, unsafe {
            sys::quorvel_climate_file_locate_station_band(
                self.file.as_ptr(), station, band_set.into(), fraction, month, &mut band.lower_band,
                &mut band.upper_band, &mut band.band_weight,
            )
        })?;
        Ok(band)
    }

    /// Value between the rows `base_row + band.lower_band` and `base_row + band.upper_band`.
    ///
    /// # Errors
    /// Where an argument is not valid, or the file has no such station.
    pub fn interpolate_rows(
        &self, station: i32, base_row: i32, band: LocateStationBand, month: i32,
    ) -> Result<f32, Error> {
        check_station(station)?;
        climate::check_interpolate_station_rows(
            base_row, band.lower_band, band.upper_band, month, band.band_weight,
        )?;
        let mut value = f32::NAN;
        self.found(station, unsafe {
            sys::quorvel_climate_file_interpolate_station_rows(
                self.file.as_ptr(), station, base_row, band.lower_band, band.upper_band, month, band.band_weight,
                &mut value,
            )
        })?;
        Ok(value)
    }

    /// A row, a value for each month: 1 time A, 2 time B, 3 to 12 frequencies of the bands, 13 to 82 Q1 to Q7, ten
    /// each; 82 more in set 2.
    ///
    /// # Errors
    /// Where an argument is not valid, or the file has no such station.
    pub fn row(&self, station: i32, row: i32) -> Result<[f32; 12], Error> {
        check_station(station)?;
        climate::check_station_row(row)?;
        let mut values = [f32::NAN; 12];
        self.found(station, unsafe {
            sys::quorvel_climate_file_station_row(self.file.as_ptr(), station, row, values.as_mut_ptr())
        })?;
        Ok(values)
    }

    fn found(&self, station: i32, status: i32) -> Result<(), Error> {
        match status {
            sys::QUORVEL_OK => Ok(()),
            _ => Err(Error::Station { path: self.path.clone(), station }),
        }
    }
}

impl Drop for ClimateFile {
    fn drop(&mut self) {
        unsafe { sys::quorvel_climate_file_close(self.file.as_ptr()) }
    }
}

fn check_station(station: i32) -> Result<(), Error> {
    check::range("ClimateFile", "station", &station, 1..=i32::MAX, "")
}

fn kind(path: &Path, status: i32) -> io::ErrorKind {
    if status == sys::QUORVEL_NO_MEMORY {
        return io::ErrorKind::OutOfMemory;
    }
    match std::fs::metadata(path) {
        Ok(metadata) if !metadata.is_file() => io::ErrorKind::Other, // to open a pipe would wait for a writer
        Ok(_) => std::fs::File::open(path).map_or_else(|error| error.kind(), |_| io::ErrorKind::Other),
        Err(error) => error.kind(),
    }
}
