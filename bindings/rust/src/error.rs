use crate::clipping_status;
use std::fmt::{self, Display, Formatter};
use std::io;
use std::path::PathBuf;

/// What is wrong with a call.
#[derive(Clone, Debug, PartialEq, Eq)]
#[non_exhaustive]
pub enum Error {
    /// A value lies outside of what is valid, or is not a number.
    Value {
        /// With its module: `psychro::vapour_pressure`.
        function: &'static str,
        /// With its place where it is one of many: `thickness[2]`.
        argument: String,
        /// As it was given.
        value: String,
        /// What is valid, with its unit.
        valid: String,
    },
    /// A list has more or fewer elements than it may have.
    Length {
        /// With its module.
        function: &'static str,
        /// The list.
        argument: &'static str,
        /// How many elements it has.
        length: usize,
        /// How many it may have.
        valid: String,
    },
    /// Two polygons cannot be clipped.
    Clipping {
        /// As `HOHOLEDP` of quorvel.h returns it.
        status: i32,
    },
    /// A climate data file cannot be opened.
    File {
        /// As it was given.
        path: PathBuf,
        /// Why; `Other` where it is no regular file.
        kind: io::ErrorKind,
    },
    /// A climate data file has no such station, or fails to be read.
    Station {
        /// Of the file.
        path: PathBuf,
        /// Its number.
        station: i32,
    },
}

impl std::error::Error for Error {}

impl Display for Error {
    fn fmt(&self, text: &mut Formatter) -> fmt::Result {
        match self {
            Error::Value { function, argument, value, valid } => {
                write!(text, "{function}: {argument} = {value} is not valid: {valid}")
            }
            Error::Length { function, argument, length, valid } => {
                write!(text, "{function}: {argument} has {length} elements; valid are {valid}")
            }
            Error::Clipping { status } => write!(text, "polygon::clip: {}", clipping_status::fault(*status)),
            Error::File { path, kind: io::ErrorKind::Other } => {
                write!(text, "{}: cannot be read as a climate data file", path.display())
            }
            Error::File { path, kind } => write!(text, "{}: {kind}", path.display()),
            Error::Station { path, station } => write!(text, "{}: station {station} cannot be read", path.display()),
        }
    }
}
