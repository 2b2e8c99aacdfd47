//! Whole arrays.

use crate::check::Values;
use crate::{selector::Selector, Error};
use std::ops::RangeInclusive;

/// An argument of a function of whole arrays: one value that goes with all elements, or a value for each.
#[derive(Clone, Copy, Debug)]
pub enum Input<'a, T> {
    /// For all elements.
    One(T),
    /// For each element.
    Each(&'a [T]),
}

impl<T> From<T> for Input<'_, T> {
    fn from(value: T) -> Self {
        Input::One(value)
    }
}

impl<'a, T> From<&'a [T]> for Input<'a, T> {
    fn from(values: &'a [T]) -> Self {
        Input::Each(values)
    }
}

impl<'a, T, const N: usize> From<&'a [T; N]> for Input<'a, T> {
    fn from(values: &'a [T; N]) -> Self {
        Input::Each(values)
    }
}

impl<'a, T> From<&'a Vec<T>> for Input<'a, T> {
    fn from(values: &'a Vec<T>) -> Self {
        Input::Each(values)
    }
}

impl<T> Input<'_, T> {
    fn values(&self) -> &[T] {
        match self {
            Input::One(value) => std::slice::from_ref(value),
            Input::Each(values) => values,
        }
    }

    pub(crate) fn first(&self) -> *const T {
        self.values().as_ptr()
    }

    pub(crate) fn stride(&self) -> isize {
        match self {
            Input::One(_) => 0,
            Input::Each(_) => std::mem::size_of::<T>() as isize,
        }
    }

    /// Its name, and how many there are; one value goes with any number.
    pub(crate) fn length(&self, name: &'static str) -> (&'static str, Option<usize>) {
        match self {
            Input::One(_) => (name, None),
            Input::Each(values) => (name, Some(values.len())),
        }
    }
}

impl<'a, T: Selector> Input<'a, T> {
    pub(crate) fn numbers(self) -> Input<'a, i32> {
        match self {
            Input::One(value) => Input::One(value.number()),
            Input::Each(values) => Input::Each(T::numbers(values)),
        }
    }
}

impl<T: Values> Values for Input<'_, T> {
    type Number = T::Number;

    fn outside(&self, valid: &RangeInclusive<T::Number>) -> Option<(String, T::Number)> {
        match self {
            Input::One(value) => value.outside(valid),
            Input::Each(values) => values.outside(valid),
        }
    }
}

/// Results for all elements, before the call.
pub(crate) fn results<T: Clone + Default>(
    function: &'static str, lengths: &[(&'static str, Option<usize>)],
) -> Result<Vec<T>, Error> {
    let count = count(function, lengths)?;
    let mut results = Vec::with_capacity(count.max(1)); // of none too, there is a place for the first
    results.resize(count, T::default());
    Ok(results)
}

/// How many there are, where the first goes, and how far the next lies from it in bytes.
pub(crate) fn room<T>(results: &mut Vec<T>) -> (usize, *mut T, isize) {
    (results.len(), results.as_mut_ptr(), std::mem::size_of::<T>() as isize)
}

fn count(function: &'static str, lengths: &[(&'static str, Option<usize>)]) -> Result<usize, Error> {
    let mut several = lengths.iter().filter_map(|&(name, length)| Some((name, length?)));
    let (first, count) = several.next().unwrap_or(("", 1));
    match several.find(|&(_, length)| length != count) {
        None => Ok(count),
        Some((argument, length)) => {
            Err(Error::Length { function, argument, length, valid: format!("as many as of {first}, {count}") })
        }
    }
}

/// Holds what the array library returns against 0: nothing that these modules pass can be refused.
pub(crate) fn done(status: i32) {
    assert_eq!(status, 0, "quorvel_arrays is another library than this crate was made for");
}

/// -1 and 0 as what they mean.
pub(crate) fn logical(results: Vec<i32>) -> Vec<bool> {
    results.into_iter().map(|result| result != 0).collect()
}
