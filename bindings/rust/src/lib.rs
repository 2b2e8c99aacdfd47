//! Building physics: moist air, walls, panes and blinds, sun and sky, geometry and shading. Single precision, the same
//! bits on every platform.
//!
//! ```
//! use quorvel::{climate, fabric, psychro, Psychrometer};
//!
//! # fn main() -> Result<(), quorvel::Error> {
//! let pressure = psychro::vapour_pressure(20.0, 50.0)?; // 1167.8 Pa
//! # assert!((pressure - 1167.8).abs() < 0.1);
//! psychro::vapour_pressure_from_psychrometer(25.0, 20.0, 101325.0, Psychrometer::Sling)?;
//!
//! let sun = climate::solar_geometry(0.9, 172, 15.0)?; // several results: a structure
//! println!("{} {} rad", sun.solar_altitude, sun.solar_azimuth);
//!
//! fabric::u_value(&[0.1, 0.05], &[0.77, 0.04], 0.13, 0.04)?; // lists tell their own length
//! let pressures = psychro::arrays::vapour_pressure(&[18.0, 20.0, 22.0], 50.0)?; // whole arrays
//! # assert_eq!(pressures[1], pressure);
//! # Ok(())
//! # }
//! ```
//!
//! There is a module for each family: [`psychro`], [`fabric`], [`glazing`], [`climate`] and [`geometry`]. Each has
//! `arrays` within it, the functions of whole arrays. [`ClimateFile`] is an open climate data file, [`polygon`] cuts
//! polygons in plan. Angles are in radians unless a description says degrees; azimuths run from north, clockwise seen
//! from above. 1e20, [`NONE`], stands for a quantity that does not exist; what a call leaves unwritten is not a number
//! (an integer: 0), or as it was given.
//!
//! # Bad input
//!
//! What is outside of its valid range or not a number, a list of another length: an [`Error`] that names function,
//! argument, value and what is valid.
//!
//! ```
//! let error = quorvel::psychro::vapour_pressure(20.0, 150.0).unwrap_err();
//! assert_eq!(error.to_string(), "psychro::vapour_pressure: relative_humidity = 150 is not valid: 0 to 100 %");
//! ```
//!
//! [`unchecked`] has all functions once more, without a look at the values: what they give is then that of C, to the
//! bit. No input makes either panic or touch memory that is not theirs.
//!
//! # Threads
//!
//! All functions may be called from any thread. Only those of [`climate`] that read the climate data file opened last
//! share a state in a process; objects of [`ClimateFile`] have nothing in common.
#![warn(missing_docs)]
#![allow(clippy::too_many_arguments, clippy::approx_constant)] // as the formulas and their ranges have them

mod check;
pub mod climate;
mod climate_file;
mod clipping_status;
mod elements;
mod error;
pub mod fabric;
pub mod geometry;
pub mod glazing;
pub mod polygon;
pub mod psychro;
mod selector;
mod selectors;
pub mod sys;
pub mod unchecked;

pub use climate_file::ClimateFile;
pub use elements::Input;
pub use error::Error;
pub use selectors::*;

/// Stands for a quantity that does not exist.
pub const NONE: f32 = 1.0e20;
