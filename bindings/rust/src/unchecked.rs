//! All functions once more, without a look at the values: what C gives, to the bit. What input outside of the valid
//! ranges gets is told in the notes of each function.
//!
//! ```
//! use quorvel::unchecked::psychro; // all calls of a file become unchecked by this
//!
//! assert_eq!(psychro::vapour_pressure(20.0, 150.0), psychro::vapour_pressure(20.0, 100.0));
//! ```
//!
//! A selector may be any number here. What the memory needs is looked at even so: functions that take lists refuse
//! those that are not equally long.

pub mod climate;
pub mod fabric;
pub mod geometry;
pub mod glazing;
pub mod psychro;
