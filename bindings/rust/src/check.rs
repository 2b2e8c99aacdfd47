//! What is refused, and in which words. Texts are made only where something is.

use crate::Error;
use std::ffi::CString;
use std::fmt::Display;
use std::ops::RangeInclusive;
use std::path::Path;

const MOST_ROOM: i32 = 1 << 28;

pub(crate) trait Number: Copy + PartialOrd + Display {
    const LOWEST: Self;
    const HIGHEST: Self;
}

/// A number, or any array of numbers.
pub(crate) trait Values {
    type Number: Number;

    /// The first number that `valid` does not have, with its place: "\[2\]", or nothing for one number alone.
    fn outside(&self, valid: &RangeInclusive<Self::Number>) -> Option<(String, Self::Number)>;
}

macro_rules! number {
    ($type:ty, $lowest:expr, $highest:expr) => {
        impl Number for $type {
            const LOWEST: $type = $lowest;
            const HIGHEST: $type = $highest;
        }

        impl Values for $type {
            type Number = $type;

            fn outside(&self, valid: &RangeInclusive<$type>) -> Option<(String, $type)> {
                (!valid.contains(self)).then(|| (String::new(), *self))
            }
        }
    };
}

number!(f32, f32::NEG_INFINITY, f32::INFINITY);
number!(f64, f64::NEG_INFINITY, f64::INFINITY);
number!(i32, i32::MIN, i32::MAX);

impl<T: Values> Values for [T] {
    type Number = T::Number;

    fn outside(&self, valid: &RangeInclusive<T::Number>) -> Option<(String, T::Number)> {
        self.iter().enumerate().find_map(|(k, one)| {
            let (place, value) = one.outside(valid)?;
            Some((format!("[{k}]{place}"), value))
        })
    }
}

impl<T: Values, const N: usize> Values for [T; N] {
    type Number = T::Number;

    fn outside(&self, valid: &RangeInclusive<T::Number>) -> Option<(String, T::Number)> {
        self[..].outside(valid)
    }
}

pub(crate) fn range<V: Values + ?Sized>(
    function: &'static str, argument: &str, values: &V, valid: RangeInclusive<V::Number>, unit: &str,
) -> Result<(), Error> {
    match values.outside(&valid) {
        None => Ok(()),
        Some((place, value)) => Err(Error::Value {
            function,
            argument: format!("{argument}{place}"),
            value: value.to_string(),
            valid: limits(&valid, unit),
        }),
    }
}

/// Of lists that must not be of any length.
pub(crate) fn length(
    function: &'static str, argument: &'static str, length: usize, valid: RangeInclusive<i32>,
) -> Result<(), Error> {
    match i32::try_from(length) {
        Ok(count) if valid.contains(&count) => Ok(()),
        _ => Err(Error::Length { function, argument, length, valid: limits(&valid, "") }),
    }
}

/// How many there are in each of some lists, which must be equally long.
pub(crate) fn count(function: &'static str, lists: &[(&'static str, usize)]) -> Result<i32, Error> {
    let (first, count) = lists[0];
    for &(argument, length) in lists {
        if length != count {
            return Err(Error::Length { function, argument, length, valid: format!("as many as of {first}, {count}") });
        }
    }
    let refused = |_| Error::Length { function, argument: first, length: count, valid: limits(&(0..=i32::MAX - 1), "") };
    i32::try_from(count).map_err(refused)
}

/// How many results there is room for.
pub(crate) fn room(function: &'static str, argument: &str, count: i32) -> Result<usize, Error> {
    range(function, argument, &count, i32::MIN..=MOST_ROOM, "")?;
    Ok(count.max(0) as usize)
}

/// The name of a file as C takes it: in UTF-8 on Windows, elsewhere as its bytes are.
pub(crate) fn text(function: &'static str, argument: &str, path: &Path) -> Result<CString, Error> {
    let refused = || Error::Value {
        function,
        argument: argument.to_owned(),
        value: path.display().to_string(),
        valid: "a name without NUL".to_owned(),
    };
    CString::new(bytes(path).ok_or_else(refused)?).map_err(|_| refused())
}

#[cfg(unix)]
fn bytes(path: &Path) -> Option<Vec<u8>> {
    use std::os::unix::ffi::OsStrExt;
    Some(path.as_os_str().as_bytes().to_vec())
}

#[cfg(not(unix))]
fn bytes(path: &Path) -> Option<Vec<u8>> {
    Some(path.to_str()?.as_bytes().to_vec())
}

fn limits<T: Number>(valid: &RangeInclusive<T>, unit: &str) -> String {
    let (low, high) = (valid.start(), valid.end());
    let text = match (*low == T::LOWEST, *high == T::HIGHEST) {
        (true, true) => return "any number".to_owned(),
        (true, false) => format!("to {high} {unit}"),
        (false, true) => format!("from {low} {unit}"),
        (false, false) => format!("{low} to {high} {unit}"),
    };
    text.trim_end().to_owned()
}
