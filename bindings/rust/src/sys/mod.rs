//! What the libraries export, argument by argument as in quorvel.h and quorvel_arrays.h: nothing is checked.
#![allow(non_snake_case, non_camel_case_types)]

mod arrays;
mod by_reference;

pub use arrays::*;
pub use by_reference::*;

use std::os::raw::{c_char, c_void};

/// What functions of whole arrays return, plus 256 times the number of the argument that it is about.
pub const QUORVEL_OK: i32 = 0;
/// An address is null.
pub const QUORVEL_NO_ARRAY: i32 = 1;
/// A count says more or fewer numbers than there may be.
pub const QUORVEL_OUTSIDE_RANGE: i32 = 2;
/// An output overlaps another array, or itself.
pub const QUORVEL_OVERLAP: i32 = 3;
/// The routine has a state or takes a text.
pub const QUORVEL_NOT_ELEMENTWISE: i32 = 4;
/// There is no regular file of that name, or it may not be read.
pub const QUORVEL_NO_FILE: i32 = 5;
/// There is not enough memory.
pub const QUORVEL_NO_MEMORY: i32 = 6;
/// A climate data file has no such record, or fails to be read.
pub const QUORVEL_UNREADABLE: i32 = 7;

/// The type of an argument: float.
pub const QUORVEL_REAL: i32 = 1;
/// The type of an argument: double.
pub const QUORVEL_DOUBLE_REAL: i32 = 2;
/// The type of an argument: int32_t.
pub const QUORVEL_INTEGER: i32 = 3;

/// An argument of a routine.
#[repr(C)]
pub struct quorvel_argument {
    /// Of the catalogue.
    pub name: *const c_char,
    /// `QUORVEL_REAL`, `QUORVEL_DOUBLE_REAL` or `QUORVEL_INTEGER`.
    pub type_: i32,
    /// In an element, where they are not counted.
    pub numbers: i32,
    /// The input that counts so many numbers again; -1 for none.
    pub counted_by: i32,
    /// Of an input that counts.
    pub lowest: i32,
    /// Of an input that counts.
    pub highest: i32,
}

/// A routine, for callers that learn its name at run time.
#[repr(C)]
pub struct quorvel_routine {
    /// As in quorvel_NAME.
    pub name: *const c_char,
    /// In quorvel.h; null where only the array library has the routine.
    pub exported_name: *const c_char,
    /// Of the catalogue.
    pub family: *const c_char,
    /// How many there are.
    pub inputs: i32,
    /// How many there are.
    pub outputs: i32,
    /// 0 for those that only quorvel.h has.
    pub elementwise: i32,
    /// Whether an output may stand where an input of its element stands.
    pub in_place: i32,
    /// The inputs, then the outputs.
    pub arguments: *const quorvel_argument,
}

/// An open climate data file.
#[repr(C)]
pub struct quorvel_climate_file {
    opaque: [u8; 0],
}

extern "C" {
    /// A routine by either name; null if there is none.
    pub fn quorvel_find_routine(name: *const c_char) -> *const quorvel_routine;

    /// All routines, one after the other.
    pub fn quorvel_routines(count: *mut usize) -> *const quorvel_routine;

    /// A routine for `count` elements: of each input, then of each output, the first element and the stride.
    pub fn quorvel_call(
        routine: *const quorvel_routine, count: usize, at: *const *mut c_void, stride: *const isize,
    ) -> i32;

    /// What a status says, in words; returns how long the whole text is.
    pub fn quorvel_message(routine: *const quorvel_routine, status: i32, text: *mut c_char, size: usize) -> usize;

    /// The level of instructions in use.
    pub fn quorvel_level() -> *const c_char;

    /// Takes another level; 0, and no change, if it is not supported.
    pub fn quorvel_choose_level(name: *const c_char) -> i32;

    /// Null where the file cannot be opened; the status, which may be null, says why.
    pub fn quorvel_climate_file_open(path: *const c_char, status: *mut i32) -> *mut quorvel_climate_file;

    /// Null is let be.
    pub fn quorvel_climate_file_close(file: *mut quorvel_climate_file);

    /// Seven quantities and two times.
    pub fn quorvel_climate_file_station_climate(
        file: *mut quorvel_climate_file, station: i32, band: i32, month: i32, band_set: i32, percentage: f32,
        quantities: *mut f32, times: *mut f32,
    ) -> i32;

    /// Between which bands a cumulative fraction of days lies.
    pub fn quorvel_climate_file_locate_station_band(
        file: *mut quorvel_climate_file, station: i32, band_set: i32, fraction: f32, month: i32, lower_band: *mut i32,
        upper_band: *mut i32, band_weight: *mut f32,
    ) -> i32;

    /// Value between two rows.
    pub fn quorvel_climate_file_interpolate_station_rows(
        file: *mut quorvel_climate_file, station: i32, base_row: i32, lower_band: i32, upper_band: i32, month: i32,
        band_weight: f32, value: *mut f32,
    ) -> i32;

    /// Twelve values.
    pub fn quorvel_climate_file_station_row(
        file: *mut quorvel_climate_file, station: i32, row: i32, values: *mut f32,
    ) -> i32;

    /// Twelve records of eleven values, or that of one month.
    pub fn quorvel_climate_file_station_records(
        file: *mut quorvel_climate_file, station: i32, month: i32, records: *mut f32,
    ) -> i32;
}
